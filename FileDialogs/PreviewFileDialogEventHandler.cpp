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
    m_selectedFile = selectedFiles.value(0).toStdString();
    m_editor->showFile(m_selectedFile);
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
    fitPreview();
    callbacks.placeDialog(m_configuration);
    m_isFirstTypeChangePending = false;
}

PreviewFileDialogConfiguration* PreviewFileDialogEventHandler::previewConfiguration() const
{
    return dynamic_cast<PreviewFileDialogConfiguration*>(m_configuration);
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
    m_isPreviewShown = visible;
    if (!visible) {
        m_editor->setVisible(false);
        return;
    }
    const bool isNew = !m_editor->isInitialized();
    if (isNew)
        m_editor->initialize(-1);
    m_editor->setVisible(true);
    if (m_configuration)
        m_editor->moveTo(m_configuration->getPositionForPreviewer());
    // Selected before there was a window to show it.
    if (isNew && !m_selectedFile.empty())
        m_editor->showFile(m_selectedFile);
}

void PreviewFileDialogEventHandler::beginCall()
{
    m_selectedFile.clear();
    if (PreviewFileDialogConfiguration* configuration = previewConfiguration())
        configuration->beginCall(isPreviewWanted());
}

/** The preview was placed before the dialog was there, whose needs are known only now. */
void PreviewFileDialogEventHandler::fitPreview()
{
    PreviewFileDialogConfiguration* configuration = previewConfiguration();
    if (configuration && m_isPreviewShown && configuration->prepareFitting(m_editor->getGeometry()))
        m_editor->moveTo(configuration->getPositionForPreviewer());
}

} // namespace Zorvane
