#pragma once

#include <QtWidgets/QDoubleSpinBox>

namespace Zorvane::Workbench {

/**
 * A spin box for measured values from 0 on. Shows them in engineering notation, takes them in any
 * notation that the locale knows, and steps by what suits the value shown, about a hundredth of its
 * decade. 0, from where there is no such step, goes up by `firstStep`; it is the place for
 * `setSpecialValueText`.
 *
 * A value that is shown rounded stays as it is until another text is typed.
 * Not supported: group separators, and values below 0.
 */
class EngineeringSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /** Values are kept to this many places behind the decimal point. */
    EngineeringSpinBox(double firstStep, int places, QWidget* parent = nullptr);

    void stepBy(int steps) override;
    QString textFromValue(double value) const override;
    double valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;

private:
    QString numberIn(const QString& text) const;

    const double m_firstStep;
};

} // namespace Zorvane::Workbench
