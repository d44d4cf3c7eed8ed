#include "Host/PathConfiguration/PathConfiguration.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

#include <cstddef>
#include <utility>

namespace Zorvane {

namespace {

using Folder = PathConfiguration::Folder;

/** A folder's name in settings and on disk, and its environment variable. */
struct FolderName
{
    QLatin1String name;
    const char* variable;
};

const FolderName s_dataRoot{QLatin1String("Data"), "ZORVANE_PATH_DATA"};

// clang-format off
/** By the values of `Folder`. */
const FolderName s_folderNames[]{
    {QLatin1String("MyDocuments"),     "ZORVANE_PATH_MY_DOCUMENTS"},
    {QLatin1String("Presses"),         "ZORVANE_PATH_PRESSES"},
    {QLatin1String("Materials"),       "ZORVANE_PATH_MATERIALS"},
    {QLatin1String("Lubrication"),     "ZORVANE_PATH_LUBRICATION"},
    {QLatin1String("Standards"),       "ZORVANE_PATH_STANDARDS"},
    {QLatin1String("DesignTemplates"), "ZORVANE_PATH_DESIGN_TEMPLATES"},
    {QLatin1String("Drawbeads"),       "ZORVANE_PATH_DRAWBEADS"},
    {QLatin1String("Formability"),     "ZORVANE_PATH_FORMABILITY"},
    {QLatin1String("Addendum"),        "ZORVANE_PATH_ADDENDUM"},
    {QLatin1String("HemmingTools"),    "ZORVANE_PATH_HEMMING_TOOLS"},
    {QLatin1String("Guidelines"),      "ZORVANE_PATH_GUIDELINES"},
    {QLatin1String("Connectors"),      "ZORVANE_PATH_CONNECTORS"},
};
// clang-format on

std::shared_ptr<PathConfiguration>& registeredFolders()
{
    static auto s_instance = std::make_shared<PathConfiguration>();
    return s_instance;
}

/** The path that the environment or the settings give the folder; empty if neither does. */
QString overrideOf(const FolderName& folder)
{
    const QString candidates[]{
        qEnvironmentVariable(folder.variable),
        QSettings().value(QStringLiteral("Paths/") + folder.name).toString(),
    };
    for (const QString& candidate : candidates) {
        if (!candidate.isEmpty() && QDir::isAbsolutePath(candidate))
            return QDir::cleanPath(candidate);
    }
    return {};
}

QString standardDataPath(const FolderName& folder)
{
    const QString below = QStringLiteral("zorvane/") + folder.name;
    const QString existing = QStandardPaths::locate(QStandardPaths::GenericDataLocation, below,
                                                    QStandardPaths::LocateDirectory);
    if (!existing.isEmpty())
        return existing;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' + below;
}

QString dataPath(const FolderName& folder)
{
    const QString root = overrideOf(s_dataRoot);
    return root.isEmpty() ? standardDataPath(folder) : QDir(root).filePath(folder.name);
}

FileName registeredFolder(Folder folder)
{
    const std::shared_ptr<const PathConfiguration> folders = registeredFolders();
    return folders->getFolder(folder);
}

} // namespace

PathConfiguration::PathConfiguration() = default;
PathConfiguration::PathConfiguration(const PathConfiguration&) = default;
PathConfiguration& PathConfiguration::operator=(const PathConfiguration&) = default;
PathConfiguration::~PathConfiguration() = default;

std::shared_ptr<PathConfiguration>
PathConfiguration::registerInstance(std::shared_ptr<PathConfiguration> instance)
{
    if (!instance)
        instance = std::make_shared<PathConfiguration>();
    return std::exchange(registeredFolders(), std::move(instance));
}

FileName PathConfiguration::getFolder(Folder folder) const
{
    const FolderName& name = s_folderNames[std::size_t(folder)];
    const QString own = overrideOf(name);
    if (!own.isEmpty())
        return FileName(own);
    return FileName(folder == Folder::MyDocuments
                        ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                        : dataPath(name));
}

FileName PathConfiguration::getZvPathMyDocuments()
{
    return registeredFolder(Folder::MyDocuments);
}

FileName PathConfiguration::getZvPathPressesFiles()
{
    return registeredFolder(Folder::Presses);
}

FileName PathConfiguration::getZvPathMaterialFiles()
{
    return registeredFolder(Folder::Materials);
}

FileName PathConfiguration::getZvPathLubricationFiles()
{
    return registeredFolder(Folder::Lubrication);
}

FileName PathConfiguration::getZvPathStandardFiles()
{
    return registeredFolder(Folder::Standards);
}

FileName PathConfiguration::getZvPathTemplateDesignFiles()
{
    return registeredFolder(Folder::DesignTemplates);
}

FileName PathConfiguration::getZvPathDrawbeadFiles()
{
    return registeredFolder(Folder::Drawbeads);
}

FileName PathConfiguration::getZvPathFormabilityFiles()
{
    return registeredFolder(Folder::Formability);
}

FileName PathConfiguration::getZvPathAddendumFiles()
{
    return registeredFolder(Folder::Addendum);
}

FileName PathConfiguration::getZvPathHemmingToolFiles()
{
    return registeredFolder(Folder::HemmingTools);
}

FileName PathConfiguration::getZvPathGuidelineFiles()
{
    return registeredFolder(Folder::Guidelines);
}

FileName PathConfiguration::getZvPathConnectorFiles()
{
    return registeredFolder(Folder::Connectors);
}

} // namespace Zorvane
