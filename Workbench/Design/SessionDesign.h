#pragma once

#include "Host/DesignStatus/DesignInterface.h"
#include "Host/Identifiers/GUIdentifier.h"
#include "Workbench/Design/DesignSession.h"

#include <QtCore/QPointer>

namespace Zorvane::Workbench {

/**
 * A design of the session as the library sees it. The session is not owned. A design that has
 * been closed meanwhile, or whose session is gone, is one without a file.
 */
class SessionDesign : public DesignInterface
{
public:
    SessionDesign(const DesignSession& session, const GUIdentifier& design);

    FileName getFileName() const override;
    /** 1 for a design with unsaved changes: the session doesn't count them. */
    int getModificationCount(int state) const override;
    bool isNew() const override;
    bool hasSimulationResults() const override;
    bool isCurrentVersion() const override;
    bool hasEvaluationDataChanged() const override;
    bool hasSimulationInputChanged() const override;
    bool areResultsLostByConversion() const override;

private:
    const Design* design() const;

    QPointer<const DesignSession> m_session;
    GUIdentifier m_design;
};

} // namespace Zorvane::Workbench
