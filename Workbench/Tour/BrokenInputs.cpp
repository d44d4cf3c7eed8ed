#include "Workbench/Tour/BrokenInputs.h"

#include "Workbench/Meshes/GeneratedMeshes.h"
#include "Workbench/Meshes/MeshWriter.h"
#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QUuid>

namespace Zorvane::Workbench {

namespace {

constexpr qint64 s_twoGigabytes = 2LL * 1024 * 1024 * 1024;

bool write(const QString& path, const QByteArray& content)
{
    return writeWholeFile(path, content).isEmpty();
}

bool cutTo(const QString& path, qint64 size)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.resize(size);
}

QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QJsonObject fileReference(const QString& name, const QString& kind, const QString& path)
{
    return {{QStringLiteral("id"), newId()},
            {QStringLiteral("name"), name},
            {QStringLiteral("kind"), kind},
            {QStringLiteral("path"), path}};
}

QByteArray design(const QString& name, const QJsonArray& files)
{
    QJsonArray parts;
    for (const QJsonValue file : files)
        if (file[QLatin1String("kind")].toString() == QLatin1String("mesh"))
            parts.append(QJsonObject{{QStringLiteral("id"), newId()},
                                     {QStringLiteral("name"), file[QLatin1String("name")]},
                                     {QStringLiteral("geometry"), file[QLatin1String("id")]}});
    return QJsonDocument(QJsonObject{{QStringLiteral("version"), 2},
                                     {QStringLiteral("id"), newId()},
                                     {QStringLiteral("name"), name},
                                     {QStringLiteral("parts"), parts},
                                     {QStringLiteral("files"), files}})
        .toJson();
}

} // namespace

QStringList writeBrokenInputs(const QString& folder)
{
    const QDir dir(folder);
    const auto path = [&dir](const char* name) { return dir.filePath(QString::fromLatin1(name)); };
    const QString mesh = QStringLiteral("mesh");
    const QString designKind = QStringLiteral("design");
    const QByteArray references =
        design(QStringLiteral("Careless references"),
               {fileReference(QStringLiteral("Outside"), mesh, QStringLiteral("../../secret.stl")),
                fileReference(QStringLiteral("Gone"), mesh, QStringLiteral("gone.stl")),
                fileReference(QStringLiteral("Good block"), mesh, QStringLiteral("good.stl"))});
    const QByteArray first = design(
        QStringLiteral("First of a circle"),
        {fileReference(QStringLiteral("Second"), designKind, QStringLiteral("circle-2.dsg"))});
    const QByteArray second = design(
        QStringLiteral("Second of a circle"),
        {fileReference(QStringLiteral("First"), designKind, QStringLiteral("circle-1.dsg"))});
    const bool written = !writeStl(blockMesh({40, 30, 20}), path("good.stl"), StlFormat::Binary) &&
                         !writeStl(rippledSheet(2000), path("truncated.stl"), StlFormat::Binary) &&
                         cutTo(path("truncated.stl"), 1000) &&
                         write(path("shopping-list.stl"), "milk\nbread\nnot a single triangle\n") &&
                         write(path("sparse.stl"), {}) &&
                         cutTo(path("sparse.stl"), s_twoGigabytes) &&
                         write(path("cut.dsg"), references.left(references.size() / 2)) &&
                         write(path("references.dsg"), references) &&
                         write(path("circle-1.dsg"), first) && write(path("circle-2.dsg"), second);
    if (!written)
        return {};
    return {path("references.dsg"), path("cut.dsg"),           path("circle-1.dsg"),
            path("truncated.stl"),  path("shopping-list.stl"), path("sparse.stl")};
}

} // namespace Zorvane::Workbench
