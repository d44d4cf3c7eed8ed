#include "Host/Widgets/ZVMessageBox.h"

#include "Host/Widgets/MessageBoxTitleBar.h"

#include <QtCore/QPointer>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <utility>
#include <vector>

namespace Zorvane {

namespace {

constexpr int s_frameWidth = 1;

std::shared_ptr<MessageBoxPresenter>& registeredPresenter()
{
    static auto s_instance = std::make_shared<MessageBoxPresenter>();
    return s_instance;
}

QMessageBox::StandardButton ask(QMessageBox::Icon icon, QWidget* parent, const QString& title,
                                const QString& text, QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton defaultButton)
{
    // The parent may be deleted while the box is open, and the box with it.
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

MessageBoxPresenter::MessageBoxPresenter() = default;
MessageBoxPresenter::MessageBoxPresenter(const MessageBoxPresenter&) = default;
MessageBoxPresenter& MessageBoxPresenter::operator=(const MessageBoxPresenter&) = default;
MessageBoxPresenter::~MessageBoxPresenter() = default;

std::shared_ptr<MessageBoxPresenter>
MessageBoxPresenter::registerInstance(std::shared_ptr<MessageBoxPresenter> instance)
{
    if (!instance)
        instance = std::make_shared<MessageBoxPresenter>();
    return std::exchange(registeredPresenter(), std::move(instance));
}

void MessageBoxPresenter::present(ZVMessageBox& box)
{
    box.QMessageBox::exec();
}

ZVMessageBox::ZVMessageBox(Icon icon, const QString& title, const QString& text,
                           StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags)
    : QMessageBox(icon, title, text, buttons, parent)
{
    // QMessageBox adds flags of its own, and QWidget takes the frame back into customized windows.
    overrideWindowFlags(flags | Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    findChild<QDialogButtonBox*>()->installEventFilter(this);
    rememberTexts();
    if (!flags.testFlag(Qt::FramelessWindowHint))
        return;
    m_titleBar = new MessageBoxTitleBar(this);
    placeTitleBar();
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

int ZVMessageBox::exec()
{
    const QPointer<ZVMessageBox> self(this);
    const std::shared_ptr<MessageBoxPresenter> presenter = registeredPresenter();
    setResult(0);
    presenter->present(*this);
    return self ? result() : 0;
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
    keepHidden([this] { m_wayOut = addButton(Ok); });
    setDefaultButton(m_wayOut);
    setEscapeButton(m_wayOut);
}

void ZVMessageBox::rememberTexts()
{
    m_usualTexts.clear();
    for (QAbstractButton* button : buttons())
        m_usualTexts.insert(button, button->text());
}

/** Qt shows all buttons whenever it lays out their row: for a new button or style. */
void ZVMessageBox::keepHidden(const std::function<void()>& change)
{
    QList<QAbstractButton*> hidden;
    for (QAbstractButton* button : buttons())
        if (button->isHidden())
            hidden.append(button);
    change();
    for (QAbstractButton* button : qAsConst(hidden))
        button->hide();
}

/** A new language makes Qt give all its buttons its own texts. */
void ZVMessageBox::keepTexts(const std::function<void()>& change)
{
    struct Label
    {
        QAbstractButton* button;
        QString text;
        QKeySequence shortcut;
    };
    std::vector<Label> given;
    for (QAbstractButton* button : buttons())
        if (m_usualTexts.value(button, button->text()) != button->text())
            given.push_back({button, button->text(), button->shortcut()});
    change();
    rememberTexts();
    for (const Label& label : given) {
        label.button->setText(label.text);
        label.button->setShortcut(label.shortcut);
    }
}

bool ZVMessageBox::event(QEvent* event)
{
    // The code that an event calls may destroy the box, as that of a timer or a deferred call does.
    const QPointer<ZVMessageBox> self(this);
    bool isHandled = false;
    if (event->type() == QEvent::StyleChange)
        keepHidden([&] { isHandled = QMessageBox::event(event); });
    else
        isHandled = QMessageBox::event(event);
    if (!self)
        return isHandled;

    const bool isSizeChange =
        event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (m_titleBar && isSizeChange)
        placeTitleBar();
    if (event->type() == QEvent::LayoutRequest)
        fitToMaximumWidth();
    return isHandled;
}

bool ZVMessageBox::eventFilter(QObject* watched, QEvent* event)
{
    if (!qobject_cast<QDialogButtonBox*>(watched))
        return QMessageBox::eventFilter(watched, event);
    const auto change = [=] { watched->event(event); };
    switch (event->type()) {
    case QEvent::StyleChange:
        keepHidden(change);
        return true;
    case QEvent::LanguageChange:
        keepTexts(change);
        return true;
    default:
        return QMessageBox::eventFilter(watched, event);
    }
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
    painter.setPen(TitleColors(palette()).frame);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ZVMessageBox::resizeEvent(QResizeEvent* event)
{
    QMessageBox::resizeEvent(event);
    if (m_titleBar)
        placeTitleBar();
}

void ZVMessageBox::placeTitleBar()
{
    const int height = m_titleBar->sizeHint().height();
    setContentsMargins(s_frameWidth, s_frameWidth + height, s_frameWidth, s_frameWidth);
    m_titleBar->setGeometry(s_frameWidth, s_frameWidth, width() - 2 * s_frameWidth, height);
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
