#include "Tests/Support/PlatformFacts.h"

#include <QtCore/QFile>

namespace Zorvane::Testing {

const char* usualPlatform()
{
    return "offscreen";
}

bool makeLink(const QString& target, const QString& link)
{
    return QFile::link(target, link);
}

bool mayBeFileName(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           name.toUtf8().size() <= 255 && !name.contains(QLatin1Char('/')) &&
           !name.contains(QChar());
}

bool doesCaseOfNamesCount()
{
    return true;
}

QString shortSpelling(const QString& path)
{
    return path;
}

bool openFilesCanBeReplaced()
{
    return true;
}

bool librariesEndFirst()
{
    return true;
}

bool memoryLimitsHold()
{
    return true;
}

bool isRemarkOfPlatform(const QString& warning)
{
    // The offscreen screen says so of windows of a fixed size, of tool tips and of menus.
    return warning == QLatin1String("This plugin does not support propagateSizeHints()") ||
           warning == QLatin1String("This plugin does not support raise()") ||
           warning == QLatin1String("This plugin does not support grabbing the keyboard");
}

} // namespace Zorvane::Testing
