#include "Workbench/Edit/QuantityPanel.h"

#include "Workbench/Design/DesignSession.h"
#include "Workbench/Edit/EngineeringSpinBox.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace Zorvane::Workbench {

namespace {

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
    const Row row{new QLabel(labelText(quantity), this), new EngineeringSpinBox(quantity, this)};
    row.label->setBuddy(row.spinBox);
    row.spinBox->setAccessibleName(quantityName(quantity));
    connect(row.spinBox, &EngineeringSpinBox::entered, this,
            [this, quantity](double value) { Q_EMIT edited(m_object, quantity, value); });
    return row;
}

void QuantityPanel::show(const GUIdentifier& object)
{
    if (object != m_object)
        leaveObject();
    m_object = object;
    bool isAny = false;
    for (const Quantity quantity : s_quantities)
        isAny |= showRow(quantity);
    setVisible(isAny);
}

/** What is typed but not entered belongs to it. */
void QuantityPanel::leaveObject()
{
    for (const auto& [quantity, row] : m_rows) {
        row.spinBox->enter();
        const QString obstacle = row.spinBox->obstacle();
        row.spinBox->setValue(row.spinBox->value());
        if (!obstacle.isEmpty())
            Q_EMIT refused(tr("%1 stays as it was: %2").arg(quantityName(quantity), obstacle));
    }
}

bool QuantityPanel::showRow(Quantity quantity)
{
    const Row& row = m_rows.at(quantity);
    const std::optional<double> value = m_session.quantity(m_object, quantity);
    row.label->setVisible(value.has_value());
    row.spinBox->setVisible(value.has_value());
    // A number that is being typed stays while the rest of the design changes.
    if (value && *value != row.spinBox->value())
        row.spinBox->setValue(*value);
    return value.has_value();
}

} // namespace Zorvane::Workbench
