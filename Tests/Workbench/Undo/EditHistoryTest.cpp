#include "Workbench/Undo/EditHistory.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Design/DesignWriter.h"

#include <memory>
#include <random>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class EditHistoryTest : public TestCase
{
    Q_OBJECT

private:
    DesignSession& session() { return m_opened->session; }
    const Design& design() { return session().designs().front(); }
    QByteArray content() { return DesignWriter::toJson(design()); }
    QString anotherMesh(const QString& name) const
    {
        return writeFile(m_opened->path(name), binaryStl(cube()));
    }
    void makeSomeEdit(std::mt19937& random);
    QString openSecond();

    std::unique_ptr<OpenedDesign> m_opened;
    std::unique_ptr<EditHistory> m_history;

private Q_SLOTS:
    void init();
    void cleanup();
    void newHistoryIsEmpty();
    void renamingIsTakenBackAndMadeAgain();
    void quantitiesAreTakenBack();
    void stepsOfOneValueAreOneChange();
    void stepsOfDifferentValuesAreNot();
    void additionsAreTakenBackWithTheirParts();
    void additionsThatMoveDesignsAreTakenBack();
    void removalsArePutBackInTheirPlaces();
    void refusedEditsAreNotRemembered();
    void newEditDropsWhatCouldBeMadeAgain();
    void undoingAllIsUnmodified();
    void savingDoesNotEndTheHistory();
    void rereadingEndsTheHistory_data();
    void rereadingEndsTheHistory();
    void theOthersEndingKeepsTheHistoryOfADesign_data();
    void theOthersEndingKeepsTheHistoryOfADesign();
    void whatClosesWithADesignEndsWithIt();
    void whatComesBackKeepsItsHistory();
    void aDesignThatCannotBeReadAgainKeepsItsHistory();
    void onlyTheLastEditsAreKept();
    void textsNameTheObjects();
    void randomEditsAreTakenBackToTheByte();
};

void EditHistoryTest::init()
{
    m_opened = std::make_unique<OpenedDesign>();
    m_history = std::make_unique<EditHistory>(session(), nullptr);
}

void EditHistoryTest::cleanup()
{
    m_history.reset();
    m_opened.reset();
    TestCase::cleanup();
}

void EditHistoryTest::newHistoryIsEmpty()
{
    QVERIFY(!m_history->canUndo());
    QVERIFY(!m_history->canRedo());
    m_history->undo();
    m_history->redo();
}

void EditHistoryTest::renamingIsTakenBackAndMadeAgain()
{
    const QString before = session().name(objectId(10));
    session().rename(objectId(10), QStringLiteral("Left door"));
    m_history->undo();
    QCOMPARE(session().name(objectId(10)), before);
    QVERIFY(!session().isModified());
    m_history->redo();
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Left door"));
    QVERIFY(session().isModified(objectId(10)));
    QCOMPARE(m_history->count(), 1);
}

void EditHistoryTest::quantitiesAreTakenBack()
{
    const double before = *session().quantity(objectId(2), Quantity::Thickness);
    session().setQuantity(objectId(2), Quantity::Thickness, before + 1);
    m_history->undo();
    QCOMPARE(*session().quantity(objectId(2), Quantity::Thickness), before);
    QVERIFY(!session().areQuantitiesModified(design().id));
    m_history->redo();
    QCOMPARE(*session().quantity(objectId(2), Quantity::Thickness), before + 1);
    QVERIFY(session().areQuantitiesModified(design().id));
}

void EditHistoryTest::stepsOfOneValueAreOneChange()
{
    const double before = *session().quantity(objectId(2), Quantity::Thickness);
    for (int step = 1; step <= 5; ++step)
        session().setQuantity(objectId(2), Quantity::Thickness, before + step);
    QCOMPARE(m_history->count(), 1);
    m_history->undo();
    QCOMPARE(*session().quantity(objectId(2), Quantity::Thickness), before);
    // There and back again is no change at all.
    session().setQuantity(objectId(2), Quantity::Thickness, before + 1);
    session().setQuantity(objectId(2), Quantity::Thickness, before);
    QVERIFY(!m_history->canUndo());
}

