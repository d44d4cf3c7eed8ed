#include "Host/Identifiers/GUIdentifier.h"

#include <QtCore/QString>

#include <cstdint>
#include <cstring>

namespace Zorvane {

GUIdentifier::GUIdentifier(const QUuid& uuid)
    : m_uuid(uuid)
{}

GUIdentifier::GUIdentifier(const std::string& uuid)
    : m_uuid(QString::fromStdString(uuid))
{}

GUIdentifier GUIdentifier::create()
{
    return GUIdentifier(QUuid::createUuid());
}

std::string GUIdentifier::getUUID() const
{
    return m_uuid.toString(QUuid::WithoutBraces).toStdString();
}

std::size_t hash_value(const GUIdentifier& identifier)
{
    // A random UUID is its own hash; the multiplication serves those made by counting.
    static_assert(sizeof(QUuid) == 16, "a UUID is read as two 64-bit words");
    std::uint64_t words[2];
    std::memcpy(words, &identifier.toQUuid(), sizeof words);
    std::uint64_t hash = words[0] ^ (words[1] * 0x9e3779b97f4a7c15);
    hash = (hash ^ (hash >> 32U)) * 0xd6e8feb86659fd93;
    return hash ^ (hash >> 32U);
}

} // namespace Zorvane
