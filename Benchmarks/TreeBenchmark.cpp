// What a refresh of a tree costs against clearing and filling Qt's own model with the same rows.

#include "Benchmarks/Support/RatioRow.h"
#include "Benchmarks/Support/TreeScenes.h"

#include <map>

using namespace Zorvane;
using namespace Zorvane::Benchmarks;

namespace {

struct Setting
{
    const char* attached;
    const char* size;
    std::vector<int> fanOuts;
    std::vector<const char*> changes{"same",    "label",  "labels",  "insert1", "delete1",
                                     "reverse", "rotate", "shuffle", "build"};
};

const std::vector<Setting>& settings()
{
    static const std::vector<Setting> s_settings{
        {"none", "100000", {100000}},
        {"view", "100000", {100000}},
        {"proxy", "10000", {10000}},
        {"sorted", "10000", {10000}},
        {"deep", "111110", {10, 10, 10, 10, 10}},
        {"deep-all", "111110", {10, 10, 10, 10, 10}, {"insert1", "delete1"}},
    };
    return s_settings;
}

/** Trees are made once and shared by all rows that need them. */
const Items& treeOf(const Setting& setting)
{
    static std::map<std::string, Items> s_trees;
    Items& tree = s_trees[setting.size];
    if (tree.empty())
        tree = makeTree(setting.fanOuts);
    return tree;
}

void measureChange(benchmark::State& state, const Setting& setting, const std::string& change)
{
    const Items& before = treeOf(setting);
    const Items start = change == "build" ? Items() : before;
    const auto after = rootOf(changedTree(before, change));
    SyncronizedScene scene(setting.attached);
    for (auto _ : state) {
        state.PauseTiming();
        scene.show({});
        scene.show(start);
        scene.prepare();
        state.ResumeTiming();
        scene.refresh(after);
    }
}

/** The peer is given the same tree to show. */
void measureRebuild(benchmark::State& state, const Setting& setting, const std::string& change)
{
    const Items items = changedTree(treeOf(setting), change);
    RebuiltScene scene(setting.attached);
    scene.rebuild(items);
    for (auto _ : state) {
        state.PauseTiming();
        scene.prepare();
        state.ResumeTiming();
        scene.rebuild(items);
    }
}

void addTimeRows()
{
    for (const Setting& setting : settings()) {
        for (const char* change : setting.changes) {
            const std::string name =
                std::string("tree/") + setting.attached + "/" + change + "/" + setting.size;
            addTimeRow(
                name, benchmark::kMillisecond,
                [&setting, change](benchmark::State& state) {
                    measureChange(state, setting, change);
                },
                [&setting, change](benchmark::State& state) {
                    measureRebuild(state, setting, change);
                });
        }
    }
}

/** Most items, or all, are those that are shown already. */
void measureShared(benchmark::State& state, bool isChanged)
{
    const Items before = makeTree({1000, 1000});
    SyncronizedScene scene("none");
    scene.show(before);
    Items shown = before;
    for (auto _ : state) {
        state.PauseTiming();
        if (isChanged)
            shown = handedOnTree(shown);
        const auto root = rootOf(shown);
        scene.prepare();
        state.ResumeTiming();
        scene.refresh(root);
    }
}

void measureRebuildOfMillion(benchmark::State& state)
{
    const Items items = makeTree({1000, 1000});
    RebuiltScene scene("none");
    for (auto _ : state)
        scene.rebuild(items);
}

void addSharedRows()
{
    for (const bool isChanged : {true, false}) {
        addTimeRow(
            isChanged ? "tree/shared/label/1000000" : "tree/shared/same/1000000",
            benchmark::kMillisecond,
            [isChanged](benchmark::State& state) { measureShared(state, isChanged); },
            measureRebuildOfMillion);
    }
}

template <typename Write>
void measureValues(benchmark::State& state, Write write)
{
    int round = 0;
    for (auto _ : state)
        write(QVariant(QString::number(++round)));
}

void addValueRows()
{
    static const Items s_items = makeTree({20000});
    const auto ours = [](benchmark::State& state) {
        SyncronizedScene scene("view", 4);
        const auto root = rootOf(s_items);
        scene.refresh(root);
        scene.prepare();
        measureValues(state, [&](const QVariant& value) { scene.writeAll(root, value); });
    };
    const auto peer = [](benchmark::State& state) {
        RebuiltScene scene("view", 4);
        scene.rebuild(s_items);
        scene.prepare();
        measureValues(state, [&](const QVariant& value) { scene.writeAll(value); });
    };
    addTimeRow("tree/values/refresh-all", benchmark::kMillisecond, ours, peer);
}

} // namespace

int main(int argc, char** argv)
{
    addTimeRows();
    addSharedRows();
    addValueRows();
    return runRows(argc, argv);
}
