#pragma once

#include <QtCore/QString>

#include <functional>

namespace Zorvane::Workbench {

/**
 * Runs `work` in another thread and returns when it is done: true. Windows stay alive meanwhile
 * but take no input; work that takes long shows a dialog with `text` and a button to cancel, over
 * the window that is active.
 *
 * Cancelling, which that window's end is too, returns false at once and leaves the work running, so that it must own all that it
 * uses. What it throws is thrown here.
 */
bool workInBackground(const QString& text, std::function<void()> work);

} // namespace Zorvane::Workbench
