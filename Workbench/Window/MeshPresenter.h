#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "Workbench/Meshes/MeshLoader.h"

#include <QtCore/QObject>

namespace Zorvane::Workbench {

class DesignSession;
class MeshView;

/**
 * Puts the mesh of the object chosen into the mesh view, or words on why there is none. A mesh not
 * read yet is read first. Everything given must outlive it.
 */
class MeshPresenter : public QObject
{
    Q_OBJECT

public:
    MeshPresenter(DesignSession& session, MeshLoader& loader, MeshView& view,
                  QObject* parent = nullptr);

    /** The object may have none, or be none. Also for the same object after a change. */
    void show(const IDCombiner& id);

private:
    QString reasonForNoMesh() const;
    void showLoaded(const QString& path, const SharedMesh& mesh);
    void showFailure(const QString& path, const Problem& problem);

    DesignSession& m_session;
    MeshLoader& m_loader;
    MeshView& m_view;
    GUIdentifier m_object;
    QString m_file;
};

} // namespace Zorvane::Workbench
