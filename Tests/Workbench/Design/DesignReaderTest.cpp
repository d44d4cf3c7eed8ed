#include "Workbench/Design/DesignReader.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

using Change = std::function<void(QJsonObject&)>;
Q_DECLARE_METATYPE(Change)

namespace {

QString designsFolder()
{
    return QDir::rootPath() + QStringLiteral("designs");
}

/** Changes one object of a list of a design. */
Change inList(const QString& list, int index, const Change& change)
{
    return [=](QJsonObject& design) {
        QJsonArray entries = design.value(list).toArray();
        QJsonObject object = entries.at(index).toObject();
        change(object);
        entries.replace(index, object);
        design.insert(list, entries);
    };
}

Change set(const QString& key, const QJsonValue& value)
{
    return [=](QJsonObject& object) { object.insert(key, value); };
}

Change remove(const QString& key)
{
    return [=](QJsonObject& object) { object.remove(key); };
}

} // namespace

class DesignReaderTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::English)); }
    void readsEveryPiece();
    void readsTheDocumentedExample();
    void tellsWhichFilesAreThere();
    void acceptsDesignWithNothingInIt();
    void refusesFile_data();
    void refusesFile();
    void refusesWhatIsNoFile();
    void refusesSparseFileOfTwoGigabytes();
    void tellsWhereCutJsonEnds();
    void leavesOutBrokenPiece_data();
    void leavesOutBrokenPiece();
    void keepsPieceWithBrokenField_data();
    void keepsPieceWithBrokenField();
    void leavesOutWhatOtherDesignsHave();
    void listsOnlySoManyProblems();
};

void DesignReaderTest::readsEveryPiece()
{
    const DesignReading reading =
        DesignReader().parse(toText(smallDesign()), designsFolder() + QStringLiteral("/small.dsg"));
    QVERIFY(reading.problems.empty());
    const Design& design = reading.design.value();
    QVERIFY(design.id == id(1));
    QCOMPARE(design.name, QStringLiteral("Small"));
    QCOMPARE(design.folder(), designsFolder());
    QCOMPARE(design.blank->name, QStringLiteral("Blank"));
    QCOMPARE(design.blank->thickness, 1.25);
    QVERIFY(design.blank->material == id(30));
    QCOMPARE(design.parts.size(), std::size_t(1));
    QVERIFY(design.findGeometry(id(10))->id == id(40));
    const Operation& draw = design.operations.at(0);
    QCOMPARE(draw.kind, QStringLiteral("draw"));
    QCOMPARE(draw.tools.at(0).kind, QStringLiteral("die"));
    QVERIFY(draw.tools.at(1).geometry.isNull());
    QCOMPARE(*design.findName(id(22)), QStringLiteral("Punch"));
    QVERIFY(design.materials.at(0).file == id(41));
    QCOMPARE(design.files.at(0).kind, FileKind::Mesh);
    QCOMPARE(design.files.at(1).kind, FileKind::Material);
    QCOMPARE(design.allIds().size(), std::size_t(9));
    QVERIFY(design.findName(id(99)) == nullptr);
}

void DesignReaderTest::readsTheDocumentedExample()
{
    const QByteArray text = readFile(QFINDTESTDATA("../../../Docs/DesignFile.md"));
    const int start = text.indexOf("```json") + 7;
    const QByteArray example = text.mid(start, text.indexOf("```", start) - start);
    const DesignReading reading = DesignReader().parse(example, QStringLiteral("/d/cup.dsg"));
    QVERIFY(reading.problems.empty());
    QCOMPARE(reading.design->allIds().size(), std::size_t(10));
}

void DesignReaderTest::tellsWhichFilesAreThere()
{
    const QTemporaryDir folder;
    const QString file =
        writeFile(folder.filePath(QStringLiteral("small.dsg")), toText(smallDesign()));
    const QString die = writeFile(folder.filePath(QStringLiteral("geometry/die.stl")), "solid");
    const Design design = DesignReader().read(file).design.value();
    QCOMPARE(design.files.at(0).state, FileState::Exists);
    QCOMPARE(design.files.at(0).file, die);
    QCOMPARE(design.files.at(1).state, FileState::Missing);
    QCOMPARE(design.files.at(1).file, folder.filePath(QStringLiteral("steel.json")));
}

