#include "Files/CopyTexts.h"

#include "Files/PathText.h"
#include "Host/Translation/Translator.h"

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QLocale>

namespace Zorvane {

namespace {

constexpr qint64 s_minute = 60;
constexpr qint64 s_hour = 60 * s_minute;
constexpr qint64 s_showSecondsBelow = 90;
constexpr qint64 s_showMinutesBelow = 90 * s_minute;
constexpr qint64 s_stepOfSeconds = 5;

qint64 roundedUp(qint64 value, qint64 step)
{
    return (value + step - 1) / step * step;
}

QString countOf(const char* text, qint64 count)
{
    return Translator::translate("FileCopyUtility", text, nullptr, static_cast<int>(count));
}

} // namespace

QString leafForDisplay(const QString& path)
{
    return pathForDisplay(path.mid(path.lastIndexOf(u'/') + 1));
}

QString folderForDisplay(const QString& path)
{
    const int slash = path.lastIndexOf(u'/');
    return QDir::toNativeSeparators(pathForDisplay(path.left(slash == 0 ? 1 : slash)));
}

QStringList distinctNamesForDisplay(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths)
        names.append(path.section(u'/', -1));
    for (bool longer = true; longer;) {
        longer = false;
        QHash<QString, QString> pathOfName; // null where several paths have it
        for (int i = 0; i < paths.size(); ++i) {
            const auto known = pathOfName.find(names[i]);
            if (known == pathOfName.end())
                pathOfName.insert(names[i], paths[i]);
            else if (*known != paths[i])
                *known = QString();
        }
        for (int i = 0; i < paths.size(); ++i) {
            if (!pathOfName.value(names[i]).isNull() || names[i] == paths[i])
                continue;
            names[i] = paths[i].section(u'/', -2 - names[i].count(u'/'));
            longer = true;
        }
    }
    for (QString& name : names)
        name = QDir::toNativeSeparators(pathForDisplay(name));
    return names;
}

QString sizeForDisplay(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes);
}

QString timeLeftForDisplay(qint64 seconds)
{
    if (seconds < s_showSecondsBelow)
        return countOf(QT_TRANSLATE_N_NOOP("FileCopyUtility", "About %n seconds left"),
                       roundedUp(qMax<qint64>(seconds, 1), s_stepOfSeconds));
    if (seconds < s_showMinutesBelow)
        return countOf(QT_TRANSLATE_N_NOOP("FileCopyUtility", "About %n minutes left"),
                       roundedUp(seconds, s_minute) / s_minute);
    return countOf(QT_TRANSLATE_N_NOOP("FileCopyUtility", "About %n hours left"),
                   roundedUp(seconds, s_hour) / s_hour);
}

} // namespace Zorvane
