#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace Zorvane::Workbench {

/**
 * Writes the file in one step. Returns an empty text when the disk has taken all of it, else the
 * system's reason, and the file is as it was before. May be used in any thread.
 */
[[nodiscard]] QString writeWholeFile(const QString& path, const char* content, qint64 size);
[[nodiscard]] inline QString writeWholeFile(const QString& path, const QByteArray& content)
{
    return writeWholeFile(path, content.constData(), content.size());
}

} // namespace Zorvane::Workbench
