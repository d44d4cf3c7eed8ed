#include "Host/Identifiers/IDCombiner.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QVariant>

#include <algorithm>
#include <unordered_set>
#include <vector>

using namespace Zorvane;

class IdentifiersTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void invalidIdentifierIsAllZero();
    void identifiersOrderByValueThenSubValue();
    void guiIdentifierGivesItsUuidAsKey();
    void createdGuiIdentifiersDiffer();
    void combinerTellsWhatItCarries();
    void combinersOrderNothingIdentifierPart();
    void equalityLooksAtKindAndValue();
    void hashesAreTheSameInEveryRun_data();
    void hashesAreTheSameInEveryRun();
    void hashOfNothingIsZero();
    void hashOfCombinedPartIsThePartsOwn();
    void quickHashTellsAnyTwoBitsApart();
    void travelsInVariants();
    void metaTypeIsMovableAndConstructed();
};

void IdentifiersTest::invalidIdentifierIsAllZero()
{
    QCOMPARE(Identifier::getInvalidId().getValue(), std::uint64_t(0));
    QCOMPARE(Identifier::getInvalidId().getSubValue(), std::uint16_t(0));
    QVERIFY(Identifier() == Identifier::getInvalidId());
}

void IdentifiersTest::identifiersOrderByValueThenSubValue()
{
    QVERIFY(Identifier(1, 9) < Identifier(2, 0));
    QVERIFY(Identifier(2, 0) < Identifier(2, 1));
    QVERIFY(!(Identifier(2, 1) < Identifier(2, 1)));
    QVERIFY(Identifier(2, 1) != Identifier(2, 2));
}

void IdentifiersTest::guiIdentifierGivesItsUuidAsKey()
{
    const std::string text = "6f1b2c3d-0000-4000-8000-0123456789ab";
    QCOMPARE(GUIdentifier(text).getUUID(), text);
    QVERIFY(GUIdentifier("{" + text + "}") == GUIdentifier(text));
    QVERIFY(GUIdentifier(std::string("no uuid")).isNull());
}

void IdentifiersTest::createdGuiIdentifiersDiffer()
{
    QVERIFY(GUIdentifier::create() != GUIdentifier::create());
    QVERIFY(!GUIdentifier::create().isNull());
}

void IdentifiersTest::combinerTellsWhatItCarries()
{
    QVERIFY(!IDCombiner().hasIdentifier());
    QVERIFY(!IDCombiner().hasCombinedPart());
    QVERIFY(IDCombiner().getIdentifier() == Identifier::getInvalidId());
    QVERIFY(IDCombiner(Identifier(7)).hasIdentifier());
    QVERIFY(IDCombiner(Identifier(7)).getIdentifier() == Identifier(7));
    const GUIdentifier part = GUIdentifier::create();
    QVERIFY(IDCombiner(part).hasCombinedPart());
    QVERIFY(IDCombiner(part).getCombinedPart() == part);
}

void IdentifiersTest::combinersOrderNothingIdentifierPart()
{
    const IDCombiner nothing;
    const IDCombiner small(Identifier(1));
    const IDCombiner large(Identifier(2));
    const IDCombiner part(GUIdentifier::create());
    std::vector<IDCombiner> ids{part, large, nothing, small};
    std::sort(ids.begin(), ids.end());
    const std::vector<IDCombiner> expected{nothing, small, large, part};
    QVERIFY(ids == expected);
}

void IdentifiersTest::equalityLooksAtKindAndValue()
{
    QVERIFY(IDCombiner() != IDCombiner(Identifier::getInvalidId()));
    QVERIFY(IDCombiner() != IDCombiner(GUIdentifier()));
    QVERIFY(IDCombiner(Identifier(3, 1)) == IDCombiner(Identifier(3, 1)));
    QVERIFY(IDCombiner(Identifier(3, 1)) != IDCombiner(Identifier(3)));
}

