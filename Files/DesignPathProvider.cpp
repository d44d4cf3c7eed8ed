#include "Files/DesignPathProvider.h"

#include "Files/PathScopes.h"
#include "Host/FileHandling/FileUtilities.h"

#include <algorithm>
#include <array>

namespace Zorvane {

namespace {

const QLatin1String s_exportPrefix("Export");

/** Scopes of files that belong with a design, besides its own file and its exports. */
const std::array s_scopesNextToDesign{
    QLatin1String("Import"),
    QLatin1String("Image"),
    QLatin1String("Animation"),
    QLatin1String("Solver Log"),
    QLatin1String("ZVDelvarScatterplot"),
    QLatin1String("ZVSectionPlot"),
    QLatin1String("ForcesPlot"),
    QLatin1String("TRIAL-SpinOff"),
    QLatin1String("VanTrel"),
    QLatin1String("Hotforming"),
};

bool belongsWithDesign(const QString& scope)
{
    return scope.startsWith(s_exportPrefix) ||
           std::find(s_scopesNextToDesign.begin(), s_scopesNextToDesign.end(), scope) !=
               s_scopesNextToDesign.end();
}

QString tableKey(const GUIdentifier& design)
{
    return QString::fromStdString(design.getUUID());
}

} // namespace

std::map<GUIdentifier, std::shared_ptr<DesignPathProvider>> DesignPathProvider::s_instances;

DesignPathProvider::DesignPathProvider(const GUIdentifier& design, const FileName& designFile)
    : m_design(design)
    , m_designFile(designFile)
{}

DesignPathProvider::DesignPathProvider(const DesignPathProvider& other) = default;
DesignPathProvider& DesignPathProvider::operator=(const DesignPathProvider& other) = default;
DesignPathProvider::~DesignPathProvider() = default;

DesignPathProvider* DesignPathProvider::getInstance(const GUIdentifier& design,
                                                    const FileName& designFile)
{
    std::shared_ptr<DesignPathProvider>& instance = s_instances[design];
    if (instance)
        instance->m_designFile = designFile;
    else
        instance = std::make_shared<DesignPathProvider>(design, designFile);
    return instance.get();
}

bool DesignPathProvider::opensNextToDesign(const QString& scope) const
{
    // A design that is about to be saved for the first time is its own scope's place already.
    const bool applies =
        scope == s_designScope || (belongsWithDesign(scope) && FileUtilities::exists(m_designFile));
    return applies && !m_designFile.toString().empty();
}

QString DesignPathProvider::getPathFromScope(const QString& scope)
{
    const QHash<QString, QString> paths = m_paths.value(tableKey(m_design));
    const auto found = paths.constFind(lastPathKey(scope));
    if (found != paths.constEnd())
        return found.value();
    return opensNextToDesign(scope)
               ? getDirectoryName(QString::fromStdString(m_designFile.toString()))
               : DefaultPathProvider::getPathFromScope(scope);
}

void DesignPathProvider::setPathToScope(const QString& path, const QString& scope)
{
    if (!path.isEmpty())
        m_paths[tableKey(m_design)].insert(lastPathKey(scope), path);
    DefaultPathProvider::setPathToScope(path, scope);
}

} // namespace Zorvane
