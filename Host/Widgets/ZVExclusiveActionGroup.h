#pragma once

#include "Host/HostExport.h"

#include <QtCore/QVariant>
#include <QtWidgets/QActionGroup>

namespace Zorvane {

/**
 * Actions of which at most one is checked, each standing for a value: what the user chose is asked
 * for and set by value. As with `QActionGroup`, the group does not own the actions, and an action
 * taken out or deleted is no longer part of it.
 *
 * Not supported: two actions of the same value; the one added first is then the one set.
 */
class ZORVANE_HOST_EXPORT ZVExclusiveActionGroup : public QActionGroup
{
    Q_OBJECT

public:
    explicit ZVExclusiveActionGroup(QObject* parent);

    /** Adds a checkable action. Returns it; one added again gets the new value. */
    QAction* addAction(QAction* action, const QVariant& value);

    /** The value of the checked action; invalid while none is checked. */
    QVariant value() const;
    /** The value that an action was added with; invalid for an action of no or another group. */
    QVariant value(const QAction* action) const;
    /** The action of this value; null where there is none. */
    QAction* actionOf(const QVariant& value) const;

public Q_SLOTS:
    /** Checks the action of this value, also a disabled one. Does nothing if there is none. */
    void setValue(const QVariant& value);

Q_SIGNALS:
    /** Another action is checked, by the user or by code. */
    void valueChanged(const QVariant& value);

private:
    void announceWhenChecked(bool checked);
};

} // namespace Zorvane
