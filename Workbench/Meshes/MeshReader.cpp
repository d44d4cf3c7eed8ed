#include "Workbench/Meshes/MeshReader.h"

#include "Workbench/Meshes/MeshContent.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>

#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <new>
#include <unordered_map>
#include <utility>

namespace Zorvane::Workbench {

namespace {

struct MeshFormat
{
    const char* ending;
    MeshContent (*check)(const QByteArray&);
};

// clang-format off
constexpr std::array<MeshFormat, 3> formats{{
    {"stl", checkStl},
    {"obj", checkObj},
    {"ply", checkPly},
}};
// clang-format on

const MeshFormat* formatOf(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    for (const MeshFormat& format : formats) {
        if (ending == QLatin1String(format.ending))
            return &format;
    }
    return nullptr;
}

struct PointHash
{
    std::size_t operator()(const QVector3D& point) const
    {
        std::size_t hash = 0;
        for (int axis = 0; axis < 3; ++axis)
            hash = hash * 1000003U ^ std::hash<float>()(point[axis]);
        return hash;
    }
};

struct PointEqual
{
    // Not QVector3D's own comparison: only what is exactly the same is the same point.
    bool operator()(const QVector3D& left, const QVector3D& right) const
    {
        const auto same = [](float a, float b) { return !(a < b) && !(b < a); };
        return same(left.x(), right.x()) && same(left.y(), right.y()) && same(left.z(), right.z());
    }
};

/** Builds a mesh out of triangles with corners of their own, joining identical points. */
class Joiner
{
public:
    explicit Joiner(std::size_t corners) { m_indices.reserve(corners / 4); }

    void add(const aiMesh& mesh)
    {
        for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
            const aiFace& face = mesh.mFaces[i];
            if (face.mNumIndices != 3)
                continue;
            TriangleMesh::Triangle triangle{};
            for (unsigned corner = 0; corner < 3; ++corner)
                triangle[corner] = indexOf(mesh.mVertices[face.mIndices[corner]]);
            m_mesh.triangles.push_back(triangle);
        }
    }

    TriangleMesh take() { return std::move(m_mesh); }

private:
    std::uint32_t indexOf(const aiVector3D& vertex)
    {
        // Adding zero turns -0 into 0, which has another hash.
        const QVector3D point(vertex.x + 0.0F, vertex.y + 0.0F, vertex.z + 0.0F);
        const auto next = static_cast<std::uint32_t>(m_mesh.points.size());
        const auto [entry, isNew] = m_indices.emplace(point, next);
        if (isNew)
            m_mesh.points.push_back(point);
        return entry->second;
    }

    TriangleMesh m_mesh;
    std::unordered_map<QVector3D, std::uint32_t, PointHash, PointEqual> m_indices;
};

bool hasOnlyNumbers(const aiScene& scene)
{
    for (unsigned i = 0; i < scene.mNumMeshes; ++i) {
        const aiMesh& mesh = *scene.mMeshes[i];
        const auto isFinite = [](const aiVector3D& point) {
            return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
        };
        if (!std::all_of(mesh.mVertices, mesh.mVertices + mesh.mNumVertices, isFinite))
            return false;
    }
    return true;
}

TriangleMesh meshOf(const aiScene& scene)
{
    std::size_t corners = 0;
    for (unsigned i = 0; i < scene.mNumMeshes; ++i)
        corners += std::size_t(scene.mMeshes[i]->mNumFaces) * 3;
    Joiner joiner(corners);
    for (unsigned i = 0; i < scene.mNumMeshes; ++i)
        joiner.add(*scene.mMeshes[i]);
    return joiner.take();
}

MeshReading refused(const QString& path, const QString& reason, const QString& where = {})
{
    return {std::nullopt, {path, where, reason}};
}

MeshReading parseChecked(const QString& path, const QByteArray& content, const char* ending)
{
    Assimp::Importer importer;
    const aiScene* scene =
        importer.ReadFileFromMemory(content.constData(), static_cast<std::size_t>(content.size()),
                                    aiProcess_Triangulate, ending);
    // The library's own words for it are none for users.
    if (scene == nullptr)
        return refused(path, MeshReader::tr("has no triangles that can be read"));
    if (!hasOnlyNumbers(*scene))
        return refused(path, MeshReader::tr("has coordinates that are infinite or no numbers"));
    TriangleMesh mesh = meshOf(*scene);
    if (mesh.isEmpty())
        return refused(path, MeshReader::tr("has no triangles"));
    return {std::move(mesh), {}};
}

/** Empty if the file may be read, judged without opening it. */
QString obstacleTo(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return MeshReader::tr("doesn't exist");
    // Pipes and devices could be read without end.
    if (!info.isFile())
        return MeshReader::tr("is no file");
    if (info.size() > MeshReader::largestFile)
        return MeshReader::tr("is too large for a mesh file: %1, the limit is %2")
            .arg(QLocale().formattedDataSize(info.size()),
                 QLocale().formattedDataSize(MeshReader::largestFile));
    return {};
}

/** The content, or none with the reason. */
std::optional<QByteArray> contentOf(const QString& path, QString& reason)
{
    reason = obstacleTo(path);
    if (!reason.isEmpty())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        reason = MeshReader::tr("cannot be opened: %1").arg(file.errorString());
        return std::nullopt;
    }
    // Reading takes memory for all that is asked for, so no more than there is.
    const QByteArray content = file.read(std::min(file.size(), MeshReader::largestFile));
    if (file.error() != QFileDevice::NoError) {
        reason = MeshReader::tr("cannot be read: %1").arg(file.errorString());
        return std::nullopt;
    }
    return content;
}

/** What `read` gives, or the problem when memory runs out on the way. */
template <typename Read>
MeshReading withinMemory(const QString& path, Read read)
{
    try {
        return read();
    } catch (const std::bad_alloc&) {
        return refused(path, MeshReader::tr("takes too much memory"));
    }
}

} // namespace

MeshReading MeshReader::read(const QString& path)
{
    if (!isMeshFile(path))
        return parse({}, path);
    return withinMemory(path, [&path] {
        QString reason;
        const std::optional<QByteArray> content = contentOf(path, reason);
        return content ? parse(*content, path) : refused(path, reason);
    });
}

MeshReading MeshReader::parse(const QByteArray& content, const QString& path)
{
    const MeshFormat* format = formatOf(path);
    if (format == nullptr)
        return refused(path, tr("is no mesh file: its name must end with stl, obj or ply"));
    if (content.isEmpty())
        return refused(path, tr("is empty"));
    return withinMemory(path, [&] {
        const MeshContent checked = format->check(content);
        return checked.reason.isEmpty() ? parseChecked(path, checked.content, format->ending)
                                        : refused(path, checked.reason, checked.where);
    });
}

bool MeshReader::isMeshFile(const QString& path)
{
    return formatOf(path) != nullptr;
}

QStringList MeshReader::nameFilters()
{
    QStringList filters;
    for (const MeshFormat& format : formats)
        filters.append(QStringLiteral("*.") + QLatin1String(format.ending));
    return filters;
}

} // namespace Zorvane::Workbench
