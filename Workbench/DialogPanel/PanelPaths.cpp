#include "Workbench/DialogPanel/PanelPaths.h"

#include "Workbench/DialogPanel/DialogRecord.h"

#include <utility>

namespace Zorvane::Workbench {

PanelPaths::PanelPaths(DialogRecord& record, QString folder, std::vector<QString> places)
    : m_record(record)
    , m_folder(std::move(folder))
    , m_places(std::move(places))
{}

QString PanelPaths::getDefaultPathFromScope(const QString&)
{
    return m_folder;
}

QString PanelPaths::getLastPathFromScope(const QString&)
{
    return m_folder;
}

QString PanelPaths::getPathFromScope(const QString&)
{
    return m_folder;
}

void PanelPaths::setPathToScope(const QString& path, const QString& scope)
{
    m_record.note(QStringLiteral("setPathToScope(%1)").arg(quoted({path, scope})));
}

std::vector<QString> PanelPaths::getPlacesFromScope(const QString&)
{
    return m_places;
}

} // namespace Zorvane::Workbench
