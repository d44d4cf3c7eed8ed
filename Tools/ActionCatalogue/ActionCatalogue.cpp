#include "Tools/ActionCatalogue/ActionCatalogue.h"

#include "Actions/ZVGlobalActions.h"
#include "Actions/ZVMainActions.h"
#include "Host/Widgets/ZVExclusiveActionGroup.h"

#include <QtCore/QMap>
#include <QtCore/QMetaEnum>
#include <QtGui/QIcon>
#include <QtWidgets/QAction>

namespace Zorvane::Tools {

namespace {

/** The actions that each shortcut means, by its portable text. */
using ByShortcut = QMap<QString, QStringList>;

QString cell(QString text)
{
    return text.replace(QLatin1Char('|'), QStringLiteral("\\|"));
}

QString code(const QString& text)
{
    return text.isEmpty() ? QString() : QLatin1Char('`') + text + QLatin1Char('`');
}

QList<QAction*> actionsOf(const GenericMainActions& table)
{
    auto actions = table.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    // The first one stands for ids without an action.
    actions.removeFirst();
    return actions;
}

template <typename Enumeration>
QMap<const QAction*, QString> namesOf(const GenericMainActions& table)
{
    QMap<const QAction*, QString> names;
    const QMetaEnum values = QMetaEnum::fromType<Enumeration>();
    for (int i = 0; i < values.keyCount(); ++i)
        names[table[values.value(i)]] = QString::fromLatin1(values.key(i));
    return names;
}

QString groupText(const QAction* action)
{
    const QActionGroup* const group = action->actionGroup();
    if (!group)
        return {};
    const auto* const byValue = qobject_cast<const ZVExclusiveActionGroup*>(group);
    if (!byValue)
        return QStringLiteral("one of `%1`").arg(group->objectName());
    ZVMainActions* const table = ZVMainActions::getInstance();
    return QStringLiteral("value %1 of the %2")
        .arg(byValue->value(action).toString(), group == table->getViewReferenceCoordSysGroup()
                                                    ? QStringLiteral("coordinate systems")
                                                    : QStringLiteral("stations shown"));
}

QString stateText(const QAction* action)
{
    QStringList words;
    if (action->isCheckable())
        words << (action->isChecked() ? QStringLiteral("on") : QStringLiteral("off"));
    if (!action->isEnabled())
        words << QStringLiteral("disabled");
    const QString group = groupText(action);
    if (!group.isEmpty())
        words << group;
    return words.join(QStringLiteral(", "));
}

QString toolTipText(const QAction* action)
{
    // Without a tool tip of its own, an action shows its text.
    const QAction bare(action->text());
    const QString suffix = QStringLiteral("    ") + action->shortcut().toString();
    QString toolTip = action->toolTip();
    if (toolTip == bare.toolTip())
        return {};
    if (!action->shortcut().isEmpty() && toolTip.endsWith(suffix))
        toolTip.chop(suffix.size());
    return toolTip;
}

QString shortcutText(const QAction* action, const ByShortcut& byShortcut)
{
    const QString text = action->shortcut().toString();
    if (text.isEmpty())
        return {};
    return code(text) + (byShortcut[text].size() > 1 ? QStringLiteral(" *") : QString());
}

QString textOf(const QAction* action)
{
    QString text = action->text();
    return text.remove(QLatin1Char('&'));
}

QString row(const QAction* action, const QString& name, const ByShortcut& byShortcut)
{
    const QStringList cells{
        code(name),
        cell(textOf(action)),
        cell(toolTipText(action)),
        shortcutText(action, byShortcut),
        action->icon().isNull() ? QString() : QStringLiteral("yes"),
        stateText(action),
        code(action->objectName()),
    };
    return QStringLiteral("| %1 |\n").arg(cells.join(QStringLiteral(" | ")));
}

QString tableOf(const GenericMainActions& table, const QMap<const QAction*, QString>& names,
                const ByShortcut& byShortcut)
{
    QString text =
        QStringLiteral("| Value | Text | Tool tip | Shortcut | Icon | At first | Object name |\n"
                       "|---|---|---|---|---|---|---|\n");
    for (const QAction* const action : actionsOf(table))
        text += row(action, names.value(action), byShortcut);
    return text;
}

QString sharedShortcuts(const ByShortcut& byShortcut)
{
    QString text;
    for (auto entry = byShortcut.cbegin(); entry != byShortcut.cend(); ++entry)
        if (entry->size() > 1)
            text +=
                QStringLiteral("- `%1`: %2\n").arg(entry.key(), entry->join(QStringLiteral(", ")));
    return text;
}

} // namespace

QString actionCatalogue()
{
    ZVMainActions::createInstance();
    const ZVMainActions& main = *ZVMainActions::getInstance();
    const ZVGlobalActions& global = *ZVGlobalActions::instance();
    const auto mainNames = namesOf<ZVMainActions::Actions>(main);
    const auto globalNames = namesOf<ZVGlobalActions::Actions>(global);
    ByShortcut byShortcut;
    for (const QAction* const action : actionsOf(main))
        if (!action->shortcut().toString().isEmpty())
            byShortcut[action->shortcut().toString()] << code(mainNames.value(action));
    for (const QAction* const action : actionsOf(global))
        byShortcut[action->shortcut().toString()] << code(globalNames.value(action));
    return QStringLiteral(
               "# Actions\n\n"
               "The commands that the suite's applications share, in the order in which they are\n"
               "created. Written by `action-catalogue` from the tables at run time; don't edit.\n\n"
               "Standard shortcuts are those of Windows. A value without a name is reached by\n"
               "its group. An empty tool tip shows the text; one that is set has the shortcut\n"
               "behind it.\n\n"
               "## Shared shortcuts\n\n"
               "These shortcuts, marked * below, are shared by commands of different modes by\n"
               "design. A window installs those of its mode only.\n\n"
               "%1\n"
               "## Main actions\n\n"
               "`ZVMainActions::Actions`.\n\n"
               "%2\n"
               "## Global actions\n\n"
               "`ZVGlobalActions::Actions`: the same in every window.\n\n"
               "%3")
        .arg(sharedShortcuts(byShortcut), tableOf(main, mainNames, byShortcut),
             tableOf(global, globalNames, byShortcut));
}

} // namespace Zorvane::Tools
