#pragma once

#include <QtCore/QPoint>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPalette;
class QToolButton;
QT_END_NAMESPACE

namespace Zorvane {

/**
 * The colours of a title bar and of the frame around its window: of the roles that every palette
 * sets. Their text has a contrast of 4.5 at least, whatever the palette is.
 */
struct TitleColors
{
    explicit TitleColors(const QPalette& palette);

    QColor background;
    QColor text;
    QColor frame;
};

/** The title and close button that a box without a system frame draws itself; moves its window. */
class MessageBoxTitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBoxTitleBar(QWidget* window);

    QToolButton* closeButton() const { return m_closeButton; }

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setUpCloseButton();

    QLabel* m_title;
    QToolButton* m_closeButton;
    QPoint m_grip;
};

} // namespace Zorvane
