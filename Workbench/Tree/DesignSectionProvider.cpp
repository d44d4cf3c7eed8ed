#include "Workbench/Tree/DesignSectionProvider.h"

#include "TreeModel/ModelItem.h"
#include "Workbench/Design/DesignSession.h"

namespace Zorvane::Workbench {

using GenericTreeViewModelHandling::ModelItem;
using GenericTreeViewModelHandling::ModelRoot;

namespace {

template <typename Object>
std::shared_ptr<ModelItem> itemFor(const Object& object)
{
    return std::make_shared<ModelItem>(object.id, object.name.toStdString());
}

} // namespace

DesignSectionProvider::DesignSectionProvider(const DesignSession& session,
                                             const GUIdentifier& designId, DesignSection section,
                                             std::shared_ptr<Filter> filter)
    : m_session(session)
    , m_designId(designId)
    , m_section(section)
    , m_filter(std::move(filter))
    , m_filterChanged(m_filter->connectToChanged([this] { tellChanged(); }))
{
    QObject::connect(&session, &DesignSession::changed, &m_context, [this] { tellChanged(); });
}

std::shared_ptr<ModelRoot> DesignSectionProvider::provideModel()
{
    m_filter->beginFiltering();
    Items items = acceptedItems();
    m_filter->endFiltering();
    auto root = std::make_shared<ModelRoot>();
    root->addTopLevelItems(std::move(items));
    return root;
}

void DesignSectionProvider::registerUpdateCallback(std::function<void()> callback)
{
    m_updateCallback = std::move(callback);
}

template <typename Object>
void DesignSectionProvider::addAccepted(Items& items, const Object& object) const
{
    if (m_filter->accept(object.id))
        items.push_back(itemFor(object));
}

DesignSectionProvider::Items DesignSectionProvider::acceptedItems() const
{
    Items items;
    if (m_section == DesignSection::LooseParts) {
        for (const Part& part : m_session.looseParts())
            addAccepted(items, part);
        return items;
    }
    const Design* design = m_session.findDesign(m_designId);
    if (design == nullptr)
        return items;
    switch (m_section) {
    case DesignSection::Parts:
        if (design->blank)
            addAccepted(items, *design->blank);
        for (const Part& part : design->parts)
            addAccepted(items, part);
        break;
    case DesignSection::Operations:
        return acceptedOperations();
    case DesignSection::Materials:
        for (const Material& material : design->materials)
            addAccepted(items, material);
        break;
    case DesignSection::Files:
        for (const FileReference& file : design->files)
            addAccepted(items, file);
        break;
    case DesignSection::LooseParts:
        break;
    }
    return items;
}

DesignSectionProvider::Items DesignSectionProvider::acceptedOperations() const
{
    Items operations;
    for (const Operation& operation : m_session.findDesign(m_designId)->operations) {
        Items tools;
        for (const Tool& tool : operation.tools)
            addAccepted(tools, tool);
        if (tools.empty() && !m_filter->accept(operation.id))
            continue;
        operations.push_back(itemFor(operation));
        operations.back()->addChildren(std::move(tools));
    }
    return operations;
}

void DesignSectionProvider::tellChanged() const
{
    if (m_updateCallback)
        m_updateCallback();
}

} // namespace Zorvane::Workbench
