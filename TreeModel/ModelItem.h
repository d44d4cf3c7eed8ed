#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "UiToolsExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * One node of a view-independent tree: an identity, a text and children in display order.
 *
 * Items are held by shared pointer, and one item may stand in several trees at once; nothing here
 * copies an item deeply. An item that has been handed on must not be changed any more; handing the
 * same item on again is the way to say that it and all below it are unchanged. Trees may be of any
 * depth, also when they go away.
 *
 * Not supported: cycles (nothing looks for them), null children, changing id or name.
 */
class ZORVANE_UITOOLS_EXPORT ModelItem
{
public:
    ModelItem(const GUIdentifier& id, const std::string& name);
    ModelItem(const IDCombiner& id, const std::string& name);
    ModelItem(const Identifier& id, const std::string& name);
    /** Another item with the same children, the way to vary one that was handed on. */
    ModelItem(const ModelItem& other);
    ModelItem& operator=(const ModelItem&) = delete;
    ~ModelItem();

    /** Appends the children in their order; nothing is deduplicated. */
    void addChildren(const std::vector<std::shared_ptr<ModelItem>>& children);
    /** The same, leaving `children` empty. */
    void addChildren(std::vector<std::shared_ptr<ModelItem>>&& children);
    /** Replaces all children; giving an item its own list changes nothing. */
    void setChildren(const std::vector<std::shared_ptr<ModelItem>>& children);

    const std::vector<std::shared_ptr<ModelItem>>& getChildren() const { return m_children; }
    bool hasChildren() const { return !m_children.empty(); }
    const IDCombiner& getId() const { return m_id; }
    /** The display text, in UTF-8. */
    const std::string& getName() const { return m_name; }

    /**
     * A number that no other item has, given when it is first asked for: as long as an item answers
     * the same, neither it nor any item below that was asked, too, has been changed. For consumers
     * that remember what they have seen; on the consumer's thread.
     */
    std::uint64_t getSerial() const;

private:
    void noteChange();

    IDCombiner m_id;
    std::string m_name;
    mutable std::uint64_t m_serial = 0;
    std::vector<std::shared_ptr<ModelItem>> m_children;
};

} // namespace Zorvane::GenericTreeViewModelHandling
