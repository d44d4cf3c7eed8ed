#include "TreeModel/LifeToken.h"

#include "Tests/Support/TestCase.h"

#include <memory>

using namespace Zorvane::GenericTreeViewModelHandling;

class LifeTokenTest : public Zorvane::Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void guardedCallbackWorksWhileTheTokenLives();
    void guardedCallbackDoesNothingAfterwards();
    void copiedTokenHasALifeOfItsOwn();
    void assignedTokenKeepsItsLife();
    void callbackMayEndTheLife();
};

void LifeTokenTest::guardedCallbackWorksWhileTheTokenLives()
{
    int calls = 0;
    const LifeToken life;
    const auto callback = life.guarded([&calls] { ++calls; });
    callback();
    callback();
    QCOMPARE(calls, 2);
}

void LifeTokenTest::guardedCallbackDoesNothingAfterwards()
{
    int calls = 0;
    auto life = std::make_unique<LifeToken>();
    const auto callback = life->guarded([&calls] { ++calls; });
    life.reset();
    callback();
    QCOMPARE(calls, 0);
}

void LifeTokenTest::copiedTokenHasALifeOfItsOwn()
{
    int calls = 0;
    auto life = std::make_unique<LifeToken>();
    const auto callback = life->guarded([&calls] { ++calls; });
    const LifeToken copy(*life);
    life.reset();
    callback();
    QCOMPARE(calls, 0);
    copy.guarded([&calls] { ++calls; })();
    QCOMPARE(calls, 1);
}

void LifeTokenTest::assignedTokenKeepsItsLife()
{
    int calls = 0;
    LifeToken life;
    const auto callback = life.guarded([&calls] { ++calls; });
    life = LifeToken();
    callback();
    QCOMPARE(calls, 1);
}

void LifeTokenTest::callbackMayEndTheLife()
{
    int calls = 0;
    auto life = std::make_unique<LifeToken>();
    const auto callback = life->guarded([&] {
        life.reset();
        ++calls;
    });
    callback();
    callback();
    QCOMPARE(calls, 1);
}

ZORVANE_TEST(LifeTokenTest)
#include "LifeTokenTest.moc"
