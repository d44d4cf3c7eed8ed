#include "Utilities/IdentifierQMetaClass.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QVariant>

#include <map>

using namespace Zorvane;

Q_DECLARE_METATYPE(Zorvane::Identifier)
Q_DECLARE_METATYPE(Zorvane::IdentifierQMetaClass)

class IdentifierQMetaClassTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheInvalidIdentifier();
    void holdsTheIdentifier();
    void copiesAreEqual();
    void anyPartMakesItValid_data();
    void anyPartMakesItValid();
    void comparesAsTheIdentifiersDo_data();
    void comparesAsTheIdentifiersDo();
    void keysAMap();
    void travelsInVariantsOnceDeclared();
    void variantsCompareOnceRegistered();
};

void IdentifierQMetaClassTest::startsWithTheInvalidIdentifier()
{
    QVERIFY(IdentifierQMetaClass() == IdentifierQMetaClass(Identifier::getInvalidId()));
    QVERIFY(IdentifierQMetaClass().getIdentifier() == Identifier::getInvalidId());
}

void IdentifierQMetaClassTest::holdsTheIdentifier()
{
    const IdentifierQMetaClass wrapper(Identifier(12, 3));
    QVERIFY(wrapper.getIdentifier() == Identifier(12, 3));
}

void IdentifierQMetaClassTest::copiesAreEqual()
{
    const IdentifierQMetaClass wrapper(Identifier(12, 3));
    IdentifierQMetaClass assigned;
    assigned = wrapper;
    QVERIFY(IdentifierQMetaClass(wrapper) == wrapper);
    QVERIFY(assigned == wrapper);
}

void IdentifierQMetaClassTest::anyPartMakesItValid_data()
{
    QTest::addColumn<Identifier>("identifier");
    QTest::addColumn<bool>("valid");
    QTest::newRow("all zero") << Identifier(0, 0) << false;
    QTest::newRow("value only") << Identifier(1, 0) << true;
    QTest::newRow("sub-value only") << Identifier(0, 1) << true;
    QTest::newRow("both") << Identifier(1, 1) << true;
    QTest::newRow("high value") << Identifier(std::uint64_t(1) << 63U, 0) << true;
}

void IdentifierQMetaClassTest::anyPartMakesItValid()
{
    QFETCH(Identifier, identifier);
    QFETCH(bool, valid);
    QCOMPARE(IdentifierQMetaClass(identifier).isValid(), valid);
}

void IdentifierQMetaClassTest::comparesAsTheIdentifiersDo_data()
{
    QTest::addColumn<Identifier>("left");
    QTest::addColumn<Identifier>("right");
    QTest::newRow("same") << Identifier(4, 2) << Identifier(4, 2);
    QTest::newRow("value below") << Identifier(3, 9) << Identifier(4, 0);
    QTest::newRow("value above") << Identifier(4, 0) << Identifier(3, 9);
    QTest::newRow("sub-value below") << Identifier(4, 1) << Identifier(4, 2);
    QTest::newRow("sub-value above") << Identifier(4, 2) << Identifier(4, 1);
}

void IdentifierQMetaClassTest::comparesAsTheIdentifiersDo()
{
    QFETCH(Identifier, left);
    QFETCH(Identifier, right);
    const IdentifierQMetaClass leftWrapper(left);
    const IdentifierQMetaClass rightWrapper(right);
    QCOMPARE(leftWrapper == rightWrapper, left == right);
    QCOMPARE(leftWrapper != rightWrapper, left != right);
    QCOMPARE(leftWrapper < rightWrapper, left < right);
}

void IdentifierQMetaClassTest::keysAMap()
{
    std::map<IdentifierQMetaClass, int> map;
    map[Identifier(2)] = 20;
    map[Identifier(1, 7)] = 17;
    map[Identifier(2)] = 22;
    QCOMPARE(map.size(), std::size_t(2));
    QCOMPARE(map.begin()->second, 17);
    QCOMPARE(map.at(Identifier(2)), 22);
}

void IdentifierQMetaClassTest::travelsInVariantsOnceDeclared()
{
    const QVariant variant = QVariant::fromValue(IdentifierQMetaClass(Identifier(5, 1)));
    QVERIFY(variant.value<IdentifierQMetaClass>().getIdentifier() == Identifier(5, 1));
    QVERIFY(!QVariant().value<IdentifierQMetaClass>().isValid());
}

void IdentifierQMetaClassTest::variantsCompareOnceRegistered()
{
    QVERIFY(QMetaType::registerComparators<IdentifierQMetaClass>());
    const QVariant one = QVariant::fromValue(IdentifierQMetaClass(Identifier(1)));
    const QVariant two = QVariant::fromValue(IdentifierQMetaClass(Identifier(2)));
    QVERIFY(one == QVariant::fromValue(IdentifierQMetaClass(Identifier(1))));
    QVERIFY(one != two);
    const auto less = [](const QVariant& a, const QVariant& b) {
        int order = 0;
        QMetaType::compare(a.constData(), b.constData(), a.userType(), &order);
        return order < 0;
    };
    QVERIFY(less(one, two));
    QVERIFY(!less(two, one));
}

ZORVANE_TEST(IdentifierQMetaClassTest)
#include "IdentifierQMetaClassTest.moc"
