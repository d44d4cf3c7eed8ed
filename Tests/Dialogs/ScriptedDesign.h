#pragma once

#include "Host/DesignStatus/DesignInterface.h"
#include "Host/DesignStatus/DesignStatus.h"
#include "Tests/Dialogs/SaveRules.h"

#include <QtCore/QLockFile>
#include <QtCore/QString>

#include <memory>

namespace Zorvane::Testing {

/** A design that answers as a case says; while it lives, its job runs if the case has one. */
class ScriptedDesign : public DesignInterface
{
public:
    ScriptedDesign(const SaveCase& given, const QString& file)
        : m_given(given)
        , m_file(file)
    {
        if (!given.isRunning)
            return;
        m_job = std::make_unique<QLockFile>(DesignStatus::getJobFile(m_file).toQString());
        m_job->setStaleLockTime(0);
        m_isJobMarked = m_job->tryLock(0);
    }

    FileName getFileName() const override
    {
        ++m_questions;
        return m_file;
    }
    int getModificationCount(int state) const override
    {
        ++m_questions;
        m_askedState = state;
        return m_given.isModified ? 3 : 0;
    }
    bool isNew() const override { return m_given.isNew; }
    bool hasSimulationResults() const override { return m_given.hasResults; }
    bool isCurrentVersion() const override { return !m_given.isOldVersion; }
    bool hasEvaluationDataChanged() const override { return m_given.isEvaluationChanged; }
    bool hasSimulationInputChanged() const override { return m_given.isInputChanged; }
    bool areResultsLostByConversion() const override { return m_given.isLostByConversion; }

    bool isJobMarked() const { return m_isJobMarked; }
    int questions() const { return m_questions; }
    /** The state that modification was asked about last; -1 before. */
    int askedState() const { return m_askedState; }

private:
    SaveCase m_given;
    FileName m_file;
    std::unique_ptr<QLockFile> m_job;
    bool m_isJobMarked = false;
    mutable int m_questions = 0;
    mutable int m_askedState = -1;
};

} // namespace Zorvane::Testing
