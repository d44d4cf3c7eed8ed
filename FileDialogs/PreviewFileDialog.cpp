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

/** What a call needs until it returns, though the dialog object may be destroyed before. */
struct PreviewFileDialog::Session
{
    ~Session()
    {
        // The configuration is shared and may stay; it must not keep a handler that is gone.
        if (handler && configuration->getEventHandler() == handler.get())
            configuration->setEventHandler(nullptr);
    }

    std::shared_ptr<PreviewFileDialogConfiguration> configuration;
    /** Null without a preview. */
    std::unique_ptr<PreviewFileDialogEventHandler> handler;
};

PreviewFileDialog::PreviewFileDialog(std::shared_ptr<PreviewEditorInterface> editor,
                                     std::shared_ptr<PreviewFileDialogConfiguration> configuration,
                                     QWidget* parent)
    : m_session(std::make_shared<Session>())
    , m_parent(parent)
{
    m_session->configuration = std::move(configuration);
    // Qt's dialogs by that option have no events to follow.
    if (CommandLineParser::instance()->optionWasSpecified(QStringLiteral("alternativeFileDialog")))
        return;
    m_session->handler = std::make_unique<PreviewFileDialogEventHandler>(std::move(editor));
    m_session->configuration->setEventHandler(m_session->handler.get());
}

PreviewFileDialog::~PreviewFileDialog() = default;

QStringList PreviewFileDialog::withPreview(PathProvider* provider, Ask ask)
{
    const std::shared_ptr<Session> session = m_session;
    PreviewFileDialogEventHandler* const handler = session->handler.get();
    if (handler) {
        handler->beginCall();
        handler->showPreview(handler->isPreviewWanted());
    }
    const auto hide = qScopeGuard([handler] {
        if (handler)
            handler->showPreview(false);
    });
    return ask(*session, filter(), provider ? provider : LastPathProvider::getInstance(), m_parent);
}

QString PreviewFileDialog::getOpenFileName(PathProvider* provider)
{
    return withPreview(provider,
                       [](Session& session, const QString& filter, PathProvider* usedProvider,
                          QWidget* parent) {
                           PreviewFileDialogConfiguration& configuration = *session.configuration;
                           return QStringList(FileDialog::getOpenFileName(
                               configuration.getDialogCaptionForSingleFile(), filter, usedProvider,
                               configuration.getScopeName(), &configuration, parent));
                       })
        .value(0);
}

QStringList PreviewFileDialog::getOpenFileNames(PathProvider* provider)
{
    return withPreview(provider, [](Session& session, const QString& filter,
                                    PathProvider* usedProvider, QWidget* parent) {
        PreviewFileDialogConfiguration& configuration = *session.configuration;
        return FileDialog::getOpenFileNames(configuration.getDialogCaptionForMultipleFiles(),
                                            filter, usedProvider, configuration.getScopeName(),
                                            &configuration, parent);
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
    const PreviewFileDialogConfiguration& configuration = *m_session->configuration;
    return QString::fromStdString(getFileFilterForTypes(
        configuration.getFileTypes(), configuration.enableAllFilesEntry(), std::string()));
}

} // namespace Zorvane
