#include "Workbench/Design/DesignEdit.h"

namespace Zorvane::Workbench {

std::vector<GUIdentifier> TakenObjects::ids() const
{
    std::vector<GUIdentifier> all;
    for (const auto& [place, file] : files)
        all.push_back(file.id);
    for (const auto& [place, part] : parts)
        all.push_back(part.id);
    return all;
}

QString TakenObjects::firstName() const
{
    if (!files.empty())
        return files.front().second.name;
    return parts.empty() ? QString() : parts.front().second.name;
}

} // namespace Zorvane::Workbench
