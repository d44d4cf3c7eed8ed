#include "Workbench/Tree/PartColours.h"

#include "Host/Configuration/ColorConfiguration.h"
#include "Utilities/IdentifierToColorMap.h"
#include "Workbench/Design/DesignSession.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

namespace Zorvane::Workbench {

namespace {

void enterColours()
{
    const std::shared_ptr<ColorConfiguration> table = ColorConfiguration::getRegisteredInstance();
    for (const QColor& colour : PartColours::palette())
        table->setColor(PartColours::colorId(colour),
                        {float(colour.redF()), float(colour.greenF()), float(colour.blueF())});
}

IdentifierToColorMap& sharedMap()
{
    return IdentifierToColorMap::s_identifierToColorMap;
}

/** Objects that have colours and the designs they belong to, in the order of their colours. */
std::vector<std::pair<GUIdentifier, GUIdentifier>> colouredObjects(const DesignSession& session)
{
    std::vector<std::pair<GUIdentifier, GUIdentifier>> objects;
    for (const Design& design : session.designs()) {
        if (design.blank)
            objects.emplace_back(design.blank->id, design.id);
        for (const Part& part : design.parts)
            objects.emplace_back(part.id, design.id);
        for (const Operation& operation : design.operations)
            for (const Tool& tool : operation.tools)
                objects.emplace_back(tool.id, design.id);
    }
    for (const Part& part : session.looseParts())
        objects.emplace_back(part.id, GUIdentifier());
    return objects;
}

} // namespace

PartColours::PartColours()
{
    enterColours();
}

PartColours::~PartColours()
{
    for (const auto& [id, owner] : m_owners)
        sharedMap().unassignColor(id.getUUID());
}

void PartColours::follow(const DesignSession& session)
{
    const auto objects = colouredObjects(session);
    std::set<GUIdentifier> owners;
    for (const auto& [id, owner] : objects) {
        owners.insert(owner);
        if (m_owners.count(id) != 0)
            m_owners[id] = owner;
    }
    for (const Design& design : session.designs())
        owners.insert(design.id);
    // First those that go, so that their colours are given out again at once.
    for (auto held = m_owners.begin(); held != m_owners.end();) {
        const bool stays = owners.count(held->second) != 0;
        if (!stays)
            sharedMap().unassignColor(held->first.getUUID());
        held = stays ? std::next(held) : m_owners.erase(held);
    }
    for (const auto& [id, owner] : objects) {
        sharedMap().getColorIndex(id.getUUID());
        m_owners[id] = owner;
    }
}

QColor PartColours::colourOf(const GUIdentifier& id) const
{
    return m_owners.count(id) == 0 ? QColor() : sharedMap().getColor(id.getUUID());
}

const PartColours::Palette& PartColours::palette()
{
    // The map's, asked of a map of our own.
    static const Palette s_palette = [] {
        Palette colours;
        IdentifierToColorMap map;
        for (std::size_t index = 0; index < colours.size(); ++index) {
            const std::string id = std::to_string(index);
            map.setColorIndex(id, int(index));
            colours[index] = map.getColor(id);
        }
        return colours;
    }();
    return s_palette;
}

int PartColours::colorId(const QColor& colour)
{
    const Palette& colours = palette();
    const auto place = std::find(colours.begin(), colours.end(), colour);
    return firstColorId + int(std::distance(colours.begin(), place));
}

} // namespace Zorvane::Workbench
