#include "Workbench/Edit/QuantityPanel.h"

#include "Workbench/Design/DesignSession.h"
#include "Workbench/Edit/EngineeringSpinBox.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <cmath>

namespace Zorvane::Workbench {

namespace {

/** Where stepping up begins, and to how many places values are kept. */
struct Fineness
{
    double firstStep;
    int places;
};

Fineness finenessOf(Quantity quantity)
{
    return quantity == Quantity::Thickness ? Fineness{0.1, 6} : Fineness{1000, 3};
}

/** As far as the places of the box go. */
bool isShown(const EngineeringSpinBox& box, double value)
{
    return std::abs(box.value() - value) < 0.6 * std::pow(10.0, -box.decimals());
}

QString labelText(Quantity quantity)
{
    // Letters that no menu of the window has.
    return quantity == Quantity::Thickness ? QuantityPanel::tr("Thic&kness:")
                                           : QuantityPanel::tr("F&orce:");
}

} // namespace

QuantityPanel::QuantityPanel(const DesignSession& session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setColumnStretch(1, 1);
    for (const Quantity quantity : s_quantities) {
        const Row row = createRow(quantity);
        const int line = layout->rowCount();
        layout->addWidget(row.label, line, 0);
        layout->addWidget(row.spinBox, line, 1);
        m_rows.emplace(quantity, row);
    }
    hide();
}

QuantityPanel::Row QuantityPanel::createRow(Quantity quantity)
{
    const Fineness fineness = finenessOf(quantity);
    const Row row{new QLabel(labelText(quantity), this),
                  new EngineeringSpinBox(fineness.firstStep, fineness.places, this)};
    row.label->setBuddy(row.spinBox);
    row.spinBox->setAccessibleName(quantityName(quantity));
    row.spinBox->setSuffix(QLatin1Char(' ') + quantityUnit(quantity));
    row.spinBox->setSpecialValueText(quantityText(quantity, 0));
    connect(row.spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, quantity](double value) { Q_EMIT edited(m_object, quantity, value); });
    return row;
}

void QuantityPanel::show(const GUIdentifier& object)
{
    if (object != m_object) {
        // What is typed but not entered belongs to the object before.
        for (const auto& [quantity, row] : m_rows)
            if (row.spinBox->hasFocus())
                row.spinBox->interpretText();
    }
    m_object = object;
    bool isAny = false;
    for (const Quantity quantity : s_quantities)
        isAny |= showRow(quantity);
    setVisible(isAny);
}

bool QuantityPanel::showRow(Quantity quantity)
{
    const Row& row = m_rows.at(quantity);
    const std::optional<double> value = m_session.quantity(m_object, quantity);
    row.label->setVisible(value.has_value());
    row.spinBox->setVisible(value.has_value());
    // A number that is being typed stays while the rest of the design changes.
    if (value && !isShown(*row.spinBox, *value)) {
        const QSignalBlocker silence(row.spinBox);
        row.spinBox->setValue(*value);
    }
    return value.has_value();
}

} // namespace Zorvane::Workbench
