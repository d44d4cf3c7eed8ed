#include "Workbench/Import/SessionDesign.h"

#include "Workbench/Design/DesignSession.h"

#include <algorithm>

namespace Zorvane::Workbench {

SessionDesign::SessionDesign(const DesignSession& session, const GUIdentifier& design)
    : m_session(session)
    , m_design(design)
{}

FileName SessionDesign::getFileName() const
{
    const Design* design = m_session.findDesign(m_design);
    return design == nullptr ? FileName() : FileName(design->file);
}

int SessionDesign::getModificationCount(int) const
{
    const Design* design = m_session.findDesign(m_design);
    if (design == nullptr)
        return 0;
    const std::vector<GUIdentifier> ids = design->allIds();
    const auto isModified = [this](const GUIdentifier& id) { return m_session.isModified(id); };
    return std::any_of(ids.begin(), ids.end(), isModified) ? 1 : 0;
}

// Designs are always read from a file.
bool SessionDesign::isNew() const
{
    return getFileName().isEmpty();
}

bool SessionDesign::hasSimulationResults() const
{
    const Design* design = m_session.findDesign(m_design);
    const auto isResult = [](const FileReference& file) { return file.kind == FileKind::Result; };
    return design != nullptr && std::any_of(design->files.begin(), design->files.end(), isResult);
}

// There is one version of design files, and the session changes nothing that results rest on.
bool SessionDesign::isCurrentVersion() const
{
    return true;
}

bool SessionDesign::hasEvaluationDataChanged() const
{
    return false;
}

bool SessionDesign::hasSimulationInputChanged() const
{
    return false;
}

bool SessionDesign::areResultsLostByConversion() const
{
    return false;
}

} // namespace Zorvane::Workbench
