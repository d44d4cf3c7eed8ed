#include "FileDialogs/FileDialogEventHandler.h"

namespace Zorvane {

FileDialogEventHandler::FileDialogEventHandler() = default;
FileDialogEventHandler::FileDialogEventHandler(const FileDialogEventHandler& other) = default;
FileDialogEventHandler&
FileDialogEventHandler::operator=(const FileDialogEventHandler& other) = default;
FileDialogEventHandler::~FileDialogEventHandler() = default;

QRect FileDialogEventHandler::getPreviewerSize()
{
    return QRect();
}

void FileDialogEventHandler::onSelectionChanged(const QStringList&,
                                                const FileDialogCallbackInterface&)
{}

void FileDialogEventHandler::onCheckBoxToggled(bool, int, const FileDialogCallbackInterface&) {}

void FileDialogEventHandler::onItemSelected(int, int) {}

void FileDialogEventHandler::onTypeChanged(const FileDialogCallbackInterface&) {}

void FileDialogEventHandler::setFileDialogConfiguration(FileDialogConfiguration* configuration)
{
    m_configuration = configuration;
}

} // namespace Zorvane
