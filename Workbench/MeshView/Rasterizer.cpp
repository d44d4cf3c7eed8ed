#include "Workbench/MeshView/Rasterizer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zorvane::Workbench {

namespace {

constexpr float s_furthest = -std::numeric_limits<float>::infinity();
/** Light at which a surface has just the colour asked for; more makes it gleam. */
constexpr int s_fullLight = 200;

/** The lamps, in the viewer's own directions: right, up, towards the viewer. */
struct Lamp
{
    QVector3D direction;
    double strength;
};

struct Lighting
{
    Lamp key;
    Lamp fill;
    QVector3D highlight;

    explicit Lighting(const ViewTransform& view)
        : key{along(view, -0.45f, 0.55f, 0.70f), 0.62}
        , fill{along(view, 0.75f, -0.35f, 0.56f), 0.22}
        , highlight((key.direction + view.toViewer).normalized())
    {}

    static QVector3D along(const ViewTransform& view, float right, float up, float near)
    {
        return (view.right * right + view.up * up + view.toViewer * near).normalized();
    }

    /** 0 to 255. */
    double on(const QVector3D& normal) const
    {
        const double keyCosine = std::max(0.f, QVector3D::dotProduct(normal, key.direction));
        const double fillCosine = std::max(0.f, QVector3D::dotProduct(normal, fill.direction));
        double gleam = std::max(0.f, QVector3D::dotProduct(normal, highlight));
        for (int doubling = 0; doubling < 5; ++doubling)
            gleam *= gleam;
        const double light = 0.34 + key.strength * keyCosine + fill.strength * fillCosine;
        return std::min(255.0, s_fullLight * light + 40 * gleam);
    }
};

QRgb mixed(const QColor& from, const QColor& to, double part)
{
    const auto mix = [part](int a, int b) { return int(std::lround(a + (b - a) * part)); };
    return qRgb(mix(from.red(), to.red()), mix(from.green(), to.green()),
                mix(from.blue(), to.blue()));
}

std::array<QRgb, 256> colourTable(const QColor& colour)
{
    std::array<QRgb, 256> table{};
    for (int light = 0; light < 256; ++light) {
        const std::size_t entry = std::size_t(light);
        if (light <= s_fullLight)
            table[entry] = mixed(Qt::black, colour, double(light) / s_fullLight);
        else
            table[entry] = mixed(colour, Qt::white, double(light - s_fullLight) / 110);
    }
    return table;
}

bool isFinite(const QVector3D& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y()) && std::isfinite(point.z());
}

/** The first pixel whose centre lies at or behind `position`, within 0 to `end`. */
int firstPixel(double position, int end)
{
    return int(std::ceil(std::clamp(position - 0.5, 0.0, double(end))));
}

} // namespace

void Rasterizer::begin(const QSize& pixels, const MeshColours& colours)
{
    const QSize size = pixels.expandedTo({1, 1});
    if (m_image.size() != size)
        m_image = QImage(size, QImage::Format_RGB32);
    m_depth.assign(std::size_t(size.width()) * std::size_t(size.height()), s_furthest);
    m_outside = colourTable(colours.outside);
    m_inside = colourTable(colours.inside);
    m_edge = colours.edge.rgb();
    for (int y = 0; y < size.height(); ++y) {
        const double part = (y + 0.5) / size.height();
        const QRgb colour = mixed(colours.backgroundTop, colours.backgroundBottom, part);
        QRgb* row = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        std::fill(row, row + size.width(), colour);
    }
}

float Rasterizer::depthAt(int x, int y) const
{
    if (!m_image.rect().contains(x, y))
        return s_furthest;
    return m_depth[std::size_t(y) * std::size_t(m_image.width()) + std::size_t(x)];
}

void Rasterizer::project(const DrawableMesh& mesh, const ViewTransform& view)
{
    m_projected.resize(mesh.mesh->points.size());
    std::transform(mesh.mesh->points.begin(), mesh.mesh->points.end(), m_projected.begin(),
                   [&view](const QVector3D& point) { return view.project(point); });
}

void Rasterizer::drawTriangles(const DrawableMesh& mesh, const ViewTransform& view)
{
    if (mesh.isEmpty())
        return;
    project(mesh, view);
    const Lighting lighting(view);
    for (std::size_t i = 0; i < mesh.mesh->triangles.size(); ++i) {
        const TriangleMesh::Triangle& triangle = mesh.mesh->triangles[i];
        const QVector3D& a = m_projected[triangle[0]];
        const QVector3D& b = m_projected[triangle[1]];
        const QVector3D& c = m_projected[triangle[2]];
        if (!isFinite(a) || !isFinite(b) || !isFinite(c))
            continue;
        // Counter-clockwise from outside turns clockwise where y points down.
        const bool fromOutside = double(b.x() - a.x()) * double(c.y() - a.y()) <
                                 double(c.x() - a.x()) * double(b.y() - a.y());
        const float side = fromOutside ? 1.f : -1.f;
        std::array<Vertex, 3> corners{};
        for (std::size_t corner = 0; corner < 3; ++corner) {
            const QVector3D& point = m_projected[triangle[corner]];
            corners[corner] = {double(point.x()), double(point.y()), double(point.z()),
                               lighting.on(mesh.normals[i][corner] * side)};
        }
        drawTriangle(corners, fromOutside ? m_outside : m_inside);
    }
}

