#pragma once

#include "Workbench/MeshView/DrawableMesh.h"
#include "Workbench/MeshView/MeshLegend.h"
#include "Workbench/MeshView/MeshSides.h"
#include "Workbench/MeshView/OrbitCamera.h"
#include "Workbench/MeshView/Rasterizer.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <memory>

namespace Zorvane::Workbench {

/**
 * Shows one mesh, shaded, from any side.
 *
 * Mouse: drag with the left button turns, with the middle button or Shift moves, the wheel zooms
 * to the pointer, a double click fits. Keys: arrows turn, Ctrl and arrows move, + and - zoom,
 * Home fits. The view before the last change can be had back. Draws without a graphics card. While
 * it is being turned it draws as fast as it can, and once it rests it smooths the outlines.
 * Not supported: several meshes at once, picking, touch gestures.
 */
class MeshView : public QWidget
{
    Q_OBJECT

public:
    explicit MeshView(QWidget* parent = nullptr);

    /**
     * Shows the mesh, fitted when it is another one than before. `title` names it on screen; an
     * invalid colour takes that of meshes that belong to no object.
     */
    void setMesh(std::shared_ptr<const TriangleMesh> mesh, const QString& title,
                 const QColor& colour = {});
    /** Tells beside the mesh which object has which colour; empty for no legend. */
    void setLegend(const std::vector<LegendEntry>& entries);
    /** Shows a text in place of a mesh. */
    void showMessage(const QString& message);

    const QColor& colour() const { return m_colour; }
    const MeshLegend& legend() const { return *m_legend; }
    bool hasMesh() const { return !m_drawable.isEmpty(); }
    const OrbitCamera& camera() const { return m_camera; }
    void setDirection(ViewDirection direction);
    void setNearestAlong(ViewAxis axis);
    /** Rolls the picture counter-clockwise, by degrees. */
    void roll(double degrees);

    const MeshSides& sides() const { return m_sides; }
    /** Shows these sides of this mesh and of the next ones, from where one looks. */
    void setSides(const MeshSides& sides);
    MeshLook look() const { return m_look; }
    void setLook(MeshLook look);
    bool hasWhiteBackground() const { return m_whiteBackground; }
    /** For pictures to be printed, whatever the palette. */
    void setWhiteBackground(bool white);
    /** Turns by degrees; for keys, menus and demonstrations. */
    void turn(double rightDegrees, double downDegrees);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void fit();
    void zoomIn();
    void zoomOut();
    void flip();
    /** Back to the view before the last change, and from there to the one left now. */
    void showLastView();

Q_SIGNALS:
    void cameraChanged();
    /** The user wants an object of the legend. */
    void objectChosen(const Zorvane::IDCombiner& id);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Drag
    {
        None,
        Turn,
        Move
    };

    void rememberView();
    void fitToView();
    void prepareMesh();
    MeshColours colours() const;
    void zoom(const QPointF& cursor, double factor);
    void moveOrTurn(int right, int down, bool move);
    void redraw(bool moving);
    void renderIfNeeded();
    void paintOverlay(QPainter& painter) const;
    void describe();
    void placeLegend();

    std::shared_ptr<const TriangleMesh> m_mesh;
    /** What is shown of it. */
    DrawableMesh m_drawable;
    MeshSides m_sides;
    MeshLook m_look = MeshLook::Surfaces;
    bool m_whiteBackground = false;
    QString m_title;
    QColor m_colour;
    MeshLegend* m_legend;
    QString m_message;
    OrbitCamera m_camera;
    OrbitCamera m_lastCamera;
    Rasterizer m_rasterizer;
    QImage m_picture;
    QTimer m_rest;
    QPoint m_dragged;
    Drag m_drag = Drag::None;
    bool m_moving = false;
    bool m_fitted = true;
    qint64 m_fastPictureTime = 0;
};

} // namespace Zorvane::Workbench
