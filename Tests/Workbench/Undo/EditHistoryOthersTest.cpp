#include "Workbench/Undo/EditHistory.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Design/DesignWriter.h"

#include <limits>
#include <memory>

namespace Zorvane::Workbench {

using Testing::objectId;

/**
 * What others write is never undone. The small design is open because a frame refers to it: taking
 * that reference out closes it, and undoing that reads it anew.
 */
class EditHistoryOthersTest : public Testing::TestCase
{
    Q_OBJECT

private:
    DesignSession& session() { return m_opened->session; }
    const Design* small() { return session().findDesign(objectId(1)); }
    QByteArray content() { return DesignWriter::toJson(*small()); }
    void openSmall(const QJsonObject& design);
    void close();
    void comeBack();
    void comeBackAs(const QJsonObject& design);
    void makeEdit(const QString& edit);

    std::unique_ptr<Testing::OpenedDesign> m_opened;
    std::unique_ptr<EditHistory> m_history;
    QStringList m_refusals;

private Q_SLOTS:
    void init();
    void cleanup();
    void undoingTheLastEditTakesTheirs_data();
    void undoingTheLastEditTakesTheirs();
    void othersChangesStay_data();
    void othersChangesStay();
    void whatNobodyElseTouchedIsUndone_data();
    void whatNobodyElseTouchedIsUndone();
    void redoStopsAtOthersChanges();
    void otherDesignsKeepTheirHistory();
    void noEditIsUndoneWhereItFitsByChance();
    void stepsFromAnothersValueAreAChangeOfTheirOwn();
    void designsThatAreNotOpenAreTold();
    void whatBreaksTheRulesComesBackExactly_data();
    void whatBreaksTheRulesComesBackExactly();
};

void EditHistoryOthersTest::init()
{
    m_opened = std::make_unique<Testing::OpenedDesign>();
    m_refusals.clear();
    openSmall(Testing::smallDesign());
}

void EditHistoryOthersTest::cleanup()
{
    m_history.reset();
    m_opened.reset();
    TestCase::cleanup();
}

void EditHistoryOthersTest::openSmall(const QJsonObject& design)
{
    m_history.reset();
    session().close();
    Testing::writeFile(m_opened->designFile(), Testing::toText(design));
    const QJsonArray files{Testing::fileEntry(61, QStringLiteral("The small one"),
                                              QStringLiteral("design"),
                                              QStringLiteral("small.dsg"))};
    session().open({Testing::writeFile(
        m_opened->path(QStringLiteral("frame.dsg")),
        Testing::toText(Testing::designWithFiles(60, QStringLiteral("Frame"), files)))});
    QVERIFY(small() != nullptr);
    m_history = std::make_unique<EditHistory>(session(), nullptr);
    connect(m_history.get(), &EditHistory::refused, this,
            [this](const QString& text) { m_refusals << text; });
}

void EditHistoryOthersTest::close()
{
    QVERIFY(session().save().empty());
    QVERIFY(!session().take(objectId(60), {objectId(61)}).isEmpty());
    QVERIFY(small() == nullptr);
}

void EditHistoryOthersTest::comeBack()
{
    m_history->undo();
    QVERIFY(small() != nullptr);
    QVERIFY(!session().isModified());
}

void EditHistoryOthersTest::comeBackAs(const QJsonObject& design)
{
    close();
    Testing::replaceFile(m_opened->designFile(), Testing::toText(design));
    comeBack();
}

void EditHistoryOthersTest::makeEdit(const QString& edit)
{
    if (edit == QStringLiteral("name")) {
        session().rename(objectId(10), QStringLiteral("Left door"));
    } else if (edit == QStringLiteral("value")) {
        session().setQuantity(objectId(2), Quantity::Thickness, 3);
    } else if (edit == QStringLiteral("addition")) {
        const QString mesh = Testing::writeFile(m_opened->path(QStringLiteral("rib.stl")),
                                                Testing::binaryStl(Testing::cube()));
        QVERIFY(session().addFiles(objectId(1), {mesh}).empty());
    } else {
        QVERIFY(!session().take(objectId(1), {objectId(10), objectId(41)}).isEmpty());
    }
}

void EditHistoryOthersTest::undoingTheLastEditTakesTheirs_data()
{
    QTest::addColumn<QString>("edit");
    for (const char* edit : {"name", "value", "addition", "removal"})
        QTest::newRow(edit) << QString::fromLatin1(edit);
}

void EditHistoryOthersTest::undoingTheLastEditTakesTheirs()
{
    QFETCH(QString, edit);
    makeEdit(edit);
    QJsonObject theirs = Testing::smallDesign();
    theirs.insert(QStringLiteral("name"), QStringLiteral("Theirs"));
    Testing::replaceFile(m_opened->designFile(), Testing::toText(theirs));
    QTRY_VERIFY(session().hasConflict(objectId(1)));
    m_history->undo();
    QTRY_COMPARE(small()->name, QStringLiteral("Theirs"));
    QVERIFY(!session().hasConflict(objectId(1)));
    QVERIFY(session().problems().empty());
    QVERIFY(!session().isModified());
    QVERIFY2(!m_history->canRedo(), "it was made to what theirs has replaced");
}

void EditHistoryOthersTest::othersChangesStay_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("name") << QStringLiteral("name") << QByteArray("Left door")
                          << QByteArray("Right door");
    QTest::newRow("value") << QStringLiteral("value") << QByteArray("\"thickness\": 3")
                           << QByteArray("\"thickness\": 4");
    QTest::newRow("object added, then changed")
        << QStringLiteral("addition") << QByteArray("\"name\": \"rib\"")
        << QByteArray("\"name\": \"rib\",\"colour\": \"red\"");
    QTest::newRow("object added, then another file")
        << QStringLiteral("addition") << QByteArray("rib.stl") << QByteArray("rib2.stl");
    QTest::newRow("object taken out, then back")
        << QStringLiteral("removal") << QByteArray() << QByteArray();
}

