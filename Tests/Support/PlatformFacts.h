#pragma once

#include <QtCore/QString>

namespace Zorvane::Testing {

/** What platforms differ in, for tests that have to tell which promise stands where. */

/** Qt's platform plugin that tests use unless the environment names another one. */
const char* usualPlatform();

/** Makes a link that programs follow to what it names; false where a program may not. */
bool makeLink(const QString& target, const QString& link);

/** Whether a file may have the name. */
bool mayBeFileName(const QString& name);

/** Whether names that differ in the case of letters are names of different files. */
bool doesCaseOfNamesCount();

/** The path in the system's short spelling, for programs that take no other; itself where there is
 * none. */
QString shortSpelling(const QString& path);

/** Whether a file that a program holds open can be replaced by another file. */
bool openFilesCanBeReplaced();

/** Whether the static objects of a shared library go before those of the program. */
bool librariesEndFirst();

/** Whether the system keeps to the memory that a process was limited to. */
bool memoryLimitsHold();

/** A warning that says nothing of the program, only of the screen or the system it runs on. */
bool isRemarkOfPlatform(const QString& warning);

} // namespace Zorvane::Testing
