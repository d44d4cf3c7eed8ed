#include "Workbench/Import/FileChooser.h"

#include <QtWidgets/QFileDialog>

namespace Zorvane::Workbench {

FileChooser::FileChooser() = default;
FileChooser::~FileChooser() = default;

QStringList DialogFileChooser::files(QWidget* parent, const FileChoice& choice)
{
    return QFileDialog::getOpenFileNames(parent, choice.caption, choice.folder, choice.filters);
}

QString DialogFileChooser::folder(QWidget* parent, const FileChoice& choice)
{
    return QFileDialog::getExistingDirectory(parent, choice.caption, choice.folder);
}

} // namespace Zorvane::Workbench