void Rasterizer::drawTriangle(std::array<Vertex, 3> corners, const ColourTable& colours)
{
    // Sorted the same way in both triangles of an edge, so that they leave no gap between them.
    std::sort(corners.begin(), corners.end(),
              [](const Vertex& left, const Vertex& right) { return left.y < right.y; });
    const Vertex& top = corners[0];
    const Vertex& middle = corners[1];
    const Vertex& bottom = corners[2];
    const int end = firstPixel(bottom.y, m_image.height());
    int y = firstPixel(top.y, m_image.height());
    const double area =
        (middle.x - top.x) * (bottom.y - top.y) - (bottom.x - top.x) * (middle.y - top.y);
    if (y >= end || area == 0)
        return;
    const auto slopes = [&](double Vertex::*value, double& alongX, double& alongY) {
        const double toMiddle = middle.*value - top.*value;
        const double toBottom = bottom.*value - top.*value;
        alongX = (toMiddle * (bottom.y - top.y) - toBottom * (middle.y - top.y)) / area;
        alongY = (toBottom * (middle.x - top.x) - toMiddle * (bottom.x - top.x)) / area;
    };
    Vertex perX{};
    Vertex perY{};
    slopes(&Vertex::depth, perX.depth, perY.depth);
    slopes(&Vertex::light, perX.light, perY.light);
    for (; y < end; ++y) {
        const double centre = y + 0.5;
        const bool upper = centre < middle.y;
        const Vertex& from = upper ? top : middle;
        const Vertex& to = upper ? middle : bottom;
        const double shortSide = from.x + (to.x - from.x) * (centre - from.y) / (to.y - from.y);
        const double longSide = top.x + (bottom.x - top.x) * (centre - top.y) / (bottom.y - top.y);
        const Vertex start{top.x, centre, top.depth + perY.depth * (centre - top.y),
                           top.light + perY.light * (centre - top.y)};
        fillRow(y, std::min(shortSide, longSide), std::max(shortSide, longSide), start, perX,
                colours);
    }
}

void Rasterizer::fillRow(int y, double left, double right, const Vertex& origin,
                         const Vertex& perPixel, const ColourTable& colours)
{
    const int first = firstPixel(left, m_image.width());
    const int end = firstPixel(right, m_image.width());
    if (first >= end)
        return;
    const double offset = first + 0.5 - origin.x;
    double depth = origin.depth + perPixel.depth * offset;
    double light = origin.light + perPixel.light * offset;
    QRgb* pixel = reinterpret_cast<QRgb*>(m_image.scanLine(y)) + first;
    float* nearest = m_depth.data() + std::size_t(y) * std::size_t(m_image.width()) + first;
    for (int x = first; x < end; ++x, ++pixel, ++nearest) {
        if (float(depth) > *nearest) {
            *nearest = float(depth);
            // Slivers extrapolate a little beyond the light of their corners.
            *pixel = colours[std::size_t(std::clamp(light, 0.0, 255.0))];
        }
        depth += perPixel.depth;
        light += perPixel.light;
    }
}

void Rasterizer::drawEdges(const DrawableMesh& mesh, const ViewTransform& view, int width)
{
    if (mesh.isEmpty())
        return;
    project(mesh, view);
    // Two pixels nearer than the faces that meet in the edge, lest these hide half of it.
    const float bias = float(2.0 / view.pixelsPerMm);
    for (const auto& [from, to] : mesh.edges)
        drawLine(m_projected[from], m_projected[to], bias, width);
}

void Rasterizer::drawLine(const QVector3D& from, const QVector3D& to, float bias, int width)
{
    if (!isFinite(from) || !isFinite(to))
        return;
    const QVector3D way = to - from;
    const bool flat = std::abs(way.x()) >= std::abs(way.y());
    const QVector3D& start = (flat ? way.x() : way.y()) >= 0 ? from : to;
    const QVector3D& stop = &start == &from ? to : from;
    const double begin = double(flat ? start.x() : start.y());
    const double length = double(flat ? stop.x() : stop.y()) - begin;
    const int limit = flat ? m_image.width() : m_image.height();
    const int first = firstPixel(begin, limit);
    const int end = std::max(firstPixel(begin + length, limit), std::min(first + 1, limit));
    for (int step = first; step < end; ++step) {
        const double part = length > 0 ? std::clamp((step + 0.5 - begin) / length, 0.0, 1.0) : 0;
        const double startAcross = double(flat ? start.y() : start.x());
        const double stopAcross = double(flat ? stop.y() : stop.x());
        const double across = startAcross + (stopAcross - startAcross) * part - (width - 1) / 2.0;
        const float depth = float(double(start.z()) + double(stop.z() - start.z()) * part) + bias;
        if (across < -width || across > m_image.width() + m_image.height())
            continue;
        for (int thick = 0; thick < width; ++thick) {
            const int other = int(std::floor(across)) + thick;
            drawPoint(flat ? step : other, flat ? other : step, depth);
        }
    }
}

void Rasterizer::drawPoint(int x, int y, float depth)
{
    if (!m_image.rect().contains(x, y) || depth < depthAt(x, y))
        return;
    reinterpret_cast<QRgb*>(m_image.scanLine(y))[x] = m_edge;
}

QImage renderMesh(Rasterizer& rasterizer, const DrawableMesh& mesh, const ViewTransform& view,
                  const QSize& pixels, const MeshColours& colours, int samples, MeshLook look)
{
    rasterizer.begin(pixels * samples, colours);
    const ViewTransform scaled = view.scaled(samples);
    if (look == MeshLook::Surfaces)
        rasterizer.drawTriangles(mesh, scaled);
    rasterizer.drawEdges(mesh, scaled, samples);
    if (samples == 1)
        return rasterizer.image();
    return rasterizer.image().scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace Zorvane::Workbench
