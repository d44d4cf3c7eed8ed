// The code of Docs/TreePipeline.md, compiled and run. What stands between a "[name]" and its
// "[/name]" is shown there word for word; the last test sees to that.

#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Support/TestCase.h"
#include "TreeModel/AddStaticParentToModuleProvider.h"
#include "TreeModel/IdsOfModelProviderExtractor.h"
#include "TreeModel/MergedModelProvider.h"
#include "TreeModel/ModelItemFilterCombiner.h"
#include "TreeModel/StaticTreeItemByIdIconProvider.h"
#include "TreeModel/TreeViewBinding.h"
#include "TreeModel/WidgetStateDataProvider.h"
#include "TreeModel/ZVTreeItemDataProviderManager.h"
#include "TreeModel/ZVTreeItemTextProvider.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;

namespace {

struct Part
{
    GUIdentifier id;
    std::string name;
    std::string material;
};

// [leaf provider]
class PartProvider : public ModelProviderInterface
{
public:
    std::shared_ptr<ModelRoot> provideModel() override
    {
        std::vector<std::shared_ptr<ModelItem>> items;
        if (m_filter)
            m_filter->beginFiltering();
        for (const Part& part : m_parts) {
            if (!m_filter || m_filter->accept(part.id))
                items.push_back(std::make_shared<ModelItem>(part.id, part.name));
        }
        if (m_filter)
            m_filter->endFiltering();

        auto root = std::make_shared<ModelRoot>();
        root->addTopLevelItems(std::move(items));
        return root;
    }

    void registerUpdateCallback(std::function<void()> callback) override
    {
        m_updateCallback = std::move(callback);
    }

    void setParts(std::vector<Part> parts)
    {
        m_parts = std::move(parts);
        tellConsumer();
    }

    void setFilter(std::shared_ptr<ModelItemFilterInterface> filter)
    {
        m_filter = std::move(filter);
        m_filterChanged = m_filter->connectToChanged([this] { tellConsumer(); });
        tellConsumer();
    }

private:
    void tellConsumer()
    {
        if (m_updateCallback)
            m_updateCallback();
    }

    std::vector<Part> m_parts;
    std::shared_ptr<ModelItemFilterInterface> m_filter;
    Signals::ScopedConnection m_filterChanged;
    std::function<void()> m_updateCallback;
};
// [/leaf provider]

// [filter]
class ChosenIdsFilter : public ModelItemFilterInterface
{
public:
    using ModelItemFilterInterface::accept;

    bool accept(const IDCombiner& id) override { return m_chosen.count(id) > 0; }

    Signals::Connection connectToChanged(const Signals::Slot<void()>& slot) override
    {
        return m_changed.connect(slot);
    }

    void setChosen(std::set<IDCombiner> chosen)
    {
        m_chosen = std::move(chosen);
        m_changed();
    }

private:
    std::set<IDCombiner> m_chosen;
    Signals::Signal<void()> m_changed;
};
// [/filter]

// [text source]
class MaterialTexts : public ZVTextProviderInterface
{
public:
    std::string getText(const IDCombiner& id) override
    {
        const auto entry = m_materials.find(id);
        return entry == m_materials.end() ? std::string() : entry->second;
    }

    void registerTextChangedCallback(std::function<void()> callback) override
    {
        m_textChanged = std::move(callback);
    }

    void setMaterial(const IDCombiner& id, const std::string& material)
    {
        m_materials[id] = material;
        if (m_textChanged)
            m_textChanged();
    }

private:
    std::map<IDCombiner, std::string> m_materials;
    std::function<void()> m_textChanged;
};
// [/text source]

QStringList textsBelow(const ZVTreeViewItem& row)
{
    QStringList texts;
    for (int i = 0; i < row.childCount(); ++i) {
        texts.append(row.child(i)->data(0, Qt::DisplayRole).toString());
        texts.append(textsBelow(*row.child(i)));
    }
    return texts;
}

/** Takes away what the block is indented by as a whole. */
QString flushLeft(const QString& block)
{
    QStringList lines = block.split(QLatin1Char('\n'));
    int indentation = 1000;
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty())
            indentation =
                std::min(indentation, line.indexOf(QRegularExpression(QStringLiteral("\\S"))));
    }
    for (QString& line : lines)
        line = line.mid(indentation);
    return lines.join(QLatin1Char('\n'));
}

QString contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TreePipelineGuideTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void modelsAreComposed();
    void filtersAreCombined();
    void idsAreExtracted();
    void rowDataFollowsItsSources();
    void treeFollowsTheParts();
    void guideShowsThisCode();

private:
    const Part m_cup{GUIdentifier::create(), "Cup", "DC04"};
    const Part m_panel{GUIdentifier::create(), "Panel", "AA6016"};
    std::shared_ptr<PartProvider> m_parts;
    std::shared_ptr<PartProvider> m_tools;
};

void TreePipelineGuideTest::init()
{
    m_parts = std::make_shared<PartProvider>();
    m_parts->setParts({m_cup, m_panel});
    m_tools = std::make_shared<PartProvider>();
}

void TreePipelineGuideTest::modelsAreComposed()
{
    const auto partProvider = m_parts;
    const auto toolProvider = m_tools;
    // [composition]
    const IDCombiner partsRowId = Identifier(1);
    auto parts = std::make_shared<AddStaticParentToModuleProvider>(partsRowId, "Parts");
    parts->setInputModelProvider(partProvider);
    parts->appendNumberOfChildrenToName();

    auto models = std::make_shared<MergedModelProvider>();
    models->addSubModelProvider({parts, toolProvider});
    // [/composition]
    const auto root = models->provideModel();
    QCOMPARE(root->totalItemCount(), std::uint64_t(3));
    QCOMPARE(root->getTopLevelItems().front()->getName(), std::string("Parts (2)"));
}

