#include "FileDialogs/DialogTexts.h"

#include "Host/Translation/Translator.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <utility>
#include <vector>

namespace Zorvane {

namespace {

int lastSeparator(const QString& path)
{
    return std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
}

QString patternOf(const QString& type)
{
    // The expression by which QFileDialog finds the patterns of a filter.
    static const QRegularExpression withPatterns(
        QStringLiteral(R"(^(.*)\(([a-zA-Z0-9_.*? +;#\-\[\]@\{\}/!<>\$%&=^~:\|]*)\)$)"));
    const QRegularExpressionMatch match = withPatterns.match(type);
    QStringList parts = (match.hasMatch() ? match.captured(2) : type).split(QLatin1Char(' '));
    const int anyName = parts.indexOf(QStringLiteral("*"));
    if (anyName >= 0)
        parts[anyName] = QStringLiteral("*.*");
    return parts.join(QLatin1Char(';'));
}

} // namespace

int fileEndingIndex(const QString& path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return dot >= 1 && lastSeparator(path) < dot ? dot : -1;
}

QString suffixOfFilter(const QString& filter)
{
    const int star = filter.indexOf(QLatin1Char('*'));
    return star < 0 ? QString() : filter.mid(star + 1).remove(QLatin1Char(')'));
}

DialogStart dialogStart(const QString& path)
{
    if (path.isEmpty())
        return {};
    const QFileInfo info(path);
    if (info.isDir())
        return {QDir::toNativeSeparators(path), QString()};
    return {QDir::toNativeSeparators(info.absolutePath()), info.fileName()};
}

QString fileBeside(const QString& path, const QString& fileName)
{
    const QFileInfo info(path);
    QString folder = path;
    if (info.isDir())
        folder = path;
    else if (info.isFile())
        folder = info.absolutePath();
    else if (fileEndingIndex(path) > 0)
        folder = info.path();
    return QFileInfo(QDir(folder), fileName).absoluteFilePath();
}

QStringList namesInFileNameBox(const QString& text)
{
    static const QRegularExpression quote(QStringLiteral("\\s{0,1}\""));
    return text.trimmed().split(quote, Qt::SkipEmptyParts);
}

QStringList inOrderOfFileNameBox(const QStringList& paths, const QString& text)
{
    const QStringList names = namesInFileNameBox(text);
    QMap<QString, int> places;
    for (int i = 0; i < names.size(); ++i)
        places[names.at(i)] = i;

    std::vector<std::pair<int, QString>> placed;
    for (const QString& path : paths)
        placed.emplace_back(places.value(path.mid(lastSeparator(path) + 1), names.size()), path);
    std::stable_sort(placed.begin(), placed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });

    QStringList ordered;
    for (const auto& [place, path] : placed)
        ordered.append(path);
    return ordered;
}

QStringList filterTypes(const QString& filter)
{
    if (filter.isEmpty())
        return {Translator::translate("QFileDialog", "All Files (*.*)")};
    const QString semicolons = QStringLiteral(";;");
    const QString lineFeed = QStringLiteral("\n");
    const bool isByLine = !filter.contains(semicolons) && filter.contains(lineFeed);
    return filter.split(isByLine ? lineFeed : semicolons);
}

NativeFileFilters nativeFileFilters(const QString& filter, const QString& selectedFilter)
{
    NativeFileFilters filters;
    filters.names = filterTypes(filter);
    for (const QString& type : qAsConst(filters.names))
        filters.patterns.append(patternOf(type));
    const int selected = selectedFilter.isEmpty() ? -1 : filters.names.indexOf(selectedFilter);
    if (selected >= 0)
        filters.preselectedPattern = filters.patterns.at(selected);
    return filters;
}

} // namespace Zorvane
