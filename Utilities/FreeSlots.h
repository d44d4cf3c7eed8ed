#pragma once

#include "UiToolsExport.h"

#include <array>
#include <cstddef>
#include <map>

namespace Zorvane {

/**
 * The slots 0, 1, 2, ... without end that nobody holds, all of them at first. A slot's colour is
 * its number modulo the number of colours. Internal to `IdentifierToColorMap`.
 *
 * Free slots are kept as runs, so that a slot far out costs no more than any other.
 */
class ZORVANE_UITOOLS_EXPORT FreeSlots
{
public:
    static constexpr std::size_t Colors = 8;

    FreeSlots();

    std::size_t lowest() const;
    /** The lowest of those congruent to `slot` that are not below it. */
    std::size_t lowestOfColor(std::size_t slot) const;

    /** The slot must be free. */
    void take(std::size_t slot);
    /** The slot must have been taken. */
    void add(std::size_t slot);

private:
    /** First of a run and behind its last, in slots of one colour. The last run has no end. */
    using Runs = std::map<std::size_t, std::size_t>;

    std::array<Runs, Colors> m_runs;
};

} // namespace Zorvane
