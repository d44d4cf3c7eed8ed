#include "FileDialogs/NativeFileFilters.h"

#include "Host/Translation/Translator.h"

#include <QtCore/QRegularExpression>

namespace Zorvane {

namespace {

QStringList typesOf(const QString& filter)
{
    const QString semicolons = QStringLiteral(";;");
    const QString lineFeed = QStringLiteral("\n");
    const bool isByLine = !filter.contains(semicolons) && filter.contains(lineFeed);
    return filter.split(isByLine ? lineFeed : semicolons);
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

NativeFileFilters nativeFileFilters(const QString& filter, const QString* selectedFilter)
{
    NativeFileFilters filters;
    filters.names = typesOf(
        filter.isEmpty() ? Translator::translate("QFileDialog", "All Files (*.*)") : filter);
    for (const QString& type : qAsConst(filters.names))
        filters.patterns.append(patternOf(type));
    const bool isSelected = selectedFilter && !selectedFilter->isEmpty();
    const int selected = isSelected ? filters.names.indexOf(*selectedFilter) : -1;
    if (selected >= 0)
        filters.preselectedPattern = filters.patterns.at(selected);
    return filters;
}

} // namespace Zorvane
