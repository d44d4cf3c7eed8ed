#include "Tests/Support/PlatformFacts.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

#include <windows.h>

namespace Zorvane::Testing {

namespace {

/** Links without the rights of an administrator, where the system is set up to allow them. */
constexpr DWORD s_unprivileged = 0x2;

const wchar_t* wide(const QString& path)
{
    return reinterpret_cast<const wchar_t*>(path.utf16());
}

} // namespace

const char* usualPlatform()
{
    return "windows";
}

bool makeLink(const QString& target, const QString& link)
{
    const QString to = QDir::toNativeSeparators(target);
    const QString from = QDir::toNativeSeparators(link);
    const DWORD kind = QFileInfo(target).isDir() ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0;
    CreateSymbolicLinkW(wide(from), wide(to), kind | s_unprivileged);
    // Wine says that it has made one, and makes none.
    return GetFileAttributesW(wide(from)) != INVALID_FILE_ATTRIBUTES;
}

bool mayBeFileName(const QString& name)
{
    static const QRegularExpression forbidden(
        QStringLiteral("[\\x00-\\x1f<>:\"/\\\\|?*]|[. ]$|"
                       "^(CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|(COM|LPT)[1-9¹²³]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return !name.isEmpty() && name.size() <= 255 && !forbidden.match(name).hasMatch();
}

bool doesCaseOfNamesCount()
{
    return false;
}

QString shortSpelling(const QString& path)
{
    wchar_t text[MAX_PATH];
    const DWORD size = GetShortPathNameW(wide(QDir::toNativeSeparators(path)), text, MAX_PATH);
    return size > 0 && size < MAX_PATH ? QString::fromWCharArray(text) : path;
}

bool openFilesCanBeReplaced()
{
    return false;
}

bool librariesEndFirst()
{
    return false;
}

bool memoryLimitsHold()
{
    // Wine takes the limits of a job and does nothing about them.
    const HMODULE system = GetModuleHandleW(L"ntdll.dll");
    return !system || !GetProcAddress(system, "wine_get_version");
}

bool isRemarkOfPlatform(const QString& warning)
{
    // Wine's shell has no stock icons for message boxes; Qt then draws its own.
    return warning.startsWith(QLatin1String("QPixmap::fromWinHICON(), failed to GetIconInfo()"));
}

} // namespace Zorvane::Testing
