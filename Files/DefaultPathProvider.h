#pragma once

#include "Files/PathProvider.h"

#include <memory>

namespace Zorvane {

/**
 * Opens dialogs in the scope's default folder. Only designs open where the last one was, and that
 * only after a design was opened or saved since the application started. What the user chose is
 * kept in the application's settings under "LastFile/" + scope, for every scope.
 */
class ZORVANE_UITOOLS_EXPORT DefaultPathProvider : public PathProvider
{
public:
    DefaultPathProvider();
    DefaultPathProvider(const DefaultPathProvider& other);
    DefaultPathProvider& operator=(const DefaultPathProvider& other);
    ~DefaultPathProvider() override;

    /** The one of the process, made at the first call; owned by the library. */
    static DefaultPathProvider* getInstance();

    QString getDefaultPathFromScope(const QString& scope) override;
    /** The default folder stands in for a last one that is gone. */
    QString getLastPathFromScope(const QString& scope) override;
    QString getPathFromScope(const QString& scope) override;
    void setPathToScope(const QString& path, const QString& scope) override;
    /** The default and the last folder; for designs also every folder of this provider's since. */
    std::vector<QString> getPlacesFromScope(const QString& scope) override;

private:
    static std::shared_ptr<DefaultPathProvider> s_instance;
    static bool s_firstDesignOpen;

    std::vector<QString> m_designPlaces;
};

} // namespace Zorvane
