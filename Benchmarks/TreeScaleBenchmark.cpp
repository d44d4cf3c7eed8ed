// How many announcements a refresh of a long list makes, and how its cost grows with the list.

#include "Benchmarks/Support/RatioRow.h"
#include "Benchmarks/Support/TreeScenes.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QApplication>

#include <cmath>
#include <cstdlib>

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

void refreshOnce(const std::string& change, int rows)
{
    SyncronizedScene scene("none");
    if (change == "duplicates") {
        const auto [before, after] = makeDuplicates(rows);
        scene.show(before);
        scene.refresh(rootOf(after));
        return;
    }
    if (change == "shared") {
        const Items groups = makeTree({rows / 100, 100});
        scene.show(groups);
        scene.refresh(rootOf(handedOnTree(groups)));
        return;
    }
    const Items all = makeTree({rows});
    if (change == "inTurn") {
        // Rows are appended; then they and the others change places.
        scene.show(Items(all.begin(), all.end() - rows / 10));
        scene.refreshInTurn({rootOf(all), rootOf(changedTree(all, "shuffle"))});
        return;
    }
    const auto after = rootOf(changedTree(all, change));
    scene.show(all);
    scene.refresh(after);
}

/**
 * The instructions of one refresh, counted by running this program again on a simulated processor:
 * times of long and short lists differ by what fits into the processor's caches as well.
 */
double instructionsOf(const std::string& change, int rows)
{
    QProcess counter;
    counter.start(QStringLiteral("valgrind"),
                  {QStringLiteral("--tool=callgrind"), QStringLiteral("--collect-atstart=no"),
                   QStringLiteral("--toggle-collect=*SyncronizedScene::refresh*"),
                   QStringLiteral("--callgrind-out-file=/dev/null"),
                   QCoreApplication::applicationFilePath(), QStringLiteral("--refresh"),
                   QString::fromStdString(change), QString::number(rows)});
    counter.waitForFinished(-1);
    const QString report = QString::fromLocal8Bit(counter.readAllStandardError());
    const QRegularExpression collected(QStringLiteral("Collected : (\\d+)"));
    return collected.match(report).captured(1).toDouble();
}

/** 1 where twice the rows cost twice the instructions. Not a number without the counter. */
double growthOf(const std::string& change)
{
    return std::log(instructionsOf(change, 1000000) / instructionsOf(change, 10000)) /
           std::log(100.0);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::string(argv[1]) == "--refresh") {
        const QApplication application(argc, argv);
        refreshOnce(argv[2], std::atoi(argv[3]));
        return 0;
    }
    for (const char* change : {"same", "label", "labels", "insert1", "delete1", "reverse", "rotate",
                               "shuffle", "build"}) {
        const std::string name = change;
        const double most = name == "label" || name == "labels" || name == "same" ? 1 : 4;
        addValueRow(
            "tree/signals/" + name, "announcements", [name] { return announcementsOf(name); },
            [most] { return most; });
    }
    addValueRow(
        "tree/growth/same", "exponent of instructions", [] { return growthOf("same"); },
        [] { return 1.05; });
    addValueRow(
        "tree/growth/shuffle", "exponent of instructions", [] { return growthOf("shuffle"); },
        [] { return 1.25; });
    addValueRow(
        "tree/growth/inTurn", "exponent of instructions", [] { return growthOf("inTurn"); },
        [] { return 1.25; });
    addValueRow(
        "tree/growth/duplicates", "exponent of instructions", [] { return growthOf("duplicates"); },
        [] { return 1.25; });
    addValueRow(
        "tree/growth/shared", "exponent of instructions", [] { return growthOf("shared"); },
        [] { return 0.75; });
    return runRows(argc, argv);
}
