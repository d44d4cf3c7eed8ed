#include "Utilities/IdentifierQMetaClass.h"

namespace Zorvane {

IdentifierQMetaClass::IdentifierQMetaClass()
    : m_identifier(Identifier::getInvalidId())
{}

IdentifierQMetaClass::IdentifierQMetaClass(const Identifier& id)
    : m_identifier(id)
{}

bool IdentifierQMetaClass::operator==(const IdentifierQMetaClass& other) const
{
    return m_identifier == other.m_identifier;
}

bool IdentifierQMetaClass::operator!=(const IdentifierQMetaClass& other) const
{
    return m_identifier != other.m_identifier;
}

bool IdentifierQMetaClass::operator<(const IdentifierQMetaClass& other) const
{
    return m_identifier < other.m_identifier;
}

bool IdentifierQMetaClass::isValid() const
{
    return m_identifier.getValue() != 0 || m_identifier.getSubValue() != 0;
}

} // namespace Zorvane
