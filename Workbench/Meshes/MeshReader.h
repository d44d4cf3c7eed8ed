#pragma once

#include "Workbench/Meshes/TriangleMesh.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace Zorvane::Workbench {

/** What became of reading a mesh file: a mesh, or the problem that kept it from being read. */
struct MeshReading
{
    std::optional<TriangleMesh> mesh;
    Problem problem;
};

/**
 * Reads STL (ASCII and binary), OBJ and PLY files. Coordinates are taken as millimetres; identical
 * points are joined, polygons cut into triangles. Every file is checked before it is given to the
 * parser, so that a cut or forged file ends in a clear problem. May be used in any thread.
 *
 * Not supported: colours, textures, materials, curves; files that a mesh file refers to are never
 * opened.
 */
class MeshReader
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::MeshReader)

public:
    /** In bytes; five million triangles of a binary STL file. */
    static constexpr qint64 largestFile = 256LL * 1024 * 1024;

    /** Reads the file at `path`. */
    static MeshReading read(const QString& path);
    /** Reads `content` as if it stood in the file at `path`. */
    static MeshReading parse(const QByteArray& content, const QString& path);

    /** Whether the name ends as a mesh file's does, in any case. */
    static bool isMeshFile(const QString& path);
    /** "*.stl" and so on. */
    static QStringList nameFilters();
};

} // namespace Zorvane::Workbench
