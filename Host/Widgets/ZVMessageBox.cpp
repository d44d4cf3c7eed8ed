#include "Host/Widgets/ZVMessageBox.h"

#include "Host/Widgets/MessageBoxTitleBar.h"

#include <QtCore/QPointer>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <utility>

namespace Zorvane {

namespace {

constexpr int s_frameWidth = 1;

QMessageBox::StandardButton ask(QMessageBox::Icon icon, QWidget* parent, const QString& title,
                                const QString& text, QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton defaultButton)
{
    // The parent may go away while the box is open, and takes it along.
    const QPointer<ZVMessageBox> box = new ZVMessageBox(icon, title, text, buttons, parent);
    if (defaultButton != QMessageBox::NoButton)
        box->setDefaultButton(defaultButton);
    box->exec();
    const QMessageBox::StandardButton pressed =
        box ? box->standardButton(box->clickedButton()) : QMessageBox::NoButton;
    delete box;
    return pressed;
}

} // namespace

ZVMessageBox::ZVMessageBox(Icon icon, const QString& title, const QString& text,
                           StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags)
    : QMessageBox(icon, title, text, buttons, parent)
{
    // QMessageBox adds flags of its own, and QWidget takes the frame back into customized windows.
    overrideWindowFlags(flags | Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    if (!flags.testFlag(Qt::FramelessWindowHint))
        return;
    m_titleBar = new MessageBoxTitleBar(this);
    setContentsMargins(s_frameWidth, s_frameWidth + m_titleBar->sizeHint().height(), s_frameWidth,
                       s_frameWidth);
    setTitleCloseButtonVisible(flags.testFlag(Qt::WindowCloseButtonHint));
}

bool ZVMessageBox::isTitleCloseButtonVisible() const
{
    return m_titleBar ? !m_titleBar->closeButton()->isHidden()
                      : windowFlags().testFlag(Qt::WindowCloseButtonHint);
}

void ZVMessageBox::setTitleCloseButtonVisible(bool visible)
{
    if (m_titleBar)
        m_titleBar->closeButton()->setVisible(visible);
    else
        setWindowFlag(Qt::WindowCloseButtonHint, visible);
}

void ZVMessageBox::setMaximumWidth(int width)
{
    m_maximumWidth = width;
    if (isVisible())
        fitToMaximumWidth();
}

bool ZVMessageBox::mayBeClosed() const
{
    return isTitleCloseButtonVisible() || m_wayOut || !hasPressableButton();
}

bool ZVMessageBox::hasPressableButton() const
{
    const QList<QAbstractButton*> all = buttons();
    return std::any_of(all.begin(), all.end(), [](const QAbstractButton* button) {
        return !button->isHidden() && button->isEnabled();
    });
}

void ZVMessageBox::addWayOut()
{
    // Laying out the row of buttons shows all of them.
    QList<QAbstractButton*> hidden = buttons();
    hidden.erase(std::remove_if(hidden.begin(), hidden.end(),
                                [](const QAbstractButton* button) { return !button->isHidden(); }),
                 hidden.end());
    QPushButton* okay = addButton(Ok);
    for (QAbstractButton* button : std::as_const(hidden))
        button->hide();
    m_wayOut = okay;
    setDefaultButton(okay);
    setEscapeButton(okay);
}

bool ZVMessageBox::event(QEvent* event)
{
    const bool handled = QMessageBox::event(event);
    if (event->type() == QEvent::LayoutRequest)
        fitToMaximumWidth();
    return handled;
}

void ZVMessageBox::closeEvent(QCloseEvent* event)
{
    if (!mayBeClosed()) {
        event->ignore();
        return;
    }
    QMessageBox::closeEvent(event);
    if (!event->isAccepted())
        done(Rejected);
}

void ZVMessageBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QMessageBox::keyPressEvent(event);
}

void ZVMessageBox::paintEvent(QPaintEvent* event)
{
    QMessageBox::paintEvent(event);
    if (!m_titleBar)
        return;
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ZVMessageBox::resizeEvent(QResizeEvent* event)
{
    QMessageBox::resizeEvent(event);
    if (m_titleBar)
        m_titleBar->setGeometry(s_frameWidth, s_frameWidth, width() - 2 * s_frameWidth,
                                m_titleBar->sizeHint().height());
}

void ZVMessageBox::showEvent(QShowEvent* event)
{
    if (!hasPressableButton())
        addWayOut();
    QMessageBox::showEvent(event);
    fitToMaximumWidth();
}

void ZVMessageBox::fitToMaximumWidth()
{
    // QMessageBox fixes its size whenever its layout changes and knows of no other width.
    if (width() <= m_maximumWidth || !layout())
        return;
    for (QLabel* label : findChildren<QLabel*>(QRegularExpression(QStringLiteral("^qt_msgbox"))))
        label->setWordWrap(label->pixmap(Qt::ReturnByValue).isNull());
    layout()->activate();
    const int fitted = std::max(m_maximumWidth, layout()->totalMinimumSize().width());
    const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(fitted)
                                                     : layout()->totalMinimumSize().height();
    setFixedSize(fitted, height);
}

QMessageBox::StandardButton ZVMessageBox::critical(QWidget* parent, const QString& title,
                                                   const QString& text, StandardButtons buttons,
                                                   StandardButton defaultButton)
{
    return ask(Critical, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton ZVMessageBox::information(QWidget* parent, const QString& title,
                                                      const QString& text, StandardButtons buttons,
                                                      StandardButton defaultButton)
{
    return ask(Information, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton ZVMessageBox::question(QWidget* parent, const QString& title,
                                                   const QString& text, StandardButtons buttons,
                                                   StandardButton defaultButton)
{
    return ask(Question, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton ZVMessageBox::warning(QWidget* parent, const QString& title,
                                                  const QString& text, StandardButtons buttons,
                                                  StandardButton defaultButton)
{
    return ask(Warning, parent, title, text, buttons, defaultButton);
}

} // namespace Zorvane
