#pragma once

#include "Host/HostExport.h"
#include "Host/Identifiers/GUIdentifier.h"
#include "Host/Identifiers/Identifier.h"

#include <QtCore/QMetaType>

#include <cstddef>
#include <cstdint>
#include <functional>

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
        : m_high(identifier.getValue())
        , m_low(identifier.getSubValue())
        , m_kind(Kind::Identifier)
    {}
    IDCombiner(const GUIdentifier& identifier);

    bool hasIdentifier() const { return m_kind == Kind::Identifier; }
    bool hasCombinedPart() const { return m_kind == Kind::CombinedPart; }
    /** The identifier carried, else `Identifier::getInvalidId()`. */
    Identifier getIdentifier() const;
    /** The combined part carried, else the null one. */
    GUIdentifier getCombinedPart() const;

    /**
     * For tables that live as long as one call: cheaper than `hash_value`, not the same from
     * version to version.
     */
    std::uint32_t quickHash() const
    {
        std::uint64_t hash = m_high * 0x9e3779b97f4a7c15U;
        hash = ((hash ^ (hash >> 32U)) + m_low) * 0xd6e8feb86659fd93U;
        hash = (hash ^ (hash >> 32U)) * 0xd6e8feb86659fd93U;
        // The upper half depends on every bit of the identity.
        return static_cast<std::uint32_t>(hash >> 32U);
    }

    friend bool operator==(const IDCombiner& left, const IDCombiner& right)
    {
        return left.m_high == right.m_high && left.m_low == right.m_low &&
               left.m_kind == right.m_kind;
    }
    friend bool operator!=(const IDCombiner& left, const IDCombiner& right)
    {
        return !(left == right);
    }
    friend bool operator<(const IDCombiner& left, const IDCombiner& right)
    {
        if (left.m_kind != right.m_kind)
            return left.m_kind < right.m_kind;
        return left.m_high != right.m_high ? left.m_high < right.m_high : left.m_low < right.m_low;
    }

private:
    enum class Kind : std::uint8_t
    {
        Nothing,
        Identifier,
        CombinedPart
    };

    // Value and sub-value, or the UUID in the order of its text: rows are compared by the million.
    std::uint64_t m_high = 0;
    std::uint64_t m_low = 0;
    Kind m_kind = Kind::Nothing;
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
