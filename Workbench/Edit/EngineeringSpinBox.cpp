#include "Workbench/Edit/EngineeringSpinBox.h"

#include "Utilities/NumberRepresentation.h"

#include <algorithm>
#include <cmath>

namespace Zorvane::Workbench {

namespace {

/** Nearly the largest float, from where on a number tells that nothing was measured. */
constexpr double s_most = 3e38;

} // namespace

EngineeringSpinBox::EngineeringSpinBox(double firstStep, int places, QWidget* parent)
    : QDoubleSpinBox(parent)
    , m_firstStep(firstStep)
{
    setDecimals(places);
    setRange(0, s_most);
    // What is being typed is no value yet.
    setKeyboardTracking(false);
    setCorrectionMode(QAbstractSpinBox::CorrectToPreviousValue);
}

void EngineeringSpinBox::stepBy(int steps)
{
    const double finest = std::pow(10.0, -decimals());
    // A number that has just been typed is stepped on from; the base class would step from the
    // value before it, or tell two changes.
    const double shown = hasAcceptableInput() ? valueFromText(text()) : value();
    const double suited = NumberRepresentation::optimalSpinnerIncrement(shown);
    setSingleStep(shown > 0 ? std::max(suited, finest) : m_firstStep);
    setValue(shown + steps * singleStep());
    selectAll();
}

QString EngineeringSpinBox::textFromValue(double value) const
{
    return QString::fromStdString(NumberRepresentation::convertToEngineeringNotation(value));
}

QString EngineeringSpinBox::numberIn(const QString& text) const
{
    QString number = text;
    if (!prefix().isEmpty() && number.startsWith(prefix()))
        number.remove(0, prefix().size());
    if (!suffix().isEmpty() && number.endsWith(suffix()))
        number.chop(suffix().size());
    return number.trimmed();
}

double EngineeringSpinBox::valueFromText(const QString& text) const
{
    const QString number = numberIn(text);
    if (number == textFromValue(value()) || text == specialValueText())
        return text == specialValueText() ? minimum() : value();
    bool isNumber = false;
    const double typed = locale().toDouble(number, &isNumber);
    return isNumber ? typed : value();
}

QValidator::State EngineeringSpinBox::validate(QString& text, int&) const
{
    const QString number = numberIn(text);
    if (!specialValueText().isEmpty() && text == specialValueText())
        return QValidator::Acceptable;
    bool isNumber = false;
    const double typed = locale().toDouble(number, &isNumber);
    if (isNumber && std::isfinite(typed))
        return typed >= minimum() && typed <= maximum() ? QValidator::Acceptable
                                                        : QValidator::Invalid;
    // The beginning of a number such as "1.", "25e" or "25e-": digits make it one.
    locale().toDouble(number + QLatin1Char('1'), &isNumber);
    return number.isEmpty() || isNumber ? QValidator::Intermediate : QValidator::Invalid;
}

} // namespace Zorvane::Workbench
