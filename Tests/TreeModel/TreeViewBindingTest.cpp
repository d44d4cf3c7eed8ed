#include "TreeModel/TreeViewBinding.h"

#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/ModelFixtures.h"
#include "TreeModel/StaticTreeItemSingleIconProvider.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

#include <stdexcept>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::makeItem;
using Testing::makeRoot;

namespace {

class CountedModelProvider : public Testing::FixedModelProvider
{
public:
    std::shared_ptr<ModelRoot> provideModel() override
    {
        ++calls;
        if (isThrowing)
            throw std::runtime_error("no model");
        return root;
    }

    int calls = 0;
    bool isThrowing = false;
};

} // namespace

class TreeViewBindingTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_models = std::make_shared<CountedModelProvider>(); }
    void construction_showsTheModel();
    void manyChanges_areOneRefresh();
    void refresh_isDoneAtOnceAndTakesThePostedOneBack();
    void rowDataThatChanges_isWrittenOnceAskedFor();
    void missingRoot_isAnEmptyModel();
    void throwingProvider_isAWarning();
    void binding_mayBeDeletedBeforeItsProviders();
    void viewModel_mayBeDeletedFirst();

private:
    std::shared_ptr<CountedModelProvider> m_models;
};

void TreeViewBindingTest::construction_showsTheModel()
{
    m_models->root = makeRoot({makeItem(1)});
    ZVTreeViewModel model;
    const TreeViewBinding binding(&model, m_models);
    QCOMPARE(model.rowCount(), 1);
}

void TreeViewBindingTest::manyChanges_areOneRefresh()
{
    ZVTreeViewModel model;
    const TreeViewBinding binding(&model, m_models);
    m_models->calls = 0;
    m_models->root = makeRoot({makeItem(1), makeItem(2)});
    for (int i = 0; i < 1000; ++i)
        m_models->callback();
    QCOMPARE(m_models->calls, 0);
    QTRY_COMPARE(model.rowCount(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(m_models->calls, 1);
}

void TreeViewBindingTest::refresh_isDoneAtOnceAndTakesThePostedOneBack()
{
    ZVTreeViewModel model;
    TreeViewBinding binding(&model, m_models);
    m_models->root = makeRoot({makeItem(1)});
    m_models->callback();
    binding.refresh();
    QCOMPARE(model.rowCount(), 1);
    m_models->calls = 0;
    QCoreApplication::processEvents();
    QCOMPARE(m_models->calls, 0);
}

void TreeViewBindingTest::rowDataThatChanges_isWrittenOnceAskedFor()
{
    m_models->root = makeRoot({makeItem(1)});
    const auto icons = std::make_shared<StaticTreeItemSingleIconProvider>(0, Qt::DecorationRole);
    ZVTreeViewModel model;
    const TreeViewBinding binding(&model, m_models, icons);
    m_models->calls = 0;
    const QIcon icon(QPixmap(4, 4));
    icons->setIcon(icon);
    QTRY_COMPARE(model.index(0, 0).data(Qt::DecorationRole).value<QIcon>().cacheKey(),
                 icon.cacheKey());
    QCOMPARE(m_models->calls, 0);
}

void TreeViewBindingTest::missingRoot_isAnEmptyModel()
{
    m_models->root = makeRoot({makeItem(1)});
    ZVTreeViewModel model;
    TreeViewBinding binding(&model, m_models);
    m_models->root.reset();
    binding.refresh();
    QCOMPARE(model.rowCount(), 0);
}

void TreeViewBindingTest::throwingProvider_isAWarning()
{
    ZVTreeViewModel model;
    TreeViewBinding binding(&model, m_models);
    m_models->isThrowing = true;
    QVERIFY_EXCEPTION_THROWN(binding.refresh(), std::runtime_error);
    m_models->callback();
    expectWarning(QStringLiteral("no model$"));
    QCoreApplication::processEvents();
    m_models->isThrowing = false;
    m_models->root = makeRoot({makeItem(1)});
    m_models->callback();
    QTRY_COMPARE(model.rowCount(), 1);
}

void TreeViewBindingTest::binding_mayBeDeletedBeforeItsProviders()
{
    ZVTreeViewModel model;
    {
        const TreeViewBinding binding(&model, m_models);
        m_models->callback();
    }
    m_models->root = makeRoot({makeItem(1)});
    m_models->callback();
    QCoreApplication::processEvents();
    QCOMPARE(model.rowCount(), 0);
}

void TreeViewBindingTest::viewModel_mayBeDeletedFirst()
{
    auto model = std::make_unique<ZVTreeViewModel>();
    TreeViewBinding binding(model.get(), m_models);
    m_models->callback();
    model.reset();
    QCoreApplication::processEvents();
    binding.refresh();
}

ZORVANE_TEST(TreeViewBindingTest)
#include "TreeViewBindingTest.moc"
