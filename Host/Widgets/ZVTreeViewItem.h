#pragma once

#include "Host/HostExport.h"
#include "Host/Identifiers/IDCombiner.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <memory>
#include <string>
#include <vector>

namespace Zorvane {

class ZVTreeViewModel;
class ZVTreeViewItemChildren;

/**
 * One row of a `ZVTreeViewModel`, with values per column and role, flags and child rows.
 *
 * A row owns its children. A row in a model announces its own changes to the model's views, each
 * as narrowly as it is; a detached row announces nothing. While a `ZVTreeViewModelBatch` is open
 * the changes take place at once and are announced together when it closes.
 *
 * `Qt::EditRole` and `Qt::DisplayRole` are one value, as in Qt's own item classes. The text of
 * column 0 and one `IDCombiner` of column 0 are stored typed, everything else in one list.
 *
 * Misuse (an index out of range, a row that has a parent already, a row put below itself) is
 * answered by doing nothing and telling so in the return value.
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
     * Stores the value, an invalid one meaning none; announced with its role when it differs from
     * the one before. False for a negative column.
     */
    virtual bool setData(int column, int role, const QVariant& value);

    /** Selectable, enabled and not draggable at first. */
    Qt::ItemFlags flags() const { return Qt::ItemFlags(m_flags); }
    void setFlags(Qt::ItemFlags flags);

    /** The typed text of column 0; empty when none is stored. */
    const QString& text() const { return m_text; }
    /** Like `setData(0, Qt::DisplayRole, ...)`, told in UTF-8; allocates only when it differs. */
    void setText(const std::string& text);
    /** The typed id of column 0 when it is stored under this role, else null. */
    const IDCombiner* id(int role) const
    {
        return role == m_idRole && role != NoRole ? &m_id : nullptr;
    }
    /** Like `setData(0, role, QVariant::fromValue(id))`. */
    void setId(int role, const IDCombiner& id);

    ZVTreeViewItem* parent() const;
    /** The model whose tree this row is in, else null. */
    ZVTreeViewModel* model() const;
    /**
     * The position in the parent, found without looking at the siblings (inside a batch, below a
     * row whose children have changed in it, they are looked at); -1 without a parent.
     */
    int row() const;
    int childCount() const { return m_children ? countChildren() : 0; }
    /** Null when the index is out of range. */
    ZVTreeViewItem* child(int index) const;

    /** Takes ownership on success; else the caller keeps it, or the parent a slot gave it to. */
    bool insertChild(int index, ZVTreeViewItem* child);
    /** One announcement for all; on failure (any of them unfit) none is appended. */
    bool appendChildren(const QVector<ZVTreeViewItem*>& children);
    /** Takes the child out and hands it over; null when the index is out of range. */
    ZVTreeViewItem* takeChild(int index);
    /** The same for a known child, without looking for its index; false when it is no child. */
    bool takeChild(ZVTreeViewItem* child);
    /**
     * Takes the child out and deletes it: at once, or, inside a batch, once its going is
     * announced, so that views never meet a deleted row. False when the index is out of range.
     */
    bool deleteChild(int index);

private:
    friend class ZVTreeViewItemChildren;
    friend class ZVTreeViewModel;
    friend class ZVTreeViewModelPrivate;

    struct ExtraValue
    {
        int column;
        int role;
        QVariant value;
    };

    /**
     * What a batch has to remember of a row; none of it is set outside of one. How the states
     * follow one another is told in ZVTreeViewModelPrivate.h.
     */
    enum State : quint16
    {
        IsRoot = 1,    // the invisible row of a model
        Fresh = 2,     // inserted, with its subtree, and not announced yet
        Taken = 4,     // taken out, but views still see it under `m_parent`
        Relocated = 8, // now under `m_parent`, but views still see it elsewhere
        Leaving = 16,  // about to be announced gone
        Counted = 32   // met already in a list of rows to be added
    };
    static constexpr int NoRole = -1;

    bool hasState(int states) const { return (m_state & states) != 0; }
    void addState(State state) { m_state = static_cast<quint16>(m_state | state); }
    void dropState(State state) { m_state = static_cast<quint16>(m_state & ~state); }

    ZVTreeViewItemChildren& children();
    int countChildren() const;
    bool storeText(const QVariant& value);
    bool storeId(int role, const QVariant& value);
    bool storeExtra(int column, int role, const QVariant& value);
    const QVariant* findExtra(int column, int role) const;
    void announceChange(int column, const QVector<int>& roles);
    bool canAdopt(const ZVTreeViewItem* child) const;
    bool canAdoptAll(const QVector<ZVTreeViewItem*>& added) const;
    void adopt(ZVTreeViewItem* child, bool asShownRow);
    void orphan(ZVTreeViewItem* child, bool wasShownRow);
    void deleteSubtree();

    // In the order of use: what a refresh looks at lies together.
    IDCombiner m_id;
    /** The parent; of a `Taken` row the one it had. */
    ZVTreeViewItem* m_parent = nullptr;
    std::unique_ptr<ZVTreeViewItemChildren> m_children;
    /** The number in the parent's shown list; a claim that the list checks. */
    int m_row = -1;
    int m_idRole = NoRole;
    quint16 m_state = 0;
    quint16 m_flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QString m_text;
    std::unique_ptr<std::vector<ExtraValue>> m_extra;
};

} // namespace Zorvane
