#include "Utilities/IdentifierToColorMap.h"

#include <QtCore/QString>

#include <algorithm>
#include <array>
#include <utility>

namespace Zorvane {

namespace {

constexpr int s_noColor = -1;
constexpr int s_lastColor = 7;

using Palette = std::array<QColor, s_lastColor + 1>;

const Palette& palette()
{
    static const Palette s_palette{
        QColor(QStringLiteral("#5f719d")), QColor(QStringLiteral("#AF8959")),
        QColor(QStringLiteral("#659768")), QColor(QStringLiteral("#976593")),
        QColor(QStringLiteral("#5F8E83")), QColor(QStringLiteral("#915E69")),
        QColor(QStringLiteral("#829164")), QColor(QStringLiteral("#8072A0"))};
    return s_palette;
}

const QColor& colorOfNoIdentifier()
{
    static const QColor s_color(Qt::lightGray);
    return s_color;
}

} // namespace

IdentifierToColorMap IdentifierToColorMap::s_identifierToColorMap;

const QColor& IdentifierToColorMap::getColor(const std::string& id)
{
    // Views ask this for every row they paint: the way to a known identifier's colour is short.
    const auto known = m_slots.find(id);
    if (known != m_slots.end())
        return palette()[known->second % colorCount];
    return getColor(getColorIndex(id));
}

int IdentifierToColorMap::getColorIndex(const std::string& id)
{
    return id.empty() ? s_noColor : assignColor(id) & s_lastColor;
}

const QColor& IdentifierToColorMap::getColor(int index) const
{
    if (index == s_noColor)
        return colorOfNoIdentifier();
    return palette()[std::size_t(index & s_lastColor)];
}

int IdentifierToColorMap::assignColor(const std::string& id)
{
    const auto known = m_slots.find(id);
    if (known != m_slots.end())
        return int(known->second);
    const std::size_t slot = *std::min_element(m_firstFree.begin(), m_firstFree.end());
    take(slot);
    m_slots.emplace(id, slot);
    return int(slot);
}

void IdentifierToColorMap::setColorIndex(const std::string& id, int index)
{
    if (id.empty())
        return;
    unassignColor(id);
    const int first = index < 0 ? index & s_lastColor : index;
    const std::size_t slot = freeSlotFrom(std::size_t(first));
    take(slot);
    hold(id, slot);
}

void IdentifierToColorMap::reassignColor(const std::string& oldId, const std::string& newId)
{
    if (newId.empty())
        unassignColor(oldId);
    else if (m_slots.count(oldId) == 0)
        assignColor(newId);
    else
        hold(newId, release(oldId));
}

void IdentifierToColorMap::unassignColor(const std::string& id)
{
    if (m_slots.count(id) == 0)
        return;
    const std::size_t slot = release(id);
    m_taken.erase(slot);
    std::size_t& firstFree = m_firstFree[slot % colorCount];
    firstFree = std::min(firstFree, slot);
}

void IdentifierToColorMap::clear()
{
    *this = IdentifierToColorMap();
}

std::size_t IdentifierToColorMap::freeSlotFrom(std::size_t first) const
{
    std::size_t slot = std::max(first, m_firstFree[first % colorCount]);
    while (m_taken.count(slot) != 0)
        slot += colorCount;
    return slot;
}

void IdentifierToColorMap::take(std::size_t slot)
{
    m_taken.insert(slot);
    std::size_t& firstFree = m_firstFree[slot % colorCount];
    if (slot == firstFree)
        firstFree = freeSlotFrom(slot);
}

void IdentifierToColorMap::hold(const std::string& id, std::size_t slot)
{
    const auto [place, isOnly] = m_slots.emplace(id, slot);
    if (isOnly)
        return;
    if (slot < place->second)
        std::swap(slot, place->second);
    m_higherSlots[id].insert(slot);
}

std::size_t IdentifierToColorMap::release(const std::string& id)
{
    const auto place = m_slots.find(id);
    const std::size_t slot = place->second;
    const auto higher = m_higherSlots.find(id);
    if (higher == m_higherSlots.end()) {
        m_slots.erase(place);
        return slot;
    }
    place->second = *higher->second.begin();
    higher->second.erase(higher->second.begin());
    if (higher->second.empty())
        m_higherSlots.erase(higher);
    return slot;
}

} // namespace Zorvane
