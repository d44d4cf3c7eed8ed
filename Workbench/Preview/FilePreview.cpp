#include "Workbench/Preview/FilePreview.h"

#include "Workbench/MeshView/MeshPalette.h"
#include "Workbench/Meshes/MeshReader.h"
#include "Workbench/Preview/TableHead.h"
#include "Workbench/Preview/TextHead.h"
#include "Workbench/Texts/SizeText.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>

#include <algorithm>
#include <climits>
#include <memory>
#include <utility>

namespace Zorvane::Workbench {

namespace {

constexpr int largestPictureSide = 2048;
constexpr int s_smallestSide = 16;

QString notedBy(const QStringList& facts)
{
    return facts.join(QStringLiteral(" · "));
}

QString rowsText(int count, bool hasMore)
{
    if (hasMore)
        return FilePreview::tr("first %n rows", nullptr, count);
    return count == 1 ? FilePreview::tr("1 row") : FilePreview::tr("%n rows", nullptr, count);
}

QString columnsText(int count, bool hasMore)
{
    if (hasMore)
        return FilePreview::tr("first %n columns", nullptr, count);
    return count == 1 ? FilePreview::tr("1 column") : FilePreview::tr("%n columns", nullptr, count);
}

QString linesText(int count, bool hasMore)
{
    if (hasMore)
        return FilePreview::tr("first %n lines", nullptr, count);
    return count == 1 ? FilePreview::tr("1 line") : FilePreview::tr("%n lines", nullptr, count);
}

QImage pictureOf(TriangleMesh mesh, const PreviewLook& look)
{
    const QSize pixels = look.pixels.expandedTo({s_smallestSide, s_smallestSide})
                             .boundedTo({largestPictureSide, largestPictureSide});
    const DrawableMesh drawable =
        prepareForDrawing(std::make_shared<const TriangleMesh>(std::move(mesh)));
    OrbitCamera camera;
    camera.fit(drawable.box, pixels);
    Rasterizer rasterizer;
    return renderMesh(rasterizer, drawable, camera.transform(pixels), pixels,
                      meshColours(look.dark), 2);
}

PreviewContent previewOfMesh(const QString& path, const PreviewLook& look)
{
    MeshReading reading = MeshReader::read(path);
    if (!reading.mesh) {
        const Problem& problem = reading.problem;
        return PreviewContent::message(problem.where.isEmpty()
                                           ? problem.reason
                                           : problem.where + QStringLiteral(": ") + problem.reason);
    }
    PreviewContent content;
    content.kind = PreviewContent::Kind::Picture;
    content.note =
        notedBy({FilePreview::tr("%1 triangles")
                     .arg(QLocale().toString(qulonglong(reading.mesh->triangles.size()))),
                 sizeText(boundingBox(*reading.mesh).size(), QLocale())});
    content.picture = pictureOf(std::move(*reading.mesh), look);
    return content;
}

PreviewContent previewOfTable(const QString& text, bool isWhole)
{
    TableHead head = TableHead::read(text);
    if (head.rows.empty())
        return PreviewContent::message(FilePreview::tr("is empty"));
    if (!isWhole && !head.hasMoreRows && head.rows.size() > 1) {
        head.rows.pop_back(); // cut in its middle
        head.hasMoreRows = true;
    }
    int columns = 0;
    for (const QStringList& row : head.rows)
        columns = std::max(columns, row.size());
    PreviewContent content;
    content.kind = PreviewContent::Kind::Table;
    content.note = notedBy({rowsText(int(head.rows.size()) - 1, head.hasMoreRows),
                            columnsText(columns, head.hasMoreColumns)});
    content.rows = std::move(head.rows);
    return content;
}

PreviewContent previewOfText(const QString& text, bool isWhole, const QString& size)
{
    PreviewContent content;
    content.kind = PreviewContent::Kind::Text;
    QString all = firstLines(text, INT_MAX);
    if (all.endsWith(QLatin1Char('\n')))
        all.chop(1);
    content.text = firstLines(all, FilePreview::mostLines);
    const bool isCut = !isWhole || content.text.size() < all.size();
    const int lines = content.text.count(QLatin1Char('\n')) + 1;
    content.note = notedBy({linesText(lines, isCut), size});
    return content;
}

PreviewContent previewOfHead(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return PreviewContent::message(
            FilePreview::tr("cannot be opened: %1").arg(file.errorString()));
    const QByteArray bytes = file.read(FilePreview::longestHead);
    if (file.error() != QFileDevice::NoError)
        return PreviewContent::message(
            FilePreview::tr("cannot be read: %1").arg(file.errorString()));
    if (bytes.isEmpty())
        return PreviewContent::message(FilePreview::tr("is empty"));
    const std::optional<QString> text = decodeText(bytes);
    const QString size = QLocale().formattedDataSize(file.size());
    if (!text)
        return PreviewContent::message(
            FilePreview::tr("is neither a mesh, a table nor a text, and %1 in size").arg(size));
    const bool isWhole = bytes.size() == file.size();
    const bool isTable =
        QFileInfo(path).suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0;
    return isTable ? previewOfTable(*text, isWhole) : previewOfText(*text, isWhole, size);
}

} // namespace

PreviewContent FilePreview::read(const QString& path, const PreviewLook& look)
{
    const QFileInfo info(path);
    if (!info.exists())
        return PreviewContent::message(tr("doesn't exist"));
    if (info.isDir())
        return PreviewContent::message(tr("is a folder"));
    // Pipes and devices could be read without end.
    if (!info.isFile())
        return PreviewContent::message(tr("is no file"));
    return MeshReader::isMeshFile(path) ? previewOfMesh(path, look) : previewOfHead(path);
}

} // namespace Zorvane::Workbench
