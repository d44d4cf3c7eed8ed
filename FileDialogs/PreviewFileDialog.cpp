#include "FileDialogs/PreviewFileDialog.h"

#include "FileDialogs/FileDialog.h"
#include "FileDialogs/PreviewEditorInterface.h"
#include "FileDialogs/PreviewFileDialogConfiguration.h"
#include "FileDialogs/PreviewFileDialogEventHandler.h"
#include "Files/FileTypeFilters.h"
#include "Files/LastPathProvider.h"
#include "Host/System/CommandLineParser.h"

#include <QtCore/QScopeGuard>

#include <utility>

namespace Zorvane {

namespace {

PathProvider* usedProvider(PathProvider* provider)
{
    return provider ? provider : LastPathProvider::getInstance();
}

} // namespace

PreviewFileDialog::PreviewFileDialog(std::shared_ptr<PreviewEditorInterface> editor,
                                     std::shared_ptr<PreviewFileDialogConfiguration> configuration,
                                     QWidget* parent)
    : m_configuration(std::move(configuration))
    , m_parent(parent)
{
    // Qt's static dialogs have no events to follow.
    if (CommandLineParser::instance()->optionWasSpecified(QStringLiteral("alternativeFileDialog")))
        return;
    m_handler = std::make_unique<PreviewFileDialogEventHandler>(std::move(editor));
    m_configuration->setEventHandler(m_handler.get());
}

PreviewFileDialog::~PreviewFileDialog()
{
    // The configuration is shared and may stay; it must not keep what goes now.
    if (m_handler && m_configuration->getEventHandler() == m_handler.get())
        m_configuration->setEventHandler(static_cast<PreviewFileDialogEventHandler*>(nullptr));
}

template <typename Ask>
auto PreviewFileDialog::withPreview(Ask ask)
{
    if (m_handler)
        m_handler->showPreview(m_handler->isPreviewWanted());
    const auto hide = qScopeGuard([this] {
        if (m_handler)
            m_handler->showPreview(false);
    });
    return ask();
}

QString PreviewFileDialog::getOpenFileName(PathProvider* provider)
{
    return withPreview([this, provider] {
        return FileDialog::getOpenFileName(
            m_configuration->getDialogCaptionForSingleFile(), filter(), usedProvider(provider),
            m_configuration->getScopeName(), m_configuration.get(), m_parent);
    });
}

QStringList PreviewFileDialog::getOpenFileNames(PathProvider* provider)
{
    return withPreview([this, provider] {
        return FileDialog::getOpenFileNames(
            m_configuration->getDialogCaptionForMultipleFiles(), filter(), usedProvider(provider),
            m_configuration->getScopeName(), m_configuration.get(), m_parent);
    });
}

void PreviewFileDialog::setFilter(const QString& filter)
{
    m_filter = filter;
}

QString PreviewFileDialog::filter() const
{
    if (!m_filter.isEmpty())
        return m_filter;
    return QString::fromStdString(getFileFilterForTypes(
        m_configuration->getFileTypes(), m_configuration->enableAllFilesEntry(), std::string()));
}

} // namespace Zorvane
