#pragma once

#include "Dialogs/ZVSaveDialog.h"
#include "Host/Identifiers/GUIdentifier.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <vector>

namespace Zorvane::Workbench {

class DesignSession;
class EditHistory;
class FileCommands;
class SimulationRunner;
struct TakenObjects;

/**
 * Saves designs, closes them and starts their simulation, and asks before it does what cannot be
 * taken back: whether to save what is about to be closed, whether results may go, whether an older
 * design may be converted. What costs nothing is not asked about.
 *
 * Results that no longer fit the design's values, and those of before a new simulation, leave the
 * design as it is saved; their files stay on the disk, and undo brings them back.
 *
 * None of the objects given is owned; all must outlive it. The window may go while it asks, and
 * takes this along: nothing is done then.
 */
class DesignSaving : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        DesignSession& session;
        EditHistory& history;
        FileCommands& files;
        SimulationRunner& runner;
    };

    DesignSaving(const Parts& parts, QWidget* window);

    /** Every modified design. False if one of them was not saved: told, or the user's wish. */
    bool saveAll();
    bool save(GUIdentifier designId);
    /**
     * Under another name, and goes on with that; under another name beside it, and the session
     * stays as it is. The user is told first what that costs. False if nothing was saved.
     */
    bool saveAs(GUIdentifier designId);
    bool saveCopy(GUIdentifier designId);
    /** Whether everything may be closed: modified designs are saved, or the user gives them up. */
    bool mayClose();
    /**
     * Closes one design; a modified one is saved, or the user gives its changes up. False if it
     * stays open: the user's wish, it could not be saved, or another design refers to it.
     */
    bool close(GUIdentifier designId);
    /** Saves the design, if need be, and starts its simulation. False if none runs then. */
    bool start(GUIdentifier designId);

Q_SIGNALS:
    void done(const QString& text);
    void failed(const QString& text);

private:
    ZVSaveDialog::Result ask(GUIdentifier designId, ZVSaveDialog::Action action,
                             bool saveDisabled = false) const;
    bool mayCloseOne(GUIdentifier designId);
    bool mayStopSimulation();
    bool write(GUIdentifier designId);
    bool mayOverwrite();
    bool mayWriteElsewhere(GUIdentifier designId) const;
    bool writeAs(GUIdentifier designId);
    bool areResultsOutdated(const GUIdentifier& designId) const;
    /** Returns what was taken out. */
    TakenObjects dropOutdatedResults(GUIdentifier designId);
    TakenObjects dropResults(GUIdentifier designId);
    bool run(GUIdentifier designId);
    GUIdentifier designOf(const QString& file) const;
    std::vector<GUIdentifier> modifiedDesigns() const;
    void takeResults(const QString& designFile, const QString& resultFile);

    Parts m_parts;
    QWidget* m_window;
    /** Where Save As went last. */
    QString m_savedAs;
};

} // namespace Zorvane::Workbench
