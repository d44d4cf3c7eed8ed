#include "Workbench/Tree/DesignCatalog.h"

#include "Workbench/Design/DesignSession.h"
#include "Workbench/Meshes/MeshReader.h"
#include "Workbench/Texts/SizeText.h"

#include <QtCore/QLocale>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

struct Word
{
    const char* word;
    const char* text;
};

// clang-format off
constexpr Word s_toolWords[] = {
    {"die",     QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Die")},
    {"punch",   QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Punch")},
    {"binder",  QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Binder")},
    {"pad",     QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Pad")},
    {"knife",   QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Knife")},
    {"post",    QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Post")},
    {"steel",   QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Steel")},
};
constexpr Word s_operationWords[] = {
    {"draw",    QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Draw operation")},
    {"trim",    QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Trim operation")},
    {"pierce",  QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Pierce operation")},
    {"flange",  QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Flange operation")},
    {"restrike", QT_TRANSLATE_NOOP("Zorvane::Workbench::DesignCatalog", "Restrike operation")},
};
// clang-format on

template <std::size_t count>
QString wordText(const Word (&words)[count], const QString& word, const QString& otherwise)
{
    for (const Word& known : words)
        if (word == QLatin1String(known.word))
            return QCoreApplication::translate("Zorvane::Workbench::DesignCatalog", known.text);
    return word.isEmpty() ? otherwise : word;
}

} // namespace

DesignCatalog::DesignCatalog(const DesignSession& session, const MeshLoader& loader,
                             QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_loader(loader)
{
    connect(&session, &DesignSession::changed, this, [this] { m_outdated = true; });
}

const CatalogEntry* DesignCatalog::find(const IDCombiner& id) const
{
    const auto found = entries().find(id);
    return found == entries().end() ? nullptr : &found->second;
}

std::vector<IDCombiner> DesignCatalog::idsOf(ObjectKind kind) const
{
    std::vector<IDCombiner> ids;
    for (const auto& [id, entry] : entries())
        if (entry.kind == kind)
            ids.push_back(id);
    std::sort(ids.begin(), ids.end());
    return ids;
}

int DesignCatalog::objectCount() const
{
    const Entries& all = entries();
    return int(std::count_if(all.begin(), all.end(), [](const Entries::value_type& entry) {
        return entry.second.kind != ObjectKind::Design;
    }));
}

std::optional<IDCombiner> DesignCatalog::findByFile(const QString& file) const
{
    const Entries& all = entries();
    for (const IDCombiner& id : m_order)
        if (all.at(id).file == file)
            return id;
    return {};
}

std::optional<MeshFacts> DesignCatalog::facts(const CatalogEntry& entry) const
{
    const bool there = entry.isMesh && entry.fileState == FileState::Exists;
    return there ? m_loader.facts(entry.file) : std::nullopt;
}

QString DesignCatalog::meshProblem(const CatalogEntry& entry) const
{
    if (!entry.isMesh || entry.fileState != FileState::Exists)
        return {};
    const std::optional<Problem> problem = m_loader.problem(entry.file);
    return problem ? problem->reason : QString();
}

ZVWidgetStatus::Stati DesignCatalog::stati(const CatalogEntry& entry) const
{
    ZVWidgetStatus::Stati stati = ZVWidgetStatus::Normal;
    if (entry.hasFile && entry.fileState == FileState::Missing)
        stati |= ZVWidgetStatus::Missing;
    if (entry.hasFile && entry.fileState == FileState::Outside)
        stati |= ZVWidgetStatus::Error;
    if (!meshProblem(entry).isEmpty())
        stati |= ZVWidgetStatus::Error;
    if (entry.modified)
        stati |= ZVWidgetStatus::Modified;
    if (entry.changedOnDisk)
        stati |= ZVWidgetStatus::OutOfDate;
    return stati;
}

QString DesignCatalog::stateText(const CatalogEntry& entry) const
{
    QStringList texts;
    if (entry.hasFile && entry.fileState == FileState::Missing)
        texts << tr("File missing");
    if (entry.hasFile && entry.fileState == FileState::Outside)
        texts << tr("Outside");
    if (!meshProblem(entry).isEmpty())
        texts << tr("Unreadable");
    if (entry.modified)
        texts << tr("Modified");
    if (entry.changedOnDisk)
        texts << tr("Changed on disk");
    return texts.join(QStringLiteral(", "));
}

const DesignCatalog::Entries& DesignCatalog::entries() const
{
    if (!m_outdated)
        return m_entries;
    m_outdated = false;
    m_entries.clear();
    m_order.clear();
    m_colours.follow(m_session);
    for (const Design& design : m_session.designs())
        addDesign(design);
    for (const Part& part : m_session.looseParts())
        addLoosePart(part);
    return m_entries;
}

void DesignCatalog::add(const GUIdentifier& id, CatalogEntry entry, const Design& design,
                        const FileReference* file) const
{
    entry.modified = entry.modified || m_session.isModified(id);
    if (file != nullptr) {
        entry.file = file->file;
        entry.path = file->path;
        entry.hasFile = true;
        entry.isMesh = file->kind == FileKind::Mesh;
        entry.fileState = file->state;
    }
    if (entry.kind == ObjectKind::Design) {
        entry.file = design.file;
        entry.path = design.file;
        entry.changedOnDisk = m_session.hasConflict(id);
    }
    entry.colour = m_colours.colourOf(id);
    // The first of equal ids stands, as it does in the session's own look-ups.
    if (m_entries.emplace(id, std::move(entry)).second)
        m_order.push_back(id);
}

void DesignCatalog::addDesign(const Design& design) const
{
    const std::vector<GUIdentifier> ids = design.allIds();
    CatalogEntry head{ObjectKind::Design, design.name, tr("Design")};
    head.modified = std::any_of(ids.begin(), ids.end(), [this](const GUIdentifier& id) {
        return m_session.isModified(id);
    });
    add(design.id, std::move(head), design, nullptr);
    addBlank(design);
    addParts(design);
    addOperations(design);
    addMaterialsAndFiles(design);
    linkObjects(design);
}

void DesignCatalog::addQuantities(CatalogEntry& entry, const GUIdentifier& id,
                                  const Design& design) const
{
    for (const Quantity quantity : s_quantities) {
        const double* value = design.findQuantity(id, quantity);
        if (value && isQuantity(*value))
            entry.particulars.emplace_back(quantityName(quantity),
                                           leftToRight(quantityText(quantity, *value)));
    }
}

void DesignCatalog::addBlank(const Design& design) const
{
    if (!design.blank)
        return;
    const Blank& blank = *design.blank;
    CatalogEntry entry{ObjectKind::Blank, blank.name, tr("Blank")};
    addQuantities(entry, blank.id, design);
    if (const QString* material = design.findName(blank.material))
        entry.particulars.emplace_back(tr("Material"), *material);
    add(blank.id, std::move(entry), design, design.findGeometry(blank.id));
}

void DesignCatalog::addParts(const Design& design) const
{
    for (const Part& part : design.parts) {
        CatalogEntry entry{ObjectKind::Part, part.name, tr("Part")};
        addQuantities(entry, part.id, design);
        if (const QString* material = design.findName(part.material))
            entry.particulars.emplace_back(tr("Material"), *material);
        add(part.id, std::move(entry), design, design.findGeometry(part.id));
    }
}

void DesignCatalog::addOperations(const Design& design) const
{
    for (const Operation& operation : design.operations) {
        CatalogEntry head{ObjectKind::Operation, operation.name,
                          wordText(s_operationWords, operation.kind, tr("Operation"))};
        addQuantities(head, operation.id, design);
        add(operation.id, std::move(head), design, nullptr);
        for (const Tool& tool : operation.tools) {
            CatalogEntry entry{ObjectKind::Tool, tool.name,
                               wordText(s_toolWords, tool.kind, tr("Tool"))};
            addQuantities(entry, tool.id, design);
            entry.toolSide = toolSideFromWord(tool.kind);
            entry.particulars.emplace_back(tr("Operation"), operation.name);
            add(tool.id, std::move(entry), design, design.findGeometry(tool.id));
        }
    }
}

void DesignCatalog::addMaterialsAndFiles(const Design& design) const
{
    for (const Material& material : design.materials)
        add(material.id, {ObjectKind::Material, material.name, tr("Material")}, design,
            design.findFile(material.file));
    for (const FileReference& file : design.files)
        add(file.id, {ObjectKind::File, file.name, fileKindText(file.kind)}, design, &file);
}

void DesignCatalog::addLoosePart(const Part& part) const
{
    CatalogEntry entry{ObjectKind::Part, part.name, tr("Mesh"), part.file, part.file};
    entry.hasFile = true;
    entry.isMesh = true;
    entry.fileState = part.state;
    entry.colour = m_colours.colourOf(part.id);
    m_entries.emplace(part.id, std::move(entry));
    m_order.push_back(part.id);
}

void DesignCatalog::linkObjects(const Design& design) const
{
    if (design.blank)
        linkBody(design, design.blank->id, design.blank->geometry, design.blank->material);
    for (const Part& part : design.parts)
        linkBody(design, part.id, part.geometry, part.material);
    for (const Operation& operation : design.operations)
        for (const Tool& tool : operation.tools)
            linkBody(design, tool.id, tool.geometry, {});
    for (const Material& material : design.materials)
        link(material.id, material.file);
}

void DesignCatalog::linkBody(const Design& design, const GUIdentifier& body,
                             const GUIdentifier& geometry, const GUIdentifier& material) const
{
    refer(body, geometry);
    refer(body, material);
    for (const Material& candidate : design.materials)
        if (candidate.id == material)
            refer(body, candidate.file);
}

void DesignCatalog::refer(const GUIdentifier& body, const GUIdentifier& to) const
{
    if (link(body, to))
        m_entries.at(to).referrers.push_back(body);
}

/** Both ways; false when the link leads nowhere or is there already. */
bool DesignCatalog::link(const GUIdentifier& from, const GUIdentifier& to) const
{
    const auto source = m_entries.find(from);
    const auto target = m_entries.find(to);
    if (source == m_entries.end() || target == m_entries.end() || source == target)
        return false;
    std::vector<IDCombiner>& links = source->second.links;
    if (std::find(links.begin(), links.end(), IDCombiner(to)) != links.end())
        return false;
    links.push_back(to);
    target->second.links.push_back(from);
    return true;
}

QString DesignCatalog::fileKindText(FileKind kind)
{
    switch (kind) {
    case FileKind::Mesh:
        return tr("Mesh file");
    case FileKind::Material:
        return tr("Material file");
    case FileKind::Result:
        return tr("Result file");
    case FileKind::Design:
        return tr("Design file");
    case FileKind::Document:
        return tr("Document");
    case FileKind::Other:
        break;
    }
    return tr("File");
}

} // namespace Zorvane::Workbench
