#include "Actions/ZVMainActions.h"
#include "Benchmarks/Support/RatioRow.h"

#include <QtWidgets/QAction>

#include <memory>

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

} // namespace

} // namespace Zorvane::Benchmarks

int main(int argc, char** argv)
{
    using namespace Zorvane::Benchmarks;
    addTimeRow("actions/create", benchmark::kMicrosecond, createTable, createBareActions);
    return runRows(argc, argv);
}
