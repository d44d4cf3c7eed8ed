#include "Workbench/Window/MessageBar.h"

#include "Host/ApplicationWidgets/SvgIcon.h"

#include <QtCore/QEvent>
#include <QtGui/QAccessible>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

namespace Zorvane::Workbench {

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_close(new QToolButton(this))
{
    m_icon->setAccessibleName(tr("Warning"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_close->setText(tr("Close"));
    m_close->setAutoRaise(true);
    m_close->setFocusPolicy(Qt::StrongFocus);
    m_close->setAccessibleName(tr("Close message"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 5, 6, 5);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_close);
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    colour();
    hide();
}

void MessageBar::say(const QString& text)
{
    m_text->setText(text);
    show();
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : m_text->text();
}

void MessageBar::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_colouring)
        colour();
}

void MessageBar::colour()
{
    m_colouring = true;
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    // Only these roles are our own, so that a change of the others still reaches the bar.
    QPalette own;
    own.setColor(QPalette::Window, dark ? QColor(0x4d, 0x40, 0x20) : QColor(0xff, 0xf3, 0xd1));
    own.setColor(QPalette::WindowText, dark ? QColor(0xff, 0xec, 0xc0) : QColor(0x4a, 0x36, 0x05));
    own.setColor(QPalette::ButtonText, own.color(QPalette::WindowText));
    setPalette(own);
    m_icon->setPixmap(createSvgIcon(QStringLiteral(":/workbench/problem.svg")).pixmap(16, 16));
    m_colouring = false;
}

} // namespace Zorvane::Workbench
