#include "Host/Widgets/ZVTreeViewItem.h"
#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Support/TestCase.h"
#include "TreeModel/TreeViewBinding.h"

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
    ZVTreeViewModel model;                  // what the views show
    TreeViewBinding binding(&model, tools); // shows "Die" as soon as that is there
    tools->tree = std::make_shared<ModelRoot>();
    tools->tree->addTopLevelItems({std::make_shared<ModelItem>(Identifier(1), "Die")});
    tools->changed(); // however often it is called, the rows are refreshed once
    // [example]

    QVERIFY(textsBelow(model.rootItem()).isEmpty());
    QTRY_COMPARE(textsBelow(model.rootItem()), QStringList{QStringLiteral("Die")});

    const ZVTreeViewItem* die = model.rootItem()->child(0);
    view.setModel(&model);
    view.setCurrentIndex(model.indexFromItem(die));
    tools->tree = std::make_shared<ModelRoot>();
    tools->tree->addTopLevelItems({std::make_shared<ModelItem>(Identifier(2), "Punch"),
                                   std::make_shared<ModelItem>(Identifier(1), "Die")});
    tools->changed();
    const QStringList expected{QStringLiteral("Punch"), QStringLiteral("Die")};
    QTRY_COMPARE(textsBelow(model.rootItem()), expected);
    QCOMPARE(model.rootItem()->child(1), die);
    QVERIFY(view.currentIndex() == model.indexFromItem(die));
}

ZORVANE_TEST(ReadmeExampleTest)

#include "ReadmeExampleTest.moc"
