#include "Host/Widgets/ZVExclusiveActionGroup.h"

#include <QtWidgets/QAction>

namespace Zorvane {

namespace {

/** Kept at the action, and deleted with it. */
constexpr char s_valueProperty[] = "zorvaneExclusiveValue";

} // namespace

ZVExclusiveActionGroup::ZVExclusiveActionGroup(QObject* parent)
    : QActionGroup(parent)
{}

QAction* ZVExclusiveActionGroup::addAction(QAction* action, const QVariant& value)
{
    action->setProperty(s_valueProperty, value);
    connect(action, &QAction::toggled, this, &ZVExclusiveActionGroup::announceWhenChecked,
            Qt::UniqueConnection);
    return QActionGroup::addAction(action);
}

QVariant ZVExclusiveActionGroup::value() const
{
    return value(checkedAction());
}

QVariant ZVExclusiveActionGroup::value(const QAction* action) const
{
    return action && action->actionGroup() == this ? action->property(s_valueProperty) : QVariant();
}

QAction* ZVExclusiveActionGroup::actionOf(const QVariant& value) const
{
    for (QAction* const action : actions())
        if (this->value(action) == value)
            return action;
    return nullptr;
}

void ZVExclusiveActionGroup::setValue(const QVariant& value)
{
    if (QAction* const action = actionOf(value))
        action->setChecked(true);
}

void ZVExclusiveActionGroup::announceWhenChecked(bool checked)
{
    const QVariant chosen = value(qobject_cast<QAction*>(sender()));
    if (checked && chosen.isValid())
        Q_EMIT valueChanged(chosen);
}

} // namespace Zorvane
