#include "Workbench/Solver/SimulationRunner.h"

#include "Host/DesignStatus/DesignStatus.h"
#include "Workbench/Design/Design.h"
#include "Workbench/Design/NewFile.h"
#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>

namespace Zorvane::Workbench {

namespace {

DrawParameters parametersOf(const Design& design, int steps)
{
    DrawParameters parameters;
    parameters.steps = steps;
    // Without one, or with 0, the sheet has the usual thickness.
    if (design.blank && design.blank->thickness > 0 && isQuantity(design.blank->thickness))
        parameters.thickness = design.blank->thickness;
    return parameters;
}

/** Why the design cannot be marked as being computed. */
QString obstacleToMark(QLockFile::LockError error)
{
    switch (error) {
    case QLockFile::LockFailedError:
        return SimulationRunner::tr("is being computed by another program");
    case QLockFile::PermissionError:
        return SimulationRunner::tr(
            "cannot be marked as being computed: its folder is not writable");
    default:
        return SimulationRunner::tr("cannot be marked as being computed: the disk may be full");
    }
}

} // namespace

SimulationRunner::SimulationRunner(QObject* parent)
    : QObject(parent)
{
    m_slices.setInterval(0);
    connect(&m_slices, &QTimer::timeout, this, &SimulationRunner::runSlice);
}

SimulationRunner::~SimulationRunner() = default;

std::optional<Problem> SimulationRunner::start(const Design& design)
{
    if (isRunning())
        return Problem{m_designFile, {}, tr("a simulation is running already")};
    auto mark =
        std::make_unique<QLockFile>(DesignStatus::getJobFile(FileName(design.file)).toQString());
    mark->setStaleLockTime(0);
    if (!mark->tryLock(0))
        return Problem{design.file, {}, obstacleToMark(mark->error())};
    m_mark = std::move(mark);
    m_designFile = design.file;
    m_simulation = std::make_unique<DrawSimulation>(parametersOf(design, m_steps));
    m_slices.start();
    Q_EMIT progressed(0, m_simulation->total());
    return std::nullopt;
}

void SimulationRunner::stop()
{
    if (!isRunning())
        return;
    end();
    Q_EMIT stopped(m_designFile);
}

void SimulationRunner::runSlice()
{
    const DrawSimulation* const run = m_simulation.get();
    m_simulation->advance();
    const bool isDone = run->isDone();
    Q_EMIT progressed(run->done(), run->total());
    // Whoever listens may have stopped it, and started another one.
    if (isDone && m_simulation.get() == run)
        finish();
}

void SimulationRunner::finish()
{
    const QByteArray table = m_simulation->table();
    const QFileInfo design(m_designFile);
    const QString folder = design.dir().filePath(QStringLiteral("results"));
    QDir().mkpath(folder);
    NewFile result(folder, design.completeBaseName() + QLatin1String("-simulation"),
                   QStringLiteral(".csv"));
    const QString obstacle =
        result.path().isEmpty() ? result.obstacle() : writeWholeFile(result.path(), table);
    if (obstacle.isEmpty())
        result.keep();
    end();
    if (obstacle.isEmpty())
        Q_EMIT finished(m_designFile, result.path());
    else
        Q_EMIT failed(m_designFile,
                      {folder, {}, tr("the results cannot be written: %1").arg(obstacle)});
}

void SimulationRunner::end()
{
    m_slices.stop();
    m_simulation.reset();
    m_mark.reset();
}

} // namespace Zorvane::Workbench
