#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "Host/Widgets/ZVWidgetStatus.h"
#include "TreeModel/DataProviderBaseWithUpdateFunction.h"
#include "UiToolsExport.h"

#include <functional>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Writes the state of each row, worked out by a function of the application, as an int for the
 * delegate that paints it.
 *
 * The owner sees to refreshes itself: changes of state are not announced from here. Rows refuse a
 * negative column, so nothing is written then; the function is called all the same.
 *
 * Not supported: refreshing through `updateDataOf`, for which nothing here ever sets the mark.
 */
class ZORVANE_UITOOLS_EXPORT WidgetStateDataProvider : public DataProviderBaseWithUpdateFunction
{
public:
    using StatiFunction =
        std::function<QFlags<ZVWidgetStatus::Status>(const IDCombiner&, ZVTreeViewItem*)>;

    WidgetStateDataProvider(int column, int role);

    /** Called once for each row to be written. Must be set before rows are. */
    void setStatiProviderFunction(StatiFunction function);

    Qt::ItemFlags getItemFlags() override;
    /** Throws `std::bad_function_call` while no function is set. */
    void addDataTo(const RowList& rows) override;

private:
    int m_column;
    int m_role;
    StatiFunction m_statiFunction;
};

} // namespace Zorvane::GenericTreeViewModelHandling
