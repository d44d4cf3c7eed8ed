#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class WindowCommands;

/**
 * Fills the menus in menus whose lines are no commands: what was opened last, the samples, modes
 * and appearances. The commands must outlive it.
 */
class WindowMenus : public QObject
{
    Q_OBJECT

public:
    explicit WindowMenus(WindowCommands& commands);

Q_SIGNALS:
    /** What the user wants to have opened. */
    void chosen(const QStringList& paths);
    /** A choice holds until the program ends, but could not be stored. */
    void notStored();

private:
    void addPath(QMenu& menu, const QString& text, const QString& path);
    void addSamples(QMenu& menu);
    void addModes(QMenu& menu);
    void addAppearances(QMenu& menu);
    void showRecent(QMenu& menu);

    WindowCommands& m_commands;
};

} // namespace Zorvane::Workbench
