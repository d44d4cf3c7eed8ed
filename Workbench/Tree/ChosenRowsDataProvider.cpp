#include "Workbench/Tree/ChosenRowsDataProvider.h"

#include <algorithm>
#include <iterator>

namespace Zorvane::Workbench {

ChosenRowsDataProvider::ChosenRowsDataProvider(std::shared_ptr<Provider> provider, Choice choice)
    : m_provider(std::move(provider))
    , m_choice(std::move(choice))
{}

Qt::ItemFlags ChosenRowsDataProvider::getItemFlags()
{
    return m_provider->getItemFlags();
}

void ChosenRowsDataProvider::addDataTo(const RowList& rows)
{
    m_provider->addDataTo(chosen(rows));
}

void ChosenRowsDataProvider::updateDataOf(const RowList& rows)
{
    m_provider->updateDataOf(chosen(rows));
}

void ChosenRowsDataProvider::registerUpdateCallback(std::function<void()> callback)
{
    m_provider->registerUpdateCallback(std::move(callback));
}

ChosenRowsDataProvider::RowList ChosenRowsDataProvider::chosen(const RowList& rows) const
{
    RowList result;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(result),
                 [this](const RowList::value_type& row) { return m_choice(row.first); });
    return result;
}

} // namespace Zorvane::Workbench
