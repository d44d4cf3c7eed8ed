#include "Benchmarks/Support/RatioRow.h"
#include "Host/Identifiers/IDCombiner.h"

#include <map>
#include <unordered_map>
#include <vector>

namespace Zorvane::Benchmarks {

namespace {

constexpr std::uint64_t s_idCount = 100'000;

/** The ids of a large design, in an order that has nothing to do with their values. */
std::vector<IDCombiner> shuffledIds()
{
    std::vector<IDCombiner> ids;
    ids.reserve(s_idCount);
    for (std::uint64_t i = 0; i < s_idCount; ++i)
        ids.emplace_back(Identifier(i * 48'271 % s_idCount));
    return ids;
}

template <typename Map>
void findEveryId(benchmark::State& state)
{
    const std::vector<IDCombiner> ids = shuffledIds();
    Map map;
    for (std::size_t i = 0; i < ids.size(); ++i)
        map.emplace(ids[i], i);

    for (auto _ : state) {
        std::size_t sum = 0;
        for (const IDCombiner& id : ids)
            sum += map.find(id)->second;
        benchmark::DoNotOptimize(sum);
    }
}

} // namespace

} // namespace Zorvane::Benchmarks

int main(int argc, char** argv)
{
    using namespace Zorvane;
    Benchmarks::addTimeRow("ids/hash", benchmark::kMillisecond,
                           Benchmarks::findEveryId<std::unordered_map<IDCombiner, std::size_t>>,
                           Benchmarks::findEveryId<std::map<IDCombiner, std::size_t>>);
    return Benchmarks::runRows(argc, argv);
}
