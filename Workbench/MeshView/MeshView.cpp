#include "Workbench/MeshView/MeshView.h"

#include "Workbench/MeshView/MeshPalette.h"
#include "Workbench/MeshView/MeshViewOverlay.h"
#include "Workbench/Texts/SizeText.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>

#include <cmath>
#include <utility>

namespace Zorvane::Workbench {

namespace {

constexpr double s_degreesPerPixel = 0.4;
constexpr double s_degreesPerKey = 7.5;
constexpr double s_pixelsPerKey = 24;
constexpr double s_zoomPerStep = 1.2;
constexpr int s_restMilliseconds = 160;
/** A slower picture than this while moving makes the next one coarser. */
constexpr qint64 s_slowMilliseconds = 40;

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

} // namespace

MeshView::MeshView(QWidget* parent)
    : QWidget(parent)
    , m_legend(new MeshLegend(this))
    , m_message(tr("Select a part to see its mesh."))
{
    connect(m_legend, &MeshLegend::chosen, this, &MeshView::objectChosen);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Mesh view"));
    m_rest.setSingleShot(true);
    m_rest.setInterval(s_restMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, [this] { redraw(false); });
    describe();
}

void MeshView::setMesh(std::shared_ptr<const TriangleMesh> mesh, const QString& title,
                       const QColor& colour)
{
    m_title = title;
    if (colour != m_colour) {
        m_colour = colour;
        m_picture = {};
    }
    if (mesh != m_mesh) {
        m_mesh = std::move(mesh);
        prepareMesh();
        fitToView();
        m_lastCamera = m_camera;
    }
    describe();
    update();
}

void MeshView::prepareMesh()
{
    m_drawable = prepareForDrawing(sidesOf(m_mesh, m_sides));
    m_fastPictureTime = 0;
    m_message.clear();
    if (!hasMesh())
        m_message = m_mesh && !m_mesh->isEmpty() ? tr("No side of this mesh is shown.")
                                                 : tr("This mesh has no triangles.");
}

void MeshView::setSides(const MeshSides& sides)
{
    m_sides = sides;
    if (!m_mesh)
        return;
    prepareMesh();
    describe();
    redraw(false);
}

void MeshView::setLook(MeshLook look)
{
    m_look = look;
    redraw(false);
}

void MeshView::setWhiteBackground(bool white)
{
    m_whiteBackground = white;
    redraw(false);
}

MeshColours MeshView::colours() const
{
    MeshColours colours = meshColours(isDark(palette()) && !m_whiteBackground, m_colour);
    if (m_whiteBackground) {
        colours.backgroundTop = Qt::white;
        colours.backgroundBottom = Qt::white;
    }
    return colours;
}

void MeshView::showMessage(const QString& message)
{
    m_mesh.reset();
    m_drawable = {};
    m_title.clear();
    m_message = message;
    setLegend({});
    describe();
    redraw(false);
}

void MeshView::setLegend(const std::vector<LegendEntry>& entries)
{
    m_legend->setEntries(entries);
    placeLegend();
    update();
}

void MeshView::placeLegend()
{
    const QRect area = rect().adjusted(14, 10, -14, -10);
    const bool toTheLeft = layoutDirection() == Qt::RightToLeft;
    const int width = area.width() / 2;
    m_legend->fitInto(QRect(toTheLeft ? area.left() : area.right() + 1 - width, area.top(), width,
                            area.height() / 2));
}

void MeshView::describe()
{
    const QString keys = tr("Arrow keys turn, Ctrl and arrow keys move, plus and minus zoom, "
                            "Home fits.");
    if (!hasMesh()) {
        setAccessibleDescription(m_message);
        return;
    }
    setAccessibleDescription(
        tr("%1, %2, %n triangles. %3", nullptr, int(m_drawable.mesh->triangles.size()))
            .arg(m_title, sizeText(m_drawable.box.size(), QLocale()), keys));
}

void MeshView::setDirection(ViewDirection direction)
{
    rememberView();
    m_camera.setDirection(direction);
    fitToView();
}

void MeshView::setNearestAlong(ViewAxis axis)
{
    rememberView();
    m_camera.setNearestAlong(axis);
    redraw(false);
}

void MeshView::roll(double degrees)
{
    rememberView();
    m_camera.roll(degrees);
    redraw(false);
}

void MeshView::flip()
{
    rememberView();
    m_camera.flip();
    redraw(false);
}

void MeshView::showLastView()
{
    std::swap(m_camera, m_lastCamera);
    m_fitted = false;
    redraw(false);
}

/** One turn with the mouse, or of the wheel, is one change, however many steps it has. */
void MeshView::rememberView()
{
    if (!m_moving)
        m_lastCamera = m_camera;
}

void MeshView::turn(double rightDegrees, double downDegrees)
{
    rememberView();
    m_camera.orbit(rightDegrees, downDegrees);
    m_fitted = false;
    redraw(true);
}

QSize MeshView::sizeHint() const
{
    return {640, 480};
}

QSize MeshView::minimumSizeHint() const
{
    return {220, 180};
}

void MeshView::fit()
{
    rememberView();
    fitToView();
}

void MeshView::fitToView()
{
    m_camera.fit(m_drawable.box, size());
    m_fitted = true;
    redraw(false);
}

void MeshView::zoomIn()
{
    zoom(rect().center(), s_zoomPerStep);
}

void MeshView::zoomOut()
{
    zoom(rect().center(), 1 / s_zoomPerStep);
}

void MeshView::zoom(const QPointF& cursor, double factor)
{
    rememberView();
    m_camera.zoomAt(cursor, factor, size());
    m_fitted = false;
    redraw(true);
}

void MeshView::redraw(bool moving)
{
    m_moving = moving;
    m_picture = {};
    if (moving)
        m_rest.start();
    update();
    Q_EMIT cameraChanged();
}

void MeshView::renderIfNeeded()
{
    const double ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (!m_picture.isNull())
        return;
    QElapsedTimer timer;
    timer.start();
    const ViewTransform view = m_camera.transform(QSizeF(size()));
    const MeshColours inks = colours();
    if (m_moving && m_fastPictureTime > s_slowMilliseconds) {
        const QImage coarse = renderMesh(m_rasterizer, m_drawable, view.scaled(ratio / 2),
                                         pixels / 2, inks, 1, m_look);
        m_picture = coarse.scaled(pixels);
    } else {
        m_picture = renderMesh(m_rasterizer, m_drawable, view.scaled(ratio), pixels, inks,
                               m_moving ? 1 : 2, m_look);
        if (m_moving)
            m_fastPictureTime = timer.elapsed();
    }
    m_picture.setDevicePixelRatio(ratio);
}

void MeshView::paintEvent(QPaintEvent*)
{
    renderIfNeeded();
    QPainter painter(this);
    painter.drawImage(0, 0, m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintOverlay(painter);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Link), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void MeshView::paintOverlay(QPainter& painter) const
{
    const QColor ink = isDark(palette()) && !m_whiteBackground ? QColor(0xd6, 0xdd, 0xe6)
                                                               : QColor(0x2b, 0x36, 0x42);
    painter.setPen(ink);
    if (!hasMesh()) {
        painter.drawText(rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap,
                         m_message);
        return;
    }
    QRect text = rect().adjusted(14, 10, -14, -10);
    if (!m_legend->isHidden())
        text.setWidth(std::max(0, text.width() - m_legend->width() - 10));
    if (layoutDirection() == Qt::RightToLeft)
        text.moveRight(rect().right() - 14);
    drawCaption(painter, text, m_title, sizeText(m_drawable.box.size(), QLocale()));
    drawAxes(painter, rect(), m_camera.transform(QSizeF(size())));
    drawScaleBar(painter, rect(), m_camera.pixelsPerMm(), ink);
}

void MeshView::resizeEvent(QResizeEvent*)
{
    if (m_fitted)
        m_camera.fit(m_drawable.box, size());
    placeLegend();
    redraw(false);
}

void MeshView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        redraw(false);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::LayoutDirectionChange)
        placeLegend();
}

