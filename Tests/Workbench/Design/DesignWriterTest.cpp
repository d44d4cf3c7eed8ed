#include "Workbench/Design/DesignWriter.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Workbench/Design/DesignReader.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QTemporaryDir>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

namespace {

Design parsed(const QByteArray& text)
{
    return DesignReader().parse(text, QStringLiteral("/d/small.dsg")).design.value();
}

QJsonObject written(const Design& design)
{
    return QJsonDocument::fromJson(DesignWriter::toJson(design)).object();
}

} // namespace

class DesignWriterTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void writesWhatWasRead();
    void keepsUnknownFields();
    void keepsUnreadEntriesAtTheirPlaces();
    void keepsBrokenFieldsThatWereNotChanged();
    void additionsKeepWhatIsNoList();
    void writesChangedFields();
    void writesDesignThatWasNeverRead();
    void leavesTheOldFileWhenItCannotWrite();
};

void DesignWriterTest::writesWhatWasRead()
{
    QCOMPARE(DesignWriter::toJson(parsed(toText(smallDesign()))), toText(smallDesign()));
}

void DesignWriterTest::keepsUnknownFields()
{
    const QString extra = QStringLiteral("futureField");
    const QJsonObject value{{QStringLiteral("a"), QJsonArray{1, QJsonValue(), true}},
                            {QStringLiteral("large"), qint64(9007199254740993)}};
    QJsonObject design = smallDesign();
    design.insert(extra, value);
    for (const char* list : {"parts", "operations", "materials", "files"}) {
        QJsonArray entries = design.value(QLatin1String(list)).toArray();
        QJsonObject first = entries.at(0).toObject();
        first.insert(extra, value);
        entries.replace(0, first);
        design.insert(QLatin1String(list), entries);
    }
    QCOMPARE(DesignWriter::toJson(parsed(toText(design))), toText(design));
}

void DesignWriterTest::keepsUnreadEntriesAtTheirPlaces()
{
    const QJsonArray parts{1,
                           entry(11, QStringLiteral("A")),
                           QJsonValue(),
                           QJsonObject{{QStringLiteral("name"), QStringLiteral("no id")}},
                           entry(12, QStringLiteral("B")),
                           entry(11, QStringLiteral("twice"))};
    QJsonObject object = smallDesign();
    object.insert(QStringLiteral("parts"), parts);
    Design design = parsed(toText(object));
    QCOMPARE(design.parts.size(), std::size_t(2));
    QCOMPARE(written(design).value(QStringLiteral("parts")).toArray(), parts);

    design.parts.erase(design.parts.begin());
    QJsonArray fewer = parts;
    fewer.removeAt(1);
    QCOMPARE(written(design).value(QStringLiteral("parts")).toArray().size(), fewer.size());
    QVERIFY(!written(design).value(QStringLiteral("parts")).toArray().contains(parts.at(1)));
}

void DesignWriterTest::keepsBrokenFieldsThatWereNotChanged()
{
    QJsonObject object = smallDesign();
    object.insert(QStringLiteral("parts"), QStringLiteral("no list"));
    object.insert(QStringLiteral("blank"), 5);
    QJsonObject tool = entry(21, QStringLiteral("Die"));
    tool.insert(QStringLiteral("geometry"), QStringLiteral("no UUID"));
    tool.insert(QStringLiteral("kind"), QJsonArray());
    QJsonObject operation = entry(20, QStringLiteral("Draw"));
    operation.insert(QStringLiteral("tools"), QJsonArray{tool});
    object.insert(QStringLiteral("operations"), QJsonArray{operation});
    QCOMPARE(written(parsed(toText(object))), object);
}

void DesignWriterTest::additionsKeepWhatIsNoList()
{
    const QJsonObject noList = entry(50, QStringLiteral("Written by hand"));
    QJsonObject object = smallDesign();
    object.insert(QStringLiteral("files"), noList);
    object.insert(QStringLiteral("parts"), QJsonValue());
    Design design = parsed(toText(object));
    FileReference card;
    card.id = GUIdentifier::create();
    card.name = QStringLiteral("Card");
    design.files.push_back(card);
    Part part;
    part.id = GUIdentifier::create();
    part.name = QStringLiteral("Cup");
    design.parts.push_back(part);
    const QJsonArray files = written(design).value(QStringLiteral("files")).toArray();
    QCOMPARE(files.size(), 2);
    QCOMPARE(files.first().toObject(), noList);
    QCOMPARE(written(design).value(QStringLiteral("parts")).toArray().size(), 1);
}

void DesignWriterTest::writesChangedFields()
{
    Design design = parsed(toText(smallDesign()));
    design.name = QStringLiteral("Gr\u00f6\u00dfer");
    design.blank->thickness = 0.8;
    design.operations[0].tools[0].kind = QStringLiteral("punch");
    design.operations[0].tools[0].geometry = GUIdentifier();
    design.files[0].path = QStringLiteral("die.stl");
    design.files[1].kind = FileKind::Document;
    const Design again = parsed(DesignWriter::toJson(design));
    QCOMPARE(again.name, design.name);
    QCOMPARE(again.blank->thickness, 0.8);
    QCOMPARE(again.operations[0].tools[0].kind, QStringLiteral("punch"));
    QVERIFY(again.operations[0].tools[0].geometry.isNull());
    QCOMPARE(again.files[0].path, QStringLiteral("die.stl"));
    QCOMPARE(again.files[1].kind, FileKind::Document);
}

void DesignWriterTest::writesDesignThatWasNeverRead()
{
    Design design;
    design.id = GUIdentifier::create();
    design.name = QStringLiteral("New");
    Operation draw;
    draw.id = GUIdentifier::create();
    draw.name = QStringLiteral("Draw");
    draw.tools.push_back({GUIdentifier::create(), QStringLiteral("Die"), {}, {}, 250e3, {}});
    design.operations.push_back(draw);
    const Design again = parsed(DesignWriter::toJson(design));
    QVERIFY(again.id == design.id);
    QVERIFY(again.operations[0].tools[0].id == design.operations[0].tools[0].id);
    QCOMPARE(again.operations[0].tools[0].force, 250e3);
}

void DesignWriterTest::leavesTheOldFileWhenItCannotWrite()
{
    const QTemporaryDir folder;
    Design design = parsed(toText(smallDesign()));
    design.file = folder.filePath(QStringLiteral("small.dsg"));
    QVERIFY(!DesignWriter::write(design));
    QCOMPARE(readFile(design.file), toText(smallDesign()));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);

    design.file = folder.filePath(QStringLiteral("no folder/small.dsg"));
    const std::optional<Problem> problem = DesignWriter::write(design);
    QVERIFY(problem);
    QCOMPARE(problem->file, design.file);
    QVERIFY(problem->reason.startsWith(QStringLiteral("cannot be written: ")));
    // A folder in the file's place cannot be replaced.
    design.file = folder.filePath(QStringLiteral("taken.dsg"));
    QVERIFY(QDir().mkdir(design.file));
    QVERIFY(DesignWriter::write(design));
    QVERIFY(QFileInfo(design.file).isDir());
}

ZORVANE_TEST(DesignWriterTest)
#include "DesignWriterTest.moc"
