#include "Workbench/Meshes/MeshWriter.h"

#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QCoreApplication>

#include <assimp/Exporter.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <algorithm>
#include <memory>

namespace Zorvane::Workbench {

namespace {

class Writer
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::MeshWriter)

public:
    static QString write(const TriangleMesh& mesh, const QString& path, StlFormat format);
};

void fill(aiMesh& target, const TriangleMesh& mesh)
{
    target.mPrimitiveTypes = aiPrimitiveType_TRIANGLE;
    target.mNumVertices = static_cast<unsigned>(mesh.points.size());
    target.mVertices = new aiVector3D[mesh.points.size()];
    for (std::size_t i = 0; i < mesh.points.size(); ++i)
        target.mVertices[i] = {mesh.points[i].x(), mesh.points[i].y(), mesh.points[i].z()};
    target.mNumFaces = static_cast<unsigned>(mesh.triangles.size());
    target.mFaces = new aiFace[mesh.triangles.size()];
    for (std::size_t i = 0; i < mesh.triangles.size(); ++i) {
        aiFace& face = target.mFaces[i];
        face.mNumIndices = 3;
        face.mIndices = new unsigned[3];
        std::copy(mesh.triangles[i].begin(), mesh.triangles[i].end(), face.mIndices);
    }
}

/** The scene owns all that is created here. */
std::unique_ptr<aiScene> sceneOf(const TriangleMesh& mesh)
{
    auto scene = std::make_unique<aiScene>();
    scene->mNumMeshes = 1;
    scene->mMeshes = new aiMesh* [1] { new aiMesh };
    scene->mNumMaterials = 1;
    scene->mMaterials = new aiMaterial* [1] { new aiMaterial };
    scene->mRootNode = new aiNode;
    scene->mRootNode->mNumMeshes = 1;
    scene->mRootNode->mMeshes = new unsigned[1]{0};
    fill(*scene->mMeshes[0], mesh);
    return scene;
}

QString Writer::write(const TriangleMesh& mesh, const QString& path, StlFormat format)
{
    if (mesh.isEmpty())
        return tr("a mesh without triangles cannot be written");
    // The exporter refuses meshes without normals.
    Assimp::Exporter exporter;
    const aiExportDataBlob* blob = exporter.ExportToBlob(
        sceneOf(mesh).get(), format == StlFormat::Ascii ? "stl" : "stlb", aiProcess_GenNormals);
    if (blob == nullptr)
        return tr("the mesh cannot be turned into STL");
    const QString obstacle =
        writeWholeFile(path, static_cast<const char*>(blob->data), static_cast<qint64>(blob->size));
    return obstacle.isEmpty() ? QString() : tr("cannot be written: %1").arg(obstacle);
}

} // namespace

std::optional<Problem> writeStl(const TriangleMesh& mesh, const QString& path, StlFormat format)
{
    const QString reason = Writer::write(mesh, path, format);
    return reason.isEmpty() ? std::nullopt : std::optional<Problem>({path, {}, reason});
}

} // namespace Zorvane::Workbench
