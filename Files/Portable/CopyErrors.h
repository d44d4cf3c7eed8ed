#pragma once

#include <QtCore/QString>

namespace Zorvane {

/** What the user reads for an error number. */
QString describeCopyError(int error);

/** The same for an error on the side of the target. */
QString describeTargetError(int error);

/** Whether the file system has no such permissions or times, without which the copy is good. */
bool isRefusedAttribute(int error);

/** Whether the system or the file system lacks the call. */
bool isMissingFeature(int error);

/** Whether an error on the side of the target will meet every further file too. */
bool concernsEveryFile(int error);

} // namespace Zorvane
