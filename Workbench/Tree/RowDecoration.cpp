#include "Workbench/Tree/RowDecoration.h"

#include "Host/ApplicationWidgets/SvgIcon.h"
#include "TreeModel/FlagManipulationDataProvider.h"
#include "TreeModel/StaticTreeItemByIdIconProvider.h"
#include "TreeModel/TreeItemStaticDataProvider.h"
#include "TreeModel/WidgetStateDataProvider.h"
#include "TreeModel/ZVTreeItemDataProviderManager.h"
#include "TreeModel/ZVTreeItemTextProvider.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/MeshView/PartIcon.h"
#include "Workbench/Texts/SizeText.h"
#include "Workbench/Tree/CatalogTextProvider.h"
#include "Workbench/Tree/ChosenRowsDataProvider.h"
#include "Workbench/Tree/DesignPipeline.h"
#include "Workbench/Tree/FactTexts.h"
#include "Workbench/Tree/ReferenceDataProvider.h"

#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtGui/QFont>
#include <QtGui/QIcon>

#include <map>

namespace Zorvane::Workbench {

namespace {

using namespace GenericTreeViewModelHandling;

constexpr std::array<ObjectKind, 7> s_kindsWithIcons{
    ObjectKind::Design, ObjectKind::Part,     ObjectKind::Blank, ObjectKind::Operation,
    ObjectKind::Tool,   ObjectKind::Material, ObjectKind::File};

/** Those whose objects have colours. */
constexpr std::array<ObjectKind, 3> s_colouredKinds{ObjectKind::Part, ObjectKind::Blank,
                                                    ObjectKind::Tool};

class GroupNames : public ZVTextProviderInterface
{
public:
    explicit GroupNames(const DesignPipeline& pipeline)
        : m_pipeline(pipeline)
    {}

