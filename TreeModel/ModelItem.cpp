#include "TreeModel/ModelItem.h"

#include <atomic>
#include <iterator>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

namespace {

using Items = std::vector<std::shared_ptr<ModelItem>>;

/** Of the serials that were given. */
std::atomic<std::uint64_t> s_lastSerial{0};
/** All below it are void: one of their items has been changed, and those above it don't know. */
std::atomic<std::uint64_t> s_firstValidSerial{1};

bool isLastOwner(const std::shared_ptr<ModelItem>& item)
{
    if (item.use_count() != 1)
        return false;
    // What former owners on other threads did to the item comes before what we do to it.
    std::atomic_thread_fence(std::memory_order_acquire);
    return true;
}

} // namespace

ModelItem::ModelItem(const GUIdentifier& id, const std::string& name)
    : m_id(id)
    , m_name(name)
{}

ModelItem::ModelItem(const IDCombiner& id, const std::string& name)
    : m_id(id)
    , m_name(name)
{}

ModelItem::ModelItem(const Identifier& id, const std::string& name)
    : m_id(id)
    , m_name(name)
{}

ModelItem::ModelItem(const ModelItem& other)
    : m_id(other.m_id)
    , m_name(other.m_name)
    , m_children(other.m_children)
{}

// Left to the pointers, a deep tree would be deleted by as deep a recursion. Here an item that dies
// with children becomes "current", and the first place of its list holds the way back to the one
// before, until the others are gone. Nothing is allocated, so nothing can fail.
ModelItem::~ModelItem()
{
    std::shared_ptr<ModelItem> current;
    while (true) {
        Items& children = current ? current->m_children : m_children;
        if (children.size() == (current ? 1U : 0U)) {
            if (!current)
                return;
            std::shared_ptr<ModelItem> previous = std::move(children.front());
            children.clear();
            current = std::move(previous);
            continue;
        }
        std::shared_ptr<ModelItem> child = std::move(children.back());
        children.pop_back();
        while (isLastOwner(child) && child->hasChildren()) {
            std::shared_ptr<ModelItem> first = std::move(child->m_children.front());
            child->m_children.front() = std::move(current);
            current = std::move(child);
            child = std::move(first);
        }
    }
}

std::uint64_t ModelItem::getSerial() const
{
    if (m_serial < s_firstValidSerial.load(std::memory_order_relaxed))
        m_serial = ++s_lastSerial;
    return m_serial;
}

void ModelItem::noteChange()
{
    if (m_serial != 0)
        s_firstValidSerial = s_lastSerial + 1;
}

void ModelItem::addChildren(const Items& children)
{
    // A copy first: the argument may be this item's own list, which grows meanwhile.
    addChildren(Items(children));
}

void ModelItem::addChildren(Items&& children)
{
    noteChange();
    m_children.insert(m_children.end(), std::make_move_iterator(children.begin()),
                      std::make_move_iterator(children.end()));
    children.clear();
}

void ModelItem::setChildren(const Items& children)
{
    // A copy first: the argument may be the list of a child that goes away here.
    Items copy(children);
    noteChange();
    m_children.swap(copy);
}

} // namespace Zorvane::GenericTreeViewModelHandling
