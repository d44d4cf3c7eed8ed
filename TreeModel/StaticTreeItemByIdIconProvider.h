#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "TreeModel/DataProviderBaseWithUpdateFunction.h"
#include "UiToolsExport.h"

#include <QtGui/QIcon>

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Gives each row the icon that its id was assigned, else a default icon.
 *
 * An id has one icon at a time. An index without an icon, as when ids are assigned before the
 * icons are set, gives the default icon. Rows refuse a negative column, so nothing is written then.
 *
 * Not supported: several icons for one id, asking which icon an id has.
 */
class ZORVANE_UITOOLS_EXPORT StaticTreeItemByIdIconProvider
    : public DataProviderBaseWithUpdateFunction
{
public:
    StaticTreeItemByIdIconProvider(int column, int role);

    /** Replaces the icons; ids whose index has no icon any more are forgotten. */
    void setIcons(const std::vector<QIcon>& icons);
    /** From now on the icon at `index` is that of these ids and of no others. */
    void setIdsForIcon(const std::vector<IDCombiner>& ids, std::uint64_t index);
    /** A null icon at first. Shown by new rows and from the next refresh on; asks for none. */
    void setDefaultIcon(QIcon icon);

    Qt::ItemFlags getItemFlags() override;
    void addDataTo(const RowList& rows) override;

private:
    const QIcon& iconFor(const IDCombiner& id) const;

    std::vector<QIcon> m_icons;
    std::unordered_map<IDCombiner, std::uint64_t> m_iconIndexById;
    QIcon m_defaultIcon;
    int m_column;
    int m_role;
};

} // namespace Zorvane::GenericTreeViewModelHandling
