#pragma once

#include "TreeModel/ZVTreeItemDataProviderInterface.h"

#include <functional>
#include <memory>

namespace Zorvane::Workbench {

/** Hands on to another provider only the rows that a function chooses by id. */
class ChosenRowsDataProvider : public GenericTreeViewModelHandling::ZVTreeItemDataProviderInterface
{
public:
    using Provider = GenericTreeViewModelHandling::ZVTreeItemDataProviderInterface;
    using Choice = std::function<bool(const IDCombiner&)>;

    ChosenRowsDataProvider(std::shared_ptr<Provider> provider, Choice choice);

    Qt::ItemFlags getItemFlags() override;
    void addDataTo(const RowList& rows) override;
    void updateDataOf(const RowList& rows) override;
    void registerUpdateCallback(std::function<void()> callback) override;

private:
    RowList chosen(const RowList& rows) const;

    std::shared_ptr<Provider> m_provider;
    Choice m_choice;
};

} // namespace Zorvane::Workbench