void EditHistoryTest::stepsOfDifferentValuesAreNot()
{
    session().setQuantity(objectId(10), Quantity::Thickness, 3);
    session().setQuantity(objectId(10), Quantity::Force, 4);
    session().setQuantity(objectId(21), Quantity::Force, 5);
    QCOMPARE(m_history->count(), 3);
}

void EditHistoryTest::additionsAreTakenBackWithTheirParts()
{
    const QByteArray before = content();
    const QString mesh = anotherMesh(QStringLiteral("rib.stl"));
    QVERIFY(session().addFiles(design().id, {mesh}).empty());
    const QByteArray after = content();
    QCOMPARE(design().parts.size(), std::size_t(2));
    m_history->undo();
    QCOMPARE(content(), before);
    QVERIFY(!session().isModified());
    m_history->redo();
    // The very same objects: what was selected is selected again.
    QCOMPARE(content(), after);
    QCOMPARE(design().files.back().state, FileState::Exists);
    QVERIFY(QFile::exists(mesh));
}

void EditHistoryTest::additionsThatMoveDesignsAreTakenBack()
{
    const QByteArray before = content();
    QStringList files;
    for (int number = 100; number < 140; ++number)
        files << writeFile(m_opened->path(QStringLiteral("%1.dsg").arg(number)),
                           toText(designWithFiles(number, QStringLiteral("One more"), {})));
    // The id lies in a design, which moves when the others come.
    QVERIFY(session().addFiles(design().id, files).empty());
    QCOMPARE(session().designs().size(), std::size_t(41));
    const QByteArray after = content();
    m_history->undo();
    QCOMPARE(session().designs().size(), std::size_t(1));
    QCOMPARE(content(), before);
    QVERIFY(!session().isModified());
    m_history->redo();
    QCOMPARE(session().designs().size(), std::size_t(41));
    QCOMPARE(content(), after);
}

void EditHistoryTest::removalsArePutBackInTheirPlaces()
{
    const QByteArray before = content();
    QVERIFY(!session().take(design().id, {objectId(40), objectId(10)}).isEmpty());
    QCOMPARE(design().files.size(), std::size_t(1));
    QVERIFY(design().parts.empty());
    QVERIFY(session().isDesignModified(design().id));
    m_history->undo();
    QCOMPARE(content(), before);
    QVERIFY(!session().isModified());
    m_history->redo();
    QVERIFY(design().parts.empty());
    QVERIFY(session().save().empty());
    QVERIFY(!readFile(m_opened->designFile()).contains("die.stl"));
}

void EditHistoryTest::refusedEditsAreNotRemembered()
{
    QVERIFY(!session().rename(objectId(10), QString()).isEmpty());
    QVERIFY(!session().setQuantity(objectId(2), Quantity::Thickness, -1).isEmpty());
    QVERIFY(!session().addFiles(design().id, {QStringLiteral("none.stl")}).empty());
    QVERIFY(session().take(design().id, {objectId(99)}).isEmpty());
    session().rename(objectId(10), session().name(objectId(10)));
    QVERIFY(!m_history->canUndo());
}

void EditHistoryTest::newEditDropsWhatCouldBeMadeAgain()
{
    session().rename(objectId(10), QStringLiteral("one"));
    session().rename(objectId(10), QStringLiteral("two"));
    m_history->undo();
    session().rename(objectId(10), QStringLiteral("three"));
    QVERIFY(!m_history->canRedo());
    m_history->undo();
    QCOMPARE(session().name(objectId(10)), QStringLiteral("one"));
}

void EditHistoryTest::undoingAllIsUnmodified()
{
    session().rename(objectId(1), QStringLiteral("Another design"));
    session().addFiles(design().id, {anotherMesh(QStringLiteral("rib.stl"))});
    session().setQuantity(objectId(2), Quantity::Thickness, 7);
    while (m_history->canUndo())
        m_history->undo();
    QVERIFY(!session().isModified());
    QCOMPARE(content(), DesignWriter::toJson(design()));
}

void EditHistoryTest::savingDoesNotEndTheHistory()
{
    const QString before = session().name(objectId(10));
    session().rename(objectId(10), QStringLiteral("Left door"));
    session().addFiles(design().id, {anotherMesh(QStringLiteral("rib.stl"))});
    QVERIFY(session().save().empty());
    QVERIFY(!session().isModified());
    m_history->undo();
    QVERIFY(session().isModified());
    m_history->undo();
    QCOMPARE(session().name(objectId(10)), before);
    m_history->redo();
    m_history->redo();
    QVERIFY(!session().isModified());
}

