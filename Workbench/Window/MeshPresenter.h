#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "Workbench/Meshes/MeshLoader.h"

#include <QtCore/QObject>

namespace Zorvane::Workbench {

class DesignCatalog;
class DesignSession;
class MeshView;

/**
 * Puts the mesh of the object chosen into the mesh view, in the object's colour and with a legend
 * of the colours of its design, or words on why there is none. A mesh not read yet is read first.
 * Everything given must outlive it.
 */
class MeshPresenter : public QObject
{
    Q_OBJECT

public:
    MeshPresenter(DesignSession& session, MeshLoader& loader, const DesignCatalog& catalog,
                  MeshView& view, QObject* parent = nullptr);

    /** The object may have none, or be none. Also for the same object after a change. */
    void show(const IDCombiner& id);

private:
    QString reasonForNoMesh() const;
    void showMesh(const SharedMesh& mesh);
    void showLoaded(const QString& path, const SharedMesh& mesh);
    void showFailure(const QString& path, const Problem& problem);

    DesignSession& m_session;
    MeshLoader& m_loader;
    const DesignCatalog& m_catalog;
    MeshView& m_view;
    GUIdentifier m_object;
    QString m_file;
};

} // namespace Zorvane::Workbench
