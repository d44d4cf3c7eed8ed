#include "FileDialogs/FileDialogDriver.h"

#include "FileDialogs/QtFileDialog.h"
#include "Files/ApplicationMainWindow.h"
#include "Host/System/CommandLineParser.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

#include <utility>

namespace Zorvane {

namespace {

FileDialogDriverFactory& currentFactory()
{
    static FileDialogDriverFactory factory = createPlatformFileDialogDriver;
    return factory;
}

bool areQtDialogsWanted()
{
    return CommandLineParser::instance()->optionWasSpecified(
        QStringLiteral("alternativeFileDialog"));
}

/** From the owner up, those that are enabled. Disabling one may be the end of any other. */
std::vector<QPointer<QWidget>> enabledWidgets(QWidget* owner, const QWidget* mainWindow)
{
    std::vector<QPointer<QWidget>> widgets;
    for (QWidget* widget = owner; widget && widget != mainWindow; widget = widget->parentWidget()) {
        if (widget->isEnabled())
            widgets.emplace_back(widget);
    }
    return widgets;
}

void announceDeactivation(QWidget* mainWindow)
{
    static_assert(QEvent::ApplicationDeactivate == 122, "the type that main windows wait for");
    QEvent event(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(mainWindow, &event);
}

/**
 * While it lives, the widgets from the owner up to the main window, and not that itself, are
 * disabled, as a dialog of the system blocks only the owner's window. Widgets that were disabled
 * before stay so; widgets that are destroyed meanwhile are forgotten. An exception out of a widget
 * leaves none of them disabled. In the end the owner's window has its focus where it was.
 */
class ApplicationBlock
{
public:
    // Delegates so that the destructor runs, too, if an exception ends this one halfway.
    ApplicationBlock(QWidget* owner, QWidget* mainWindow)
        : ApplicationBlock()
    {
        const QPointer<QWidget> living(mainWindow);
        if (owner)
            m_focus = owner->window()->focusWidget();
        for (const QPointer<QWidget>& widget : enabledWidgets(owner, mainWindow)) {
            if (!widget)
                continue;
            m_disabled.push_back(widget);
            widget->setEnabled(false);
        }
        if (living)
            announceDeactivation(living);
    }
    ~ApplicationBlock()
    {
        for (const QPointer<QWidget>& widget : m_disabled) {
            if (widget)
                widget->setEnabled(true);
        }
        // A widget that is disabled loses it, and another one is next in the order of tabs.
        if (m_focus)
            m_focus->setFocus();
    }

    ApplicationBlock(const ApplicationBlock&) = delete;
    ApplicationBlock& operator=(const ApplicationBlock&) = delete;

private:
    ApplicationBlock() = default;

    std::vector<QPointer<QWidget>> m_disabled;
    QPointer<QWidget> m_focus;
};

FileDialogResult runBlocking(FileDialogDriver& driver, const FileDialogRequest& request)
{
    const bool isOwned = request.owner;
    const ApplicationBlock block(request.owner, applicationMainWindow());
    // A widget that reacts to the block may destroy the owner, and the dialog belongs to that.
    if (isOwned && !request.owner)
        return FileDialogResult::cancelled();
    return driver.run(request);
}

/** By the system's dialog, or by Qt's with the controls that a configuration asks for. */
FileDialogResult runConfigured(const FileDialogRequest& request)
{
    const bool isOwned = request.owner;
    FileDialogResult failure;
    if (const auto native = createNativeFileDialogDriver()) {
        failure = runBlocking(*native, request);
        if (!failure.isFailure())
            return failure;
    }
    if (isOwned && !request.owner)
        return FileDialogResult::cancelled();
    QtFileDialogDriver qt;
    FileDialogResult result = request.configuration ? runBlocking(qt, request) : qt.run(request);
    result.nativeCode = failure.nativeCode;
    return result;
}

} // namespace

FileDialogDriver::FileDialogDriver() = default;
FileDialogDriver::~FileDialogDriver() = default;

std::unique_ptr<FileDialogDriver> createNativeFileDialogDriver()
{
    return currentFactory()();
}

NativeFileDialogReplacement::NativeFileDialogReplacement(FileDialogDriverFactory factory)
    : m_previous(std::exchange(currentFactory(), std::move(factory)))
{}

NativeFileDialogReplacement::~NativeFileDialogReplacement()
{
    currentFactory() = std::move(m_previous);
}

FileDialogResult runFileDialog(const FileDialogRequest& request)
{
    FileDialogRequest owned = request;
    if (!owned.owner)
        owned.owner = applicationMainWindow();
    if (owned.purpose != FileDialogPurpose::Folder && !areQtDialogsWanted())
        return runConfigured(owned);
    owned.configuration = nullptr;
    return QtFileDialogDriver().run(owned);
}

} // namespace Zorvane
