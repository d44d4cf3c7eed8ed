#pragma once

#include "Files/FileCopier.h"

#include <functional>

QT_BEGIN_NAMESPACE
class QDialog;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** Shown the progress dialog once, in the middle of a copy. */
using LookAtProgress = std::function<void(QDialog&)>;

/**
 * Copiers like the platform's own, but by a clock that makes every copy a slow one, so that the
 * progress dialog can be looked at without waiting. A null function where the system shows its own
 * dialogs, which a tour can neither see nor answer.
 */
FileCopierFactory tourCopiers(LookAtProgress look);

} // namespace Zorvane::Workbench
