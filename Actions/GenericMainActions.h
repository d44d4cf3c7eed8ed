#pragma once

#include "UiToolsExport.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtGui/QKeySequence>

QT_BEGIN_NAMESPACE
class QAction;
class QChildEvent;
class QIcon;
class QWidget;
QT_END_NAMESPACE

namespace Zorvane {

/**
 * A table of actions by id, base of every command table of the suite. A subclass fills it once and
 * owns the actions as their `QObject` parent; callers fetch them by id, put them into menus and
 * tool bars, connect to them and install them on a window for their shortcuts.
 *
 * An id without an action yields one shared action that warns "Undefined action called" when it is
 * triggered, so that a forgotten command shows instead of doing nothing.
 *
 * An action that is deleted leaves the table; its id then yields the undefined action.
 *
 * Not supported: taking an action out of the table in another way, use outside of the GUI thread.
 */
class ZORVANE_UITOOLS_EXPORT GenericMainActions : public QObject
{
    Q_OBJECT

public:
    /** The action of this id, owned by the table; the undefined action where there is none. */
    virtual QAction* action(int id) const;
    /** The same as `action`. */
    QAction* operator[](int id) const;

    /**
     * Connects the action's `triggered()` to a member named by `SLOT()` or `SIGNAL()`. Only for
     * registered ids: another one is entered without an action, Qt warns of the missing sender,
     * and from then on `action` yields null for it.
     */
    void connect(int id, const QObject* receiver, const char* member);
    /** Ends what `connect` made, under the same rules. A null receiver or member means all. */
    void disconnect(int id, const QObject* receiver, const char* member);

    /** Sets the tool tip, followed by the action's shortcut. An empty one changes nothing. */
    void changeToolTip(int id, const QString& toolTip);

    /**
     * Adds the actions to the widget, in the order of their ids, so that their shortcuts work in
     * its window. Actions whose context is not `Qt::WindowShortcut` are left out.
     */
    void registerApplicationActions(QWidget* widget);
    /** The same for some actions in this order. All ids must be registered ones. */
    void registerApplicationActions(const QList<int>& ids, QWidget* widget);

protected:
    explicit GenericMainActions(QObject* parent);
    ~GenericMainActions() override;

    /**
     * A new action, owned by `parent`, for the caller to register. The shortcut stands behind the
     * tool tip. A null icon and empty texts are not set; without a tool tip Qt shows the text.
     */
    QAction* createAction(const QString& text, const QIcon& icon, const QString& toolTip,
                          QKeySequence shortcut, QObject* parent, const QString& objectName) const;
    /** Writes the id of each action registered so far into its data. */
    void mapReverse();

    void childEvent(QChildEvent* event) override;

    /**
     * By id. An entry is null only after `connect` or `disconnect` of an unregistered id. An action
     * that neither `createAction` made nor has the table as its parent must outlive the table.
     */
    QMap<int, QAction*> m_actions;

protected Q_SLOTS:
    /** Called when the undefined action is triggered. Shows the warning. */
    virtual void notDefinedAction();

private:
    void createUndefinedAction();
    /** Takes an action that is being destroyed out of the table. */
    void forget(const QObject* destroyed);
    void install(QAction* action, QWidget* widget) const;

    QAction* m_undefinedAction = nullptr;
};

} // namespace Zorvane
