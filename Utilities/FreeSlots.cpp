#include "Utilities/FreeSlots.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace Zorvane {

FreeSlots::FreeSlots()
{
    for (Runs& runs : m_runs)
        runs.emplace(0, std::numeric_limits<std::size_t>::max());
}

std::size_t FreeSlots::lowest() const
{
    std::size_t lowest = std::numeric_limits<std::size_t>::max();
    for (std::size_t color = 0; color < Colors; ++color)
        lowest = std::min(lowest, m_runs[color].begin()->first * Colors + color);
    return lowest;
}

std::size_t FreeSlots::lowestOfColor(std::size_t slot) const
{
    const std::size_t color = slot % Colors;
    const std::size_t number = slot / Colors;
    const auto behind = m_runs[color].upper_bound(number);
    if (behind != m_runs[color].begin() && number < std::prev(behind)->second)
        return slot;
    return behind->first * Colors + color;
}

void FreeSlots::take(std::size_t slot)
{
    Runs& runs = m_runs[slot % Colors];
    const std::size_t number = slot / Colors;
    const auto run = std::prev(runs.upper_bound(number));
    const auto [first, end] = *run;
    if (number + 1 < end)
        runs.emplace(number + 1, end);
    if (first < number)
        run->second = number;
    else
        runs.erase(run);
}

void FreeSlots::add(std::size_t slot)
{
    m_runs[slot % Colors].emplace(slot / Colors, slot / Colors + 1);
}

} // namespace Zorvane
