#pragma once

#include "Host/Widgets/ZVTreeViewModel.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"
#include "Workbench/Stress/StressTree.h"

#include <QtCore/QObject>

#include <optional>

namespace Zorvane::Workbench {

/** What one refresh came to. */
struct StressFacts
{
    /** Rows inserted, removed or moved, changes of layout, resets. */
    int structural = 0;
    /** Ranges of changed values. */
    int values = 0;
    /** Of the synchronization, with what views do at once about its announcements. */
    double milliseconds = 0;
};

/** Shows a `StressTree` through the synchronizer and measures each refresh. Needs no view. */
class StressRun : public QObject
{
    Q_OBJECT

public:
    explicit StressRun(QObject* parent = nullptr);

    /** Starts over with another tree. */
    void fill(StressShape shape, int rowCount, std::uint32_t seed);
    /** Edits and refreshes once. */
    StressFacts step(const std::vector<StressEdit>& kinds, int editCount);

    ZVTreeViewModel& model() { return m_model; }
    /** Null before the first `fill`. */
    const StressTree* tree() const { return m_tree ? &*m_tree : nullptr; }

private:
    void countAnnouncements();

    ZVTreeViewModel m_model;
    GenericTreeViewModelHandling::ModelItemToZVTreeModelSyncronizer m_synchronizer;
    std::optional<StressTree> m_tree;
    StressFacts m_facts;
};

} // namespace Zorvane::Workbench
