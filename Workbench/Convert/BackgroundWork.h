#pragma once

#include <QtCore/QString>

#include <functional>

QT_BEGIN_NAMESPACE
class QThreadPool;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * Runs `work` in another thread and returns when it is done: true. Windows stay alive meanwhile
 * but take no input; work that takes long shows a dialog with `text` and a button to cancel, over
 * the window that is active.
 *
 * Cancelling, which that window's end is too, returns false at once and leaves the work running, so
 * that it must own all that it uses. What it throws is thrown here. The application's end waits for
 * work that still runs.
 */
bool workInBackground(const QString& text, std::function<void()> work);

/**
 * The threads that do it, the application's. Not the global pool: Qt scales images there and waits
 * for it, so that work of ours in all of its threads would make the windows stand still.
 */
QThreadPool& backgroundThreads();

} // namespace Zorvane::Workbench
