#include "Host/Identifiers/IDCombiner.h"

#include <QtCore/QtEndian>

namespace Zorvane {

IDCombiner::IDCombiner(const GUIdentifier& identifier)
    : m_kind(Kind::CombinedPart)
{
    const QUuid& uuid = identifier.toQUuid();
    m_high = std::uint64_t(uuid.data1) << 32U | std::uint64_t(uuid.data2) << 16U | uuid.data3;
    m_low = qFromBigEndian<quint64>(uuid.data4);
}

Identifier IDCombiner::getIdentifier() const
{
    return hasIdentifier() ? Identifier(m_high, static_cast<std::uint16_t>(m_low)) : Identifier();
}

GUIdentifier IDCombiner::getCombinedPart() const
{
    if (!hasCombinedPart())
        return {};
    QUuid uuid;
    uuid.data1 = static_cast<uint>(m_high >> 32U);
    uuid.data2 = static_cast<ushort>(m_high >> 16U);
    uuid.data3 = static_cast<ushort>(m_high);
    qToBigEndian<quint64>(m_low, uuid.data4);
    return GUIdentifier(uuid);
}

std::size_t hash_value(const IDCombiner& id)
{
    if (id.hasCombinedPart())
        return hash_value(id.getCombinedPart());
    return id.hasIdentifier() ? hash_value(id.getIdentifier()) : 0;
}

} // namespace Zorvane
