#include "Host/Identifiers/Identifier.h"

namespace Zorvane {

namespace {

constexpr std::uint64_t FnvStart = 0xcbf29ce484222325;
constexpr std::uint64_t FnvPrime = 0x100000001b3;

std::uint64_t fnv1a(std::uint64_t value)
{
    std::uint64_t hash = FnvStart;
    for (int byte = 0; byte < 8; ++byte) {
        hash = (hash ^ (value & 0xffU)) * FnvPrime;
        value >>= 8U;
    }
    return hash;
}

std::uint64_t combine(std::uint64_t hash, std::uint64_t part)
{
    constexpr std::uint64_t multiplier = 0xe9846af9b1a615d;
    hash += 0x9e3779b9 + part;
    hash = (hash ^ (hash >> 32U)) * multiplier;
    hash = (hash ^ (hash >> 32U)) * multiplier;
    return hash ^ (hash >> 28U);
}

} // namespace

const Identifier& Identifier::getInvalidId()
{
    static const Identifier invalid;
    return invalid;
}

std::size_t hash_value(const Identifier& identifier)
{
    const std::uint64_t hash = fnv1a(identifier.getValue());
    return identifier.getSubValue() == 0 ? hash : combine(hash, identifier.getSubValue());
}

} // namespace Zorvane