void EditHistoryOthersTest::othersChangesStay()
{
    QFETCH(QString, edit);
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    makeEdit(edit);
    close();
    const QByteArray present = Testing::readFile(m_opened->designFile());
    const QByteArray changed = from.isEmpty() ? Testing::toText(Testing::smallDesign())
                                              : QByteArray(present).replace(from, to);
    QVERIFY(changed != present);
    Testing::replaceFile(m_opened->designFile(), changed);
    comeBack();
    const QByteArray theirs = content();
    QVERIFY(m_refusals.isEmpty());
    m_history->undo();
    QCOMPARE(m_refusals.size(), 1);
    QVERIFY(
        m_refusals.front().contains(QStringLiteral("Small has been changed by another program")));
    QCOMPARE(content(), theirs);
    QVERIFY(!session().isModified());
    QVERIFY(!m_history->canUndo());
    QVERIFY(session().save(objectId(1), DesignSession::OnConflict::Refuse).empty());
}

void EditHistoryOthersTest::whatNobodyElseTouchedIsUndone_data()
{
    QTest::addColumn<QString>("edit");
    for (const char* edit : {"name", "value", "addition", "removal"})
        QTest::newRow(edit) << QString::fromLatin1(edit);
}

void EditHistoryOthersTest::whatNobodyElseTouchedIsUndone()
{
    QFETCH(QString, edit);
    const QByteArray before = content();
    makeEdit(edit);
    const QByteArray after = content();
    close();
    QByteArray file = Testing::readFile(m_opened->designFile());
    Testing::replaceFile(m_opened->designFile(), file.replace("\"Punch\"", "\"Their punch\""));
    comeBack();
    m_history->undo();
    QCOMPARE(content(), QByteArray(before).replace("\"Punch\"", "\"Their punch\""));
    m_history->redo();
    QCOMPARE(content(), QByteArray(after).replace("\"Punch\"", "\"Their punch\""));
    QVERIFY(!session().isModified());
    QVERIFY(m_refusals.isEmpty());
}

