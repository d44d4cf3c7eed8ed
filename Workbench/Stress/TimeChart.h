#pragma once

#include <QtWidgets/QWidget>

#include <deque>

namespace Zorvane::Workbench {

/** Bars of the last times of something, the newest on the right, with their average as a line. */
class TimeChart : public QWidget
{
    Q_OBJECT

public:
    explicit TimeChart(QWidget* parent = nullptr);

    void add(double milliseconds);
    void clear();

    bool isEmpty() const { return m_times.empty(); }
    /** Of all times since it was cleared, not only of those shown. */
    double average() const;
    double slowest() const { return m_slowest; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int barCount() const;
    void paintBars(QPainter& painter, const QRectF& area, double top) const;
    void paintAverage(QPainter& painter, const QRectF& area, double top) const;
    double shownMaximum() const;

    std::deque<double> m_times;
    double m_sum = 0;
    double m_slowest = 0;
    int m_count = 0;
};

} // namespace Zorvane::Workbench