    std::string getText(const IDCombiner& id) override
    {
        return m_pipeline.groupName(id).toStdString();
    }
    /** Never: groups change with the model only, and then all rows are written. */
    void registerTextChangedCallback(std::function<void()>) override {}

private:
    const DesignPipeline& m_pipeline;
};

/** A column that tells something about the mesh; empty until the mesh has been read. */
template <typename Tell>
auto factText(Tell tell)
{
    return [tell](const DesignCatalog& catalog, const CatalogEntry& entry) {
        const std::optional<MeshFacts> facts = catalog.facts(entry);
        return facts ? tell(*facts) : QString();
    };
}

QString stateTextOf(const DesignCatalog& catalog, const CatalogEntry& entry)
{
    return catalog.stateText(entry);
}

/** More than the column shows: why a mesh cannot be read. */
QString wholeStateText(const DesignCatalog& catalog, const CatalogEntry& entry)
{
    const QString problem = catalog.meshProblem(entry);
    return problem.isEmpty() ? catalog.stateText(entry) : problem;
}

QString toolTip(const DesignCatalog& catalog, const CatalogEntry& entry)
{
    QStringList lines{entry.name};
    if (!entry.path.isEmpty())
        lines << QDir::toNativeSeparators(entry.path);
    lines << wholeStateText(catalog, entry);
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

} // namespace

Qt::Alignment treeColumnAlignment(int column)
{
    const bool figure = column == TreeColumn::Triangles || column == TreeColumn::Size ||
                        column == TreeColumn::Surface;
    if (column == TreeColumn::Watertight)
        return Qt::AlignCenter;
    return (figure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

QStringList treeColumnTitles()
{
    const auto text = [](const char* title) {
        return QCoreApplication::translate("Zorvane::Workbench::DesignTree", title);
    };
    return {text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignTree", "Name")),
            text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignTree", "Kind")),
            text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignTree", "Used by")),
            text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignTree", "Triangles")),
            text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignTree", "Size in mm")),
            text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignTree", "Surface in mm²")),
            text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignTree", "Watertight")),
            text(QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignTree", "State"))};
}

RowDecoration::RowDecoration(const DesignSession& session, const DesignCatalog& catalog,
                             const DesignPipeline& pipeline)
    : m_session(session)
    , m_catalog(catalog)
    , m_pipeline(pipeline)
    , m_manager(std::make_shared<ZVTreeItemDataProviderManager>())
{
    addNames();
    addTexts();
    addFactTexts();
    addIcons();
    addReferences();
    addStates();
    addLooks();
}

RowDecoration::~RowDecoration() = default;

void RowDecoration::addForObjects(std::shared_ptr<Provider> provider)
{
    m_manager->addProvider(
        std::make_shared<ChosenRowsDataProvider>(std::move(provider), [this](const IDCombiner& id) {
            return m_catalog.find(id) != nullptr;
        }));
}

void RowDecoration::addForGroups(std::shared_ptr<Provider> provider)
{
    m_manager->addProvider(
        std::make_shared<ChosenRowsDataProvider>(std::move(provider), [this](const IDCombiner& id) {
            return m_catalog.find(id) == nullptr;
        }));
}

std::shared_ptr<CatalogTextProvider> RowDecoration::addText(int column, int role, Text text)
{
    auto source = std::make_shared<CatalogTextProvider>(m_catalog, std::move(text));
    auto texts = std::make_shared<ZVTreeItemTextProvider>(column, role);
    texts->setTextProvider(source);
    addForObjects(texts);
    return source;
}

void RowDecoration::addNames()
{
    // The synchronizer leaves the text of a row that it moves, so names and counts are written
    // here too.
    addText(TreeColumn::Name, Qt::DisplayRole,
            [](const DesignCatalog&, const CatalogEntry& entry) { return entry.name; });
    auto texts = std::make_shared<ZVTreeItemTextProvider>(TreeColumn::Name, Qt::DisplayRole);
    texts->setTextProvider(std::make_shared<GroupNames>(m_pipeline));
    addForGroups(texts);
}

void RowDecoration::addTexts()
{
    addText(TreeColumn::Kind, Qt::DisplayRole,
            [](const DesignCatalog&, const CatalogEntry& entry) { return entry.kindText; });
    m_factTexts.push_back(addText(TreeColumn::State, Qt::DisplayRole, &stateTextOf));
    m_factTexts.push_back(addText(TreeColumn::Name, Qt::ToolTipRole, &toolTip));
    m_factTexts.push_back(addText(TreeColumn::State, Qt::ToolTipRole, &wholeStateText));
}

void RowDecoration::addFactTexts()
{
    m_factTexts.push_back(
        addText(TreeColumn::Triangles, Qt::DisplayRole, factText([](const MeshFacts& facts) {
                    return QLocale().toString(qulonglong(facts.triangles));
                })));
    m_factTexts.push_back(addText(
        TreeColumn::Size, Qt::DisplayRole,
        factText([](const MeshFacts& facts) { return sizeFigures(facts.box.size(), QLocale()); })));
    m_factTexts.push_back(addText(
        TreeColumn::Surface, Qt::DisplayRole,
        factText([](const MeshFacts& facts) { return surfaceFigures(facts.surface, QLocale()); })));
    m_factTexts.push_back(
        addText(TreeColumn::Watertight, Qt::DisplayRole,
                factText([](const MeshFacts& facts) { return yesNoText(facts.watertight); })));
}

void RowDecoration::addIcons()
{
    m_icons =
        std::make_shared<StaticTreeItemByIdIconProvider>(TreeColumn::Name, Qt::DecorationRole);
    std::vector<QIcon> icons;
    for (const ObjectKind kind : s_kindsWithIcons)
        icons.push_back(squareIcon(createSvgIcon(iconPath(kind))));
    for (const ObjectKind kind : s_colouredKinds)
        for (const QColor& colour : PartColours::palette())
            icons.push_back(partIcon(createSvgIcon(iconPath(kind)), colour));
    m_icons->setIcons(icons);
    m_icons->setDefaultIcon(squareIcon(createSvgIcon(QStringLiteral(":/workbench/group.svg"))));
    m_manager->addProvider(m_icons);
}

void RowDecoration::addStates()
{
    auto states = std::make_shared<WidgetStateDataProvider>(TreeColumn::Name, s_statiRole);
    states->setStatiProviderFunction([this](const IDCombiner& id, ZVTreeViewItem*) {
        const CatalogEntry* entry = m_catalog.find(id);
        return entry ? m_catalog.stati(*entry) : ZVWidgetStatus::Stati(ZVWidgetStatus::Normal);
    });
    m_manager->addProvider(states);
    auto fixed = std::make_shared<FlagManipulationDataProvider>();
    fixed->setFlagsToRemove(Qt::ItemIsEditable);
    m_manager->addProvider(
        std::make_shared<ChosenRowsDataProvider>(fixed, [this](const IDCombiner& id) {
            return !id.hasCombinedPart() || !m_session.canRename(id.getCombinedPart());
        }));
}

void RowDecoration::addLooks()
{
    for (const int column :
         {TreeColumn::Triangles, TreeColumn::Size, TreeColumn::Surface, TreeColumn::Watertight})
        addForObjects(std::make_shared<TreeItemStaticDataProvider>(
            std::vector<int>{column}, Qt::TextAlignmentRole, int(treeColumnAlignment(column))));
    QFont bold;
    bold.setBold(true);
    addForGroups(std::make_shared<TreeItemStaticDataProvider>(std::vector<int>{TreeColumn::Name},
                                                              Qt::FontRole, bold));
}

void RowDecoration::addReferences()
{
    m_manager->addProvider(std::make_shared<ReferenceDataProvider>(m_catalog, TreeColumn::UsedBy));
}

void RowDecoration::objectsChanged()
{
    for (std::size_t index = 0; index < s_kindsWithIcons.size(); ++index)
        m_icons->setIdsForIcon(m_catalog.idsOf(s_kindsWithIcons[index]), index);
    const PartColours::Palette& palette = PartColours::palette();
    std::size_t index = s_kindsWithIcons.size();
    for (const ObjectKind kind : s_colouredKinds) {
        std::map<int, std::vector<IDCombiner>> idsByColour;
        for (const IDCombiner& id : m_catalog.idsOf(kind))
            idsByColour[PartColours::colorId(m_catalog.find(id)->colour)].push_back(id);
        for (const QColor& colour : palette)
            m_icons->setIdsForIcon(idsByColour[PartColours::colorId(colour)], index++);
    }
}

void RowDecoration::factsChanged()
{
    for (const std::shared_ptr<CatalogTextProvider>& text : m_factTexts)
        text->tellChanged();
}

} // namespace Zorvane::Workbench
