#include "FileDialogs/PreviewFileDialogEventHandler.h"

#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/PreviewEditorInterface.h"
#include "FileDialogs/PreviewFileDialogConfiguration.h"

#include <QtCore/QSettings>

#include <utility>

namespace Zorvane {

PreviewFileDialogEventHandler::PreviewFileDialogEventHandler(
    std::shared_ptr<PreviewEditorInterface> editor)
    : m_editor(std::move(editor))
{}

PreviewFileDialogEventHandler::PreviewFileDialogEventHandler(
    const PreviewFileDialogEventHandler& other) = default;
PreviewFileDialogEventHandler&
PreviewFileDialogEventHandler::operator=(const PreviewFileDialogEventHandler& other) = default;
PreviewFileDialogEventHandler::~PreviewFileDialogEventHandler() = default;

QRect PreviewFileDialogEventHandler::getPreviewerSize()
{
    return m_editor->getGeometry();
}

void PreviewFileDialogEventHandler::onSelectionChanged(const QStringList& selectedFiles,
                                                       const FileDialogCallbackInterface&)
{
    m_editor->showFile(selectedFiles.isEmpty() ? std::string()
                                               : selectedFiles.first().toStdString());
}

void PreviewFileDialogEventHandler::onCheckBoxToggled(bool checked, int controlId,
                                                      const FileDialogCallbackInterface& callbacks)
{
    if (controlId != s_previewCheckBoxId)
        return;
    storePreviewWanted(checked);
    // The layout starts from where the user has put the dialog meanwhile.
    if (checked && m_configuration)
        m_configuration->storeTemporaryFileDialogGeometry(callbacks.getDialogGeometry());
    showPreview(checked);
    if (checked && m_configuration)
        callbacks.placeDialog(m_configuration);
}

void PreviewFileDialogEventHandler::onTypeChanged(const FileDialogCallbackInterface& callbacks)
{
    if (!m_isFirstTypeChangePending)
        return;
    callbacks.placeDialog(m_configuration);
    m_isFirstTypeChangePending = false;
}

const PreviewFileDialogConfiguration* PreviewFileDialogEventHandler::previewConfiguration() const
{
    return dynamic_cast<const PreviewFileDialogConfiguration*>(m_configuration);
}

bool PreviewFileDialogEventHandler::isPreviewWanted() const
{
    const PreviewFileDialogConfiguration* configuration = previewConfiguration();
    if (!configuration)
        return false;
    const QString key = configuration->getShowPreviewKey();
    return key.isEmpty() || QSettings().value(key, true).toBool();
}

void PreviewFileDialogEventHandler::storePreviewWanted(bool wanted) const
{
    const PreviewFileDialogConfiguration* configuration = previewConfiguration();
    const QString key = configuration ? configuration->getShowPreviewKey() : QString();
    QSettings settings;
    // The settings have no place for what has no key.
    if (!key.isEmpty() && (!settings.contains(key) || settings.value(key).toBool() != wanted))
        settings.setValue(key, wanted);
}

void PreviewFileDialogEventHandler::showPreview(bool visible)
{
    if (!visible) {
        m_editor->setVisible(false);
        return;
    }
    if (!m_editor->isInitialized())
        m_editor->initialize(-1);
    m_editor->setVisible(true);
    if (m_configuration)
        m_editor->moveTo(m_configuration->getPositionForPreviewer());
}

} // namespace Zorvane
