#pragma once

#include "FileDialogs/DialogTexts.h"
#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/FileDialogDriver.h"
#include "FileDialogs/FileDialogEventHandler.h"
#include "Files/PathProvider.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtWidgets/QApplication>

#include <deque>
#include <functional>
#include <utility>

namespace Zorvane::Testing {

/** Answers with what the test sets and writes down what it is told, one line a call. */
class ScriptedPathProvider : public PathProvider
{
public:
    QString path;
    std::vector<QString> places;
    QStringList calls;

    QString getDefaultPathFromScope(const QString&) override { return path; }
    QString getLastPathFromScope(const QString&) override { return path; }
    QString getPathFromScope(const QString& scope) override
    {
        calls << QStringLiteral("path of ") + scope;
        return path;
    }
    void setPathToScope(const QString& chosen, const QString& scope) override
    {
        calls << QStringLiteral("set %1 to '%2'").arg(scope, chosen);
    }
    std::vector<QString> getPlacesFromScope(const QString& scope) override
    {
        calls << QStringLiteral("places of ") + scope;
        return places;
    }
};

/** What drivers were asked, and what they answer: the next result, or cancel. */
struct DialogScript
{
    std::vector<FileDialogRequest> requests;
    std::deque<FileDialogResult> results;
    /** Runs while the dialog counts as open; may be empty. */
    std::function<void(const FileDialogRequest&)> whileOpen;

    void answer(const QStringList& paths) { results.push_back(FileDialogResult::accepted(paths)); }
    void fail() { results.push_back(FileDialogResult::failed(-1)); }
    const FileDialogRequest& last() const { return requests.back(); }
};

class ScriptedDriver : public FileDialogDriver
{
public:
    explicit ScriptedDriver(DialogScript& script)
        : m_script(script)
    {}
    FileDialogResult run(const FileDialogRequest& request) override
    {
        m_script.requests.push_back(request);
        // A copy, since it may give the script another one.
        if (const auto whileOpen = m_script.whileOpen)
            whileOpen(request);
        if (m_script.results.empty())
            return FileDialogResult::cancelled();
        const FileDialogResult result = m_script.results.front();
        m_script.results.pop_front();
        return result;
    }

private:
    DialogScript& m_script;
};

/** The types of a request as the system's dialog takes them. */
inline NativeFileFilters filtersOf(const FileDialogRequest& request)
{
    return nativeFileFilters(request.filter, request.selectedFilter);
}

/** The application's main window as long as it lives. */
class MainWindowProperty
{
public:
    explicit MainWindowProperty(QWidget* window)
        : MainWindowProperty(QVariant::fromValue(window))
    {}
    explicit MainWindowProperty(const QVariant& value) { qApp->setProperty("MainWindow", value); }
    ~MainWindowProperty() { qApp->setProperty("MainWindow", QVariant()); }

    MainWindowProperty(const MainWindowProperty&) = delete;
    MainWindowProperty& operator=(const MainWindowProperty&) = delete;
};

/** Writes down the events of a dialog, one line each. */
class RecordingHandler : public FileDialogEventHandler
{
public:
    QStringList events;
    QRect previewer;
    std::function<void(const FileDialogCallbackInterface&)> onType;
    std::function<void(bool, const FileDialogCallbackInterface&)> onToggle;

    QRect getPreviewerSize() override { return previewer; }
    void onSelectionChanged(const QStringList& files, const FileDialogCallbackInterface&) override
    {
        events << QStringLiteral("selected ") + files.join(QLatin1Char('|'));
    }
    void onCheckBoxToggled(bool checked, int controlId,
                           const FileDialogCallbackInterface& callbacks) override
    {
        events << QStringLiteral("toggled %1 %2").arg(controlId).arg(checked);
        if (onToggle)
            onToggle(checked, callbacks);
    }
    void onItemSelected(int controlId, int itemIndex) override
    {
        events << QStringLiteral("item %1 %2").arg(controlId).arg(itemIndex);
    }
    void onTypeChanged(const FileDialogCallbackInterface& callbacks) override
    {
        events << QStringLiteral("type");
        if (onType)
            onType(callbacks);
    }
};

inline bool writeFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("x") == 1;
}

} // namespace Zorvane::Testing