void EditHistoryOthersTest::redoStopsAtOthersChanges()
{
    close();
    QVERIFY(session().addFiles(objectId(60), {m_opened->designFile()}).empty());
    makeEdit(QStringLiteral("name"));
    m_history->undo();
    m_history->undo();
    QVERIFY(small() == nullptr);
    QJsonObject theirs = Testing::smallDesign();
    theirs.insert(QStringLiteral("parts"),
                  QJsonArray{Testing::entry(10, QStringLiteral("Right door"))});
    Testing::replaceFile(m_opened->designFile(), Testing::toText(theirs));
    m_history->redo();
    QVERIFY(small() != nullptr);
    m_history->redo();
    QCOMPARE(m_refusals.size(), 1);
    QVERIFY(m_refusals.front().contains(QStringLiteral("cannot be redone")));
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Right door"));
    QVERIFY(!m_history->canRedo());
    QVERIFY(m_history->canUndo());
}

void EditHistoryOthersTest::otherDesignsKeepTheirHistory()
{
    session().rename(objectId(60), QStringLiteral("Door frame"));
    makeEdit(QStringLiteral("name"));
    makeEdit(QStringLiteral("value"));
    comeBackAs(Testing::smallDesign());
    m_history->undo();
    QCOMPARE(m_refusals.size(), 1);
    m_history->undo();
    QCOMPARE(session().name(objectId(60)), QStringLiteral("Frame"));
    QCOMPARE(m_refusals.size(), 1);
}

void EditHistoryOthersTest::noEditIsUndoneWhereItFitsByChance()
{
    makeEdit(QStringLiteral("name"));
    session().rename(objectId(10), QStringLiteral("Front door"));
    QJsonObject theirs = Testing::smallDesign();
    theirs.insert(QStringLiteral("parts"),
                  QJsonArray{Testing::entry(10, QStringLiteral("Left door"))});
    comeBackAs(theirs);
    m_history->undo();
    m_history->undo();
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Left door"));
}

void EditHistoryOthersTest::stepsFromAnothersValueAreAChangeOfTheirOwn()
{
    makeEdit(QStringLiteral("value"));
    QJsonObject theirs = Testing::smallDesign();
    QJsonObject blank = theirs.value(QStringLiteral("blank")).toObject();
    blank.insert(QStringLiteral("thickness"), 9);
    theirs.insert(QStringLiteral("blank"), blank);
    comeBackAs(theirs);
    session().setQuantity(objectId(2), Quantity::Thickness, 10);
    m_history->undo();
    QCOMPARE(*session().quantity(objectId(2), Quantity::Thickness), 9.0);
    QVERIFY(m_refusals.isEmpty());
}

void EditHistoryOthersTest::designsThatAreNotOpenAreTold()
{
    makeEdit(QStringLiteral("name"));
    close();
    QVERIFY(QFile::remove(m_opened->designFile()));
    m_history->undo();
    m_history->undo();
    QCOMPARE(m_refusals.size(), 1);
    QVERIFY(m_refusals.front().contains(QStringLiteral("no longer open")));
    QVERIFY(!m_history->canUndo());
}

void EditHistoryOthersTest::whatBreaksTheRulesComesBackExactly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("thickness");
    QTest::newRow("blanks around a name") << QStringLiteral("  Blank ") << 1.25;
    QTest::newRow("long name") << QString(300, QLatin1Char('x')) << 1.25;
    QTest::newRow("two lines") << QStringLiteral("Blank\nof steel") << 1.25;
    QTest::newRow("large value") << QStringLiteral("Blank")
                                 << double(std::numeric_limits<float>::max()) * 10;
}

void EditHistoryOthersTest::whatBreaksTheRulesComesBackExactly()
{
    QFETCH(QString, name);
    QFETCH(double, thickness);
    QJsonObject design = Testing::smallDesign();
    QJsonObject blank = design.value(QStringLiteral("blank")).toObject();
    blank.insert(QStringLiteral("name"), name);
    blank.insert(QStringLiteral("thickness"), thickness);
    design.insert(QStringLiteral("blank"), blank);
    openSmall(design);
    const QByteArray before = content();
    session().rename(objectId(2), QStringLiteral("Sheet"));
    session().setQuantity(objectId(2), Quantity::Thickness, 2);
    const QByteArray after = content();
    m_history->undo();
    m_history->undo();
    QCOMPARE(content(), before);
    QVERIFY(!session().isModified());
    m_history->redo();
    m_history->redo();
    QCOMPARE(content(), after);
    QVERIFY(m_refusals.isEmpty());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::EditHistoryOthersTest;

ZORVANE_TEST(EditHistoryOthersTest)
#include "EditHistoryOthersTest.moc"
