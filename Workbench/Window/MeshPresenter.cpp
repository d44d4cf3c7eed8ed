#include "Workbench/Window/MeshPresenter.h"

#include "Workbench/Design/DesignSession.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Tree/DesignCatalog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

bool isReferrer(const CatalogEntry& entry, const IDCombiner& id)
{
    return std::find(entry.referrers.begin(), entry.referrers.end(), id) != entry.referrers.end();
}

/** The object's own; of a file the one of the only object that needs it. */
QColor colourOf(const DesignCatalog& catalog, const IDCombiner& id)
{
    const CatalogEntry* entry = catalog.find(id);
    if (entry == nullptr)
        return {};
    const bool isOfOne = !entry->colour.isValid() && entry->referrers.size() == 1;
    return isOfOne ? catalog.find(entry->referrers.front())->colour : entry->colour;
}

/** Those of a design, or the mesh files opened by themselves, that have colours. */
std::vector<IDCombiner> colouredNeighbours(const DesignSession& session, const GUIdentifier& object)
{
    std::vector<IDCombiner> ids;
    if (const Design* design = session.findDesign(object)) {
        const std::vector<GUIdentifier> all = design->allIds();
        ids.assign(all.begin(), all.end());
    } else {
        for (const Part& part : session.looseParts())
            ids.push_back(part.id);
    }
    return ids;
}

std::vector<LegendEntry> legendFor(const DesignSession& session, const DesignCatalog& catalog,
                                   const GUIdentifier& object)
{
    const CatalogEntry* shown = catalog.find(object);
    std::vector<LegendEntry> legend;
    for (const IDCombiner& id : colouredNeighbours(session, object)) {
        const CatalogEntry* entry = catalog.find(id);
        if (shown != nullptr && entry != nullptr && entry->colour.isValid() && entry->isMesh)
            legend.push_back({id, entry->name, entry->colour,
                              id == IDCombiner(object) || isReferrer(*shown, id)});
    }
    return legend;
}

} // namespace

MeshPresenter::MeshPresenter(DesignSession& session, MeshLoader& loader,
                             const DesignCatalog& catalog, MeshView& view, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_loader(loader)
    , m_catalog(catalog)
    , m_view(view)
{
    connect(&loader, &MeshLoader::loaded, this, &MeshPresenter::showLoaded);
    connect(&loader, &MeshLoader::failed, this, &MeshPresenter::showFailure);
}

void MeshPresenter::show(const IDCombiner& id)
{
    const QString before = m_file;
    m_object = id.getCombinedPart();
    m_file = m_session.geometryFile(m_object);
    const QString reason = reasonForNoMesh();
    if (!reason.isEmpty()) {
        m_file.clear();
        m_view.showMessage(reason);
        return;
    }
    if (const SharedMesh mesh = m_loader.mesh(m_file)) {
        showMesh(mesh);
    } else if (const std::optional<Problem> problem = m_loader.problem(m_file)) {
        showFailure(m_file, *problem);
    } else if (m_file != before) {
        m_view.showMessage(tr("Reading %1…").arg(QFileInfo(m_file).fileName()));
        m_loader.requestFirst(m_file);
    }
}

QString MeshPresenter::reasonForNoMesh() const
{
    if (m_session.name(m_object).isEmpty())
        return tr("Select a part, a blank, a tool or a mesh file to see it here.");
    switch (m_session.geometryState(m_object)) {
    case FileState::Missing:
        if (!m_file.isEmpty())
            return tr("The file of %1 is missing:\n%2")
                .arg(m_session.name(m_object), QDir::toNativeSeparators(m_file));
        break;
    case FileState::Outside:
        return tr("The file of %1 lies outside the design's folder and is not opened.")
            .arg(m_session.name(m_object));
    case FileState::Exists:
        break;
    }
    return m_file.isEmpty() ? tr("%1 has no mesh.").arg(m_session.name(m_object)) : QString();
}

void MeshPresenter::showMesh(const SharedMesh& mesh)
{
    m_view.setMesh(mesh, m_session.name(m_object), colourOf(m_catalog, m_object));
    m_view.setLegend(mesh->isEmpty() ? std::vector<LegendEntry>()
                                     : legendFor(m_session, m_catalog, m_object));
}

void MeshPresenter::showLoaded(const QString& path, const SharedMesh& mesh)
{
    if (path == m_file)
        showMesh(mesh);
}

void MeshPresenter::showFailure(const QString& path, const Problem& problem)
{
    if (path == m_file)
        m_view.showMessage(
            tr("%1 cannot be shown:\n%2").arg(QFileInfo(path).fileName(), problem.reason));
}

} // namespace Zorvane::Workbench
