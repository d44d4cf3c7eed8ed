#pragma once

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QFileDialog>

#include <cstdint>
#include <utility>
#include <vector>

namespace Zorvane {

class FileDialogConfiguration;

enum class FileDialogPurpose
{
    OpenFile,
    OpenFiles,
    SaveFile,
    /** An existing folder; only Qt's dialog asks for these. */
    Folder
};

/** One question to the user for a file, files or a folder. Nothing is owned. */
struct FileDialogRequest
{
    FileDialogPurpose purpose = FileDialogPurpose::OpenFile;
    QString caption;
    /** Null stands for the main window; may be destroyed while the dialog is shown. */
    QPointer<QWidget> owner;
    /** A folder, or a file to preset in its folder; neither need exist. */
    QString start;
    /** As for `QFileDialog`: "Designs (*.dsg);;Meshes (*.stl *.obj)". Empty: all files. */
    QString filter;
    /** The type that is selected at first; empty: the first one. */
    QString selectedFilter;
    /** Only Qt's dialog looks at them. */
    QFileDialog::Options options;
    /** Folders to offer, in order; those that don't exist are left out. */
    std::vector<QString> places;
    /** Geometry, controls and events; null for none. Must live until the dialog is closed. */
    FileDialogConfiguration* configuration = nullptr;
    /** Saving: a name without an ending gets that of the selected type, or else of the first. */
    bool addsEnding = false;
};

/** How a dialog ended. */
struct FileDialogResult
{
    enum class Outcome
    {
        Accepted,
        Cancelled,
        /** Nothing was asked, or not to the end. */
        Failed
    };

    static FileDialogResult accepted(QStringList paths)
    {
        FileDialogResult result;
        result.outcome = Outcome::Accepted;
        result.paths = std::move(paths);
        return result;
    }
    static FileDialogResult cancelled() { return {}; }
    static FileDialogResult failed(std::int32_t nativeCode)
    {
        FileDialogResult result;
        result.outcome = Outcome::Failed;
        result.nativeCode = nativeCode;
        return result;
    }

    bool isCancelled() const { return outcome == Outcome::Cancelled; }
    bool isFailure() const { return outcome == Outcome::Failed; }
    /** The first of the paths; empty without any. */
    QString path() const { return paths.value(0); }

    Outcome outcome = Outcome::Cancelled;
    /** In the order and with the separators of the dialog. Empty unless accepted. */
    QStringList paths;
    /** The type that the user selected, as the request spells it; null where that is not known. */
    QString selectedFilter;
    /** The dialog knew the path without its ending, so it has not asked before replacing a file. */
    bool isEndingAdded = false;
    /** What the system's dialog returned, for a log; 0 from other dialogs. */
    std::int32_t nativeCode = 0;
};

} // namespace Zorvane
