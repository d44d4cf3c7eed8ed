#pragma once

#include "Tests/Workbench/Design/DesignFiles.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/Meshes/MeshLoader.h"

#include <QtCore/QTemporaryDir>

namespace Zorvane::Testing {

/** The small design of `DesignFiles.h` on disk, with its files, opened in a session. */
struct OpenedDesign
{
    OpenedDesign()
    {
        writeFile(path(QStringLiteral("geometry/die.stl")), binaryStl(cube()));
        writeFile(path(QStringLiteral("steel.json")), "{}");
        writeFile(designFile(), toText(smallDesign()));
        session.open({folder.path()});
    }

    QString path(const QString& name) const { return folder.filePath(name); }
    QString designFile() const { return path(QStringLiteral("small.dsg")); }

    QTemporaryDir folder;
    Workbench::DesignSession session;
    Workbench::MeshLoader loader;
};

/** The id of the object with this number in the files of `DesignFiles.h`. */
inline GUIdentifier objectId(int number)
{
    return GUIdentifier(QUuid(uuidText(number)));
}

} // namespace Zorvane::Testing