void IdentifiersTest::hashesAreTheSameInEveryRun_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<quint16>("subValue");
    QTest::addColumn<quint64>("hash");
    // Worked out outside this program, byte by byte, with arbitrary-precision integers.
    QTest::newRow("zero") << quint64(0x0) << quint16(0x0) << quint64(0xa8c7f832281a39c5);
    QTest::newRow("one") << quint64(0x1) << quint16(0x0) << quint64(0x89cd31291d2aefa4);
    QTest::newRow("all bytes differ")
        << quint64(0x123456789abcdef) << quint16(0x0) << quint64(0x37eb3f3347761c55);
    QTest::newRow("largest") << quint64(0xffffffffffffffff) << quint16(0x0)
                             << quint64(0x8cf51a8bfca3883d);
    QTest::newRow("sub-value one") << quint64(0x1) << quint16(0x1) << quint64(0xd2af71c52b77aff8);
    QTest::newRow("sub-value largest")
        << quint64(0x123456789abcdef) << quint16(0xffff) << quint64(0xb6642dc08b6e9fe1);
    QTest::newRow("zero with sub-value")
        << quint64(0x0) << quint16(0x7) << quint64(0xb5091ee0abdd9041);
}

void IdentifiersTest::hashesAreTheSameInEveryRun()
{
    QFETCH(quint64, value);
    QFETCH(quint16, subValue);
    QFETCH(quint64, hash);
    const Identifier identifier(value, subValue);
    QCOMPARE(quint64(hash_value(identifier)), hash);
    QCOMPARE(quint64(std::hash<IDCombiner>()(identifier)), hash);
}

void IdentifiersTest::hashOfNothingIsZero()
{
    QCOMPARE(std::hash<IDCombiner>()(IDCombiner()), std::size_t(0));
}

void IdentifiersTest::hashOfCombinedPartIsThePartsOwn()
{
    const GUIdentifier part = GUIdentifier::create();
    QCOMPARE(std::hash<IDCombiner>()(IDCombiner(part)), hash_value(part));
    std::unordered_set<std::size_t> hashes;
    for (ushort i = 0; i < 1000; ++i)
        hashes.insert(hash_value(GUIdentifier(QUuid(1, 2, i, 0, 0, 0, 0, 0, 0, 0, 0))));
    QCOMPARE(hashes.size(), std::size_t(1000));
}

void IdentifiersTest::quickHashTellsAnyTwoBitsApart()
{
    std::vector<IDCombiner> ids;
    for (int one = 0; one < 64; ++one) {
        for (int other = 0; other <= one; ++other)
            ids.emplace_back(Identifier(quint64(1) << one | quint64(1) << other));
    }
    for (int one = 0; one < 8; ++one) {
        for (uint value = 1; value < 256; ++value) {
            QUuid uuid(1, 2, 3, 0, 0, 0, 0, 0, 0, 0, 0);
            uuid.data4[one] = uchar(value);
            ids.emplace_back(GUIdentifier(uuid));
        }
    }
    // A table looks at the lower bits first.
    std::unordered_set<std::uint32_t> hashes;
    std::unordered_set<std::uint32_t> lowerBits;
    for (const IDCombiner& id : ids) {
        hashes.insert(id.quickHash());
        lowerBits.insert(id.quickHash() & 0xffffU);
    }
    QCOMPARE(hashes.size(), ids.size());
    // About 120 of 4,120 random numbers meet another among 65,536.
    QVERIFY2(lowerBits.size() > ids.size() - 200, qPrintable(QString::number(lowerBits.size())));
}

void IdentifiersTest::travelsInVariants()
{
    const IDCombiner id(Identifier(12, 3));
    const QVariant variant = QVariant::fromValue(id);
    QCOMPARE(variant.typeName(), "Zorvane::IDCombiner");
    QVERIFY(variant.value<IDCombiner>() == id);
}

void IdentifiersTest::metaTypeIsMovableAndConstructed()
{
    const int type = qMetaTypeId<IDCombiner>();
    QCOMPARE(QMetaType::typeName(type), "Zorvane::IDCombiner");
    const QMetaType::TypeFlags flags = QMetaType::typeFlags(type);
    QVERIFY(flags.testFlag(QMetaType::MovableType));
    QVERIFY(flags.testFlag(QMetaType::NeedsConstruction));
    QVERIFY(flags.testFlag(QMetaType::NeedsDestruction));
}

ZORVANE_TEST(IdentifiersTest)
#include "IdentifiersTest.moc"
