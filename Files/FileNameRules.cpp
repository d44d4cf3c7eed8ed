#include "Files/FileNameRules.h"

#include "Files/PathText.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace Zorvane {

namespace {

bool isForbidden(QChar letter, PathSyntax syntax)
{
    if (letter == QLatin1Char('/') || letter.isNull())
        return true;
    return syntax == PathSyntax::Windows &&
           (letter < QLatin1Char(' ') || QStringLiteral("<>:\"\\|?*").contains(letter));
}

/** What stands before the first dot counts, without the blanks at its end. */
bool isDevice(const QString& name)
{
    // The three digits that are letters of Latin-1 count as digits there.
    static const QRegularExpression device(
        QStringLiteral(
            "^(?:CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|(?:COM|LPT)[1-9\\x{B9}\\x{B2}\\x{B3}])"
            " *(?:\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return device.match(name).hasMatch();
}

bool endsBadly(const QString& name)
{
    return name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' '));
}

} // namespace

FileNameFault faultOfFileName(const QString& name, PathSyntax syntax)
{
    if (name.isEmpty())
        return FileNameFault::Empty;
    if (name == QLatin1String(".") || name == QLatin1String(".."))
        return FileNameFault::Folder;
    if (std::any_of(name.begin(), name.end(),
                    [syntax](QChar letter) { return isForbidden(letter, syntax); }))
        return FileNameFault::Letter;
    if (fileNameLength(name, syntax) > s_longestFileName)
        return FileNameFault::Length;
    if (syntax == PathSyntax::Posix)
        return FileNameFault::None;
    if (isDevice(name))
        return FileNameFault::Device;
    return endsBadly(name) ? FileNameFault::End : FileNameFault::None;
}

int fileNameLength(const QString& name, PathSyntax syntax)
{
    return syntax == PathSyntax::Windows ? name.size() : int(pathToBytes(name).size());
}

QString fittedFileName(const QString& stem, const QString& ending, int most, PathSyntax syntax)
{
    if (fileNameLength(stem + ending, syntax) <= most)
        return stem + ending;
    QString shorter = stem;
    const auto dropLast = [&shorter] {
        const bool isPair = shorter.size() > 1 && shorter.at(shorter.size() - 1).isLowSurrogate() &&
                            shorter.at(shorter.size() - 2).isHighSurrogate();
        shorter.chop(isPair ? 2 : 1);
    };
    while (shorter.size() > 1 && fileNameLength(shorter + ending, syntax) > most)
        dropLast();
    const auto isUnusable = [&shorter, &ending, syntax] {
        return endsBadly(shorter) || (syntax == PathSyntax::Windows && isDevice(shorter + ending));
    };
    while (shorter.size() > 1 && isUnusable())
        dropLast();
    return shorter + ending;
}

} // namespace Zorvane