void DesignReaderTest::acceptsDesignWithNothingInIt()
{
    QJsonObject object = entry(1, QStringLiteral("Empty"));
    object.insert(QStringLiteral("version"), 2);
    const DesignReading reading = DesignReader().parse(toText(object), QStringLiteral("/e.dsg"));
    QVERIFY(reading.problems.empty());
    QVERIFY(!reading.design->blank);
    QVERIFY(reading.design->operations.empty());
}

void DesignReaderTest::refusesFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("reason");
    const auto changed = [](const Change& change) {
        QJsonObject design = smallDesign();
        change(design);
        return toText(design);
    };
    const QString version = QStringLiteral("version");
    const QString name = QStringLiteral("name");
    const QString identifier = QStringLiteral("id");
    QTest::newRow("empty") << QByteArray() << QString() << QStringLiteral("is empty");
    QTest::newRow("only blanks") << QByteArray(" \n") << QString() << QStringLiteral("is empty");
    QTest::newRow("no JSON") << QByteArray("solid cup") << QStringLiteral("line 1, ")
                             << QStringLiteral("is no complete JSON");
    QTest::newRow("no text at all") << QByteArray("\xff\xfe\x00{", 4) << QStringLiteral("line 1, ")
                                    << QStringLiteral("is no complete JSON");
    QTest::newRow("nested without end")
        << QByteArray(5000, '[') << QStringLiteral("line 1, ") << QStringLiteral("nested");
    QTest::newRow("a list") << QByteArray("[1]") << QString() << QStringLiteral("JSON object");
    QTest::newRow("no version") << changed(remove(version)) << version
                                << QStringLiteral("is missing");
    QTest::newRow("version of a later program")
        << changed(set(version, 3)) << version << QStringLiteral("version 3 isn't supported");
    QTest::newRow("version before the first")
        << changed(set(version, 0)) << version << QStringLiteral("version 0 isn't supported");
    QTest::newRow("version between")
        << changed(set(version, 1.5)) << version << QStringLiteral("version 1.5 isn't supported");
    QTest::newRow("version as text") << changed(set(version, QStringLiteral("1"))) << version
                                     << QStringLiteral("must be a number");
    QTest::newRow("no identifier")
        << changed(remove(identifier)) << identifier << QStringLiteral("is missing");
    QTest::newRow("identifier no UUID") << changed(set(identifier, QStringLiteral("cup")))
                                        << identifier << QStringLiteral("\"cup\" is no UUID");
    QTest::newRow("no name") << changed(remove(name)) << name << QStringLiteral("is missing");
    QTest::newRow("name a number")
        << changed(set(name, 7)) << name << QStringLiteral("must be a text");
}

void DesignReaderTest::refusesFile()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, where);
    QFETCH(QString, reason);
    const QString file = designsFolder() + QStringLiteral("/small.dsg");
    const DesignReading reading = DesignReader().parse(content, file);
    QVERIFY(!reading.design);
    QCOMPARE(reading.problems.size(), std::size_t(1));
    const Problem& problem = reading.problems.front();
    QCOMPARE(problem.file, file);
    QVERIFY2(problem.where.startsWith(where), qPrintable(problem.text()));
    QVERIFY2(problem.reason.contains(reason), qPrintable(problem.text()));
}

void DesignReaderTest::refusesWhatIsNoFile()
{
    const QTemporaryDir folder;
    const DesignReading asFile = DesignReader().read(folder.path());
    QVERIFY(!asFile.design);
    QCOMPARE(asFile.problems.front().reason, QStringLiteral("is no file"));
    const DesignReading missing = DesignReader().read(folder.filePath(QStringLiteral("no.dsg")));
    QVERIFY(!missing.design);
    QCOMPARE(missing.problems.front().reason, QStringLiteral("doesn't exist"));
}

