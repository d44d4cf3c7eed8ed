#pragma once

#include "Workbench/MeshView/DrawableMesh.h"
#include "Workbench/MeshView/OrbitCamera.h"

#include <QtGui/QColor>
#include <QtGui/QImage>

#include <array>
#include <vector>

namespace Zorvane::Workbench {

/** The colours of a picture. */
struct MeshColours
{
    QColor outside;
    QColor inside;
    QColor edge;
    QColor backgroundTop;
    QColor backgroundBottom;
};

/**
 * Draws shaded triangles and edge lines into a picture with a depth buffer, on the processor
 * alone: the same picture on every platform, over remote desktops and without a screen.
 *
 * Light comes from a strong lamp up on the viewer's left and a weak one down on the right, so
 * that no side that is seen is ever black. Both sides of a triangle are drawn, each in its colour.
 * Keeps its buffers for the next picture of the same size.
 * Not supported: transparency, perspective.
 */
class Rasterizer
{
public:
    /** Starts a picture of this many pixels: the background, nothing in front of it. */
    void begin(const QSize& pixels, const MeshColours& colours);
    /** Triangles with points that are not finite numbers are left out. */
    void drawTriangles(const DrawableMesh& mesh, const ViewTransform& view);
    /** Lines of `width` pixels where no nearer triangle hides them. */
    void drawEdges(const DrawableMesh& mesh, const ViewTransform& view, int width);

    const QImage& image() const { return m_image; }
    /** Nearness to the viewer in millimetres; minus infinity where there is only background. */
    float depthAt(int x, int y) const;

private:
    struct Vertex
    {
        double x;
        double y;
        double depth;
        double light;
    };
    using ColourTable = std::array<QRgb, 256>;

    void project(const DrawableMesh& mesh, const ViewTransform& view);
    void drawTriangle(std::array<Vertex, 3> corners, const ColourTable& colours);
    void fillRow(int y, double left, double right, const Vertex& origin, const Vertex& perPixel,
                 const ColourTable& colours);
    void drawLine(const QVector3D& from, const QVector3D& to, float bias, int width);
    void drawPoint(int x, int y, float depth);

    QImage m_image;
    std::vector<float> m_depth;
    std::vector<QVector3D> m_projected;
    ColourTable m_outside{};
    ColourTable m_inside{};
    QRgb m_edge = 0;
};

enum class MeshLook
{
    Surfaces,
    /** Borders and folds alone, also those behind. */
    Outlines
};

/** One picture. With `samples` 2, drawn twice as large and averaged, for smooth outlines. */
QImage renderMesh(Rasterizer& rasterizer, const DrawableMesh& mesh, const ViewTransform& view,
                  const QSize& pixels, const MeshColours& colours, int samples,
                  MeshLook look = MeshLook::Surfaces);

} // namespace Zorvane::Workbench
