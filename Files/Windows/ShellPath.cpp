#include "Files/Windows/ShellPath.h"

#include "Files/Windows/TaskMemory.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace Zorvane {

namespace {

/** Qt takes the long form of a path in a network for a relative one. */
QString withoutLongForm(const QString& path)
{
    const QString network = QStringLiteral("\\\\?\\UNC\\");
    const QString native = QDir::toNativeSeparators(path);
    return native.startsWith(network, Qt::CaseInsensitive)
               ? QLatin1String("\\\\") + native.mid(network.size())
               : path;
}

} // namespace

QString shellPath(const QString& path)
{
    if (path.isEmpty())
        return {};
    return QDir::toNativeSeparators(
        QDir::cleanPath(QFileInfo(withoutLongForm(path)).absoluteFilePath()));
}

const wchar_t* wide(const QString& text)
{
    static_assert(sizeof(wchar_t) == sizeof(ushort), "the system's text is UTF-16, as Qt's");
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

QString nameOfItem(IShellItem* item, SIGDN form)
{
    wchar_t* text = nullptr;
    if (!item || FAILED(item->GetDisplayName(form, &text)))
        return {};
    const TaskText owned(text);
    return QString::fromWCharArray(owned.get());
}

} // namespace Zorvane
