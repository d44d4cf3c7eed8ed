#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "TreeModel/ModelProviderInterface.h"
#include "UiToolsExport.h"

#include <functional>
#include <memory>
#include <string>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Puts one fixed row above a model, such as "Parts" above all parts. Without further wishes the
 * row is shown only while the model has items.
 *
 * The row's children are the model's own top-level items. A missing input, or one that gives no
 * root, counts as an empty model.
 *
 * Not supported: clearing a wish once told, changing the row's id or text.
 */
class ZORVANE_UITOOLS_EXPORT AddStaticParentToModuleProvider : public ModelProviderInterface
{
public:
    /** The row's id, and its text in UTF-8. */
    AddStaticParentToModuleProvider(const IDCombiner& parentId, const std::string& parentName);

    /** Replaces the input, null for none; a callback registered before reaches the new one. */
    void setInputModelProvider(std::shared_ptr<ModelProviderInterface> provider);
    /** Shows the row above an empty model, too. */
    void addParentAlsoForEmptyChildTree() { m_addParentForEmptyChildTree = true; }
    /** Appends the number of the model's leaf items to the text, as in "Parts (12)". */
    void appendNumberOfChildrenToName() { m_appendNumberOfChildren = true; }

    std::shared_ptr<ModelRoot> provideModel() override;
    /** Hands the callback on to the input, also an empty one. */
    void registerUpdateCallback(std::function<void()> callback) override;

private:
    std::string parentNameFor(const ModelRoot* input) const;

    IDCombiner m_parentId;
    std::string m_parentName;
    std::shared_ptr<ModelProviderInterface> m_inputModelProvider;
    std::function<void()> m_updateCallback;
    bool m_appendNumberOfChildren = false;
    bool m_addParentForEmptyChildTree = false;
};

} // namespace Zorvane::GenericTreeViewModelHandling
