#include "Workbench/Window/SampleDesigns.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace Zorvane::Workbench {

QString sampleFolder(const QString& folderName)
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* place : {"../samples/", "../share/zorvane-workbench/samples/"}) {
        const QFileInfo folder(program.filePath(QString::fromLatin1(place) + folderName));
        if (folder.isDir())
            return QDir::cleanPath(folder.absoluteFilePath());
    }
    return {};
}

std::vector<SampleDesign> sampleDesigns()
{
    const auto text = [](const char* name) {
        return QCoreApplication::translate("Zorvane::Workbench::SampleDesigns", name);
    };
    std::vector<SampleDesign> found;
    const auto add = [&found](const QString& name, const QString& folder) {
        if (!folder.isEmpty())
            found.push_back({name, folder});
    };
    add(text(QT_TRANSLATE_NOOP("Zorvane::Workbench::SampleDesigns", "Drawn cup")),
        sampleFolder(QStringLiteral("drawn-cup")));
    add(text(QT_TRANSLATE_NOOP("Zorvane::Workbench::SampleDesigns", "Door panel")),
        sampleFolder(QStringLiteral("door-panel")));
    return found;
}

} // namespace Zorvane::Workbench
