#include "Host/ApplicationWidgets/SvgIconEngine.h"

#include <QtCore/QFile>
#include <QtCore/QtMath>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmapCache>
#include <QtSvg/QSvgRenderer>

#include <algorithm>

namespace Zorvane {

namespace {

constexpr double s_sizeOfLargeDrawing = 24;
/** What the drawings point out; in disabled icons it fades like everything else. */
constexpr char s_accent[] = "#d9730d";

struct Inks
{
    QColor text;
    /** In place of the accent; invalid to leave it. */
    QColor accent;
};

QColor mixed(const QColor& one, const QColor& other)
{
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

Inks inksFor(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled: {
        const QColor text = palette.color(QPalette::Disabled, QPalette::WindowText);
        return {text, mixed(text, palette.color(QPalette::Disabled, QPalette::Window))};
    }
    case QIcon::Selected:
        return {palette.color(QPalette::HighlightedText), {}};
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return {palette.color(QPalette::Active, QPalette::WindowText), {}};
}

/** Empty, but not null, where there is nothing to draw. */
QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray content = file.readAll();
        if (QSvgRenderer(content).isValid())
            return content;
    }
    qWarning("The icon %s cannot be read", qUtf8Printable(path));
    return QByteArray("");
}

QImage rendered(QByteArray content, const Inks& inks, const QSize& pixels)
{
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (content.isEmpty())
        return image;
    content.replace("currentColor", inks.text.name().toLatin1());
    if (inks.accent.isValid())
        content.replace(s_accent, inks.accent.name().toLatin1());
    QSvgRenderer renderer(content);
    QSize drawing = renderer.defaultSize();
    drawing.scale(pixels, Qt::KeepAspectRatio);
    QPainter painter(&image);
    renderer.render(&painter, QRect((pixels.width() - drawing.width()) / 2,
                                    (pixels.height() - drawing.height()) / 2, drawing.width(),
                                    drawing.height()));
    return image;
}

} // namespace

SvgIconEngine::SvgIconEngine(const QString& path, Kind kind)
    : m_path(path)
    , m_kind(kind)
{}

SvgIconEngine::SvgIconEngine(const SvgIconEngine& other) = default;
SvgIconEngine::~SvgIconEngine() = default;

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    const double scale = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, drawn((QSizeF(rect.size()) * scale).toSize(), scale, mode));
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State)
{
    return drawn(size, 1, mode);
}

QSize SvgIconEngine::actualSize(const QSize& size, QIcon::Mode, QIcon::State)
{
    return size;
}

QString SvgIconEngine::key() const
{
    return QStringLiteral("zorvane-svg");
}

QIconEngine* SvgIconEngine::clone() const
{
    return new SvgIconEngine(*this);
}

void SvgIconEngine::virtual_hook(int id, void* data)
{
    if (id == QIconEngine::ScaledPixmapHook) {
        auto* const wanted = static_cast<QIconEngine::ScaledPixmapArgument*>(data);
        wanted->pixmap = drawn(wanted->size, wanted->scale, wanted->mode);
        return;
    }
    QIconEngine::virtual_hook(id, data);
}

SvgIconEngine::Drawing SvgIconEngine::drawingFor(double logicalSize) const
{
    return m_kind == SmallAndLargeDrawing && logicalSize >= s_sizeOfLargeDrawing ? Large : Small;
}

QString SvgIconEngine::fileOf(Drawing drawing) const
{
    if (m_kind == OneDrawing)
        return m_path;
    return m_path + (drawing == Small ? QStringLiteral("_16.svg") : QStringLiteral("_32.svg"));
}

const QByteArray& SvgIconEngine::contentOf(Drawing drawing)
{
    QByteArray& content = m_contents[drawing];
    if (content.isNull())
        content = readFile(fileOf(drawing));
    return content;
}

QPixmap SvgIconEngine::drawn(const QSize& pixels, double scale, QIcon::Mode mode)
{
    if (pixels.isEmpty())
        return {};
    const Drawing drawing = drawingFor(std::min(pixels.width(), pixels.height()) / scale);
    const Inks inks = inksFor(mode);
    const QString cacheKey = QStringLiteral("zorvane-icon %1 %2x%3@%4 %5 %6")
                                 .arg(fileOf(drawing))
                                 .arg(pixels.width())
                                 .arg(pixels.height())
                                 .arg(scale)
                                 .arg(inks.text.rgba())
                                 .arg(inks.accent.isValid() ? inks.accent.rgba() : 0);
    QPixmap result;
    if (!QPixmapCache::find(cacheKey, &result)) {
        result = QPixmap::fromImage(rendered(contentOf(drawing), inks, pixels));
        result.setDevicePixelRatio(scale);
        QPixmapCache::insert(cacheKey, result);
    }
    return result;
}

} // namespace Zorvane
