#include "Workbench/Tree/DesignPipeline.h"

#include "TreeModel/AddStaticParentToModuleProvider.h"
#include "TreeModel/ModelItem.h"
#include "Workbench/Design/DesignSession.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Zorvane::Workbench {

namespace {

using namespace GenericTreeViewModelHandling;

QString sectionText(DesignSection section)
{
    const auto text = [](const char* source) {
        return QCoreApplication::translate("Zorvane::Workbench::DesignPipeline", source);
    };
    switch (section) {
    case DesignSection::Parts:
        return text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignPipeline", "Parts"));
    case DesignSection::Operations:
        return text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignPipeline", "Operations"));
    case DesignSection::Materials:
        return text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignPipeline", "Materials"));
    case DesignSection::Files:
        return text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignPipeline", "Files"));
    case DesignSection::LooseParts:
        break;
    }
    return text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignPipeline", "Mesh files"));
}

/** The same for the same section of the same design, always. */
GUIdentifier sectionId(const GUIdentifier& designId, DesignSection section)
{
    return GUIdentifier(QUuid::createUuidV5(
        designId.toQUuid(), QStringLiteral("workbench section %1").arg(int(section))));
}

/** A row above a list, with the number of the list's own items in its text. */
class SectionParent : public ModelProviderInterface
{
public:
    SectionParent(const GUIdentifier& id, QString text,
                  std::shared_ptr<ModelProviderInterface> input)
        : m_id(id)
        , m_text(std::move(text))
        , m_input(std::move(input))
    {}

    std::shared_ptr<ModelRoot> provideModel() override
    {
        auto result = std::make_shared<ModelRoot>();
        const std::shared_ptr<ModelRoot> input = m_input->provideModel();
        const auto& items = input->getTopLevelItems();
        if (items.empty())
            return result;
        const QString text = QStringLiteral("%1 (%2)").arg(m_text).arg(items.size());
        auto parent = std::make_shared<ModelItem>(m_id, text.toStdString());
        parent->setChildren(items);
        result->addTopLevelItems({parent});
        return result;
    }
    void registerUpdateCallback(std::function<void()> callback) override
    {
        m_input->registerUpdateCallback(std::move(callback));
    }

private:
    GUIdentifier m_id;
    QString m_text;
    std::shared_ptr<ModelProviderInterface> m_input;
};

std::size_t uniqueCount(std::vector<IDCombiner> ids)
{
    std::sort(ids.begin(), ids.end());
    return std::size_t(std::distance(ids.begin(), std::unique(ids.begin(), ids.end())));
}

} // namespace

DesignPipeline::DesignPipeline(const DesignSession& session, std::shared_ptr<Filter> filter,
                               std::function<void()> changed)
    : m_session(session)
    , m_filter(std::move(filter))
    , m_changed(std::move(changed))
{
    m_heads = headsNow();
    compose();
}

std::shared_ptr<ModelRoot> DesignPipeline::provideModel()
{
    std::vector<Head> heads = headsNow();
    if (heads != m_heads) {
        m_heads = std::move(heads);
        compose();
    }
    std::shared_ptr<ModelRoot> root = m_top->provideModel();
    for (auto& [id, name] : m_groupNames)
        name.clear();
    noteGroupNames(root->getTopLevelItems());
    return root;
}

void DesignPipeline::noteGroupNames(const Items& items)
{
    for (const std::shared_ptr<ModelItem>& item : items) {
        const auto group = m_groupNames.find(item->getId());
        if (group != m_groupNames.end())
            group->second = QString::fromStdString(item->getName());
        else if (item->hasChildren())
            noteGroupNames(item->getChildren());
    }
}

QString DesignPipeline::groupName(const IDCombiner& id) const
{
    const auto group = m_groupNames.find(id);
    return group == m_groupNames.end() ? QString() : group->second;
}

int DesignPipeline::shownCount() const
{
    std::vector<IDCombiner> all;
    for (const auto& [section, extractor] : m_extractors) {
        const std::vector<IDCombiner>& ids = *extractor->getCollection();
        all.insert(all.end(), ids.begin(), ids.end());
    }
    return int(uniqueCount(std::move(all)));
}

int DesignPipeline::shownCount(DesignSection wanted) const
{
    std::vector<IDCombiner> all;
    for (const auto& [section, extractor] : m_extractors) {
        const std::vector<IDCombiner>& ids = *extractor->getCollection();
        if (section == wanted)
            all.insert(all.end(), ids.begin(), ids.end());
    }
    return int(uniqueCount(std::move(all)));
}

std::vector<DesignPipeline::Head> DesignPipeline::headsNow() const
{
    std::vector<Head> heads;
    for (const Design& design : m_session.designs())
        heads.emplace_back(design.id, design.name);
    return heads;
}

void DesignPipeline::compose()
{
    m_extractors.clear();
    m_groupNames.clear();
    std::vector<std::shared_ptr<Provider>> providers;
    for (const Head& design : m_heads)
        providers.push_back(designProvider(design));
    providers.push_back(sectionProvider({}, DesignSection::LooseParts));
    m_top = std::make_shared<MergedModelProvider>();
    m_top->addSubModelProvider(providers);
    m_top->registerUpdateCallback(m_changed);
}

std::shared_ptr<DesignPipeline::Provider> DesignPipeline::designProvider(const Head& design)
{
    auto sections = std::make_shared<MergedModelProvider>();
    sections->addSubModelProvider({sectionProvider(design.first, DesignSection::Parts),
                                   sectionProvider(design.first, DesignSection::Operations),
                                   sectionProvider(design.first, DesignSection::Materials),
                                   sectionProvider(design.first, DesignSection::Files)});
    auto parent = std::make_shared<AddStaticParentToModuleProvider>(design.first,
                                                                    design.second.toStdString());
    parent->addParentAlsoForEmptyChildTree();
    parent->setInputModelProvider(sections);
    return parent;
}

std::shared_ptr<DesignPipeline::Provider>
DesignPipeline::sectionProvider(const GUIdentifier& designId, DesignSection section)
{
    auto extractor = std::make_shared<Extractor>();
    extractor->setInputModelProvider(
        std::make_shared<DesignSectionProvider>(m_session, designId, section, m_filter));
    m_extractors.emplace_back(section, extractor);
    const GUIdentifier id = sectionId(designId, section);
    m_groupNames[id] = QString();
    return std::make_shared<SectionParent>(id, sectionText(section), extractor);
}

} // namespace Zorvane::Workbench
