#pragma once

#include "FileDialogs/FileDialogRequest.h"
#include "UiToolsExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QFileDialog>

class QWidget;

namespace Zorvane {

class PathProvider;

/**
 * The one place where the application asks the user for files and folders.
 *
 * A path provider gives, by scope, where a dialog opens and which places it offers, and is given
 * what the user chose. The system's own dialog is shown where there is one; else Qt's, as also for
 * folders, with the command-line option "alternativeFileDialog", and after any failure of the
 * system's dialog but cancel. Qt's dialog has the controls, events and geometry of a configuration
 * as well, except with that option.
 *
 * Filters are written as for `QFileDialog`: "Designs (*.dsg);;Meshes (*.stl *.obj)". Every call
 * returns when the dialog is closed; cancel gives an empty result. A dialog belongs to the parent
 * or else to the main window (the application's property "MainWindow"), and closes as a cancel when
 * that is destroyed. While the system's is open, or Qt's under a configuration, the widgets from
 * there up to the main window are disabled; Qt's other dialogs block the application and have no
 * parent widget.
 *
 * Nothing is owned: provider, configuration and parent must live until the call returns (the
 * parent may be destroyed earlier). The provider must not be null unless a function says so. GUI
 * thread only.
 * Not supported: several files in a save dialog, and remote (URL) files.
 */
class ZORVANE_UITOOLS_EXPORT FileDialog
{
public:
    /**
     * One existing file, with native separators. Opens at `startDirectory` (a folder, or a file to
     * preselect) or, where that is empty, at the scope's path. `selectedFilter` (may be null)
     * preselects a filter; the user's choice is written back by Qt's dialogs only, and only they
     * look at `options`.
     */
    static QString getOpenFileName(const QString& caption, const QString& startDirectory,
                                   const QString& filter, PathProvider* provider,
                                   const QString& scope, QString* selectedFilter,
                                   QFileDialog::Options options,
                                   FileDialogConfiguration* configuration, QWidget* parent);
    /** The same, opened at the scope's path. */
    static QString getOpenFileName(const QString& caption, const QString& filter,
                                   PathProvider* provider, const QString& scope,
                                   FileDialogConfiguration* configuration = nullptr,
                                   QWidget* parent = nullptr);
    /** Existing files, as the dialog gives them; the scope's path becomes the first. */
    static QStringList getOpenFileNames(const QString& caption, const QString& filter,
                                        PathProvider* provider, const QString& scope,
                                        FileDialogConfiguration* configuration = nullptr,
                                        QWidget* parent = nullptr);

    /**
     * A file to write, proposed as `fileName` in the scope's folder; the user has agreed to
     * replacing one that exists, unless `wasEndingAdded`. A name without an ending gets what stands
     * behind the first "*" of the selected filter, or of the first one. An empty `selectedFilter`
     * stands for the one that the scope used last, in this run of the application.
     */
    static QString getSaveFileName(const QString& caption, const QString& filter,
                                   const QString& selectedFilter, PathProvider* provider,
                                   const QString& scope, const QString& fileName,
                                   QWidget* parent = nullptr);
    /** The same with the scope's last filter. */
    static QString getSaveFileName(const QString& caption, const QString& filter,
                                   PathProvider* provider, const QString& scope,
                                   const QString& fileName, QWidget* parent = nullptr);
    /**
     * Whether the last `getSaveFileName` added an ending to what the user chose. The dialog knew
     * the name without it, so the user has not agreed to replacing a file of the name returned:
     * call `confirmReplacing` before writing it.
     */
    static bool wasEndingAdded();
    /**
     * Whether `file` may be written: yes if it doesn't exist, else the user's answer to a box that
     * names it, with `caption` as its title. No if the parent is destroyed meanwhile.
     */
    static bool confirmReplacing(const QString& caption, const QString& file,
                                 QWidget* parent = nullptr);
    /** `file` with the ending of the type, such as "Designs (*.dsg)", unless it has one. */
    static QString withEnding(const QString& file, const QString& type);
    /**
     * A file to write in the folder of `filePath`, or of the process when that is empty. A choice
     * elsewhere is answered by a box with `message` (empty: a text that names the folder), and the
     * dialog is shown again, until the user picks a file there or cancels. No ending is added;
     * after `withEnding`, `confirmReplacing` asks what the dialog has not.
     */
    static QString getSaveFileNameInDir(const QString& caption, const QString& filter,
                                        const QString& filePath, PathProvider* provider,
                                        const QString& scope, const QString& selectedFilter,
                                        const QString& message);

    /**
     * An existing folder. `startDir` names the folder to propose by a path in it (for the folder
     * itself: with a separator at its end); the scope's path is proposed instead if it begins with
     * that, or if that folder does not exist. The provider may be null. Always Qt's dialog.
     */
    static QString getExistingDirectoryName(const QString& caption, PathProvider* provider,
                                            const QString& scope,
                                            const QString& startDir = QString());

    /**
     * Any dialog, with all that a request can hold; also for saving under a configuration. The
     * result is of this call alone, whatever other dialogs were open meanwhile.
     */
    static FileDialogResult ask(const FileDialogRequest& request);

    /** The scope's folder with `fileName` in it; without a name, the scope's path as it is. */
    static QString getLastDirectoryOpened(PathProvider* provider, const QString& scope,
                                          const QString& fileName);

    /** How many dialogs and boxes of this class are on screen now. */
    static int getOpenDialogsCount();

private:
    FileDialog();
    ~FileDialog();

    static int findFileEnding(const QString& path);

    static int s_openDialogsCount;
    static bool s_wasEndingAdded;
};

} // namespace Zorvane
