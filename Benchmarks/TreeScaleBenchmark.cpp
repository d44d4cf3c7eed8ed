// How many announcements a refresh of a long list makes, and how its cost grows with the list.

#include "Benchmarks/Support/RatioRow.h"
#include "Benchmarks/Support/TreeScenes.h"

#include <QtCore/QAbstractItemModel>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <limits>

using namespace Zorvane;
using namespace Zorvane::Benchmarks;

namespace {

double announcementsOf(const std::string& change)
{
    const Items before = makeTree({100000});
    SyncronizedScene scene("none");
    scene.show(change == "build" ? Items() : before);
    int announcements = 0;
    const auto count = [&announcements] { ++announcements; };
    const QAbstractItemModel& model = scene.model();
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model, count);
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model, count);
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, &model, count);
    QObject::connect(&model, &QAbstractItemModel::modelReset, &model, count);
    QObject::connect(&model, &QAbstractItemModel::dataChanged, &model, count);
    scene.refresh(rootOf(changedTree(before, change)));
    return announcements;
}

/** The best of several, in milliseconds of this thread's processor time. */
double timeOf(const std::string& change, int rows)
{
    const Items before = makeTree({rows});
    const auto after = rootOf(changedTree(before, change));
    SyncronizedScene scene("none");
    double best = std::numeric_limits<double>::max();
    for (int round = rows > 100000 ? 3 : 30; round > 0; --round) {
        scene.show({});
        scene.show(before);
        scene.prepare();
        const std::clock_t start = std::clock();
        scene.refresh(after);
        const double ticks = static_cast<double>(std::clock() - start);
        best = std::min(best, 1000.0 * ticks / CLOCKS_PER_SEC);
    }
    return best;
}

/** 1 where twice the rows cost twice the time. */
double growthOf(const std::string& change)
{
    return std::log(timeOf(change, 1000000) / timeOf(change, 10000)) / std::log(100.0);
}

} // namespace

int main(int argc, char** argv)
{
    for (const char* change : {"same", "label", "labels", "insert1", "delete1", "reverse", "rotate",
                               "shuffle", "build"}) {
        const std::string name = change;
        const double most = name == "label" || name == "labels" || name == "same" ? 1 : 4;
        addValueRow(
            "tree/signals/" + name, "announcements", [name] { return announcementsOf(name); },
            [most] { return most; });
    }
    addValueRow(
        "tree/growth/same", "exponent", [] { return growthOf("same"); }, [] { return 1.05; });
    addValueRow(
        "tree/growth/shuffle", "exponent", [] { return growthOf("shuffle"); }, [] { return 1.25; });
    return runRows(argc, argv);
}
