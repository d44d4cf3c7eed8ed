#include "Workbench/Tree/DesignCatalog.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"

Q_DECLARE_METATYPE(Zorvane::Workbench::ObjectKind)

namespace Zorvane::Workbench {

using Testing::objectId;

class DesignCatalogTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void knowsEveryObject_data();
    void knowsEveryObject();
    void doesNotKnowOtherIds();
    void listsIdsByKindAndCountsObjects();
    void tellsParticularsOfABlank();
    void knowsMeshFilesOpenedByThemselves();
    void followsTheSession();
    void factsComeWhenTheMeshIsRead();
    void factsGoWithTheFile();
    void unreadableMeshesHaveAReason();
    void findsObjectsByTheirFile();
};

void DesignCatalogTest::knowsEveryObject_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<ObjectKind>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kindText");
    QTest::addColumn<QString>("path");
    // clang-format off
    QTest::newRow("blank")     <<  2 << ObjectKind::Blank     << "Blank"    << "Blank"          << "geometry/die.stl";
    QTest::newRow("operation") << 20 << ObjectKind::Operation << "Draw"     << "Draw operation" << "";
    QTest::newRow("tool")      << 21 << ObjectKind::Tool      << "Die"      << "Die"            << "geometry/die.stl";
    QTest::newRow("tool of no kind") << 22 << ObjectKind::Tool << "Punch"   << "Tool"           << "";
    QTest::newRow("material")  << 30 << ObjectKind::Material  << "Steel"    << "Material"       << "steel.json";
    QTest::newRow("mesh file") << 40 << ObjectKind::File      << "Die mesh" << "Mesh file"      << "geometry/die.stl";
    // clang-format on
}

void DesignCatalogTest::knowsEveryObject()
{
    QFETCH(int, number);
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    const CatalogEntry* entry = catalog.find(objectId(number));
    QVERIFY(entry != nullptr);
    QTEST(entry->kind, "kind");
    QTEST(entry->name, "name");
    QTEST(entry->kindText, "kindText");
    QTEST(entry->path, "path");
    QCOMPARE(entry->hasFile, !entry->path.isEmpty());
    QVERIFY(catalog.stateText(*entry).isEmpty());
    QCOMPARE(catalog.stati(*entry), ZVWidgetStatus::Stati(ZVWidgetStatus::Normal));
}

void DesignCatalogTest::doesNotKnowOtherIds()
{
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    QVERIFY(catalog.find(objectId(99)) == nullptr);
    QVERIFY(catalog.find(IDCombiner()) == nullptr);
    QVERIFY(catalog.find(Identifier(7)) == nullptr);
}

void DesignCatalogTest::listsIdsByKindAndCountsObjects()
{
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    const std::vector<IDCombiner> tools{objectId(21), objectId(22)};
    QVERIFY(catalog.idsOf(ObjectKind::Tool) == tools);
    QCOMPARE(catalog.objectCount(), 8);
}

void DesignCatalogTest::tellsParticularsOfABlank()
{
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    const auto particulars = catalog.find(objectId(2))->particulars;
    QCOMPARE(particulars.size(), std::size_t(2));
    QCOMPARE(particulars[0].second, QLocale().toString(1.25) + QStringLiteral(" mm"));
    QCOMPARE(particulars[1].second, QStringLiteral("Steel"));
}

void DesignCatalogTest::knowsMeshFilesOpenedByThemselves()
{
    Testing::OpenedDesign opened;
    const QString file = opened.path(QStringLiteral("other/cube.stl"));
    Testing::writeFile(file, Testing::binaryStl(Testing::cube()));
    const DesignCatalog catalog(opened.session, opened.loader);
    const int before = catalog.objectCount();
    opened.session.open({file});
    QCOMPARE(catalog.objectCount(), before + 1);
    const CatalogEntry* entry = catalog.find(opened.session.looseParts().front().id);
    QVERIFY(entry != nullptr);
    QCOMPARE(entry->file, file);
    QVERIFY(entry->isMesh);
}

void DesignCatalogTest::followsTheSession()
{
    Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    QCOMPARE(catalog.find(objectId(21))->name, QStringLiteral("Die"));
    QCOMPARE(opened.session.rename(objectId(21), QStringLiteral("Upper die")), QString());
    const CatalogEntry& die = *catalog.find(objectId(21));
    QCOMPARE(die.name, QStringLiteral("Upper die"));
    QCOMPARE(catalog.stateText(die), QStringLiteral("Modified"));
    QVERIFY(catalog.stati(die).testFlag(ZVWidgetStatus::Modified));
    QCOMPARE(catalog.stateText(*catalog.find(objectId(1))), QStringLiteral("Modified"));
    QVERIFY(catalog.stateText(*catalog.find(objectId(22))).isEmpty());
}

void DesignCatalogTest::factsComeWhenTheMeshIsRead()
{
    Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    const CatalogEntry& die = *catalog.find(objectId(21));
    QVERIFY(!catalog.facts(die));
    opened.loader.request(opened.session.meshFiles());
    QTRY_VERIFY(catalog.facts(die));
    QCOMPARE(catalog.facts(die)->triangles, std::size_t(12));
    QVERIFY(!catalog.facts(*catalog.find(objectId(30))));
}

void DesignCatalogTest::factsGoWithTheFile()
{
    Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    opened.loader.request(opened.session.meshFiles());
    QTRY_VERIFY(catalog.facts(*catalog.find(objectId(21))));
    QVERIFY(QFile::remove(opened.path(QStringLiteral("geometry/die.stl"))));
    const auto stati = [&] { return catalog.stati(*catalog.find(objectId(21))); };
    QTRY_VERIFY(stati().testFlag(ZVWidgetStatus::Missing));
    const CatalogEntry& die = *catalog.find(objectId(21));
    QVERIFY(!catalog.facts(die));
    QCOMPARE(catalog.stateText(die), QStringLiteral("File missing"));
    QVERIFY(catalog.meshProblem(die).isEmpty());
}

void DesignCatalogTest::unreadableMeshesHaveAReason()
{
    Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    Testing::writeFile(opened.path(QStringLiteral("geometry/die.stl")), "no mesh at all");
    opened.loader.request(opened.session.meshFiles());
    const auto reason = [&] { return catalog.meshProblem(*catalog.find(objectId(21))); };
    QTRY_VERIFY(!reason().isEmpty());
    const CatalogEntry& die = *catalog.find(objectId(21));
    QCOMPARE(catalog.stateText(die), QStringLiteral("Unreadable"));
    QVERIFY(catalog.stati(die).testFlag(ZVWidgetStatus::Error));
}

void DesignCatalogTest::findsObjectsByTheirFile()
{
    const Testing::OpenedDesign opened;
    const DesignCatalog catalog(opened.session, opened.loader);
    QVERIFY(catalog.findByFile(opened.designFile()) == IDCombiner(objectId(1)));
    QVERIFY(catalog.findByFile(opened.path(QStringLiteral("geometry/die.stl"))).has_value());
    QVERIFY(!catalog.findByFile(opened.path(QStringLiteral("unknown.stl"))));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DesignCatalogTest;
ZORVANE_TEST(DesignCatalogTest)
#include "DesignCatalogTest.moc"
