#include "Workbench/DialogPanel/ExampleFiles.h"

#include "Workbench/Meshes/GeneratedMeshes.h"
#include "Workbench/Meshes/MeshWriter.h"
#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QDir>

namespace Zorvane::Workbench {

namespace {

const QString s_separator = QStringLiteral(";;");

bool writeText(const QString& path, const char* text)
{
    return writeWholeFile(path, text).isEmpty();
}

bool writeBlock(const QString& path, const QVector3D& size)
{
    return !writeStl(blockMesh(size), path, StlFormat::Binary);
}

} // namespace

ExampleFiles::ExampleFiles()
{
    const QString more = QStringLiteral("more");
    m_areThere =
        m_folder.isValid() && QDir(folder()).mkdir(more) &&
        writeBlock(file(QStringLiteral("block.stl")), {120, 80, 30}) &&
        writeBlock(file(QStringLiteral("plate.stl")), {200, 100, 2}) &&
        writeBlock(file(more + QStringLiteral("/block.stl")), {30, 80, 120}) &&
        writeText(file(QStringLiteral("press table.csv")), "stroke;force\n0;0\n10;250\n") &&
        writeText(file(QStringLiteral("notes.txt")), "one\ntwo\n") &&
        writeText(file(QString::fromUtf8("Größe 100 %.txt")), "three\n") &&
        writeText(file(QStringLiteral("no ending")), "four\n");
}

QString ExampleFiles::openFilter()
{
    return QStringList{tr("Mesh (*.stl *.obj)"), tableType(), tr("Text (*.txt)"),
                       tr("All files (*)")}
        .join(s_separator);
}

QString ExampleFiles::saveFilter()
{
    return QStringList{tr("Mesh (*.stl)"), tableType(), tr("Text (*.txt)")}.join(s_separator);
}

QString ExampleFiles::tableType()
{
    return tr("Table (*.csv)");
}

} // namespace Zorvane::Workbench
