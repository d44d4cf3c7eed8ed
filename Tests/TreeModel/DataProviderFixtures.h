#pragma once

#include "TreeModel/DataProviderBaseWithUpdateFunction.h"

#include <functional>
#include <string>
#include <utility>

namespace Zorvane::Testing {

using RowList = GenericTreeViewModelHandling::ZVTreeItemDataProviderInterface::RowList;

/** For tests about rows, into which nothing is written. */
class NoData : public GenericTreeViewModelHandling::ZVTreeItemDataProviderInterface
{
public:
    Qt::ItemFlags getItemFlags() override { return Qt::NoItemFlags; }
    void addDataTo(const RowList&) override {}
    void updateDataOf(const RowList&) override {}
    void registerUpdateCallback(std::function<void()>) override {}
};

/** Notes, in a log shared with others, each time it is to write, and to how many rows. */
class NotingDataProvider : public GenericTreeViewModelHandling::DataProviderBaseWithUpdateFunction
{
public:
    NotingDataProvider(std::string name, std::string& log, Qt::ItemFlags flags = Qt::NoItemFlags)
        : m_name(std::move(name))
        , m_log(log)
        , m_flags(flags)
    {}

    Qt::ItemFlags getItemFlags() override { return m_flags; }
    void addDataTo(const RowList& rows) override
    {
        m_log += m_name + std::to_string(rows.size()) + " ";
    }

    using DataProviderBaseWithUpdateFunction::callUpdateFunction;
    using DataProviderBaseWithUpdateFunction::isUpdatePending;

private:
    std::string m_name;
    std::string& m_log;
    Qt::ItemFlags m_flags;
};

} // namespace Zorvane::Testing
