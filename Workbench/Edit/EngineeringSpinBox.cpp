#include "Workbench/Edit/EngineeringSpinBox.h"

#include "Utilities/NumberRepresentation.h"
#include "Workbench/Edit/TypedQuantity.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSpinBox>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

/** Nearly the largest that a quantity can be. */
constexpr double mostStepped = 3e38;
/** Beyond them a sum of decimal fractions is noise. */
constexpr int certainDigits = 12;

double withoutNoise(double value)
{
    return QString::number(value, 'g', certainDigits).toDouble();
}

double firstStepOf(Quantity quantity)
{
    return quantity == Quantity::Thickness ? 0.1 : 1000;
}

QPalette refusalPalette(QPalette palette)
{
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    palette.setColor(QPalette::Base, dark ? QColor(0x4a, 0x20, 0x1c) : QColor(0xfd, 0xe8, 0xe5));
    palette.setColor(QPalette::Text, dark ? QColor(0xff, 0xb4, 0xa6) : QColor(0xa0, 0x22, 0x16));
    return palette;
}

} // namespace

EngineeringSpinBox::EngineeringSpinBox(Quantity quantity, QWidget* parent)
    : QAbstractSpinBox(parent)
    , m_quantity(quantity)
{
    // Also where all else runs from right to left, the unit stands behind the number.
    lineEdit()->setLayoutDirection(Qt::LeftToRight);
    setAlignment(isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    connect(this, &QAbstractSpinBox::editingFinished, this, &EngineeringSpinBox::enter);
    connect(lineEdit(), &QLineEdit::textEdited, this, &EngineeringSpinBox::judgeAgain);
    setValue(noValue);
}

void EngineeringSpinBox::setValue(double value)
{
    m_value = value;
    m_shown = quantityText(m_quantity, value);
    lineEdit()->setText(m_shown);
    showObstacle({});
    update();
}

void EngineeringSpinBox::enter()
{
    if (!isTyped())
        return;
    const TypedQuantity typed = TypedQuantity::read(text(), m_quantity, locale());
    if (typed.obstacle.isEmpty()) {
        change(typed.value);
        return;
    }
    showObstacle(typed.obstacle);
    // What is selected would hide the colours.
    lineEdit()->end(false);
    if (hasFocus())
        QToolTip::showText(mapToGlobal(rect().bottomLeft()), typed.obstacle, this);
}

void EngineeringSpinBox::change(double value)
{
    const bool isNew = value < m_value || value > m_value;
    setValue(value);
    if (isNew)
        Q_EMIT entered(value);
}

void EngineeringSpinBox::showObstacle(const QString& obstacle)
{
    if (obstacle == m_obstacle)
        return;
    const bool wasShown = !m_obstacle.isEmpty();
    m_obstacle = obstacle;
    setToolTip(obstacle);
    setAccessibleDescription(obstacle);
    if (obstacle.isEmpty())
        setPalette({});
    else if (!wasShown)
        setPalette(refusalPalette(palette()));
}

/** Red is taken back as soon as the text is a quantity. */
void EngineeringSpinBox::judgeAgain()
{
    if (!m_obstacle.isEmpty())
        showObstacle(TypedQuantity::read(text(), m_quantity, locale()).obstacle);
}

void EngineeringSpinBox::stepBy(int steps)
{
    // From what has just been typed, if it is a quantity.
    const TypedQuantity typed = TypedQuantity::read(text(), m_quantity, locale());
    const double shown = isTyped() && typed.obstacle.isEmpty() ? typed.value : m_value;
    const double from = isQuantity(shown) ? shown : 0;
    const double step =
        from > 0 ? NumberRepresentation::optimalSpinnerIncrement(from) : firstStepOf(m_quantity);
    change(std::clamp(withoutNoise(from + steps * step), 0.0, mostStepped));
    selectAll();
}

QAbstractSpinBox::StepEnabled EngineeringSpinBox::stepEnabled() const
{
    const bool isAboveZero = isTyped() || (isQuantity(m_value) && m_value > 0);
    return isAboveZero ? StepUpEnabled | StepDownEnabled : StepEnabled(StepUpEnabled);
}

void EngineeringSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || !isTyped()) {
        QAbstractSpinBox::keyPressEvent(event);
        return;
    }
    setValue(m_value);
    selectAll();
}

QSize EngineeringSpinBox::sizeHint() const
{
    ensurePolished();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QString longest = quantityText(m_quantity, 123.456e-6);
    const QSize content(fontMetrics().horizontalAdvance(longest), lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

} // namespace Zorvane::Workbench
