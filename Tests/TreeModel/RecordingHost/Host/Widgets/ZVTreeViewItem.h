#pragma once

// A host of its own for one test: rows without views, without plans and without a fast path, that
// write down every operation in the order in which it comes.

#include "Host/Identifiers/IDCombiner.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Zorvane {

/** One operation on rows, told by the rows' serial numbers. */
struct RowOperation
{
    std::string name;
    int parent;
    int index;
    std::vector<int> rows;

    friend bool operator==(const RowOperation& left, const RowOperation& right)
    {
        return left.name == right.name && left.parent == right.parent &&
               left.index == right.index && left.rows == right.rows;
    }
};

struct RowLog
{
    std::vector<RowOperation> operations;
    int lastSerial = 0;
    int livingRows = 0;
};

inline RowLog& rowLog()
{
    static RowLog log;
    return log;
}

class ZVTreeViewItem
{
public:
    explicit ZVTreeViewItem(ZVTreeViewItem* = nullptr)
        : serial(++rowLog().lastSerial)
    {
        ++rowLog().livingRows;
    }
    ZVTreeViewItem(const ZVTreeViewItem&) = delete;
    ZVTreeViewItem& operator=(const ZVTreeViewItem&) = delete;
    virtual ~ZVTreeViewItem()
    {
        --rowLog().livingRows;
        for (ZVTreeViewItem* child : m_children)
            delete child;
    }

    virtual QVariant data(int column, int role) const
    {
        const auto found = m_values.find({column, role});
        return found == m_values.end() ? QVariant() : found->second;
    }
    virtual bool setData(int column, int role, const QVariant& value)
    {
        if (role == Qt::DisplayRole)
            write("text", -1, {});
        m_values[{column, role}] = value;
        return true;
    }
    Qt::ItemFlags flags() const { return m_flags; }
    void setFlags(Qt::ItemFlags flags) { m_flags = flags; }

    const IDCombiner* id(int) const { return nullptr; }
    void setText(const std::string& text)
    {
        setData(0, Qt::DisplayRole, QString::fromStdString(text));
    }
    bool hasText(const std::string&) const { return false; }
    std::uint64_t shownSerial() const { return 0; }
    void setShownSerial(std::uint64_t) {}
    void forgetShownSerial() {}
    void setId(int role, const IDCombiner& id) { setData(0, role, QVariant::fromValue(id)); }

    int childCount() const { return static_cast<int>(m_children.size()); }
    ZVTreeViewItem* child(int index) const { return m_children.at(std::size_t(index)); }
    bool insertChild(int index, ZVTreeViewItem* child)
    {
        write("insert", index, {child->serial});
        m_children.insert(m_children.begin() + index, child);
        return true;
    }
    bool appendChildren(const QVector<ZVTreeViewItem*>& children)
    {
        std::vector<int> rows;
        for (ZVTreeViewItem* child : children) {
            rows.push_back(child->serial);
            m_children.push_back(child);
        }
        write("append", -1, rows);
        return true;
    }
    ZVTreeViewItem* takeChild(int index)
    {
        ZVTreeViewItem* child = m_children.at(std::size_t(index));
        write("take", index, {child->serial});
        m_children.erase(m_children.begin() + index);
        return child;
    }
    bool takeChild(ZVTreeViewItem* child)
    {
        const auto place = std::find(m_children.begin(), m_children.end(), child);
        return takeChild(int(place - m_children.begin())) == child;
    }
    bool deleteChild(int index)
    {
        const std::unique_ptr<ZVTreeViewItem> child(takeChild(index));
        child->write("delete", -1, {});
        return true;
    }

    const int serial;

private:
    void write(const char* name, int index, std::vector<int> rows) const
    {
        rowLog().operations.push_back({name, serial, index, std::move(rows)});
    }

    std::map<std::pair<int, int>, QVariant> m_values;
    std::vector<ZVTreeViewItem*> m_children;
    Qt::ItemFlags m_flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
};

} // namespace Zorvane
