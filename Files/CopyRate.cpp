#include "Files/CopyRate.h"

#include <cmath>

namespace Zorvane {

namespace {

constexpr qint64 s_window = 4000;
constexpr qint64 s_step = 100;
constexpr qint64 s_leastKnown = 400;
constexpr double s_millisecondsPerSecond = 1000.0;

} // namespace

void CopyRate::add(qint64 milliseconds, qint64 bytesDone)
{
    if (!m_samples.empty() && milliseconds - m_samples.back().milliseconds < s_step)
        return;
    m_samples.push_back({milliseconds, bytesDone});
    while (m_samples.size() > 2 && milliseconds - m_samples[1].milliseconds >= s_window)
        m_samples.pop_front();
}

std::optional<double> CopyRate::bytesPerSecond() const
{
    if (m_samples.empty())
        return std::nullopt;
    const qint64 time = m_samples.back().milliseconds - m_samples.front().milliseconds;
    const qint64 bytes = m_samples.back().bytes - m_samples.front().bytes;
    if (time < s_leastKnown || bytes <= 0)
        return std::nullopt;
    return static_cast<double>(bytes) * s_millisecondsPerSecond / static_cast<double>(time);
}

std::optional<qint64> CopyRate::secondsLeft(qint64 bytesLeft) const
{
    const std::optional<double> rate = bytesPerSecond();
    if (!rate)
        return std::nullopt;
    return static_cast<qint64>(std::ceil(static_cast<double>(bytesLeft) / *rate));
}

} // namespace Zorvane
