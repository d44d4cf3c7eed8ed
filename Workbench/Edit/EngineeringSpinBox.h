#pragma once

#include "Workbench/Design/Quantity.h"

#include <QtWidgets/QAbstractSpinBox>

namespace Zorvane::Workbench {

/**
 * Shows a quantity in engineering notation with its unit, takes what `TypedQuantity` reads, and
 * steps by what suits the value shown, about a hundredth of its decade.
 *
 * A text that is no quantity stays where it was typed, in red and with the reason as tool tip; the
 * value stays as it was. A value that is shown rounded stays as it is until another text is typed.
 */
class EngineeringSpinBox : public QAbstractSpinBox
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY entered)

public:
    explicit EngineeringSpinBox(Quantity quantity, QWidget* parent = nullptr);

    /** `noValue` without one. */
    double value() const { return m_value; }
    /** Replaces what was typed; emits nothing. */
    void setValue(double value);

    /** Takes what was typed, as Enter and leaving the box do. */
    void enter();
    /** Why the text entered last was not taken; empty if it was. */
    const QString& obstacle() const { return m_obstacle; }

    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /** The user has given another value; `noValue` for none. */
    void entered(double value);

protected:
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool isTyped() const { return text() != m_shown; }
    void change(double value);
    void showObstacle(const QString& obstacle);
    void judgeAgain();

    const Quantity m_quantity;
    double m_value = noValue;
    /** The text of the value. */
    QString m_shown;
    QString m_obstacle;
};

} // namespace Zorvane::Workbench
