#pragma once

#include "TreeModel/DataProviderBaseWithUpdateFunction.h"
#include "TreeModel/LifeToken.h"
#include "TreeModel/ZVTextProviderInterface.h"
#include "UiToolsExport.h"

#include <memory>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Fills a column with the texts of a text source. Rows are refreshed when the source tells that
 * texts have changed; replacing the source alone refreshes nothing. The source may outlive it.
 * Rows refuse a negative column, so nothing is written then.
 *
 * Not supported: several columns or roles (use one provider for each), texts that depend on more
 * than the id.
 */
class ZORVANE_UITOOLS_EXPORT ZVTreeItemTextProvider : public DataProviderBaseWithUpdateFunction
{
public:
    ZVTreeItemTextProvider(int column, int role);

    /** Replaces the source and takes over its callback; with null, nothing is written any more. */
    void setTextProvider(std::shared_ptr<ZVTextProviderInterface> textProvider);

    Qt::ItemFlags getItemFlags() override;
    void addDataTo(const RowList& rows) override;

private:
    int m_column;
    int m_role;
    std::shared_ptr<ZVTextProviderInterface> m_textProvider;
    LifeToken m_life;
};

} // namespace Zorvane::GenericTreeViewModelHandling
