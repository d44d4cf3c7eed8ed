#pragma once

#include "Host/HostExport.h"

#include <cstddef>
#include <cstdint>
#include <functional>

namespace Zorvane {

/**
 * Names one object of the suite's database: a 64-bit value and a 16-bit sub-value that tells apart
 * objects sharing the value. A plain value type; ordered by value, then by sub-value.
 */
class ZORVANE_HOST_EXPORT Identifier
{
public:
    /** The invalid identifier. */
    constexpr Identifier() = default;
    constexpr explicit Identifier(std::uint64_t value, std::uint16_t subValue = 0)
        : m_value(value)
        , m_subValue(subValue)
    {}

    /** The identifier that names nothing: both values zero. */
    static const Identifier& getInvalidId();

    constexpr std::uint64_t getValue() const { return m_value; }
    constexpr std::uint16_t getSubValue() const { return m_subValue; }

    friend constexpr bool operator==(const Identifier& left, const Identifier& right)
    {
        return left.m_value == right.m_value && left.m_subValue == right.m_subValue;
    }
    friend constexpr bool operator!=(const Identifier& left, const Identifier& right)
    {
        return !(left == right);
    }
    friend constexpr bool operator<(const Identifier& left, const Identifier& right)
    {
        return left.m_value != right.m_value ? left.m_value < right.m_value
                                             : left.m_subValue < right.m_subValue;
    }

private:
    std::uint64_t m_value = 0;
    std::uint16_t m_subValue = 0;
};

/** FNV-1a over the value's bytes, lowest first; a sub-value other than zero is folded in. */
ZORVANE_HOST_EXPORT std::size_t hash_value(const Identifier& identifier);

} // namespace Zorvane

template <>
struct std::hash<Zorvane::Identifier>
{
    std::size_t operator()(const Zorvane::Identifier& identifier) const
    {
        return hash_value(identifier);
    }
};
