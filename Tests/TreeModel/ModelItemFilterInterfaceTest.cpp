#include "TreeModel/ModelItemFilterInterface.h"

#include "Tests/Support/TestCase.h"

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;

namespace {

/** Implements only what a filter must. */
class SmallestFilter : public ModelItemFilterInterface
{
public:
    using ModelItemFilterInterface::accept;
    bool accept(const IDCombiner& id) override
    {
        asked = id;
        return id == wanted;
    }
    Signals::Connection connectToChanged(const Signals::Slot<void()>& slot) override
    {
        return changed.connect(slot);
    }

    IDCombiner wanted;
    IDCombiner asked;
    Signals::Signal<void()> changed;
};

} // namespace

class ModelItemFilterInterfaceTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void identifierIsAskedAsCombinedId();
    void guiIdentifierIsAskedAsCombinedId();
    void seriesMayBeIgnored();
    void changeReachesTheSlot();
};

void ModelItemFilterInterfaceTest::identifierIsAskedAsCombinedId()
{
    SmallestFilter filter;
    filter.wanted = Identifier(3, 1);
    QVERIFY(filter.accept(Identifier(3, 1)));
    QVERIFY(!filter.accept(Identifier(3)));
    QVERIFY(filter.asked == IDCombiner(Identifier(3)));
}

void ModelItemFilterInterfaceTest::guiIdentifierIsAskedAsCombinedId()
{
    const GUIdentifier part = GUIdentifier::create();
    SmallestFilter filter;
    filter.wanted = part;
    QVERIFY(filter.accept(part));
    QVERIFY(!filter.accept(GUIdentifier::create()));
    QVERIFY(filter.asked.hasCombinedPart());
}

void ModelItemFilterInterfaceTest::seriesMayBeIgnored()
{
    SmallestFilter filter;
    filter.beginFiltering();
    QVERIFY(filter.accept(IDCombiner()));
    filter.endFiltering();
}

void ModelItemFilterInterfaceTest::changeReachesTheSlot()
{
    SmallestFilter filter;
    int calls = 0;
    const Signals::Connection connection = filter.connectToChanged([&calls] { ++calls; });
    filter.changed();
    connection.disconnect();
    filter.changed();
    QCOMPARE(calls, 1);
}

ZORVANE_TEST(ModelItemFilterInterfaceTest)
#include "ModelItemFilterInterfaceTest.moc"
