#pragma once

#include <QtWidgets/QFrame>

QT_BEGIN_NAMESPACE
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * Says one thing above the contents of a window, until it is closed or something newer is said.
 * Interrupts nobody; screen readers are told. Hidden at first.
 */
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent = nullptr);

    void say(const QString& text);
    /** The text shown; empty when hidden. */
    QString text() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void colour();

    QLabel* m_icon;
    QLabel* m_text;
    QToolButton* m_close;
    bool m_colouring = false;
};

} // namespace Zorvane::Workbench
