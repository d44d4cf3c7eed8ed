#pragma once

#include "UiToolsExport.h"

#include <QtGui/QColor>

#include <array>
#include <cstddef>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace Zorvane {

/**
 * Gives each identifier (its text, such as the UUID of a part) one of eight muted colours, the same
 * in every view for as long as the program runs.
 *
 * Identifiers hold numbered slots; slot i shows palette colour i modulo 8. A new identifier gets
 * the lowest free slot, so colours come in palette order, a colour given back comes next, and the
 * ninth identifier shares the first one's colour. The empty text is no identifier: it never holds
 * a slot and is light grey. Looking an identifier up costs the same however many there are.
 *
 * Colours are returned by reference and stay valid until the process ends.
 *
 * Not supported: use from several threads, and remembering colours from one start to the next.
 */
class ZORVANE_UITOOLS_EXPORT IdentifierToColorMap
{
public:
    /** The one that all views share. */
    static IdentifierToColorMap s_identifierToColorMap;

    /** The identifier's colour; one that has no slot yet is given one. */
    const QColor& getColor(const std::string& id);
    /** The identifier's place in the palette, 0 to 7, given likewise; -1 for the empty text. */
    int getColorIndex(const std::string& id);
    /**
     * Moves the identifier to the first free one of the slots index, index + 8, index + 16, ...,
     * so that it shows the palette's colour `index` modulo 8; one that holds a lower slot as well
     * (see `reassignColor`) goes on showing that one's. A negative index counts on from the first
     * such slot there is.
     */
    void setColorIndex(const std::string& id, int index);
    /**
     * Hands the old identifier's slot, and with it the colour, to the new one. An earlier slot of
     * the new one stays taken, and shows as long as it is the lower of the two. An old identifier
     * without a slot leaves it at giving the new one its own.
     */
    void reassignColor(const std::string& oldId, const std::string& newId);
    /** Frees the identifier's slot, the lowest one if it holds several. */
    void unassignColor(const std::string& id);
    void clear();

private:
    static constexpr std::size_t colorCount = 8;

    int assignColor(const std::string& id);
    const QColor& getColor(int index) const;

    /** The first free one of the slots first, first + 8, first + 16, ... */
    std::size_t freeSlotFrom(std::size_t first) const;
    void take(std::size_t slot);
    void hold(const std::string& id, std::size_t slot);
    /** Takes the identifier's lowest slot away from it, which leaves that slot not yet free. */
    std::size_t release(const std::string& id);

    std::unordered_map<std::string, std::size_t> m_slots;
    /** What identifiers hold above their slot in `m_slots`; hardly any do. */
    std::unordered_map<std::string, std::set<std::size_t>> m_higherSlots;
    std::unordered_set<std::size_t> m_taken;
    /** The lowest free slot of each colour. */
    std::array<std::size_t, colorCount> m_firstFree{0, 1, 2, 3, 4, 5, 6, 7};
};

} // namespace Zorvane
