#include "Actions/ZVMainActions.h"
#include "Benchmarks/Support/RatioRow.h"

#include <QtCore/QMap>
#include <QtGui/QIcon>
#include <QtWidgets/QAction>
#include <QtWidgets/QActionGroup>

#include <ctime>
#include <memory>
#include <vector>

namespace Zorvane::Benchmarks {

namespace {

constexpr int s_bareActions = 118;

void createTable(benchmark::State& state)
{
    for (auto _ : state) {
        ZVMainActions::createInstance();
        benchmark::DoNotOptimize(ZVMainActions::getInstance());
        state.PauseTiming();
        ZVMainActions::releaseInstance();
        state.ResumeTiming();
    }
}

void createBareActions(benchmark::State& state)
{
    for (auto _ : state) {
        auto parent = std::make_unique<QObject>();
        for (int i = 0; i < s_bareActions; ++i)
            benchmark::DoNotOptimize(new QAction(parent.get()));
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
}

/** What an action of the table shows, all of it made beforehand. */
struct Properties
{
    QString objectName;
    QString text;
    /** Empty where it is what Qt makes of the text. */
    QString toolTip;
    QKeySequence shortcut;
    QIcon icon;
    bool isCheckable;
    bool isChecked;
    bool isEnabled;
    /** Null outside of groups; only to tell the groups apart. */
    const QActionGroup* group;
};

Properties propertiesOf(const QAction* action)
{
    const QAction plain(action->text());
    const QString toolTip = action->toolTip() == plain.toolTip() ? QString() : action->toolTip();
    return {action->objectName(), action->text(),      toolTip,
            action->shortcut(),   action->icon(),      action->isCheckable(),
            action->isChecked(),  action->isEnabled(), action->actionGroup()};
}

std::vector<Properties> propertiesOfTable()
{
    ZVMainActions::createInstance();
    std::vector<Properties> all;
    for (const QObject* const child : ZVMainActions::getInstance()->children()) {
        const auto* const action = qobject_cast<const QAction*>(child);
        // The undefined action has no name; it is no row of the table.
        if (action && !action->objectName().isEmpty())
            all.push_back(propertiesOf(action));
    }
    ZVMainActions::releaseInstance();
    return all;
}

QAction* createWithProperties(const Properties& properties, QObject* parent)
{
    auto* const action = new QAction(properties.icon, properties.text, parent);
    if (!properties.shortcut.isEmpty())
        action->setShortcut(properties.shortcut);
    if (!properties.toolTip.isEmpty())
        action->setToolTip(properties.toolTip);
    action->setObjectName(properties.objectName);
    action->setCheckable(properties.isCheckable);
    action->setChecked(properties.isChecked);
    action->setEnabled(properties.isEnabled);
    return action;
}

/** The least that actions of these properties take in Qt: no table, look-up or translation. */
void createActionsWithProperties(benchmark::State& state)
{
    static const std::vector<Properties> s_all = propertiesOfTable();
    for (auto _ : state) {
        auto parent = std::make_unique<QObject>();
        QMap<const QActionGroup*, QActionGroup*> groups;
        for (const Properties& properties : s_all) {
            QAction* const action = createWithProperties(properties, parent.get());
            if (!properties.group)
                continue;
            QActionGroup*& group = groups[properties.group];
            if (!group)
                group = new QActionGroup(parent.get());
            group->addAction(action);
        }
        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
}

/** In milliseconds of this process, in which no table was created before. */
double firstCreation()
{
    // Qt's own first action is not the table's to save.
    const QAction first(QIcon(), QStringLiteral("First"), nullptr);
    const std::clock_t begin = std::clock();
    ZVMainActions::createInstance();
    const std::clock_t end = std::clock();
    ZVMainActions::releaseInstance();
    return 1000.0 * double(end - begin) / CLOCKS_PER_SEC;
}

} // namespace

} // namespace Zorvane::Benchmarks

int main(int argc, char** argv)
{
    using namespace Zorvane::Benchmarks;
    // First, since it counts once a process only. A start should not notice it.
    addValueRow("actions/first", "ms", firstCreation, [] { return 1.0; });
    addTimeRow("actions/create", benchmark::kMicrosecond, createTable, createBareActions);
    // Qt's own part of that, which no table can save: at most 2.5.
    addTimeRow("actions/properties", benchmark::kMicrosecond, createTable,
               createActionsWithProperties);
    return runRows(argc, argv);
}
