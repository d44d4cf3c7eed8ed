#include "Host/Widgets/MessageBoxTitleBar.h"

#include "Host/Translation/Translator.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

namespace Zorvane {

MessageBoxTitleBar::MessageBoxTitleBar(QWidget* window)
    : QWidget(window)
    , m_title(new QLabel(window->windowTitle(), this))
    , m_closeButton(new QToolButton(this))
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Midlight);
    m_title->setTextFormat(Qt::PlainText);
    m_closeButton->setObjectName(QStringLiteral("titleCloseButton"));
    m_closeButton->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_closeButton->setAutoRaise(true);
    m_closeButton->setFocusPolicy(Qt::NoFocus);
    m_closeButton->setToolTip(Translator::translate("Zorvane::ZVMessageBox", "Close"));
    m_closeButton->setAccessibleName(m_closeButton->toolTip());

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 2, 2);
    layout->addWidget(m_title, 1);
    layout->addWidget(m_closeButton);

    connect(window, &QWidget::windowTitleChanged, m_title, &QLabel::setText);
    connect(m_closeButton, &QToolButton::clicked, window, &QWidget::close);
}

void MessageBoxTitleBar::mousePressEvent(QMouseEvent* event)
{
    m_grip = event->globalPos() - window()->pos();
}

void MessageBoxTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        window()->move(event->globalPos() - m_grip);
}

} // namespace Zorvane
