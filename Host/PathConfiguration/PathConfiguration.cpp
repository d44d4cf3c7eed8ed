#include "Host/PathConfiguration/PathConfiguration.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

namespace Zorvane {

namespace {

/** A folder's name in settings and on disk, and its environment variable. */
struct Folder
{
    QLatin1String name;
    const char* variable;
};

// clang-format off
const Folder s_data           {QLatin1String("Data"),            "ZORVANE_PATH_DATA"};
const Folder s_myDocuments    {QLatin1String("MyDocuments"),     "ZORVANE_PATH_MY_DOCUMENTS"};
const Folder s_presses        {QLatin1String("Presses"),         "ZORVANE_PATH_PRESSES"};
const Folder s_materials      {QLatin1String("Materials"),       "ZORVANE_PATH_MATERIALS"};
const Folder s_lubrication    {QLatin1String("Lubrication"),     "ZORVANE_PATH_LUBRICATION"};
const Folder s_standards      {QLatin1String("Standards"),       "ZORVANE_PATH_STANDARDS"};
const Folder s_designTemplates{QLatin1String("DesignTemplates"), "ZORVANE_PATH_DESIGN_TEMPLATES"};
const Folder s_drawbeads      {QLatin1String("Drawbeads"),       "ZORVANE_PATH_DRAWBEADS"};
const Folder s_formability    {QLatin1String("Formability"),     "ZORVANE_PATH_FORMABILITY"};
const Folder s_addendum       {QLatin1String("Addendum"),        "ZORVANE_PATH_ADDENDUM"};
const Folder s_hemmingTools   {QLatin1String("HemmingTools"),    "ZORVANE_PATH_HEMMING_TOOLS"};
const Folder s_guidelines     {QLatin1String("Guidelines"),      "ZORVANE_PATH_GUIDELINES"};
const Folder s_connectors     {QLatin1String("Connectors"),      "ZORVANE_PATH_CONNECTORS"};
// clang-format on

/** The path that the environment or the settings give the folder; empty if neither does. */
QString overrideOf(const Folder& folder)
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

QString standardDataPath(const Folder& folder)
{
    const QString below = QStringLiteral("zorvane/") + folder.name;
    const QString existing = QStandardPaths::locate(QStandardPaths::GenericDataLocation, below,
                                                    QStandardPaths::LocateDirectory);
    if (!existing.isEmpty())
        return existing;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' + below;
}

FileName dataPath(const Folder& folder)
{
    const QString own = overrideOf(folder);
    if (!own.isEmpty())
        return FileName(own);
    const QString root = overrideOf(s_data);
    return FileName(root.isEmpty() ? standardDataPath(folder) : QDir(root).filePath(folder.name));
}

} // namespace

FileName PathConfiguration::getZvPathMyDocuments()
{
    const QString own = overrideOf(s_myDocuments);
    return FileName(
        own.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : own);
}

FileName PathConfiguration::getZvPathPressesFiles()
{
    return dataPath(s_presses);
}

FileName PathConfiguration::getZvPathMaterialFiles()
{
    return dataPath(s_materials);
}

FileName PathConfiguration::getZvPathLubricationFiles()
{
    return dataPath(s_lubrication);
}

FileName PathConfiguration::getZvPathStandardFiles()
{
    return dataPath(s_standards);
}

FileName PathConfiguration::getZvPathTemplateDesignFiles()
{
    return dataPath(s_designTemplates);
}

FileName PathConfiguration::getZvPathDrawbeadFiles()
{
    return dataPath(s_drawbeads);
}

FileName PathConfiguration::getZvPathFormabilityFiles()
{
    return dataPath(s_formability);
}

FileName PathConfiguration::getZvPathAddendumFiles()
{
    return dataPath(s_addendum);
}

FileName PathConfiguration::getZvPathHemmingToolFiles()
{
    return dataPath(s_hemmingTools);
}

FileName PathConfiguration::getZvPathGuidelineFiles()
{
    return dataPath(s_guidelines);
}

FileName PathConfiguration::getZvPathConnectorFiles()
{
    return dataPath(s_connectors);
}

} // namespace Zorvane
