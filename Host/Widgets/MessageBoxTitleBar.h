#pragma once

#include <QtCore/QPoint>
#include <QtWidgets/QWidget>

class QLabel;
class QToolButton;

namespace Zorvane {

/** The title and close button that a box without a system frame draws itself; moves its window. */
class MessageBoxTitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBoxTitleBar(QWidget* window);

    QToolButton* closeButton() const { return m_closeButton; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QLabel* m_title;
    QToolButton* m_closeButton;
    QPoint m_grip;
};

} // namespace Zorvane
