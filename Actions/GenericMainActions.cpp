#include "Actions/GenericMainActions.h"

#include "Host/Widgets/ZVMessageBox.h"

#include <QtCore/QChildEvent>
#include <QtCore/QVariant>
#include <QtGui/QIcon>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDesktopWidget>

#include <iterator>

namespace Zorvane {

namespace {

QString withShortcut(const QString& toolTip, const QKeySequence& shortcut)
{
    return toolTip + QLatin1String("    ") + shortcut.toString(QKeySequence::PortableText);
}

} // namespace

GenericMainActions::GenericMainActions(QObject* parent)
    : QObject(parent)
{
    createUndefinedAction();
}

GenericMainActions::~GenericMainActions() = default;

QAction* GenericMainActions::action(int id) const
{
    return m_actions.value(id, m_undefinedAction);
}

QAction* GenericMainActions::operator[](int id) const
{
    return action(id);
}

void GenericMainActions::connect(int id, const QObject* receiver, const char* member)
{
    QObject::connect(m_actions[id], SIGNAL(triggered()), receiver, member, Qt::AutoConnection);
}

void GenericMainActions::disconnect(int id, const QObject* receiver, const char* member)
{
    QObject::disconnect(m_actions[id], SIGNAL(triggered()), receiver, member);
}

void GenericMainActions::changeToolTip(int id, const QString& toolTip)
{
    QAction* const changed = action(id);
    if (!changed || toolTip.isEmpty())
        return;
    const QKeySequence shortcut = changed->shortcut();
    changed->setToolTip(shortcut.isEmpty() ? toolTip : withShortcut(toolTip, shortcut));
}

QAction* GenericMainActions::createAction(const QString& text, const QIcon& icon,
                                          const QString& toolTip, QKeySequence shortcut,
                                          QObject* parent, const QString& objectName) const
{
    auto* const created = new QAction(icon, text, parent);
    const bool hasShortcut = !shortcut.isEmpty();
    if (hasShortcut)
        created->setShortcut(shortcut);
    if (!toolTip.isEmpty())
        created->setToolTip(hasShortcut ? withShortcut(toolTip, shortcut) : toolTip);
    if (!objectName.isEmpty())
        created->setObjectName(objectName);
    if (parent != this)
        QObject::connect(created, &QObject::destroyed, this, &GenericMainActions::forget);
    return created;
}

void GenericMainActions::mapReverse()
{
    for (auto entry = m_actions.cbegin(); entry != m_actions.cend(); ++entry)
        if (entry.value())
            entry.value()->setData(QVariant(entry.key()));
}

void GenericMainActions::registerApplicationActions(QWidget* widget)
{
    for (QAction* const registered : qAsConst(m_actions))
        install(registered, widget);
}

void GenericMainActions::registerApplicationActions(const QList<int>& ids, QWidget* widget)
{
    for (const int id : ids) {
        QAction* const registered = m_actions[id];
        Q_ASSERT_X(registered, "registerApplicationActions", "an id without an action");
        install(registered, widget);
    }
}

void GenericMainActions::childEvent(QChildEvent* event)
{
    if (!event->removed())
        return;
    // A child that is being destroyed is no longer an action; any other has a new parent.
    if (const auto* const moved = qobject_cast<QAction*>(event->child()))
        QObject::connect(moved, &QObject::destroyed, this, &GenericMainActions::forget,
                         Qt::UniqueConnection);
    else
        forget(event->child());
}

void GenericMainActions::forget(const QObject* destroyed)
{
    for (auto entry = m_actions.begin(); entry != m_actions.end();)
        entry = entry.value() == destroyed ? m_actions.erase(entry) : std::next(entry);
    if (m_undefinedAction == destroyed)
        createUndefinedAction();
}

void GenericMainActions::createUndefinedAction()
{
    m_undefinedAction = new QAction(tr("???"), this);
    QObject::connect(m_undefinedAction, &QAction::triggered, this,
                     &GenericMainActions::notDefinedAction);
}

void GenericMainActions::install(QAction* action, QWidget* widget) const
{
    // Null after an id that was never registered was connected.
    if (action && action->shortcutContext() == Qt::WindowShortcut)
        widget->addAction(action);
}

void GenericMainActions::notDefinedAction()
{
    const QString text = QStringLiteral("Undefined action called");
    ZVMessageBox::warning(QApplication::desktop(), text, text, QMessageBox::Ok,
                          QMessageBox::NoButton);
}

} // namespace Zorvane