void DesignReaderTest::refusesSparseFileOfTwoGigabytes()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("large.dsg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(2LL * 1024 * 1024 * 1024));
    const DesignReading reading = DesignReader().read(file.fileName());
    QVERIFY(!reading.design);
    QVERIFY(reading.content.isEmpty());
    QCOMPARE(reading.problems.front().reason,
             QStringLiteral("is too large for a design file: 2.00 GiB, the limit is 16.00 MiB"));
}

void DesignReaderTest::tellsWhereCutJsonEnds()
{
    const QByteArray whole = toText(smallDesign());
    const QByteArray half = whole.left(whole.size() / 2);
    const DesignReading reading = DesignReader().parse(half, QStringLiteral("/d/small.dsg"));
    QVERIFY(!reading.design);
    const QRegularExpression place(
        QStringLiteral("^line (\\d+), column \\d+ \\(offset (\\d+)\\)$"));
    const QRegularExpressionMatch match = place.match(reading.problems.front().where);
    QVERIFY2(match.hasMatch(), qPrintable(reading.problems.front().where));
    QVERIFY(match.captured(2).toInt() <= half.size());
    QCOMPARE(match.captured(1).toInt(), half.left(match.captured(2).toInt()).count('\n') + 1);
}

void DesignReaderTest::leavesOutBrokenPiece_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<int>("lost");
    const QString parts = QStringLiteral("parts");
    const QString operations = QStringLiteral("operations");
    const QString identifier = QStringLiteral("id");
    const QString name = QStringLiteral("name");
    const QString tools = QStringLiteral("tools");

    QTest::newRow("identifier missing")
        << inList(parts, 0, remove(identifier)) << QStringLiteral("parts[0].id")
        << QStringLiteral("is missing") << 1;
    QTest::newRow("identifier of another type")
        << inList(parts, 0, set(identifier, 5)) << QStringLiteral("parts[0].id")
        << QStringLiteral("must be a text") << 1;
    QTest::newRow("identifier used above")
        << inList(parts, 0, set(identifier, uuidText(1))) << QStringLiteral("parts[0].id")
        << QStringLiteral("is used at id") << 1;
    QTest::newRow("identifier used below")
        << inList(operations, 0, inList(tools, 1, set(identifier, uuidText(21))))
        << QStringLiteral("operations[0].tools[1].id")
        << QStringLiteral("is used at operations[0].tools[0].id") << 1;
    QTest::newRow("name missing") << inList(QStringLiteral("materials"), 0, remove(name))
                                  << QStringLiteral("materials[0].name")
                                  << QStringLiteral("is missing") << 1;
    QTest::newRow("name of blanks")
        << inList(parts, 0, set(name, QStringLiteral("  "))) << QStringLiteral("parts[0].name")
        << QStringLiteral("is empty") << 1;
    QTest::newRow("operation broken, its tools gone with it")
        << inList(operations, 0, remove(name)) << QStringLiteral("operations[0].name")
        << QStringLiteral("is missing") << 3;
    QTest::newRow("path missing") << inList(QStringLiteral("files"), 1,
                                            remove(QStringLiteral("path")))
                                  << QStringLiteral("files[1].path") << QStringLiteral("is missing")
                                  << 1;
    QTest::newRow("entry no object") << Change([](QJsonObject& design) {
        design.insert(QStringLiteral("parts"), QJsonArray{17});
    }) << QStringLiteral("parts[0]") << QStringLiteral("must be an object")
                                     << 1;
    QTest::newRow("list no list") << set(parts, QStringLiteral("cup")) << QStringLiteral("parts")
                                  << QStringLiteral("must be a list") << 1;
    QTest::newRow("blank no object")
        << set(QStringLiteral("blank"), QJsonArray()) << QStringLiteral("blank")
        << QStringLiteral("must be an object") << 1;
}

void DesignReaderTest::leavesOutBrokenPiece()
{
    QFETCH(Change, change);
    QFETCH(QString, where);
    QFETCH(QString, reason);
    QFETCH(int, lost);
    QJsonObject object = smallDesign();
    change(object);
    const DesignReading reading = DesignReader().parse(toText(object), QStringLiteral("/d/s.dsg"));
    QVERIFY(reading.design);
    const Problem& problem = reading.problems.at(0);
    QCOMPARE(problem.where, where);
    QVERIFY2(problem.reason.contains(reason), qPrintable(problem.text()));
    QCOMPARE(int(reading.design->allIds().size()), 9 - lost);
}

