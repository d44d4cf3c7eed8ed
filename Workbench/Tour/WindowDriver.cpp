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
/** Between a dialog and the window beside it, in pictures. */
constexpr int s_gap = 5;
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

QImage WindowDriver::pictureWith(QWidget& dialog, QWidget* beside) const
{
    QImage whole = m_window.grab().toImage();
    std::vector<QWidget*> windows{&dialog};
    if (beside != nullptr)
        windows.push_back(beside);
    int width = (int(windows.size()) - 1) * s_gap;
    for (const QWidget* window : windows)
        width += frameSize(*window).width();
    QPainter painter(&whole);
    int left = (whole.width() - width) / 2;
    const int top = (whole.height() - frameSize(dialog).height()) / 2;
    for (QWidget* window : windows) {
        drawWindow(painter, *window, QPoint(left, top));
        left += frameSize(*window).width() + s_gap;
    }
    return whole;
}

/** With a title, unless it is a frameless window, which draws its title itself. */
int WindowDriver::titleHeight(const QWidget& window) const
{
    const bool hasTitle = !window.windowFlags().testFlag(Qt::FramelessWindowHint);
    return hasTitle ? 2 * m_window.fontMetrics().height() : 1;
}

QSize WindowDriver::frameSize(const QWidget& window) const
{
    return window.size() + QSize(2, titleHeight(window) + 1);
}

void WindowDriver::drawWindow(QPainter& painter, QWidget& window, const QPoint& corner) const
{
    const QRect frame(corner, frameSize(window));
    const int title = titleHeight(window);
    painter.fillRect(frame, m_window.palette().color(QPalette::Highlight));
    painter.setPen(m_window.palette().color(QPalette::HighlightedText));
    if (title > 1)
        painter.drawText(QRect(corner, QSize(frame.width(), title)), Qt::AlignCenter,
                         window.windowTitle());
    painter.drawPixmap(corner + QPoint(1, title), window.grab());
}

} // namespace Zorvane::Workbench
