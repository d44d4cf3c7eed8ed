#include "FileDialogs/SelectedFiles.h"

#include <QtCore/QMap>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <utility>
#include <vector>

namespace Zorvane {

namespace {

QString nameOf(const QString& path)
{
    const int separator =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.mid(separator + 1);
}

} // namespace

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
        placed.emplace_back(places.value(nameOf(path), names.size()), path);
    std::stable_sort(placed.begin(), placed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });

    QStringList ordered;
    for (const auto& [place, path] : placed)
        ordered.append(path);
    return ordered;
}

} // namespace Zorvane
