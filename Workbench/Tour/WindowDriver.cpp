#include "Workbench/Tour/WindowDriver.h"

#include "Workbench/Window/MainWindow.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

namespace Zorvane::Workbench {

namespace {

constexpr qint64 s_patienceMilliseconds = 120'000;
constexpr int s_mostTabStops = 40;

QString accessibleName(QWidget* widget)
{
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(QAccessible::Name) : QString();
}

} // namespace

WindowDriver::WindowDriver(MainWindow& window)
    : m_window(window)
{}

bool WindowDriver::waitFor(const std::function<bool()>& condition) const
{
    QElapsedTimer patience;
    patience.start();
    QTimer wake;
    wake.start(10);
    while (!condition()) {
        if (patience.hasExpired(s_patienceMilliseconds))
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void WindowDriver::settle() const
{
    QCoreApplication::processEvents();
    m_window.tree().refreshNow();
}

bool WindowDriver::waitUntilRead() const
{
    const bool read = waitFor([this] { return !m_window.loader().isBusy(); });
    settle();
    return read;
}

void WindowDriver::pressKey(QWidget* widget, int key, const QString& text) const
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &release);
}

void WindowDriver::type(QWidget* widget, const QString& text) const
{
    for (const QChar letter : text)
        pressKey(widget, letter.toUpper().unicode(), letter);
}

IDCombiner WindowDriver::find(ObjectKind kind, const QString& name) const
{
    const DesignCatalog& catalog = m_window.tree().catalog();
    for (const IDCombiner& id : catalog.idsOf(kind))
        if (catalog.find(id)->name == name)
            return id;
    return {};
}

bool WindowDriver::select(ObjectKind kind, const QString& name) const
{
    const bool selected = m_window.tree().select(find(kind, name));
    settle();
    return selected;
}

QString WindowDriver::cell(const IDCombiner& id, int column) const
{
    const QModelIndex index = m_window.tree().indexOf(id);
    return index.sibling(index.row(), column).data().toString();
}

QStringList WindowDriver::visibleNames() const
{
    QStringList names;
    addVisibleNames({}, names);
    return names;
}

void WindowDriver::addVisibleNames(const QModelIndex& parent, QStringList& names) const
{
    const ZVTreeViewModel& model = m_window.tree().model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, TreeColumn::Name, parent);
        names << index.data().toString();
        if (m_window.treeView().isExpanded(index))
            addVisibleNames(index, names);
    }
}

QString WindowDriver::firstNameInSight() const
{
    return m_window.treeView().indexAt(QPoint(0, 0)).data().toString();
}

QWidget* WindowDriver::nameEditor() const
{
    return m_window.treeView().viewport()->findChild<QLineEdit*>();
}

QStringList WindowDriver::tabStops() const
{
    QWidget* const first = &m_window.treeView();
    // A dialog that has gone may still be the active window.
    m_window.activateWindow();
    first->setFocus();
    waitFor([first] { return QApplication::focusWidget() == first; });
    QStringList names;
    QWidget* now = first;
    do {
        names << accessibleName(now);
        pressKey(now, Qt::Key_Tab);
        now = QApplication::focusWidget();
    } while (now != nullptr && now != first && names.size() < s_mostTabStops);
    return names;
}

QImage WindowDriver::picture() const
{
    settle();
    return m_window.grab().toImage();
}

QImage WindowDriver::pictureWith(QWidget& dialog) const
{
    QImage whole = m_window.grab().toImage();
    const QImage inner = dialog.grab().toImage();
    // A frameless window draws its title itself.
    const bool hasTitle = !dialog.windowFlags().testFlag(Qt::FramelessWindowHint);
    const int titleHeight = hasTitle ? 2 * m_window.fontMetrics().height() : 1;
    QRect frame(0, 0, inner.width() + 2, inner.height() + titleHeight + 1);
    frame.moveCenter(whole.rect().center());
    QPainter painter(&whole);
    painter.fillRect(frame, m_window.palette().color(QPalette::Highlight));
    painter.setPen(m_window.palette().color(QPalette::HighlightedText));
    if (hasTitle)
        painter.drawText(QRect(frame.topLeft(), QSize(frame.width(), titleHeight)), Qt::AlignCenter,
                         dialog.windowTitle());
    painter.drawImage(frame.topLeft() + QPoint(1, titleHeight), inner);
    return whole;
}

} // namespace Zorvane::Workbench
