#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QFileDialog>

#include <vector>

class QWidget;

namespace Zorvane {

class FileDialogConfiguration;
class PathProvider;

/**
 * The one place where the application asks the user for files and folders.
 *
 * A path provider tells, by scope, where a dialog opens and which places it offers, and is told
 * what the user chose. The system's own dialog is shown where there is one; else Qt's, as also
 * with the command-line option "alternativeFileDialog" and after any failure of the system's
 * dialog but cancel. Where Qt's dialog stands in for a system that has none, a configuration given
 * is kept: its controls, events and geometry work alike.
 *
 * Filters are written as for `QFileDialog`: "Designs (*.dsg);;Meshes (*.stl *.obj)". Every call
 * returns when the dialog is closed; cancel gives an empty result. A dialog of the system, or Qt's
 * under a configuration, belongs to the parent or else to the main window (the application's
 * property "MainWindow"): the widgets from there up to the main window are disabled meanwhile, and
 * an owner that is destroyed takes the dialog along, as a cancel. Qt's plain dialogs have no owner.
 *
 * Nothing is owned: provider, configuration and parent must live until the call returns (the
 * parent may go earlier). The provider must not be null unless a function says so. GUI thread only.
 * Not supported: several files in a save dialog, remote (URL) files, a configuration on saving, and
 * double quotes in a name typed into Qt's dialog, which takes them for the ends of names: of
 * `12" blank.dsg` it gives ` blank.dsg`. Propose names without them.
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
     * the name without it, so nobody has agreed to replacing a file of the name that came out.
     */
    static bool wasEndingAdded();
    /**
     * A file to write in the folder of `filePath`, or of the process when that is empty. A choice
     * elsewhere is answered by a box with `message` (empty: a text that names the folder), and the
     * dialog comes again, until the user picks a file there or cancels. No ending is added; whoever
     * adds one asks before a file of that name is replaced, as the dialog has not.
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

    /** The scope's folder with `fileName` in it; without a name, the scope's path as it is. */
    static QString getLastDirectoryOpened(PathProvider* provider, const QString& scope,
                                          const QString& fileName);

    /** How many dialogs and boxes of this class are on screen now. */
    static int getOpenDialogsCount();

private:
    FileDialog();
    ~FileDialog();

    static QString getOpenFileNameWrapper(const QString& caption, const QString& startPath,
                                          const QString& filter, QString* selectedFilter,
                                          QFileDialog::Options options,
                                          const std::vector<QString>& places,
                                          FileDialogConfiguration* configuration, QWidget* parent);
    static QStringList getOpenFileNamesWrapper(const QString& caption, const QString& startPath,
                                               const QString& filter, QString* selectedFilter,
                                               QFileDialog::Options options,
                                               const std::vector<QString>& places,
                                               FileDialogConfiguration* configuration,
                                               QWidget* parent);
    static QString getSaveFileNameWrapper(const QString& caption, const QString& startPath,
                                          const QString& filter, QString* selectedFilter,
                                          const std::vector<QString>& places, QWidget* parent);
    static int findFileEnding(const QString& path);

    static int s_openDialogsCount;
    static bool s_wasEndingAdded;
};

} // namespace Zorvane
