#include "Files/DefaultPathProvider.h"

#include "Files/PathScopes.h"
#include "Host/PathConfiguration/PathConfiguration.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

namespace Zorvane {

namespace {

/** What the settings hold for a scope that has no last path. */
const QLatin1String s_noPath(".");

bool isUsable(const QString& lastPath)
{
    return lastPath != s_noPath && !lastPath.isEmpty() &&
           QFileInfo(lastPath).absoluteDir().exists();
}

} // namespace

std::shared_ptr<DefaultPathProvider> DefaultPathProvider::s_instance;
bool DefaultPathProvider::s_firstDesignOpen = true;

DefaultPathProvider::DefaultPathProvider() = default;
DefaultPathProvider::DefaultPathProvider(const DefaultPathProvider& other) = default;
DefaultPathProvider& DefaultPathProvider::operator=(const DefaultPathProvider& other) = default;
DefaultPathProvider::~DefaultPathProvider() = default;

DefaultPathProvider* DefaultPathProvider::getInstance()
{
    if (!s_instance)
        s_instance = std::make_shared<DefaultPathProvider>();
    return s_instance.get();
}

QString DefaultPathProvider::getDefaultPathFromScope(const QString& scope)
{
    const auto found = getDefaultPathes().constFind(scope);
    return found != getDefaultPathes().constEnd()
               ? found.value()
               : QString::fromStdString(PathConfiguration::getZvPathMyDocuments().toString());
}

QString DefaultPathProvider::getLastPathFromScope(const QString& scope)
{
    QString path = QSettings().value(lastPathKey(scope), s_noPath).toString();
    if (!isUsable(path)) {
        const QString defaultPath = getDefaultPathFromScope(scope);
        if (!defaultPath.isEmpty())
            path = defaultPath;
    }
    return getDirectoryName(path);
}

QString DefaultPathProvider::getPathFromScope(const QString& scope)
{
    if (scope == s_designScope && !s_firstDesignOpen)
        return getLastPathFromScope(scope);
    return getDirectoryName(getDefaultPathFromScope(scope));
}

void DefaultPathProvider::setPathToScope(const QString& path, const QString& scope)
{
    if (path.isEmpty())
        return;
    QSettings().setValue(lastPathKey(scope), path);
    if (scope == s_designScope) {
        m_designPlaces.push_back(getDirectoryName(path));
        s_firstDesignOpen = false;
    }
}

std::vector<QString> DefaultPathProvider::getPlacesFromScope(const QString& scope)
{
    std::vector<QString> places{getDefaultPathFromScope(scope), getLastPathFromScope(scope)};
    if (scope == s_designScope)
        places.insert(places.end(), m_designPlaces.begin(), m_designPlaces.end());
    return places;
}

} // namespace Zorvane
