#pragma once

#include "TreeModel/DataProviderBaseWithUpdateFunction.h"
#include "UiToolsExport.h"

#include <QtGui/QIcon>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Gives all rows the same icon, a null one at first. Rows refuse a negative column, so nothing is
 * written then.
 *
 * Not supported: leaving rows out.
 */
class ZORVANE_UITOOLS_EXPORT StaticTreeItemSingleIconProvider
    : public DataProviderBaseWithUpdateFunction
{
public:
    StaticTreeItemSingleIconProvider(int column, int role);

    void setIcon(const QIcon& icon);

    Qt::ItemFlags getItemFlags() override;
    void addDataTo(const RowList& rows) override;

private:
    QIcon m_icon;
    int m_column;
    int m_role;
};

} // namespace Zorvane::GenericTreeViewModelHandling
