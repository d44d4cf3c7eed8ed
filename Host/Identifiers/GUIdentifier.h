#pragma once

#include "Host/HostExport.h"

#include <QtCore/QUuid>

#include <cstddef>
#include <functional>
#include <string>

namespace Zorvane {

/**
 * Names one object of the user interface or of a design by a UUID. A plain value type; ordered by
 * the UUID.
 */
class ZORVANE_HOST_EXPORT GUIdentifier
{
public:
    /** The null UUID. */
    GUIdentifier() = default;
    explicit GUIdentifier(const QUuid& uuid);
    /** Reads a UUID's usual text, with or without braces; any other text gives the null UUID. */
    explicit GUIdentifier(const std::string& uuid);

    /** A new identifier that no other object has. */
    static GUIdentifier create();

    /** The UUID as lower-case text without braces, usable as a key. */
    std::string getUUID() const;
    const QUuid& toQUuid() const { return m_uuid; }
    bool isNull() const { return m_uuid.isNull(); }

    friend bool operator==(const GUIdentifier& left, const GUIdentifier& right)
    {
        return left.m_uuid == right.m_uuid;
    }
    friend bool operator!=(const GUIdentifier& left, const GUIdentifier& right)
    {
        return !(left == right);
    }
    friend bool operator<(const GUIdentifier& left, const GUIdentifier& right)
    {
        return left.m_uuid < right.m_uuid;
    }

private:
    QUuid m_uuid;
};

/** The same in every run of the program. */
ZORVANE_HOST_EXPORT std::size_t hash_value(const GUIdentifier& identifier);

} // namespace Zorvane

template <>
struct std::hash<Zorvane::GUIdentifier>
{
    std::size_t operator()(const Zorvane::GUIdentifier& identifier) const
    {
        return hash_value(identifier);
    }
};
