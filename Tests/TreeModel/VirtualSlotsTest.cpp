#include "Tests/Support/TestCase.h"
#include "Tests/Support/VirtualSlot.h"
#include "TreeModel/ModelItemFilterInterface.h"
#include "TreeModel/ModelProviderInterface.h"
#include "TreeModel/ZVTextProviderInterface.h"
#include "TreeModel/ZVTreeItemDataProviderInterface.h"

#include <type_traits>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::virtualSlot;

/** Binaries built against these interfaces rely on the order of their operations. */
class VirtualSlotsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void destructorsAreVirtual();
    void interfacesAreAbstractAndCopyable();
    void orderOfModelProviderInterface();
    void orderOfModelItemFilterInterface();
    void orderOfDataProviderInterface();
    void orderOfTextProviderInterface();
};

void VirtualSlotsTest::destructorsAreVirtual()
{
    QVERIFY(std::has_virtual_destructor_v<ModelProviderInterface>);
    QVERIFY(std::has_virtual_destructor_v<ModelItemFilterInterface>);
    QVERIFY(std::has_virtual_destructor_v<ZVTreeItemDataProviderInterface>);
    QVERIFY(std::has_virtual_destructor_v<ZVTextProviderInterface>);
}

void VirtualSlotsTest::interfacesAreAbstractAndCopyable()
{
    QVERIFY(std::is_abstract_v<ModelProviderInterface>);
    QVERIFY(std::is_copy_assignable_v<ModelProviderInterface>);
    QVERIFY(std::is_abstract_v<ModelItemFilterInterface>);
    QVERIFY(std::is_abstract_v<ZVTreeItemDataProviderInterface>);
    QVERIFY(std::is_copy_assignable_v<ZVTreeItemDataProviderInterface>);
    QVERIFY(std::is_abstract_v<ZVTextProviderInterface>);
}

void VirtualSlotsTest::orderOfModelProviderInterface()
{
    using Interface = ModelProviderInterface;
    QCOMPARE(virtualSlot(&Interface::provideModel), std::ptrdiff_t(2));
    QCOMPARE(virtualSlot(&Interface::registerUpdateCallback), std::ptrdiff_t(3));
}

void VirtualSlotsTest::orderOfModelItemFilterInterface()
{
    using Interface = ModelItemFilterInterface;
    using AcceptGui = bool (Interface::*)(const GUIdentifier&);
    using AcceptIdentifier = bool (Interface::*)(const Identifier&);
    using AcceptCombined = bool (Interface::*)(const IDCombiner&);
    QCOMPARE(virtualSlot<AcceptGui>(&Interface::accept), std::ptrdiff_t(2));
    QCOMPARE(virtualSlot<AcceptIdentifier>(&Interface::accept), std::ptrdiff_t(3));
    QCOMPARE(virtualSlot<AcceptCombined>(&Interface::accept), std::ptrdiff_t(4));
    QCOMPARE(virtualSlot(&Interface::beginFiltering), std::ptrdiff_t(5));
    QCOMPARE(virtualSlot(&Interface::endFiltering), std::ptrdiff_t(6));
    QCOMPARE(virtualSlot(&Interface::connectToChanged), std::ptrdiff_t(7));
}

void VirtualSlotsTest::orderOfDataProviderInterface()
{
    using Interface = ZVTreeItemDataProviderInterface;
    QCOMPARE(virtualSlot(&Interface::getItemFlags), std::ptrdiff_t(2));
    QCOMPARE(virtualSlot(&Interface::addDataTo), std::ptrdiff_t(3));
    QCOMPARE(virtualSlot(&Interface::updateDataOf), std::ptrdiff_t(4));
    QCOMPARE(virtualSlot(&Interface::registerUpdateCallback), std::ptrdiff_t(5));
}

void VirtualSlotsTest::orderOfTextProviderInterface()
{
    using Interface = ZVTextProviderInterface;
    QCOMPARE(virtualSlot(&Interface::getText), std::ptrdiff_t(2));
    QCOMPARE(virtualSlot(&Interface::registerTextChangedCallback), std::ptrdiff_t(3));
}

ZORVANE_TEST(VirtualSlotsTest)
#include "VirtualSlotsTest.moc"
