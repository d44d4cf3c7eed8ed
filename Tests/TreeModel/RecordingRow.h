#pragma once

#include "Host/Widgets/ZVTreeViewItem.h"
#include "TreeModel/ZVTreeItemDataProviderInterface.h"

#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace Zorvane::Testing {

/** A row that notes everything written to it, besides storing it. */
class RecordingRow : public ZVTreeViewItem
{
public:
    using Write = std::tuple<int, int, QVariant>;

    /** `writtenRows`, shared with others, is told of each write by the row's own index. */
    RecordingRow(int index, QVector<int>& writtenRows)
        : m_index(index)
        , m_writtenRows(writtenRows)
    {}

    bool setData(int column, int role, const QVariant& value) override
    {
        writes.emplace_back(column, role, value);
        m_writtenRows.append(m_index);
        return ZVTreeViewItem::setData(column, role, value);
    }

    std::vector<Write> writes;

private:
    int m_index;
    QVector<int>& m_writtenRows;
};

/** Rows with the ids they show, as a provider is handed them. */
class RecordedRows
{
public:
    RecordedRows(const RecordedRows&) = delete;
    RecordedRows& operator=(const RecordedRows&) = delete;
    explicit RecordedRows(const std::vector<IDCombiner>& ids)
    {
        for (const IDCombiner& id : ids) {
            m_rows.push_back(std::make_unique<RecordingRow>(int(m_rows.size()), m_writtenRows));
            m_list.emplace_back(id, m_rows.back().get());
        }
    }

    RecordingRow& operator[](std::size_t index) { return *m_rows[index]; }
    const GenericTreeViewModelHandling::ZVTreeItemDataProviderInterface::RowList& list() const
    {
        return m_list;
    }
    /** How often anything was written to any row since the last time this was asked. */
    std::size_t takeWriteCount()
    {
        std::size_t count = 0;
        for (const auto& row : m_rows)
            count += std::exchange(row->writes, {}).size();
        return count;
    }

    /** The row of each write, by index, in the order in which all of them came. */
    const QVector<int>& writtenRows() const { return m_writtenRows; }

private:
    QVector<int> m_writtenRows;
    std::vector<std::unique_ptr<RecordingRow>> m_rows;
    GenericTreeViewModelHandling::ZVTreeItemDataProviderInterface::RowList m_list;
};

} // namespace Zorvane::Testing