void TreePipelineGuideTest::filtersAreCombined()
{
    const auto partProvider = m_parts;
    const auto visibleLayers = std::make_shared<ChosenIdsFilter>();
    const auto searchHits = std::make_shared<ChosenIdsFilter>();
    // [combined filters]
    auto filter = std::make_shared<ModelItemFilterCombiner>(ModelItemFilterCombiner::AllMustAccept);
    filter->setFilterToCombine({visibleLayers, searchHits});
    partProvider->setFilter(filter);
    // [/combined filters]
    int calls = 0;
    partProvider->registerUpdateCallback([&calls] { ++calls; });
    visibleLayers->setChosen({m_cup.id, m_panel.id});
    searchHits->setChosen({m_panel.id});
    QCOMPARE(calls, 2);
    QCOMPARE(partProvider->provideModel()->totalItemCount(), std::uint64_t(1));
}

void TreePipelineGuideTest::idsAreExtracted()
{
    const auto partProvider = m_parts;
    const IDCombiner id = m_cup.id;
    // [extractor]
    auto shown = std::make_shared<IdsOfModelProviderExtractor>();
    shown->setInputModelProvider(partProvider);
    const auto shownIds = shown->getCollection();
    // Later, after the tree was refreshed through `shown`:
    const auto isShown = [&] { return std::binary_search(shownIds->begin(), shownIds->end(), id); };
    // [/extractor]
    QVERIFY(!isShown());
    shown->provideModel();
    QVERIFY(isShown());
}

void TreePipelineGuideTest::rowDataFollowsItsSources()
{
    const std::vector<QIcon> icons(2);
    const auto materials = std::make_shared<MaterialTexts>();
    const IDCombiner missingPart = m_panel.id;
    // [data providers]
    auto materialColumn = std::make_shared<ZVTreeItemTextProvider>(1, Qt::DisplayRole);
    materialColumn->setTextProvider(materials);

    auto iconById = std::make_shared<StaticTreeItemByIdIconProvider>(0, Qt::DecorationRole);
    iconById->setIcons(icons);
    iconById->setIdsForIcon({missingPart}, 1);

    auto states = std::make_shared<WidgetStateDataProvider>(0, Qt::UserRole);
    states->setStatiProviderFunction([missingPart](const IDCombiner& id, ZVTreeViewItem*) {
        return id == missingPart ? ZVWidgetStatus::Missing : ZVWidgetStatus::Normal;
    });

    auto rowData = std::make_shared<ZVTreeItemDataProviderManager>();
    rowData->addProvider(materialColumn);
    rowData->addProvider(iconById);
    rowData->addProvider(states);
    // [/data providers]
    const auto models = m_parts;
    // [binding]
    ZVTreeViewModel model;
    model.setHorizontalHeaderLabels({QStringLiteral("Part"), QStringLiteral("Material")});
    TreeViewBinding binding(&model, models, rowData);
    // [/binding]
    const ZVTreeViewItem* cup = model.rootItem()->child(0);
    QCOMPARE(cup->data(1, Qt::DisplayRole).toString(), QString());
    materials->setMaterial(m_cup.id, m_cup.material);
    binding.refresh();
    QCOMPARE(cup->data(1, Qt::DisplayRole).toString(), QStringLiteral("DC04"));
    QCOMPARE(model.rootItem()->child(1)->data(0, Qt::UserRole).toInt(),
             int(ZVWidgetStatus::Missing));
}

void TreePipelineGuideTest::treeFollowsTheParts()
{
    ZVTreeViewModel model;
    const TreeViewBinding binding(&model, m_parts);
    const ZVTreeViewItem* panel = model.rootItem()->child(1);
    m_parts->setParts({m_panel, {GUIdentifier::create(), "Hinge", "DC04"}});
    QTRY_COMPARE(textsBelow(*model.rootItem()),
                 (QStringList{QStringLiteral("Panel"), QStringLiteral("Hinge")}));
    QCOMPARE(model.rootItem()->child(0), panel);
}

void TreePipelineGuideTest::guideShowsThisCode()
{
    const QString source = contentsOf(QFINDTESTDATA("TreePipelineGuideTest.cpp"));
    const QString guide = contentsOf(QFINDTESTDATA("../../Docs/TreePipeline.md"));
    QVERIFY(!guide.isEmpty());
    const QRegularExpression snippet(
        QStringLiteral("\\n *// \\[(\\w[^\\]]*)\\]\\n(.*?)\\n *// \\[/\\1\\]"),
        QRegularExpression::DotMatchesEverythingOption);
    int shown = 0;
    for (auto all = snippet.globalMatch(source); all.hasNext(); ++shown) {
        const QRegularExpressionMatch match = all.next();
        const QString fenced =
            QStringLiteral("```cpp\n%1\n```\n").arg(flushLeft(match.captured(2)));
        QVERIFY2(guide.contains(fenced), qPrintable(match.captured(1)));
    }
    QCOMPARE(shown, guide.count(QStringLiteral("```cpp\n")));
}

ZORVANE_TEST(TreePipelineGuideTest)
#include "TreePipelineGuideTest.moc"
