#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Tree/DesignCatalog.h"
#include "Workbench/Tree/KindFilter.h"
#include "Workbench/Tree/NameFilter.h"

namespace Zorvane::Workbench {

using Testing::objectId;

class FiltersTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTextMustBeFoundInNameKindOrFile_data();
    void aTextMustBeFoundInNameKindOrFile();
    void foldersOfMeshFilesAreNotSearched();
    void idsThatAreNoObjectsPassOnlyWithoutAText();
    void newWordsAreAnnouncedOnce();
    void kindsAreHiddenAndShown();
    void kindsAreAnnouncedWhenTheyDiffer();
};

void FiltersTest::aTextMustBeFoundInNameKindOrFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("accepted");
    // clang-format off
    QTest::newRow("no text")                 << ""           << 21 << true;
    QTest::newRow("blanks only")             << "   "        << 21 << true;
    QTest::newRow("name")                    << "die"        << 21 << true;
    QTest::newRow("any case")                << "DIE"        << 21 << true;
    QTest::newRow("part of the name")        << "unc"        << 22 << true;
    QTest::newRow("kind")                    << "operation"  << 20 << true;
    QTest::newRow("file")                    << "steel.json" << 30 << true;
    QTest::newRow("folder in the design")    << "geometry"   << 40 << true;
    QTest::newRow("every word, any order")   << "mesh  die"  << 40 << true;
    QTest::newRow("one word is not there")   << "die cup"    << 40 << false;
    QTest::newRow("elsewhere")               << "die"        << 22 << false;
    QTest::newRow("signs stand for themselves") << "d.e"     << 21 << false;
    // clang-format on
}

void FiltersTest::aTextMustBeFoundInNameKindOrFile()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    NameFilter filter(catalog);
    filter.setText(text);
    QTEST(filter.accept(objectId(number)), "accepted");
}

void FiltersTest::foldersOfMeshFilesAreNotSearched()
{
    Testing::OpenedDesign opened;
    const QString file = opened.path(QStringLiteral("many/cube.stl"));
    Testing::writeFile(file, Testing::binaryStl(Testing::cube()));
    opened.session.open({file});
    const DesignCatalog catalog(opened.session, opened.loader);
    NameFilter filter(catalog);
    filter.setText(QStringLiteral("many"));
    QVERIFY(!filter.accept(opened.session.looseParts().front().id));
    filter.setText(QStringLiteral("cube"));
    QVERIFY(filter.accept(opened.session.looseParts().front().id));
}

void FiltersTest::idsThatAreNoObjectsPassOnlyWithoutAText()
{
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    NameFilter names(catalog);
    KindFilter kinds(catalog);
    QVERIFY(names.accept(Identifier(5)));
    QVERIFY(kinds.accept(Identifier(5)));
    names.setText(QStringLiteral("x"));
    kinds.setShown(ObjectKind::File, false);
    QVERIFY(!names.accept(Identifier(5)));
    QVERIFY(!kinds.accept(Identifier(5)));
}

void FiltersTest::newWordsAreAnnouncedOnce()
{
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    NameFilter filter(catalog);
    int announced = 0;
    const Signals::ScopedConnection connection(filter.connectToChanged([&] { ++announced; }));
    filter.setText(QStringLiteral("die"));
    filter.setText(QStringLiteral(" die "));
    QCOMPARE(announced, 1);
    QVERIFY(filter.isActive());
    filter.setText({});
    QCOMPARE(announced, 2);
    QVERIFY(!filter.isActive());
}

void FiltersTest::kindsAreHiddenAndShown()
{
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    KindFilter filter(catalog);
    QVERIFY(filter.accept(objectId(21)));
    filter.setShown(ObjectKind::Tool, false);
    QVERIFY(!filter.accept(objectId(21)));
    QVERIFY(filter.accept(objectId(20)));
    QVERIFY(!filter.isShown(ObjectKind::Tool));
    filter.setShown(ObjectKind::Tool, true);
    QVERIFY(filter.accept(objectId(21)));
    QVERIFY(!filter.isActive());
}

void FiltersTest::kindsAreAnnouncedWhenTheyDiffer()
{
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    KindFilter filter(catalog);
    int announced = 0;
    const Signals::ScopedConnection connection(filter.connectToChanged([&] { ++announced; }));
    filter.setShown(ObjectKind::Tool, true);
    QCOMPARE(announced, 0);
    filter.setShown(ObjectKind::Tool, false);
    filter.setShown(ObjectKind::Tool, false);
    QCOMPARE(announced, 1);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::FiltersTest;
ZORVANE_TEST(FiltersTest)
#include "FiltersTest.moc"
