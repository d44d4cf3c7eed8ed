#pragma once

#include "TreeModel/DataProviderBaseWithUpdateFunction.h"
#include "UiToolsExport.h"

#include <QtCore/QVariant>

#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Writes one fixed value into the same columns of all rows. Rows refuse negative columns, so
 * nothing is written there.
 *
 * Not supported: changing columns, role or value; a value for each row.
 */
class ZORVANE_UITOOLS_EXPORT TreeItemStaticDataProvider : public DataProviderBaseWithUpdateFunction
{
public:
    TreeItemStaticDataProvider(const std::vector<int>& columns, int role, QVariant value);

    Qt::ItemFlags getItemFlags() override;
    void addDataTo(const RowList& rows) override;

private:
    std::vector<int> m_columns;
    int m_role;
    QVariant m_value;
};

} // namespace Zorvane::GenericTreeViewModelHandling
