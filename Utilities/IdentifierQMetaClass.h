#pragma once

#include "Host/Identifiers/Identifier.h"
#include "UiToolsExport.h"

namespace Zorvane {

/**
 * An `Identifier` as a value that a `QVariant` can hold and compare, for item data of models and
 * combo boxes. Ordered and equal as the identifiers are.
 *
 * Not supported: being a meta-type by itself. A host that puts it into variants declares it with
 * `Q_DECLARE_METATYPE` and, to have variants compared, calls `QMetaType::registerComparators`.
 */
class ZORVANE_UITOOLS_EXPORT IdentifierQMetaClass
{
public:
    /** Holds `Identifier::getInvalidId()`. */
    IdentifierQMetaClass();
    IdentifierQMetaClass(const Identifier& id);

    bool operator==(const IdentifierQMetaClass& other) const;
    bool operator!=(const IdentifierQMetaClass& other) const;
    bool operator<(const IdentifierQMetaClass& other) const;

    const Identifier& getIdentifier() const { return m_identifier; }
    /** False only when value and sub-value are both zero, whatever the host calls invalid. */
    bool isValid() const;

private:
    Identifier m_identifier;
};

} // namespace Zorvane
