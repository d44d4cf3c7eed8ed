#include "Host/Widgets/ZVTreeViewItem.h"
#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Support/TestCase.h"
#include "TreeModel/AddStaticParentToModuleProvider.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"
#include "TreeModel/ZVTreeItemDataProviderManager.h"

#include <QtWidgets/QTreeView>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;

/** Runs the example that README.md shows; test_documents.py compares the two texts. */
class ReadmeExampleTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatTheReadmeSays();
};

namespace {

QStringList textsBelow(const ZVTreeViewItem* parent)
{
    QStringList texts;
    for (int i = 0; i < parent->childCount(); ++i)
        texts.append(parent->child(i)->text());
    return texts;
}

} // namespace

void ReadmeExampleTest::showsWhatTheReadmeSays()
{
    QTreeView view;

    // [example]
    struct Tools : ModelProviderInterface // a leaf of the pipeline: your own data as a tree
    {
        std::shared_ptr<ModelRoot> tree;
        std::function<void()> changed;
        std::shared_ptr<ModelRoot> provideModel() override { return tree; }
        void registerUpdateCallback(std::function<void()> callback) override { changed = callback; }
    };
    auto tools = std::make_shared<Tools>();
    auto branch = std::make_shared<AddStaticParentToModuleProvider>(Identifier(100), "Tools");
    branch->setInputModelProvider(tools);
    branch->appendNumberOfChildrenToName();

    ZVTreeViewModel model; // what the views show
    ModelItemToZVTreeModelSyncronizer synchronizer;
    synchronizer.setDataProvider(std::make_shared<ZVTreeItemDataProviderManager>());
    branch->registerUpdateCallback(
        [&] { synchronizer.syncronizeViewModel(&model, branch->provideModel()); });

    tools->tree = std::make_shared<ModelRoot>();
    tools->tree->addTopLevelItems({std::make_shared<ModelItem>(Identifier(1), "Die"),
                                   std::make_shared<ModelItem>(Identifier(2), "Punch")});
    tools->changed(); // "Tools (2)" with two rows; with another tree, rows in both would stay
    // [example]

    const ZVTreeViewItem* top = model.rootItem()->child(0);
    QVERIFY(top);
    QCOMPARE(top->text(), QStringLiteral("Tools (2)"));
    const QStringList expected{QStringLiteral("Die"), QStringLiteral("Punch")};
    QCOMPARE(textsBelow(top), expected);

    const ZVTreeViewItem* punch = top->child(1);
    view.setModel(&model);
    view.expandAll();
    tools->tree = std::make_shared<ModelRoot>();
    tools->tree->addTopLevelItems({std::make_shared<ModelItem>(Identifier(2), "Punch"),
                                   std::make_shared<ModelItem>(Identifier(3), "Binder")});
    tools->changed();
    const QStringList expectedThen{QStringLiteral("Punch"), QStringLiteral("Binder")};
    QCOMPARE(textsBelow(top), expectedThen);
    QCOMPARE(top->child(0), punch);
    QVERIFY(view.isExpanded(model.indexFromItem(top)));
}

ZORVANE_TEST(ReadmeExampleTest)

#include "ReadmeExampleTest.moc"
