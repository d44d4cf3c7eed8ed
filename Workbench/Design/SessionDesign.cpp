#include "Workbench/Design/SessionDesign.h"

#include "Workbench/Design/DesignReader.h"

#include <algorithm>

namespace Zorvane::Workbench {

SessionDesign::SessionDesign(const DesignSession& session, const GUIdentifier& design)
    : m_session(&session)
    , m_design(design)
{}

const Design* SessionDesign::design() const
{
    return m_session ? m_session->findDesign(m_design) : nullptr;
}

FileName SessionDesign::getFileName() const
{
    const Design* design = this->design();
    return design == nullptr ? FileName() : FileName(design->file);
}

int SessionDesign::getModificationCount(int) const
{
    return m_session && m_session->isDesignModified(m_design) ? 1 : 0;
}

// Designs are always read from a file.
bool SessionDesign::isNew() const
{
    return getFileName().isEmpty();
}

bool SessionDesign::hasSimulationResults() const
{
    const Design* design = this->design();
    const auto isResult = [](const FileReference& file) {
        return file.kind == FileKind::Result && file.state == FileState::Exists;
    };
    return design != nullptr && std::any_of(design->files.begin(), design->files.end(), isResult);
}

bool SessionDesign::isCurrentVersion() const
{
    const Design* design = this->design();
    return design == nullptr || design->version() == DesignReader::currentVersion;
}

// Evaluation works on the tables of results: those renamed or added are its data.
bool SessionDesign::hasEvaluationDataChanged() const
{
    const Design* design = this->design();
    const auto isChangedResult = [this](const FileReference& file) {
        return file.kind == FileKind::Result && m_session->isModified(file.id);
    };
    return design != nullptr &&
           std::any_of(design->files.begin(), design->files.end(), isChangedResult);
}

bool SessionDesign::hasSimulationInputChanged() const
{
    return m_session && m_session->areQuantitiesModified(m_design);
}

// The current version holds all that earlier ones held.
bool SessionDesign::areResultsLostByConversion() const
{
    return false;
}

} // namespace Zorvane::Workbench
