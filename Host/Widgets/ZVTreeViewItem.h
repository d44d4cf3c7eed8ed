#pragma once

#include "Host/HostExport.h"
#include "Host/Identifiers/IDCombiner.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Zorvane {

class ZVTreeViewModel;
class ZVTreeViewModelPrivate;
struct ZVTreeViewItemChildren;

/**
 * One row of a `ZVTreeViewModel`, with values per column and role, flags and child rows.
 *
 * A row owns its children. A row in a model announces its own changes to the model's views, each
 * as narrowly as it is; a detached row announces nothing. While a `ZVTreeViewRefresh` runs, values
 * are announced together at its end, and rows are neither inserted nor taken.
 *
 * `Qt::EditRole` and `Qt::DisplayRole` are one value, as in Qt's own item classes. The text of
 * column 0 and one `IDCombiner` of column 0 are stored typed, everything else in one list.
 *
 * Misuse (an index out of range, a row that has a parent already, a row put below itself, a change
 * of children while views are about to hear of another) does nothing and returns that.
 *
 * Not supported: copying rows, use from several threads.
 */
class ZORVANE_HOST_EXPORT ZVTreeViewItem
{
public:
    /** Appends the row to `parent`, which takes ownership; without a parent the caller owns it. */
    explicit ZVTreeViewItem(ZVTreeViewItem* parent = nullptr);
    ZVTreeViewItem(const ZVTreeViewItem&) = delete;
    ZVTreeViewItem& operator=(const ZVTreeViewItem&) = delete;
    /** Takes the row out of its parent, then deletes it and its subtree, announced once. */
    virtual ~ZVTreeViewItem();

    /** The value stored, else an invalid one. */
    virtual QVariant data(int column, int role) const;
    /**
     * Stores the value, an invalid one meaning none; announced with its role unless it is certain
     * to be the same as before. False for a negative column.
     */
    virtual bool setData(int column, int role, const QVariant& value);

    /** Selectable, enabled and not draggable at first. */
    Qt::ItemFlags flags() const { return Qt::ItemFlags(m_flags); }
    void setFlags(Qt::ItemFlags flags);

    /** The typed text of column 0; empty when none is stored. */
    const QString& text() const { return m_text; }
    /** Like `setData(0, Qt::DisplayRole, ...)`, in UTF-8; allocates only when it differs. */
    void setText(const std::string& text);
    /** Whether the text of column 0 is this one, in UTF-8. */
    bool hasText(const std::string& text) const;
    /** The typed id of column 0 when it is stored under this role, else null. */
    const IDCombiner* id(int role) const
    {
        return role == m_idRole && role != NoRole ? &m_id : nullptr;
    }
    /** Like `setData(0, role, QVariant::fromValue(id))`. */
    void setId(int role, const IDCombiner& id);

    ZVTreeViewItem* parent() const { return m_parent; }
    /** The model whose tree this row is in, else null. */
    ZVTreeViewModel* model() const;
    /** The position in the parent, found without looking at the siblings; -1 without a parent. */
    int row() const;
    int childCount() const;
    /** Null when the index is out of range. */
    ZVTreeViewItem* child(int index) const;

    /** Takes ownership on success; else the caller keeps it. */
    bool insertChild(int index, ZVTreeViewItem* child);
    /** One announcement for all; on failure (any of them unfit) none is appended. */
    bool appendChildren(const QVector<ZVTreeViewItem*>& children);
    /** Takes the child out and hands it over; null when the index is out of range. */
    ZVTreeViewItem* takeChild(int index);
    /** The same for a known child, without looking for its index; false when it is no child. */
    bool takeChild(ZVTreeViewItem* child);
    /** Takes the child out and deletes it. False when the index is out of range. */
    bool deleteChild(int index);

    /**
     * For synchronizers: a number for what this row and all rows below it show. The row forgets it,
     * and so do the rows above, as soon as a text, id or list of children in there is changed
     * other than by a `ZVTreeViewPlan`. 0 for none. A row that has a number has only rows with a
     * number below, rows without children aside.
     */
    std::uint64_t shownSerial() const;
    void setShownSerial(std::uint64_t serial);
    void forgetShownSerial();

private:
    friend class ZVTreeViewModel;
    friend class ZVTreeViewModelPrivate;
    friend struct ZVTreeViewItemChildren;

    struct ExtraValue
    {
        int column;
        int role;
        QVariant value;
    };

    static constexpr int NoRole = -1;

    ZVTreeViewModelPrivate* owner() const;
    ZVTreeViewItemChildren& children();
    bool storeText(const QVariant& value);
    void storeText(const std::string& text);
    bool storeId(int role, const QVariant& value);
    bool storeExtra(int column, int role, const QVariant& value);
    const QVariant* findExtra(int column, int role) const;
    void announceChange(int column, int role);
    bool isRoot() const;
    bool canAdopt(const ZVTreeViewItem* child) const;
    bool canAdoptAll(const QVector<ZVTreeViewItem*>& added) const;
    bool insert(int index, ZVTreeViewItem* const* added, int count);
    void adopt(ZVTreeViewItem* child);
    void letGo();
    void setOwner(ZVTreeViewModelPrivate* owner);
    void deleteSubtree();

    // In the order of use: what a refresh looks at lies together.
    IDCombiner m_id;
    ZVTreeViewItem* m_parent = nullptr;
    std::unique_ptr<ZVTreeViewItemChildren> m_children;
    /** The number in the parent's list; a claim that the list checks. */
    int m_row = -1;
    int m_idRole = NoRole;
    quint16 m_flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QString m_text;
    std::unique_ptr<std::vector<ExtraValue>> m_extra;
};

} // namespace Zorvane
