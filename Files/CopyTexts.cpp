#include "Files/CopyTexts.h"

#include "Files/PathText.h"
#include "Host/Translation/Translator.h"

#include <QtCore/QDir>
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
