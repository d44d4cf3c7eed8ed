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
};

const std::vector<Setting>& settings()
{
    static const std::vector<Setting> s_settings{
        {"none", "100000", {100000}},
        {"view", "100000", {100000}},
        {"proxy", "10000", {10000}},
        {"sorted", "10000", {10000}},
        {"deep", "111110", {10, 10, 10, 10, 10}},
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
        for (const char* change : {"same", "label", "labels", "insert1", "delete1", "reverse",
                                   "rotate", "shuffle", "build"}) {
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

} // namespace

int main(int argc, char** argv)
{
    addTimeRows();
    return runRows(argc, argv);
}
