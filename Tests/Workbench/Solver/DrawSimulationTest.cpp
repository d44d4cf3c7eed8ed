#include "Workbench/Solver/DrawSimulation.h"

#include "Tests/Support/TestCase.h"

#include <cmath>

using namespace Zorvane;
using namespace Zorvane::Workbench;

namespace {

DrawSimulation computed(DrawParameters parameters)
{
    parameters.steps = 12;
    DrawSimulation simulation(parameters);
    while (!simulation.isDone())
        simulation.advance();
    return simulation;
}

} // namespace

class DrawSimulationTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void strokesReachTheDepth();
    void forceAndThinningGrow();
    void thickerSheetTakesMoreForce();
    void sameParametersGiveTheSameTable();
    void doneIsDone();
    void tableHasARowAStroke();
};

void DrawSimulationTest::strokesReachTheDepth()
{
    DrawParameters parameters;
    parameters.depth = 40;
    const DrawSimulation simulation = computed(parameters);
    QCOMPARE(simulation.done(), 12);
    QCOMPARE(simulation.results().back().stroke, 40.0);
}

void DrawSimulationTest::forceAndThinningGrow()
{
    double force = 0;
    double thinning = 0;
    const DrawSimulation simulation = computed({});
    for (const DrawStep& step : simulation.results()) {
        QVERIFY(std::isfinite(step.punchForce) && std::isfinite(step.largestThinningPercent));
        QVERIFY(step.punchForce > force);
        QVERIFY(step.largestThinningPercent >= thinning);
        force = step.punchForce;
        thinning = step.largestThinningPercent;
    }
    QVERIFY(thinning > 1 && thinning < 50);
}

void DrawSimulationTest::thickerSheetTakesMoreForce()
{
    DrawParameters thick;
    thick.thickness = 2;
    QVERIFY(computed(thick).results().back().punchForce >
            1.5 * computed({}).results().back().punchForce);
}

void DrawSimulationTest::sameParametersGiveTheSameTable()
{
    QCOMPARE(computed({}).table(), computed({}).table());
}

void DrawSimulationTest::doneIsDone()
{
    DrawSimulation simulation = computed({});
    const QByteArray table = simulation.table();
    simulation.advance();
    QCOMPARE(simulation.table(), table);
}

void DrawSimulationTest::tableHasARowAStroke()
{
    const QByteArray table = computed({}).table();
    QVERIFY(table.startsWith("stroke_mm,punch_force_kn,largest_thinning_percent\n5.00,"));
    QCOMPARE(table.count('\n'), 13);
}

ZORVANE_TEST(DrawSimulationTest)
#include "DrawSimulationTest.moc"
