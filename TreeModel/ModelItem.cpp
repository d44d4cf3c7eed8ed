#include "TreeModel/ModelItem.h"

#include <iterator>

namespace Zorvane::GenericTreeViewModelHandling {

ModelItem::ModelItem(const GUIdentifier& id, const std::string& name)
    : m_id(id)
    , m_name(name)
{
}

ModelItem::ModelItem(const IDCombiner& id, const std::string& name)
    : m_id(id)
    , m_name(name)
{
}

ModelItem::ModelItem(const Identifier& id, const std::string& name)
    : m_id(id)
    , m_name(name)
{
}

void ModelItem::addChildren(const std::vector<std::shared_ptr<ModelItem>>& children)
{
    // By index: the argument may be this item's own list, which grows meanwhile.
    const std::size_t count = children.size();
    m_children.reserve(m_children.size() + count);
    for (std::size_t i = 0; i < count; ++i)
        m_children.push_back(children[i]);
}

void ModelItem::addChildren(std::vector<std::shared_ptr<ModelItem>>&& children)
{
    if (m_children.empty()) {
        m_children = std::move(children);
        return;
    }
    m_children.insert(m_children.end(), std::make_move_iterator(children.begin()),
                      std::make_move_iterator(children.end()));
}

void ModelItem::setChildren(const std::vector<std::shared_ptr<ModelItem>>& children)
{
    m_children = children;
}

} // namespace Zorvane::GenericTreeViewModelHandling
