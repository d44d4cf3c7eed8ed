#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "Host/Widgets/ZVWidgetStatus.h"
#include "Workbench/Design/Design.h"
#include "Workbench/Meshes/MeshLoader.h"
#include "Workbench/Tree/ObjectKind.h"
#include "Workbench/Tree/PartColours.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QObject>

#include <optional>
#include <unordered_map>
#include <vector>

namespace Zorvane::Workbench {

class DesignSession;

/** What the tree, the details and the filters need to know of one object. */
struct CatalogEntry
{
    ObjectKind kind = ObjectKind::Part;
    QString name{};
    /** Translated, such as "Die" or "Draw operation". */
    QString kindText{};
    /** Absolute path of the file behind the object; empty when it has none or it is outside. */
    QString file{};
    /** The path as the design tells it, or `file`. */
    QString path{};
    bool hasFile = false;
    bool isMesh = false;
    FileState fileState = FileState::Exists;
    /** Of a tool. */
    ToolSide toolSide = ToolSide::Unknown;
    bool modified = false;
    bool changedOnDisk = false;
    /** Such as "Thickness" and "0.8 mm", translated; beyond what every object has. */
    std::vector<std::pair<QString, QString>> particulars{};
    /** Invalid for all but blanks, parts and tools. */
    QColor colour{};
    /** The blanks, parts and tools that need this material or file, also by their material. */
    std::vector<IDCombiner> referrers{};
    /** What a user may go to from here: what this object needs, and what needs it. */
    std::vector<IDCombiner> links{};
};

/**
 * Looks up the objects of a session by id, quickly. Built anew when it is asked for the first time
 * after the session has changed. The session and the loader must outlive it.
 */
class DesignCatalog : public QObject
{
    Q_OBJECT

public:
    DesignCatalog(const DesignSession& session, const MeshLoader& loader,
                  QObject* parent = nullptr);

    /** Null for rows that stand for no object, such as those above groups. */
    const CatalogEntry* find(const IDCombiner& id) const;
    std::vector<IDCombiner> idsOf(ObjectKind kind) const;
    /** Without the designs themselves. */
    int objectCount() const;
    /** The first object behind which this file is; nothing when there is none. */
    std::optional<IDCombiner> findByFile(const QString& file) const;

    /** Of the mesh behind the entry, once it has been read and as long as it is there. */
    std::optional<MeshFacts> facts(const CatalogEntry& entry) const;
    /** Why the mesh behind the entry could not be read; empty when it could. */
    QString meshProblem(const CatalogEntry& entry) const;
    ZVWidgetStatus::Stati stati(const CatalogEntry& entry) const;
    /** The states in words, such as "Missing, modified"; empty for none. */
    QString stateText(const CatalogEntry& entry) const;

private:
    using Entries = std::unordered_map<IDCombiner, CatalogEntry>;

    const Entries& entries() const;
    static QString fileKindText(FileKind kind);
    void addDesign(const Design& design) const;
    void addBlank(const Design& design) const;
    void addParts(const Design& design) const;
    void addOperations(const Design& design) const;
    void addMaterialsAndFiles(const Design& design) const;
    void addLoosePart(const Part& part) const;
    void addQuantities(CatalogEntry& entry, const GUIdentifier& id, const Design& design) const;
    void linkObjects(const Design& design) const;
    void linkBody(const Design& design, const GUIdentifier& body, const GUIdentifier& geometry,
                  const GUIdentifier& material) const;
    bool link(const GUIdentifier& from, const GUIdentifier& to) const;
    void refer(const GUIdentifier& body, const GUIdentifier& to) const;
    void add(const GUIdentifier& id, CatalogEntry entry, const Design& design,
             const FileReference* file) const;

    const DesignSession& m_session;
    const MeshLoader& m_loader;
    mutable Entries m_entries;
    mutable std::vector<IDCombiner> m_order;
    mutable PartColours m_colours;
    mutable bool m_outdated = true;
};

} // namespace Zorvane::Workbench
