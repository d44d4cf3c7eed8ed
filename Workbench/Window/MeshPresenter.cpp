#include "Workbench/Window/MeshPresenter.h"

#include "Workbench/Design/DesignSession.h"
#include "Workbench/MeshView/MeshView.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace Zorvane::Workbench {

MeshPresenter::MeshPresenter(DesignSession& session, MeshLoader& loader, MeshView& view,
                             QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_loader(loader)
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
        m_view.setMesh(mesh, m_session.name(m_object));
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

void MeshPresenter::showLoaded(const QString& path, const SharedMesh& mesh)
{
    if (path == m_file)
        m_view.setMesh(mesh, m_session.name(m_object));
}

void MeshPresenter::showFailure(const QString& path, const Problem& problem)
{
    if (path == m_file)
        m_view.showMessage(
            tr("%1 cannot be shown:\n%2").arg(QFileInfo(path).fileName(), problem.reason));
}

} // namespace Zorvane::Workbench
