#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtGui/QIconEngine>

#include <array>

namespace Zorvane {

/** Draws the icons of `createSvgIcon` and `createTwoSizeSvgIcon`. */
class SvgIconEngine : public QIconEngine
{
public:
    enum Kind
    {
        OneDrawing,
        SmallAndLargeDrawing
    };

    SvgIconEngine(const QString& path, Kind kind);
    ~SvgIconEngine() override;

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QString key() const override;
    QIconEngine* clone() const override;
    void virtual_hook(int id, void* data) override;

private:
    enum Drawing
    {
        Small,
        Large
    };

    SvgIconEngine(const SvgIconEngine& other);

    Drawing drawingFor(double logicalSize) const;
    QString fileOf(Drawing drawing) const;
    const QByteArray& contentOf(Drawing drawing);
    QPixmap drawn(const QSize& pixels, double scale, QIcon::Mode mode);

    QString m_path;
    Kind m_kind;
    /** By drawing; null until it is needed. */
    std::array<QByteArray, 2> m_contents;
};

} // namespace Zorvane
