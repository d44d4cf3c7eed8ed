#pragma once

#include "Host/HostExport.h"
#include "Host/Identifiers/GUIdentifier.h"
#include "Host/Identifiers/Identifier.h"

#include <QtCore/QMetaType>

#include <cstddef>
#include <functional>
#include <variant>

namespace Zorvane {

/**
 * The identity of a tree row, whatever kind of object it shows: nothing, an `Identifier`, or a
 * combined part, which a `GUIdentifier` is. A plain value type of 24 bytes, held in `QVariant`
 * as "Zorvane::IDCombiner". Ordered: nothing, then identifiers, then combined parts.
 */
class ZORVANE_HOST_EXPORT IDCombiner
{
public:
    /** Carries nothing. */
    IDCombiner() = default;
    IDCombiner(const Identifier& identifier)
        : m_part(identifier)
    {}
    IDCombiner(const GUIdentifier& identifier)
        : m_part(identifier)
    {}

    bool hasIdentifier() const { return std::holds_alternative<Identifier>(m_part); }
    bool hasCombinedPart() const { return std::holds_alternative<GUIdentifier>(m_part); }
    /** The identifier carried, else `Identifier::getInvalidId()`. */
    const Identifier& getIdentifier() const;
    /** The combined part carried, else the null one. */
    const GUIdentifier& getCombinedPart() const;

    friend bool operator==(const IDCombiner& left, const IDCombiner& right)
    {
        return left.m_part == right.m_part;
    }
    friend bool operator!=(const IDCombiner& left, const IDCombiner& right)
    {
        return !(left == right);
    }
    friend bool operator<(const IDCombiner& left, const IDCombiner& right)
    {
        return left.m_part < right.m_part;
    }

private:
    std::variant<std::monostate, Identifier, GUIdentifier> m_part;
};

/** The hash of the part carried; 0 for nothing. The same in every run of the program. */
ZORVANE_HOST_EXPORT std::size_t hash_value(const IDCombiner& id);

} // namespace Zorvane

template <>
struct std::hash<Zorvane::IDCombiner>
{
    std::size_t operator()(const Zorvane::IDCombiner& id) const { return hash_value(id); }
};

Q_DECLARE_TYPEINFO(Zorvane::IDCombiner, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(Zorvane::IDCombiner)