void EditHistoryTest::rereadingEndsTheHistory_data()
{
    QTest::addColumn<QString>("how");
    for (const char* how : {"revert", "reload", "close", "another program"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void EditHistoryTest::rereadingEndsTheHistory()
{
    QFETCH(QString, how);
    session().rename(objectId(10), QStringLiteral("Left door"));
    QVERIFY(session().save().empty());
    if (how == QStringLiteral("revert")) {
        session().revert(design().id);
    } else if (how == QStringLiteral("reload")) {
        session().reload();
    } else if (how == QStringLiteral("close")) {
        session().close();
    } else {
        QJsonObject changed = smallDesign();
        changed.insert(QStringLiteral("name"), QStringLiteral("Changed elsewhere"));
        replaceFile(m_opened->designFile(), toText(changed));
        QTRY_COMPARE(design().name, QStringLiteral("Changed elsewhere"));
    }
    QVERIFY(!m_history->canUndo());
}

/** Beside the small design, not referring to it. */
QString EditHistoryTest::openSecond()
{
    const QString file = m_opened->path(QStringLiteral("second/second.dsg"));
    session().open({writeFile(file, toText(designWithFiles(60, QStringLiteral("Second"), {})))});
    return file;
}

void EditHistoryTest::theOthersEndingKeepsTheHistoryOfADesign_data()
{
    QTest::addColumn<QString>("how");
    for (const char* how : {"closed", "reopened", "saved under another name", "another program"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void EditHistoryTest::theOthersEndingKeepsTheHistoryOfADesign()
{
    QFETCH(QString, how);
    const QString second = openSecond();
    session().rename(objectId(10), QStringLiteral("Left door"));
    session().rename(objectId(60), QStringLiteral("Second, changed"));
    session().setQuantity(objectId(2), Quantity::Thickness, 7);
    session().setQuantity(objectId(10), Quantity::Thickness, 8);
    QVERIFY(session().save(objectId(60), DesignSession::OnConflict::Refuse).empty());
    m_history->undo();
    const QSignalSpy changed(m_history.get(), &EditHistory::changed);
    if (how == QStringLiteral("closed")) {
        session().close(objectId(60));
    } else if (how == QStringLiteral("reopened")) {
        session().revert(objectId(60));
    } else if (how == QStringLiteral("saved under another name")) {
        session().replace(objectId(60),
                          writeFile(m_opened->path(QStringLiteral("third.dsg")),
                                    toText(designWithFiles(70, QStringLiteral("Third"), {}))));
    } else {
        replaceFile(second, toText(designWithFiles(60, QStringLiteral("Changed elsewhere"), {})));
        QTRY_COMPARE_WITH_TIMEOUT(session().name(objectId(60)), QStringLiteral("Changed elsewhere"),
                                  patience);
    }
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_history->count(), 3);
    m_history->redo();
    QCOMPARE(*session().quantity(objectId(10), Quantity::Thickness), 8.0);
    while (m_history->canUndo())
        m_history->undo();
    QVERIFY(!session().isModified());
    QCOMPARE(m_history->count(), 3);
}

void EditHistoryTest::whatClosesWithADesignEndsWithIt()
{
    const QJsonArray files{fileEntry(71, QStringLiteral("The second"), QStringLiteral("design"),
                                     QStringLiteral("second/second.dsg"))};
    writeFile(m_opened->path(QStringLiteral("second/second.dsg")),
              toText(designWithFiles(60, QStringLiteral("Second"), {})));
    session().open({writeFile(m_opened->path(QStringLiteral("third.dsg")),
                              toText(designWithFiles(70, QStringLiteral("Third"), files)))});
    session().rename(objectId(10), QStringLiteral("Left door"));
    session().rename(objectId(60), QStringLiteral("Second, changed"));
    QVERIFY(session().save().empty());
    session().close(objectId(70));
    QVERIFY(session().findDesign(objectId(60)) == nullptr);
    QCOMPARE(m_history->count(), 1);
    QVERIFY(m_history->undoText().contains(QStringLiteral("Cup")));
}

void EditHistoryTest::whatComesBackKeepsItsHistory()
{
    const QString second = m_opened->path(QStringLiteral("second/second.dsg"));
    writeFile(second, toText(designWithFiles(60, QStringLiteral("Second"), {})));
    QVERIFY(session().addFiles(design().id, {second}).empty());
    session().rename(objectId(60), QStringLiteral("Second, changed"));
    QVERIFY(session().save().empty());
    const GUIdentifier reference = design().files.back().id;
    QVERIFY(!session().take(design().id, {reference}).isEmpty());
    QVERIFY(session().findDesign(objectId(60)) == nullptr);
    const QString third = m_opened->path(QStringLiteral("third/third.dsg"));
    session().open({writeFile(third, toText(designWithFiles(70, QStringLiteral("Third"), {})))});
    session().close(objectId(70));
    m_history->undo();
    m_history->undo();
    QCOMPARE(session().name(objectId(60)), QStringLiteral("Second"));
    m_history->redo();
    m_history->redo();
    // It cannot come back any more.
    session().close();
    QCOMPARE(m_history->count(), 0);
}

void EditHistoryTest::aDesignThatCannotBeReadAgainKeepsItsHistory()
{
    const QString before = session().name(objectId(10));
    session().rename(objectId(10), QStringLiteral("Left door"));
    QVERIFY(session().save().empty());
    writeFile(m_opened->designFile(), "no design");
    session().revert(design().id);
    QVERIFY(!session().problems().empty());
    m_history->undo();
    QCOMPARE(session().name(objectId(10)), before);
}

void EditHistoryTest::onlyTheLastEditsAreKept()
{
    for (int edit = 0; edit <= EditHistory::mostEdits; ++edit)
        session().rename(objectId(10), QStringLiteral("Name %1").arg(edit));
    QCOMPARE(m_history->count(), EditHistory::mostEdits);
    while (m_history->canUndo())
        m_history->undo();
    QCOMPARE(session().name(objectId(10)), QStringLiteral("Name 0"));
}

void EditHistoryTest::textsNameTheObjects()
{
    const QString part = session().name(objectId(10));
    session().rename(objectId(10), QStringLiteral("Left door"));
    QCOMPARE(m_history->undoText(), QStringLiteral("Rename %1").arg(part));
    session().setQuantity(objectId(10), Quantity::Thickness, 3);
    QCOMPARE(m_history->undoText(), QStringLiteral("Change Thickness of Left door"));
    session().addFiles(design().id, {anotherMesh(QStringLiteral("rib.stl"))});
    QCOMPARE(m_history->undoText(), QStringLiteral("Add rib"));
    session().take(design().id, {design().parts.back().id});
    QCOMPARE(m_history->undoText(), QStringLiteral("Remove rib"));
}

void EditHistoryTest::makeSomeEdit(std::mt19937& random)
{
    const auto below = [&random](unsigned limit) { return unsigned(random()) % limit; };
    const int objects[] = {1, 2, 10, 20, 21, 22, 30, 40, 41};
    switch (below(4)) {
    case 0:
        session().rename(objectId(objects[below(9)]), QStringLiteral("Name %1").arg(below(5)));
        return;
    case 1:
        session().setQuantity(objectId(objects[below(9)]), s_quantities[below(2)], below(4));
        return;
    case 2:
        session().addFiles(design().id, {anotherMesh(QStringLiteral("mesh-%1.stl").arg(below(6)))});
        return;
    default:
        if (!design().files.empty())
            session().take(design().id,
                           {design().files[below(unsigned(design().files.size()))].id});
    }
}

void EditHistoryTest::randomEditsAreTakenBackToTheByte()
{
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        init();
        std::vector<QByteArray> states{content()};
        for (int edit = 0; edit < 30; ++edit) {
            makeSomeEdit(random);
            // Steps of one value are one change, and those that end where they began are none.
            states.resize(std::size_t(m_history->count()) + 1);
            states.back() = content();
        }
        for (std::size_t at = states.size(); at-- > 1;) {
            QCOMPARE(content(), states[at]);
            m_history->undo();
        }
        QCOMPARE(content(), states.front());
        QVERIFY(!session().isModified());
        for (std::size_t at = 1; at < states.size(); ++at) {
            m_history->redo();
            QCOMPARE(content(), states[at]);
        }
    }
}

ZORVANE_TEST(EditHistoryTest)
#include "EditHistoryTest.moc"
