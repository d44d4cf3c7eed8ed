#pragma once

#include "TreeModel/DataProviderBaseWithUpdateFunction.h"

namespace Zorvane::Workbench {

class DesignCatalog;

/**
 * Tells a column drawn by `ReferenceIndicatorDelegate` which blanks, parts and tools refer to the
 * materials and files in the rows: their number, their colours, their names as tool tip, and the
 * number in words for those who don't see the patch. Other rows stay empty. The catalog must
 * outlive it.
 */
class ReferenceDataProvider
    : public GenericTreeViewModelHandling::DataProviderBaseWithUpdateFunction
{
public:
    ReferenceDataProvider(const DesignCatalog& catalog, int column);

    Qt::ItemFlags getItemFlags() override;
    void addDataTo(const RowList& rows) override;

private:
    void tell(const IDCombiner& id, ZVTreeViewItem& row) const;

    const DesignCatalog& m_catalog;
    const int m_column;
};

} // namespace Zorvane::Workbench
