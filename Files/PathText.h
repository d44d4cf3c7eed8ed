#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>

#include <string>

namespace Zorvane {

/**
 * Names of files are bytes, most often UTF-8. A byte that is not is carried in a `QString` as a
 * lone low surrogate (U+DC80 to U+DCFF for 0x80 to 0xFF), which no UTF-8 text decodes to, so that
 * every name can be turned into a text and back without loss.
 */
ZORVANE_UITOOLS_EXPORT QString pathFromBytes(const std::string& bytes);
ZORVANE_UITOOLS_EXPORT std::string pathToBytes(const QString& path);

/** The path to show: bytes that are no text are written as "\xE4". */
ZORVANE_UITOOLS_EXPORT QString pathForDisplay(const QString& path);

/** Such a text is written alike in every encoding of names, as most names are. */
bool isAscii(const QString& text);

/** The length of the UTF-8 sequence that starts at `at`; 0 where there is none. */
std::size_t utf8SequenceLength(const std::string& bytes, std::size_t at);

} // namespace Zorvane
