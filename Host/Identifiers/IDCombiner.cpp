#include "Host/Identifiers/IDCombiner.h"

namespace Zorvane {

const Identifier& IDCombiner::getIdentifier() const
{
    const auto* identifier = std::get_if<Identifier>(&m_part);
    return identifier ? *identifier : Identifier::getInvalidId();
}

const GUIdentifier& IDCombiner::getCombinedPart() const
{
    static const GUIdentifier null;
    const auto* part = std::get_if<GUIdentifier>(&m_part);
    return part ? *part : null;
}

std::size_t hash_value(const IDCombiner& id)
{
    if (id.hasCombinedPart())
        return hash_value(id.getCombinedPart());
    return id.hasIdentifier() ? hash_value(id.getIdentifier()) : 0;
}

} // namespace Zorvane
