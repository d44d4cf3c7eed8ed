#pragma once

#include "TreeModel/LifeToken.h"
#include "TreeModel/ZVTreeItemDataProviderInterface.h"
#include "UiToolsExport.h"

#include <functional>
#include <memory>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Several data providers that act as one, in the order in which they were added: where two write
 * the same column and role, the later one wins. Managers may be nested.
 *
 * A change announced by any of them is handed on at once, once for each announcement. A copy of a
 * manager shares the providers, which go on telling the manager they were added to. Providers may
 * outlive their manager.
 *
 * Not supported: null providers, removing a provider, gathering announcements.
 */
class ZORVANE_UITOOLS_EXPORT ZVTreeItemDataProviderManager : public ZVTreeItemDataProviderInterface,
                                                             public ZVTreeItemUpdateStateInterface
{
public:
    /** Appends the provider and takes over its update callback. */
    void addProvider(std::shared_ptr<ZVTreeItemDataProviderInterface> provider);

    /** The flags that any provider wants. */
    Qt::ItemFlags getItemFlags() override;
    void addDataTo(const RowList& rows) override;
    /** Asks every provider; each decides by itself whether there is something to write. */
    void updateDataOf(const RowList& rows) override;
    bool isUpdateDue() const override;

private:
    void registerUpdateCallback(std::function<void()> callback) override;
    void onChildProviderChanged();
    void callUpdateFunction();

    std::vector<std::shared_ptr<ZVTreeItemDataProviderInterface>> m_providers;
    std::function<void()> m_updateFunction;
    LifeToken m_life;
};

} // namespace Zorvane::GenericTreeViewModelHandling
