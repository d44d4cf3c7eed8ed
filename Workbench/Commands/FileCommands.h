#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "Workbench/Design/Successors.h"
#include "Workbench/Import/FileChooser.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QObject>
#include <QtWidgets/QWidget>

#include <memory>
#include <optional>

namespace Zorvane::Workbench {

struct Design;
class DesignSession;

/**
 * The commands of the File menu that ask for files: open, save under another name, save a copy.
 * Session and window must outlive it. The window may go while it asks, and takes this along:
 * nothing is done then.
 */
class FileCommands : public QObject
{
    Q_OBJECT

public:
    /** Whether what is written refers to the results that the design has. */
    enum class Results
    {
        Keep,
        LeaveOut
    };

    FileCommands(DesignSession& session, QWidget* window);
    ~FileCommands() override;

    /** The scope that path providers know designs by. */
    static QString scope();

    void setFileChooser(std::unique_ptr<FileChooser> chooser);

    /** Asks for designs and meshes, which are shown beside the dialog. */
    void openFiles();
    /** Asks for a folder. */
    void openFolder();
    /**
     * Writes the design of the object, unsaved changes included, to another file, and goes on with
     * that: its files come along into another folder, and so do the designs that it refers to. The
     * design that it was is closed as it lies on the disk. False if nothing was saved: the user
     * gave up, or it failed, which is told.
     */
    bool saveAs(GUIdentifier objectId, Results results = Results::Keep);
    /** Writes a copy of the design beside it, unsaved changes included; the session stays as is. */
    bool saveCopy(GUIdentifier objectId, Results results = Results::Keep);

Q_SIGNALS:
    /** What the user wants to have opened. */
    void chosen(const QStringList& paths);
    /** A design is about to be replaced in the session by this copy. */
    void replacing(const Successors& successors, const Design& copy);
    /** The design of this file replaces the other one in the session. */
    void savedAs(const QString& file);
    void done(const QString& text);
    void failed(const QString& text);

private:
    std::optional<Problem> obstacleTo(const QString& target) const;
    bool write(const Design& copy, const std::optional<Problem>& obstacle);

    DesignSession& m_session;
    QWidget* m_window;
    std::unique_ptr<FileChooser> m_chooser;
};

} // namespace Zorvane::Workbench
