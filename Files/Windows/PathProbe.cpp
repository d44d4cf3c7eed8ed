#include "Files/PathProbe.h"

#include "Files/Windows/ShellPath.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <memory>
#include <vector>

#include <windows.h>

namespace Zorvane {

namespace {

struct HandleCloser
{
    using pointer = HANDLE;
    void operator()(HANDLE handle) const
    {
        if (handle != INVALID_HANDLE_VALUE)
            CloseHandle(handle);
    }
};

/** What Windows takes by itself ends at 260 characters; this form doesn't. */
QString systemPath(const QString& path)
{
    const QString native = shellPath(path);
    if (native.size() < MAX_PATH || native.startsWith(QLatin1String("\\\\?\\")))
        return native;
    return native.startsWith(QLatin1String("\\\\")) ? QLatin1String("\\\\?\\UNC") + native.mid(1)
                                                    : QLatin1String("\\\\?\\") + native;
}

QString finalPath(HANDLE file, DWORD form)
{
    std::vector<wchar_t> text(GetFinalPathNameByHandleW(file, nullptr, 0, form) + 1);
    const DWORD size = GetFinalPathNameByHandleW(file, text.data(), DWORD(text.size()), form);
    return size < text.size() ? QString::fromWCharArray(text.data(), int(size)) : QString();
}

/**
 * The file system's own spelling, without a separator at the end: letter case and short names
 * (`PROGRA~1`), which Qt leaves as they are, can make two names of one folder. Drives that only
 * their makers know have no spelling with a letter, but one with a device.
 */
QString canonical(const QString& path)
{
    const std::unique_ptr<HANDLE, HandleCloser> file(CreateFileW(
        wide(systemPath(path)), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
        OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    QString found;
    if (file.get() != INVALID_HANDLE_VALUE) {
        found = finalPath(file.get(), VOLUME_NAME_DOS);
        if (found.isEmpty())
            found = finalPath(file.get(), VOLUME_NAME_NT);
    }
    if (found.isEmpty())
        found = QDir::toNativeSeparators(QFileInfo(path).canonicalFilePath());
    if (found.endsWith(u'\\'))
        found.chop(1);
    return found;
}

} // namespace

PathFacts PathProbe::look(const QString& path)
{
    PathFacts facts;
    if (path.isEmpty() || path.contains(QChar::Null))
        return facts;
    const QFileInfo info(path);
    facts.exists = info.exists();
    if (!facts.exists)
        return facts;
    facts.isFolder = info.isDir();
    facts.canonicalPath = canonical(path);
    facts.canonicalFolder = facts.canonicalPath.left(facts.canonicalPath.lastIndexOf(u'\\'));
    return facts;
}

} // namespace Zorvane
