#include "Files/PathProvider.h"

#include "Host/PathConfiguration/PathConfiguration.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace Zorvane {

namespace {

struct DefaultFolder
{
    QLatin1String scope;
    FileName (*folder)();
};

// clang-format off
const DefaultFolder s_defaultFolders[]{
    {QLatin1String("Presses"),             &PathConfiguration::getZvPathPressesFiles},
    {QLatin1String("Material"),            &PathConfiguration::getZvPathMaterialFiles},
    {QLatin1String("Lubrication"),         &PathConfiguration::getZvPathLubricationFiles},
    {QLatin1String("Standard"),            &PathConfiguration::getZvPathStandardFiles},
    {QLatin1String("userStandards"),       &PathConfiguration::getZvPathMyDocuments},
    {QLatin1String("Design"),              &PathConfiguration::getZvPathMyDocuments},
    {QLatin1String("DesignTemplate"),      &PathConfiguration::getZvPathTemplateDesignFiles},
    {QLatin1String("Import"),              &PathConfiguration::getZvPathMyDocuments},
    {QLatin1String("RemoteComputing"),     &PathConfiguration::getZvPathMyDocuments},
    {QLatin1String("Solver Log"),          &PathConfiguration::getZvPathMyDocuments},
    {QLatin1String("Hotforming"),          &PathConfiguration::getZvPathMyDocuments},
    // Strength models are kept with the drawbeads that they belong to.
    {QLatin1String("Strength"),            &PathConfiguration::getZvPathDrawbeadFiles},
    {QLatin1String("Drawbead"),            &PathConfiguration::getZvPathDrawbeadFiles},
    {QLatin1String("FormabilitySettings"), &PathConfiguration::getZvPathFormabilityFiles},
    {QLatin1String("AddendumProfile"),     &PathConfiguration::getZvPathAddendumFiles},
    {QLatin1String("VanTrel"),             &PathConfiguration::getZvPathMyDocuments},
    {QLatin1String("HemmingTools"),        &PathConfiguration::getZvPathHemmingToolFiles},
    {QLatin1String("Guideline"),           &PathConfiguration::getZvPathGuidelineFiles},
    {QLatin1String("Connectors"),          &PathConfiguration::getZvPathConnectorFiles},
};
// clang-format on

} // namespace

PathProvider::PathProvider() = default;
PathProvider::PathProvider(const PathProvider& other) = default;
PathProvider& PathProvider::operator=(const PathProvider& other) = default;
PathProvider::~PathProvider() = default;

QHash<QString, QString>& PathProvider::getDefaultPathes()
{
    static QHash<QString, QString> pathes;
    if (pathes.isEmpty()) {
        for (const DefaultFolder& row : s_defaultFolders)
            pathes.insert(row.scope, QString::fromStdString(row.folder().toString()));
    }
    return pathes;
}

QString PathProvider::getDirectoryName(const QString& path)
{
    const QFileInfo info(path);
    return QDir::toNativeSeparators(info.isFile() ? info.path() : info.filePath());
}

} // namespace Zorvane