void MeshView::focusInEvent(QFocusEvent*)
{
    update();
}

void MeshView::focusOutEvent(QFocusEvent*)
{
    update();
}

void MeshView::mousePressEvent(QMouseEvent* event)
{
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && shift))
        m_drag = Drag::Move;
    else if (event->button() == Qt::LeftButton)
        m_drag = Drag::Turn;
    else
        event->ignore();
    m_dragged = event->pos();
}

void MeshView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint way = event->pos() - m_dragged;
    m_dragged = event->pos();
    if (m_drag == Drag::None || way.isNull())
        return;
    rememberView();
    if (m_drag == Drag::Turn)
        m_camera.orbit(way.x() * s_degreesPerPixel, way.y() * s_degreesPerPixel);
    else
        m_camera.pan(way);
    m_fitted = false;
    redraw(true);
}

void MeshView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        m_drag = Drag::None;
}

void MeshView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        fit();
}

void MeshView::wheelEvent(QWheelEvent* event)
{
    const double steps = event->angleDelta().y() / 120.0;
    if (steps == 0) {
        event->ignore();
        return;
    }
    zoom(event->position(), std::pow(s_zoomPerStep, steps));
    event->accept();
}

void MeshView::moveOrTurn(int right, int down, bool move)
{
    if (move) {
        rememberView();
        m_camera.pan(QPointF(right, down) * s_pixelsPerKey);
        m_fitted = false;
        redraw(true);
    } else {
        turn(right * s_degreesPerKey, down * s_degreesPerKey);
    }
}

void MeshView::keyPressEvent(QKeyEvent* event)
{
    const bool move = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Left:
        return moveOrTurn(-1, 0, move);
    case Qt::Key_Right:
        return moveOrTurn(1, 0, move);
    case Qt::Key_Up:
        return moveOrTurn(0, -1, move);
    case Qt::Key_Down:
        return moveOrTurn(0, 1, move);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_Home:
        return fit();
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace Zorvane::Workbench
