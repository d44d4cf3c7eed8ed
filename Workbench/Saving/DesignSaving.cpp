#include "Workbench/Saving/DesignSaving.h"

#include "Dialogs/SaveState.h"
#include "Host/Widgets/ZVMessageBox.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Design/DesignEdit.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/Design/SessionDesign.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Undo/EditHistory.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>

#include <memory>

namespace Zorvane::Workbench {

namespace {

/** Whether there is anything to ask before the design is saved, or its simulation started. */
bool needsQuestion(const SaveState& state, ZVSaveDialog::Action action)
{
    const bool isStarting = action == ZVSaveDialog::ActionStart;
    return state.isJobRunning || willDropResults(state, action) || !state.isCurrentVersion ||
           (isStarting && state.isModified);
}

/** Asks without creating a file: where files cannot be removed, a trial would stay. */
bool canBeSaved(const Design& design)
{
    const QFileInfo file(design.file);
    return QFileInfo(file.path()).isWritable() &&
           (!file.exists() || (file.isFile() && file.isWritable()));
}

} // namespace

DesignSaving::DesignSaving(const Parts& parts, QWidget* window)
    : QObject(window)
    , m_parts(parts)
    , m_window(window)
{
    connect(&parts.runner, &SimulationRunner::finished, this, &DesignSaving::takeResults);
    connect(&parts.runner, &SimulationRunner::failed, this,
            [this](const QString&, const Problem& problem) { Q_EMIT failed(problem.text()); });
    connect(&parts.runner, &SimulationRunner::stopped, this, [this](const QString& file) {
        Q_EMIT done(tr("The simulation of %1 was stopped.").arg(QFileInfo(file).fileName()));
    });
    connect(&parts.files, &FileCommands::replacing, &parts.history, &EditHistory::follow);
    connect(&parts.files, &FileCommands::savedAs, this,
            [this](const QString& file) { m_savedAs = file; });
}

std::vector<GUIdentifier> DesignSaving::modifiedDesigns() const
{
    std::vector<GUIdentifier> ids;
    for (const Design& design : m_parts.session.designs())
        if (m_parts.session.isDesignModified(design.id))
            ids.push_back(design.id);
    return ids;
}

ZVSaveDialog::Result DesignSaving::ask(GUIdentifier designId, ZVSaveDialog::Action action,
                                       bool saveDisabled) const
{
    const Design* design = m_parts.session.findDesign(designId);
    const bool isSaveDisabled = saveDisabled || design == nullptr || !canBeSaved(*design);
    return ZVSaveDialog::showDialog(m_window,
                                    std::make_shared<SessionDesign>(m_parts.session, designId),
                                    action, false, isSaveDisabled);
}

bool DesignSaving::saveAll()
{
    for (const GUIdentifier& id : modifiedDesigns())
        if (!save(id))
            return false;
    return true;
}

bool DesignSaving::save(GUIdentifier designId)
{
    const SaveState state = saveStateOf(SessionDesign(m_parts.session, designId));
    if (!needsQuestion(state, ZVSaveDialog::ActionSave))
        return write(designId);
    switch (ask(designId, ZVSaveDialog::ActionSave)) {
    case ZVSaveDialog::ResultSaveAs:
        return writeAs(designId);
    case ZVSaveDialog::ResultCancel:
        return false;
    default:
        return write(designId);
    }
}

bool DesignSaving::write(GUIdentifier designId)
{
    // Events go on while a question is asked.
    if (m_parts.session.findDesign(designId) == nullptr) {
        Q_EMIT failed(tr("The design is no longer open."));
        return false;
    }
    // Also where questions are suppressed: the simulation's file must stay as it is.
    if (saveStateOf(SessionDesign(m_parts.session, designId)).isJobRunning) {
        Q_EMIT failed(tr("%1 is not saved while its simulation is running.")
                          .arg(m_parts.session.name(designId)));
        return false;
    }
    const QPointer<DesignSaving> self(this);
    const TakenObjects dropped = dropOutdatedResults(designId);
    Problems problems = m_parts.session.save(designId, DesignSession::OnConflict::Refuse);
    if (!problems.empty() && m_parts.session.hasConflict(designId) && mayOverwrite())
        problems = m_parts.session.save(designId, DesignSession::OnConflict::Overwrite);
    if (!self)
        return false;
    if (problems.empty())
        return true;
    // Others may have edited the design while the user was asked.
    m_parts.history.putBack(dropped);
    Q_EMIT failed(problems.front().text());
    return false;
}

bool DesignSaving::mayOverwrite()
{
    return ZVMessageBox::warning(m_window, tr("Save"),
                                 tr("Another program has changed the design meanwhile. Replace its "
                                    "version by yours?"),
                                 ZVMessageBox::Save | ZVMessageBox::Cancel,
                                 ZVMessageBox::Cancel) == ZVMessageBox::Save;
}

bool DesignSaving::saveAs(GUIdentifier designId)
{
    return mayWriteElsewhere(designId) && writeAs(designId);
}

bool DesignSaving::saveCopy(GUIdentifier designId)
{
    using Results = FileCommands::Results;
    return mayWriteElsewhere(designId) &&
           m_parts.files.saveCopy(designId,
                                  areResultsOutdated(designId) ? Results::LeaveOut : Results::Keep);
}

bool DesignSaving::mayWriteElsewhere(GUIdentifier designId) const
{
    SaveState state = saveStateOf(SessionDesign(m_parts.session, designId));
    // What computes this file is not disturbed by another one.
    state.isJobRunning = false;
    return !needsQuestion(state, ZVSaveDialog::ActionSave) ||
           ask(designId, ZVSaveDialog::ActionSave, true) != ZVSaveDialog::ResultCancel;
}

bool DesignSaving::writeAs(GUIdentifier designId)
{
    using Results = FileCommands::Results;
    return m_parts.files.saveAs(designId,
                                areResultsOutdated(designId) ? Results::LeaveOut : Results::Keep);
}

bool DesignSaving::areResultsOutdated(const GUIdentifier& designId) const
{
    const SaveState state = saveStateOf(SessionDesign(m_parts.session, designId));
    return state.hasResults && state.areResultsOutdated;
}

TakenObjects DesignSaving::dropOutdatedResults(GUIdentifier designId)
{
    return areResultsOutdated(designId) ? dropResults(designId) : TakenObjects();
}

TakenObjects DesignSaving::dropResults(GUIdentifier designId)
{
    const Design* design = m_parts.session.findDesign(designId);
    std::vector<GUIdentifier> results;
    for (const FileReference& file : design->files)
        if (file.kind == FileKind::Result)
            results.push_back(file.id);
    return m_parts.session.take(designId, results);
}

bool DesignSaving::mayClose()
{
    for (const GUIdentifier& id : modifiedDesigns())
        if (!mayCloseOne(id))
            return false;
    return mayStopSimulation();
}

bool DesignSaving::mayCloseOne(GUIdentifier designId)
{
    switch (ask(designId, ZVSaveDialog::ActionClose)) {
    case ZVSaveDialog::ResultSave:
        return write(designId);
    case ZVSaveDialog::ResultSaveAs:
        return writeAs(designId);
    case ZVSaveDialog::ResultContinue:
        return true;
    default:
        return false;
    }
}

bool DesignSaving::close(GUIdentifier designId)
{
    if (!m_parts.session.canClose(designId))
        return false;
    const QString file = m_parts.session.findDesign(designId)->file;
    m_savedAs.clear();
    if (m_parts.session.isDesignModified(designId) && !mayCloseOne(designId))
        return false;
    if (m_parts.runner.designFile() == file && !mayStopSimulation())
        return false;
    m_parts.session.close(m_savedAs.isEmpty() ? designId : designOf(m_savedAs));
    return true;
}

bool DesignSaving::mayStopSimulation()
{
    if (!m_parts.runner.isRunning())
        return true;
    const QPointer<DesignSaving> self(this);
    const auto answer = ZVMessageBox::question(
        m_window, tr("Simulation"),
        tr("The simulation of %1 is running. Stop it and lose what it has computed so far?")
            .arg(QFileInfo(m_parts.runner.designFile()).fileName()),
        ZVMessageBox::Yes | ZVMessageBox::No, ZVMessageBox::No);
    if (!self)
        return false;
    if (answer == ZVMessageBox::Yes)
        m_parts.runner.stop();
    return !m_parts.runner.isRunning();
}

bool DesignSaving::start(GUIdentifier designId)
{
    if (m_parts.session.findDesign(designId) == nullptr)
        return false;
    const SaveState state = saveStateOf(SessionDesign(m_parts.session, designId));
    if (!needsQuestion(state, ZVSaveDialog::ActionStart))
        return run(designId);
    switch (ask(designId, ZVSaveDialog::ActionStart)) {
    case ZVSaveDialog::ResultSaveAs:
        return writeAs(designId) && run(designOf(m_savedAs));
    case ZVSaveDialog::ResultCancel:
        return false;
    default:
        return run(designId);
    }
}

/** What is computed is what the file holds, without the results of before. */
bool DesignSaving::run(GUIdentifier designId)
{
    const QPointer<DesignSaving> self(this);
    const SaveState state = saveStateOf(SessionDesign(m_parts.session, designId));
    TakenObjects dropped;
    if (state.hasResults && !state.isJobRunning)
        dropped = dropResults(designId);
    const bool mustBeSaved = state.hasResults || state.isModified || !state.isCurrentVersion;
    if (mustBeSaved && !write(designId)) {
        if (self)
            m_parts.history.putBack(dropped);
        return false;
    }
    const Design* design = m_parts.session.findDesign(designId);
    if (design == nullptr)
        return false;
    const std::optional<Problem> problem = m_parts.runner.start(*design);
    if (!problem)
        return true;
    m_parts.history.putBack(dropped);
    Q_EMIT failed(problem->text());
    return false;
}

GUIdentifier DesignSaving::designOf(const QString& file) const
{
    const Design* const design = m_parts.session.findByFile(file);
    return design == nullptr ? GUIdentifier() : design->id;
}

void DesignSaving::takeResults(const QString& designFile, const QString& resultFile)
{
    const QString name = QFileInfo(designFile).fileName();
    const GUIdentifier id = designOf(designFile);
    if (id == GUIdentifier()) {
        Q_EMIT done(
            tr("The simulation of %1 is done: %2").arg(name, QDir::toNativeSeparators(resultFile)));
        return;
    }
    const bool isToBeSaved = !m_parts.session.isDesignModified(id);
    Problems problems = m_parts.session.addFiles(id, {resultFile});
    // Changes that the user has not saved yet are not saved by the way.
    if (problems.empty() && isToBeSaved)
        problems = m_parts.session.save(id, DesignSession::OnConflict::Refuse);
    if (!problems.empty())
        Q_EMIT failed(problems.front().text());
    else if (isToBeSaved)
        Q_EMIT done(tr("The simulation of %1 is done; the design has its results.").arg(name));
    else
        Q_EMIT done(
            tr("The simulation of %1 is done. Save the design to keep its results.").arg(name));
}

} // namespace Zorvane::Workbench