void DesignReaderTest::keepsPieceWithBrokenField_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("reason");
    const QString files = QStringLiteral("files");
    const QString path = QStringLiteral("path");
    const auto withPath = [&](const QString& value) { return inList(files, 1, set(path, value)); };
    const QString outside = QStringLiteral("leads out of the design's folder");
    const QString place = QStringLiteral("files[1].path");

    QTest::newRow("thickness a text") << Change([](QJsonObject& design) {
        QJsonObject blank = design.value(QStringLiteral("blank")).toObject();
        blank.insert(QStringLiteral("thickness"), QStringLiteral("thin"));
        design.insert(QStringLiteral("blank"), blank);
    }) << QStringLiteral("blank.thickness")
                                      << QStringLiteral("must be a number");
    QTest::newRow("thickness too large") << Change([](QJsonObject& design) {
        QJsonObject blank = design.value(QStringLiteral("blank")).toObject();
        blank.insert(QStringLiteral("thickness"), 1e300);
        design.insert(QStringLiteral("blank"), blank);
    }) << QStringLiteral("blank.thickness")
                                         << QStringLiteral("is too large");
    QTest::newRow("kind a number")
        << inList(QStringLiteral("operations"), 0, set(QStringLiteral("kind"), 3))
        << QStringLiteral("operations[0].kind") << QStringLiteral("must be a text");
    QTest::newRow("geometry no UUID")
        << inList(QStringLiteral("parts"), 0,
                  set(QStringLiteral("geometry"), QStringLiteral("die.stl")))
        << QStringLiteral("parts[0].geometry") << QStringLiteral("must be the identifier");
    QTest::newRow("geometry of no entry")
        << inList(QStringLiteral("parts"), 0, set(QStringLiteral("geometry"), uuidText(77)))
        << QStringLiteral("parts[0].geometry") << QStringLiteral("doesn't have");
    QTest::newRow("path climbing out")
        << withPath(QStringLiteral("../steel.json")) << place << outside;
    QTest::newRow("absolute path") << withPath(QStringLiteral("/etc/passwd")) << place << outside;
    QTest::newRow("path of a drive")
        << withPath(QStringLiteral("C:\\steel.json")) << place << outside;
}

void DesignReaderTest::keepsPieceWithBrokenField()
{
    QFETCH(Change, change);
    QFETCH(QString, where);
    QFETCH(QString, reason);
    QJsonObject object = smallDesign();
    change(object);
    const DesignReading reading = DesignReader().parse(toText(object), QStringLiteral("/d/s.dsg"));
    QCOMPARE(int(reading.design->allIds().size()), 9);
    QCOMPARE(reading.problems.size(), std::size_t(1));
    QCOMPARE(reading.problems.front().where, where);
    QVERIFY2(reading.problems.front().reason.contains(reason),
             qPrintable(reading.problems.front().text()));
}

void DesignReaderTest::leavesOutWhatOtherDesignsHave()
{
    const DesignReader reader({{id(10), QStringLiteral("other.dsg")}});
    const DesignReading reading = reader.parse(toText(smallDesign()), QStringLiteral("/d/s.dsg"));
    QVERIFY(reading.design->parts.empty());
    QCOMPARE(reading.problems.front().where, QStringLiteral("parts[0].id"));
    QVERIFY(reading.problems.front().reason.contains(QStringLiteral("other.dsg")));
}

void DesignReaderTest::listsOnlySoManyProblems()
{
    QJsonArray parts;
    for (int i = 0; i < 1000; ++i)
        parts.append(i);
    QJsonObject object = smallDesign();
    object.insert(QStringLiteral("parts"), parts);
    const Problems problems =
        DesignReader().parse(toText(object), QStringLiteral("/d/s.dsg")).problems;
    QCOMPARE(problems.size(), std::size_t(101));
    QVERIFY(problems.back().reason.contains(QStringLiteral("900")));
}

ZORVANE_TEST(DesignReaderTest)
#include "DesignReaderTest.moc"
