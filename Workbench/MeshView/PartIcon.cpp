#include "Workbench/MeshView/PartIcon.h"

#include "Host/Widgets/ZVGuiTools.h"

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>

namespace Zorvane::Workbench {

namespace {

constexpr int s_patchSide = 12;
constexpr int s_gap = 4;

/** Draws a picture, if there is one, and a patch, as sharp as the device allows. */
class PartIconEngine : public QIconEngine
{
public:
    PartIconEngine(QIcon picture, QColor colour)
        : m_picture(std::move(picture))
        , m_colour(std::move(colour))
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        // Rectangles of pixmaps come in device pixels: all lengths follow the height.
        const int patch = m_picture.isNull() ? rect.height() : rect.height() * s_patchSide / 16;
        const QRect place(rect.right() - patch + 1, rect.top() + (rect.height() - patch) / 2, patch,
                          patch);
        if (!m_picture.isNull())
            m_picture.paint(painter, QRect(rect.topLeft(), QSize(rect.height(), rect.height())),
                            Qt::AlignCenter, mode, state);
        if (m_colour.isValid())
            ZVGuiTools::drawBeautifiedColorPatch(painter, place, m_colour,
                                                 ZVGuiTools::isFlatStyle(),
                                                 mode == QIcon::Disabled ? 110 : 255);
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        return m_colour.isValid() && !m_picture.isNull() ? size
                                                         : QSize(size.height(), size.height());
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new PartIconEngine(*this); }

private:
    QIcon m_picture;
    QColor m_colour;
};

} // namespace

QSize colourPatchSize()
{
    return {s_patchSide, s_patchSide};
}

QIcon colourIcon(const QColor& colour)
{
    return QIcon(new PartIconEngine({}, colour));
}

QIcon partIcon(const QIcon& picture, const QColor& colour)
{
    return QIcon(new PartIconEngine(picture, colour));
}

QIcon squareIcon(const QIcon& picture)
{
    return QIcon(new PartIconEngine(picture, {}));
}

QSize partIconSize(int pictureSize)
{
    return {pictureSize + (s_gap + s_patchSide) * pictureSize / 16, pictureSize};
}

} // namespace Zorvane::Workbench
