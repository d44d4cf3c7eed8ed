#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace Zorvane::Workbench {

/**
 * The text that the first bytes of a file stand for: Unicode if marked so, UTF-8 if it is, else
 * Latin-1. A character cut at the end is left out. None if the bytes are no text.
 */
std::optional<QString> decodeText(const QByteArray& bytes);

/** The first `most` lines without the end of the last one, and without control characters. */
QString firstLines(const QString& text, int most);

} // namespace Zorvane::Workbench
