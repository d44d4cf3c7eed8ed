#include "Workbench/Preview/PreviewContent.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstring>

namespace Zorvane::Workbench {

namespace {

const QString s_kindKey = QStringLiteral("kind");
const QString s_noteKey = QStringLiteral("note");
const QString s_textKey = QStringLiteral("text");
const QString s_rowsKey = QStringLiteral("rows");
const QString s_widthKey = QStringLiteral("width");
const QString s_heightKey = QStringLiteral("height");

/** Ends the description; in JSON a line feed stands for itself nowhere. */
constexpr char s_end = '\n';
constexpr int s_bytesPerPixel = 4;
constexpr int s_largestSide = 16 * 1024;

QJsonArray toJson(const std::vector<QStringList>& rows)
{
    QJsonArray all;
    for (const QStringList& row : rows)
        all.append(QJsonArray::fromStringList(row));
    return all;
}

std::vector<QStringList> rowsFromJson(const QJsonArray& all)
{
    std::vector<QStringList> rows;
    // By value: such arrays make their elements while they are walked.
    for (const QJsonValue row : all) {
        const QJsonArray cells = row.toArray();
        rows.emplace_back();
        for (const QJsonValue cell : cells)
            rows.back().append(cell.toString());
    }
    return rows;
}

QByteArray pixelsOf(const QImage& picture)
{
    QByteArray pixels;
    const int rowBytes = picture.width() * s_bytesPerPixel;
    for (int y = 0; y < picture.height(); ++y)
        pixels.append(reinterpret_cast<const char*>(picture.constScanLine(y)), rowBytes);
    return pixels;
}

/** Null unless there are just as many bytes as a picture of this size has. */
QImage pictureFrom(const char* pixels, qint64 byteCount, int width, int height)
{
    const auto isSide = [](int length) { return length > 0 && length <= s_largestSide; };
    if (!isSide(width) || !isSide(height) || byteCount != qint64(width) * height * s_bytesPerPixel)
        return {};
    QImage picture(width, height, QImage::Format_RGB32);
    if (picture.isNull())
        return {};
    const std::size_t rowBytes = std::size_t(width) * s_bytesPerPixel;
    for (int y = 0; y < height; ++y)
        std::memcpy(picture.scanLine(y), pixels + std::size_t(y) * rowBytes, rowBytes);
    return picture;
}

} // namespace

QByteArray PreviewContent::toBytes() const
{
    const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
    const QJsonObject description{
        {s_kindKey, int(kind)},    {s_noteKey, note},           {s_textKey, text},
        {s_rowsKey, toJson(rows)}, {s_widthKey, plain.width()}, {s_heightKey, plain.height()},
    };
    return QJsonDocument(description).toJson(QJsonDocument::Compact) + s_end + pixelsOf(plain);
}

std::optional<PreviewContent> PreviewContent::fromBytes(const QByteArray& bytes)
{
    const int end = bytes.indexOf(s_end);
    if (end < 0 || bytes.size() > largestSize)
        return std::nullopt;
    const QJsonObject description = QJsonDocument::fromJson(bytes.left(end)).object();
    const int kind = description[s_kindKey].toInt(-1);
    if (kind < int(Kind::Message) || kind > int(Kind::Text))
        return std::nullopt;
    PreviewContent content;
    content.kind = Kind(kind);
    content.note = description[s_noteKey].toString();
    content.text = description[s_textKey].toString();
    content.rows = rowsFromJson(description[s_rowsKey].toArray());
    content.picture =
        pictureFrom(bytes.constData() + end + 1, bytes.size() - end - 1,
                    description[s_widthKey].toInt(), description[s_heightKey].toInt());
    const bool hasPixels = end + 1 < bytes.size();
    if (hasPixels == content.picture.isNull() ||
        (content.kind == Kind::Picture && content.picture.isNull()))
        return std::nullopt;
    return content;
}

} // namespace Zorvane::Workbench
