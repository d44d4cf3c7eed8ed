#include "Workbench/Tour/StressSteps.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Stress/StressWindow.h"
#include "Workbench/Window/MainWindow.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QTreeView>

namespace Zorvane::Workbench {

namespace {

constexpr QSize s_stressWindowSize(1040, 720);
constexpr int s_stressedRows = 10'000;
constexpr int s_stressSteps = 120;

} // namespace

void StressSteps::perform()
{
    m_report.beginStep(text("A tree under stress"),
                       text("A tree of 10,000 rows, refreshed over and over with edits at random "
                            "places: few announcements, and every row keeps its place."));
    m_window.commands()[WorkbenchActions::StressTree]->trigger();
    auto* stress = m_window.findChild<StressWindow*>();
    m_report.expect(stress && stress->isVisible(), text("the window of the menu Tools"));
    if (!stress)
        return;
    stress->resize(s_stressWindowSize);
    m_driver.settle();
    stress->fill(StressShape::Deep, s_stressedRows);
    for (int step = 0; step < s_stressSteps; ++step) {
        stress->step();
        m_driver.settle();
    }
    const PlaceKept& kept = stress->lastKept();
    m_report.expect(kept.selection.expected > 0 && kept.expansion.expected > 0,
                    QStringLiteral("%1 selected and %2 expanded rows")
                        .arg(kept.selection.expected)
                        .arg(kept.expansion.expected));
    m_report.expect(stress->totals().lost == 0,
                    QStringLiteral("no place lost in %1 refreshes").arg(stress->totals().steps));
    m_report.addNote(QStringLiteral("the last refresh took %1 ms on this machine")
                         .arg(stress->lastFacts().milliseconds, 0, 'f', 2));
    // Whole groups have moved meanwhile, and the rows in sight with theirs.
    stress->view().scrollTo(stress->view().currentIndex(), QAbstractItemView::PositionAtCenter);
    m_report.addPicture(text("a-tree-under-stress"), stress->grab().toImage());
    delete stress;
    m_window.activateWindow();
    m_report.expect(m_driver.waitFor([this] { return m_window.isActiveWindow(); }),
                    text("the main window again"));
}

} // namespace Zorvane::Workbench
