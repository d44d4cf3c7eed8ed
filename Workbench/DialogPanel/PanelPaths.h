#pragma once

#include "Files/PathProvider.h"

namespace Zorvane::Workbench {

class DialogRecord;

/** Lets every dialog begin in the same folder, and writes down what it is told. */
class PanelPaths : public PathProvider
{
public:
    PanelPaths(DialogRecord& record, QString folder, std::vector<QString> places);

    QString getDefaultPathFromScope(const QString& scope) override;
    QString getLastPathFromScope(const QString& scope) override;
    QString getPathFromScope(const QString& scope) override;
    void setPathToScope(const QString& path, const QString& scope) override;
    std::vector<QString> getPlacesFromScope(const QString& scope) override;

private:
    DialogRecord& m_record;
    const QString m_folder;
    const std::vector<QString> m_places;
};

} // namespace Zorvane::Workbench
