#include "Host/Widgets/ZVTreeViewItem.h"

#include "Host/Widgets/ValueIdentity.h"
#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <algorithm>

namespace Zorvane {

namespace {

int storedRole(int role)
{
    return role == Qt::EditRole ? int(Qt::DisplayRole) : role;
}

bool isId(const QVariant& value)
{
    return value.userType() == qMetaTypeId<IDCombiner>();
}

/**
 * Converts only a text beyond ASCII: with every text converted, a refresh of 100,000 rows that
 * changes nothing takes 3.3 times the instructions.
 */
bool equalsUtf8(const QString& text, const std::string& utf8)
{
    // A byte beyond ASCII is negative here, and so is no character that its text could have.
    const auto isSame = [](QChar character, char byte) {
        return character.unicode() == static_cast<signed char>(byte);
    };
    if (std::equal(text.begin(), text.end(), utf8.begin(), utf8.end(), isSame))
        return true;
    const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
    return !std::all_of(utf8.begin(), utf8.end(), isAscii) && text == QString::fromStdString(utf8);
}

} // namespace

ZVTreeViewItem::ZVTreeViewItem(ZVTreeViewItem* parent)
{
    if (parent)
        parent->insertChild(parent->childCount(), this);
}

ZVTreeViewItem::~ZVTreeViewItem()
{
    if (m_parent && !m_parent->takeChild(this)) {
        Q_ASSERT_X(false, "ZVTreeViewItem", "a row is deleted while its model is refreshed");
        m_parent->m_children->erase(row(), 1);
    }
    deleteSubtree();
}

void ZVTreeViewItem::deleteSubtree()
{
    // One after the other: a recursion would overflow the stack on a very deep tree.
    std::vector<ZVTreeViewItem*> pending;
    const auto takeChildrenOf = [&pending](ZVTreeViewItem* row) {
        if (!row->m_children)
            return;
        for (ZVTreeViewItem* child : row->m_children->rows) {
            child->m_parent = nullptr;
            pending.push_back(child);
        }
        row->m_children.reset();
    };
    takeChildrenOf(this);
    while (!pending.empty()) {
        ZVTreeViewItem* row = pending.back();
        pending.pop_back();
        takeChildrenOf(row);
        delete row;
    }
}

QVariant ZVTreeViewItem::data(int column, int role) const
{
    const int wanted = storedRole(role);
    if (column == 0 && wanted == Qt::DisplayRole && !m_text.isNull())
        return m_text;
    if (const IDCombiner* typed = column == 0 ? id(wanted) : nullptr)
        return QVariant::fromValue(*typed);
    const QVariant* extra = findExtra(column, wanted);
    return extra ? *extra : QVariant();
}

bool ZVTreeViewItem::setData(int column, int role, const QVariant& value)
{
    if (column < 0)
        return false;
    const int wanted = storedRole(role);
    bool changed = false;
    if (column == 0 && wanted == Qt::DisplayRole)
        changed = storeText(value);
    else if (column == 0 && wanted != NoRole &&
             (wanted == m_idRole || (m_idRole == NoRole && isId(value))))
        changed = storeId(wanted, value);
    else
        changed = storeExtra(column, wanted, value);
    if (changed)
        announceChange(column, wanted);
    return true;
}

bool ZVTreeViewItem::storeText(const QVariant& value)
{
    const bool typed = value.userType() == QMetaType::QString;
    QString text = typed ? value.toString() : QString();
    if (typed && text.isNull())
        text = QLatin1String("");
    const bool extraChanged = storeExtra(0, Qt::DisplayRole, typed ? QVariant() : value);
    const bool isSame = m_text == text && m_text.isNull() == text.isNull();
    m_text = text;
    if (!isSame || extraChanged)
        forgetShownSerial();
    return !isSame || extraChanged;
}

void ZVTreeViewItem::storeText(const std::string& text)
{
    if (m_extra)
        storeExtra(0, Qt::DisplayRole, QVariant());
    m_text = QString::fromStdString(text);
}

bool ZVTreeViewItem::storeId(int role, const QVariant& value)
{
    if (!isId(value)) {
        const bool had = m_idRole == role;
        if (had) {
            m_idRole = NoRole;
            forgetShownSerial();
        }
        return storeExtra(0, role, value) || had;
    }
    const auto newId = value.value<IDCombiner>();
    if (m_idRole == role && m_id == newId)
        return false;
    // A second id, stored untyped while the first was there, may be the same.
    const QVariant* untyped = findExtra(0, role);
    const bool changed = !untyped || !isCertainlySame(*untyped, value);
    storeExtra(0, role, QVariant());
    forgetShownSerial();
    m_id = newId;
    m_idRole = role;
    return changed;
}

bool ZVTreeViewItem::storeExtra(int column, int role, const QVariant& value)
{
    if (!m_extra) {
        if (!value.isValid())
            return false;
        m_extra = std::make_unique<std::vector<ExtraValue>>();
    }
    const auto found = std::find_if(m_extra->begin(), m_extra->end(), [=](const ExtraValue& entry) {
        return entry.column == column && entry.role == role;
    });
    if (found == m_extra->end()) {
        if (value.isValid())
            m_extra->push_back({column, role, value});
        return value.isValid();
    }
    const bool isChanged = !isCertainlySame(found->value, value);
    if (value.isValid())
        found->value = value;
    else
        m_extra->erase(found);
    return isChanged;
}

const QVariant* ZVTreeViewItem::findExtra(int column, int role) const
{
    if (!m_extra)
        return nullptr;
    for (const ExtraValue& entry : *m_extra) {
        if (entry.column == column && entry.role == role)
            return &entry.value;
    }
    return nullptr;
}

void ZVTreeViewItem::setFlags(Qt::ItemFlags flags)
{
    const auto stored = static_cast<quint16>(flags);
    if (m_flags == stored)
        return;
    m_flags = stored;
    announceChange(0, ZVTreeViewModelPrivate::AnyRole);
}

bool ZVTreeViewItem::hasText(const std::string& text) const
{
    return !m_text.isNull() && equalsUtf8(m_text, text);
}

void ZVTreeViewItem::setText(const std::string& text)
{
    if (hasText(text))
        return;
    storeText(text);
    forgetShownSerial();
    announceChange(0, Qt::DisplayRole);
}

void ZVTreeViewItem::setId(int role, const IDCombiner& id)
{
    const bool plain = role != NoRole && storedRole(role) != Qt::DisplayRole;
    if (!plain || m_idRole != NoRole || m_extra || m_parent) {
        setData(0, role, QVariant::fromValue(id));
        return;
    }
    m_id = id;
    m_idRole = role;
}

void ZVTreeViewItem::announceChange(int column, int role)
{
    if (m_parent && m_parent->m_children->owner)
        m_parent->m_children->owner->valueChanged(this, column, role);
}

/** The model whose tree the row is in, else null. */
ZVTreeViewModelPrivate* ZVTreeViewItem::owner() const
{
    const ZVTreeViewItemChildren* list = m_parent ? m_parent->m_children.get() : m_children.get();
    return list ? list->owner : nullptr;
}

bool ZVTreeViewItem::isRoot() const
{
    return !m_parent && owner();
}

ZVTreeViewModel* ZVTreeViewItem::model() const
{
    const ZVTreeViewModelPrivate* model = owner();
    return model ? model->q : nullptr;
}

ZVTreeViewItemChildren& ZVTreeViewItem::children()
{
    if (!m_children) {
        m_children = std::make_unique<ZVTreeViewItemChildren>();
        m_children->owner = m_parent ? m_parent->m_children->owner : nullptr;
    }
    return *m_children;
}

int ZVTreeViewItem::row() const
{
    return m_parent ? m_parent->m_children->rowOf(this) : -1;
}

int ZVTreeViewItem::childCount() const
{
    return m_children ? m_children->count() : 0;
}

ZVTreeViewItem* ZVTreeViewItem::child(int index) const
{
    // A negative index is a very large one here.
    const auto place = static_cast<std::size_t>(index);
    return m_children && place < m_children->rows.size() ? m_children->rows[place] : nullptr;
}

bool ZVTreeViewItem::canAdopt(const ZVTreeViewItem* child) const
{
    if (!child || child == this || child->m_parent || child->isRoot())
        return false;
    const ZVTreeViewItem* above = child->m_children ? m_parent : nullptr;
    while (above && above != child)
        above = above->m_parent;
    return above == nullptr;
}

bool ZVTreeViewItem::canAdoptAll(const QVector<ZVTreeViewItem*>& added) const
{
    // Rows without a parent have no number; one that is met twice has this one.
    constexpr int met = -2;
    int fit = 0;
    while (fit < added.size() && canAdopt(added.at(fit)) && added.at(fit)->m_row != met)
        added.at(fit++)->m_row = met;
    std::for_each(added.begin(), added.begin() + fit,
                  [](ZVTreeViewItem* child) { child->m_row = -1; });
    return fit == added.size();
}

bool ZVTreeViewItem::insert(int index, ZVTreeViewItem* const* added, int count)
{
    ZVTreeViewModelPrivate* model = owner();
    if (model && !model->canChangeStructure())
        return false;
    ZVTreeViewItemChildren& list = children();
    // Views are about to hear of rows, so nothing may fail from there on.
    list.rows.reserve(list.rows.size() + static_cast<std::size_t>(count));
    const auto change = [&] {
        forgetShownSerial();
        list.insert(index, added, count);
        std::for_each(added, added + count, [this](ZVTreeViewItem* child) { adopt(child); });
    };
    if (model)
        model->insertRows(this, index, count, change);
    else
        change();
    return true;
}

void ZVTreeViewItem::adopt(ZVTreeViewItem* child)
{
    child->m_parent = this;
    if (child->m_children && child->m_children->owner != m_children->owner)
        child->setOwner(m_children->owner);
}

void ZVTreeViewItem::letGo()
{
    m_parent = nullptr;
    m_row = -1;
    setOwner(nullptr);
}

/** Of the whole subtree, which may be of any depth; allocates nothing. */
void ZVTreeViewItem::setOwner(ZVTreeViewModelPrivate* owner)
{
    ZVTreeViewItem* row = this;
    while (true) {
        if (row->m_children)
            row->m_children->owner = owner;
        if (ZVTreeViewItem* first = row->child(0)) {
            row = first;
            continue;
        }
        while (row != this && row->row() + 1 == row->m_parent->childCount())
            row = row->m_parent;
        if (row == this)
            return;
        row = row->m_parent->child(row->row() + 1);
    }
}

bool ZVTreeViewItem::insertChild(int index, ZVTreeViewItem* child)
{
    return index >= 0 && index <= childCount() && canAdopt(child) && insert(index, &child, 1);
}

bool ZVTreeViewItem::appendChildren(const QVector<ZVTreeViewItem*>& added)
{
    if (!canAdoptAll(added))
        return false;
    return added.isEmpty() || insert(childCount(), added.constData(), added.size());
}

ZVTreeViewItem* ZVTreeViewItem::takeChild(int index)
{
    ZVTreeViewItem* taken = child(index);
    ZVTreeViewModelPrivate* model = owner();
    if (!taken || (model && !model->canChangeStructure()))
        return nullptr;
    const auto change = [&] {
        forgetShownSerial();
        m_children->erase(index, 1);
        taken->letGo();
    };
    if (model)
        model->removeRow(this, index, change);
    else
        change();
    return taken;
}

bool ZVTreeViewItem::takeChild(ZVTreeViewItem* child)
{
    return child && child->m_parent == this && takeChild(child->row());
}

bool ZVTreeViewItem::deleteChild(int index)
{
    const std::unique_ptr<ZVTreeViewItem> taken(takeChild(index));
    return taken != nullptr;
}

std::uint64_t ZVTreeViewItem::shownSerial() const
{
    return m_children ? m_children->shownSerial : 0;
}

void ZVTreeViewItem::setShownSerial(std::uint64_t serial)
{
    if (m_children || serial != 0)
        children().shownSerial = serial;
}

void ZVTreeViewItem::forgetShownSerial()
{
    setShownSerial(0);
    // Where a row above has forgotten, those above it have, too.
    for (ZVTreeViewItem* above = m_parent; above && above->m_children->shownSerial != 0;
         above = above->m_parent)
        above->m_children->shownSerial = 0;
}

} // namespace Zorvane
