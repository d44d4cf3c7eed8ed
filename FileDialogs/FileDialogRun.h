#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QFileDialog>

#include <vector>

class QWidget;

namespace Zorvane {

class FileDialogConfiguration;

enum class FileDialogPurpose
{
    OpenFile,
    OpenFiles,
    SaveFile
};

/** One dialog for files, whoever shows it. Nothing is owned. */
struct FileDialogCall
{
    FileDialogPurpose purpose;
    QString caption;
    /** A folder, or a file to preset. */
    QString start;
    QString filter;
    /** Null for none; Qt's dialogs write the user's choice back. */
    QString* selectedFilter;
    QFileDialog::Options options;
    std::vector<QString> places;
    FileDialogConfiguration* configuration;
    QWidget* parent;
};

/** Shows the dialog that serves here and now; empty on cancel. */
QStringList runFileDialog(const FileDialogCall& call);

} // namespace Zorvane
