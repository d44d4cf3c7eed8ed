#pragma once

#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Tree/DesignTree.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QTreeView>

namespace Zorvane::Testing {

/** The opened design in a tree that is shown, with the model tester on it. */
struct ShownTree : OpenedDesign
{
    ShownTree()
        : tree(session, loader)
    {
        tree.attach(&view);
        new QAbstractItemModelTester(view.model(),
                                     QAbstractItemModelTester::FailureReportingMode::Fatal, &tree);
        view.resize(900, 700);
        view.show();
        tree.refreshNow();
    }

    Workbench::DesignTree tree;
    QTreeView view;
};

} // namespace Zorvane::Testing
