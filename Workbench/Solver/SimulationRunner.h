#pragma once

#include "Workbench/Solver/DrawSimulation.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>

#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QLockFile;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

struct Design;

/**
 * Runs the simulation of a design in slices between the events of its thread, one at a time. While
 * it runs, the design's file is marked as `DesignStatus` wants it, so that every program knows. At
 * the end a table of results lies in the folder "results" beside the design, under a new name; the
 * design itself is not touched.
 */
class SimulationRunner : public QObject
{
    Q_OBJECT

public:
    explicit SimulationRunner(QObject* parent = nullptr);
    /** Stops what runs. */
    ~SimulationRunner() override;

    /** Works on what the design is at this moment. On failure, which is told, nothing runs. */
    std::optional<Problem> start(const Design& design);
    /** Nothing is left of the run. */
    void stop();

    bool isRunning() const { return m_simulation != nullptr; }
    /** The file of the design whose simulation runs, or ran last. */
    const QString& designFile() const { return m_designFile; }
    /** Of simulations started from now on: how many strokes they take. */
    void setSteps(int steps) { m_steps = steps; }

Q_SIGNALS:
    /** 0 of them right after the start. */
    void progressed(int done, int total);
    /** Nothing runs any more when these come. */
    void finished(const QString& designFile, const QString& resultFile);
    void failed(const QString& designFile, const Zorvane::Workbench::Problem& problem);
    void stopped(const QString& designFile);

private:
    void runSlice();
    void finish();
    void end();

    QString m_designFile;
    std::unique_ptr<DrawSimulation> m_simulation;
    std::unique_ptr<QLockFile> m_mark;
    QTimer m_slices;
    int m_steps = DrawParameters().steps;
};

} // namespace Zorvane::Workbench
