#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QSaveFile>

namespace Zorvane::Workbench {

QString writeWholeFile(const QString& path, const char* content, qint64 size)
{
    QSaveFile file(path);
    // commit() ignores a flush that fails, and would put an empty file in place of the old one.
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content, size) == size &&
                           file.flush() && file.commit();
    return isWritten ? QString() : file.errorString();
}

} // namespace Zorvane::Workbench
