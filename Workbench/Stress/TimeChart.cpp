#include "Workbench/Stress/TimeChart.h"

#include <QtCore/QLocale>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace Zorvane::Workbench {

namespace {

constexpr int s_barWidth = 4;
constexpr int s_barGap = 1;
constexpr std::size_t s_mostTimes = 1000;

/** The next of 1, 2, 5, 10 ... times a power of ten: the scale does not jump with every bar. */
double roundedUp(double value)
{
    const double power = std::pow(10.0, std::floor(std::log10(std::max(value, 0.1))));
    for (const double step : {1.0, 2.0, 5.0})
        if (value <= step * power)
            return step * power;
    return 10 * power;
}

} // namespace

TimeChart::TimeChart(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumHeight(5 * fontMetrics().height());
}

void TimeChart::add(double milliseconds)
{
    m_times.push_back(milliseconds);
    if (m_times.size() > s_mostTimes)
        m_times.pop_front();
    m_sum += milliseconds;
    ++m_count;
    m_slowest = std::max(m_slowest, milliseconds);
    update();
}

void TimeChart::clear()
{
    m_times.clear();
    m_sum = 0;
    m_count = 0;
    m_slowest = 0;
    update();
}

double TimeChart::average() const
{
    return m_count == 0 ? 0 : m_sum / m_count;
}

QSize TimeChart::sizeHint() const
{
    return {60 * (s_barWidth + s_barGap), 8 * fontMetrics().height()};
}

int TimeChart::barCount() const
{
    return std::min(int(m_times.size()), width() / (s_barWidth + s_barGap));
}

double TimeChart::shownMaximum() const
{
    const auto first = m_times.end() - barCount();
    return first == m_times.end() ? 0 : *std::max_element(first, m_times.end());
}

void TimeChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const int line = fontMetrics().height();
    const QRectF area = QRectF(rect()).adjusted(2, line + 6, -2, -2);
    const double top = roundedUp(shownMaximum());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    if (isEmpty()) {
        painter.drawText(rect(), Qt::AlignCenter, tr("No refresh yet"));
        return;
    }
    painter.drawText(QRect(6, 3, width() - 12, line), Qt::AlignLeft | Qt::AlignVCenter,
                     tr("%1 ms").arg(QLocale().toString(top)));
    painter.drawText(QRect(6, 3, width() - 12, line), Qt::AlignRight | Qt::AlignVCenter,
                     tr("dashed: average"));
    paintBars(painter, area, top);
    paintAverage(painter, area, top);
}

void TimeChart::paintBars(QPainter& painter, const QRectF& area, double top) const
{
    QColor bar = palette().color(QPalette::Link);
    double right = area.right();
    for (int i = 0; i < barCount(); ++i) {
        const double time = *(m_times.rbegin() + i);
        const double height = std::max(1.0, area.height() * time / top);
        bar.setAlphaF(i == 0 ? 1.0 : 0.6);
        painter.fillRect(QRectF(right - s_barWidth, area.bottom() - height, s_barWidth, height),
                         bar);
        right -= s_barWidth + s_barGap;
    }
}

void TimeChart::paintAverage(QPainter& painter, const QRectF& area, double top) const
{
    const double y = area.bottom() - area.height() * average() / top;
    if (y < area.top())
        return;
    painter.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
}

} // namespace Zorvane::Workbench
