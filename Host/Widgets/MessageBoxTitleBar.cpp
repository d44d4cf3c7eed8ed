#include "Host/Widgets/MessageBoxTitleBar.h"

#include "Host/Translation/Translator.h"

#include <QtGui/QIcon>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <cmath>

namespace Zorvane {

namespace {

constexpr double s_leastContrast = 4.5;

/** The relative luminance of WCAG 2, from 0 to 1. */
double luminance(const QColor& color)
{
    const auto linear = [](double component) {
        return component <= 0.03928 ? component / 12.92
                                    : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/** `part` of the second colour in the first. */
QColor blended(const QColor& one, const QColor& other, double part)
{
    const auto component = [part](double from, double to) { return from + (to - from) * part; };
    return QColor::fromRgbF(component(one.redF(), other.redF()),
                            component(one.greenF(), other.greenF()),
                            component(one.blueF(), other.blueF()));
}

/** The title. A style sheet for labels would give it a colour meant for other backgrounds. */
class TitleLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(TitleColors(parentWidget()->palette()).text);
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeading,
                         fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    }
};

/** A style's own icon is drawn for light title bars only. */
QIcon crossIcon(const QColor& color, int extent, double scale)
{
    QPixmap pixmap(QSize(extent, extent) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap));
    const double edge = extent * 0.25;
    painter.drawLine(QPointF(edge, edge), QPointF(extent - edge, extent - edge));
    painter.drawLine(QPointF(extent - edge, edge), QPointF(edge, extent - edge));
    return pixmap;
}

} // namespace

TitleColors::TitleColors(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor windowText = palette.color(QPalette::WindowText);
    background = blended(window, windowText, 0.12);
    frame = blended(window, windowText, 0.4);
    text = windowText;
    if (contrast(background, text) < s_leastContrast)
        text = contrast(background, Qt::black) > contrast(background, Qt::white) ? Qt::black
                                                                                 : Qt::white;
}

MessageBoxTitleBar::MessageBoxTitleBar(QWidget* window)
    : QWidget(window)
    , m_title(new TitleLabel(window->windowTitle(), this))
    , m_closeButton(new QToolButton(this))
{
    m_title->setTextFormat(Qt::PlainText);
    m_closeButton->setObjectName(QStringLiteral("titleCloseButton"));
    m_closeButton->setAutoRaise(true);
    m_closeButton->setFocusPolicy(Qt::NoFocus);
    setUpCloseButton();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 2, 2);
    layout->addWidget(m_title, 1);
    layout->addWidget(m_closeButton);

    connect(window, &QWidget::windowTitleChanged, m_title, &QLabel::setText);
    connect(m_closeButton, &QToolButton::clicked, window, &QWidget::close);
}

void MessageBoxTitleBar::setUpCloseButton()
{
    m_closeButton->setIcon(crossIcon(TitleColors(palette()).text,
                                     style()->pixelMetric(QStyle::PM_SmallIconSize),
                                     devicePixelRatioF()));
    m_closeButton->setToolTip(Translator::translate("Zorvane::ZVMessageBox", "Close"));
    m_closeButton->setAccessibleName(m_closeButton->toolTip());
}

void MessageBoxTitleBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::LanguageChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        setUpCloseButton();
        break;
    default:
        break;
    }
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

void MessageBoxTitleBar::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), TitleColors(palette()).background);
}

} // namespace Zorvane
