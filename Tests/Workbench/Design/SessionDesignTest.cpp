#include "Workbench/Design/SessionDesign.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"

#include <memory>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class SessionDesignTest : public TestCase
{
    Q_OBJECT

private:
    DesignSession& session() { return m_opened->session; }
    SessionDesign design() { return SessionDesign(session(), objectId(1)); }
    void addResult()
    {
        const QString file = writeFile(m_opened->path(QStringLiteral("draw.csv")), "stroke\n");
        QVERIFY(session().addFiles(objectId(1), {file}).empty());
    }
    void reopenAs(const QJsonObject& design)
    {
        replaceFile(m_opened->designFile(), toText(design));
        session().close();
        session().open({m_opened->designFile()});
    }

    std::unique_ptr<OpenedDesign> m_opened;

private Q_SLOTS:
    void init() { m_opened = std::make_unique<OpenedDesign>(); }
    void freshDesignHasNothingToTell();
    void anyEditIsAModification();
    void resultsCountIfTheyAreThere();
    void resultsRenamedOrAddedAreEvaluationData();
    void valuesAreInputOfTheSimulation();
    void olderFilesAreConvertedBySaving();
    void closedDesignHasNoFile();
    void designOfASessionThatIsGoneHasNoFile();
};

void SessionDesignTest::freshDesignHasNothingToTell()
{
    QCOMPARE(design().getFileName().toQString(), m_opened->designFile());
    QCOMPARE(design().getModificationCount(0), 0);
    QVERIFY(!design().isNew());
    QVERIFY(!design().hasSimulationResults());
    QVERIFY(design().isCurrentVersion());
    QVERIFY(!design().hasEvaluationDataChanged());
    QVERIFY(!design().hasSimulationInputChanged());
    QVERIFY(!design().areResultsLostByConversion());
}

void SessionDesignTest::anyEditIsAModification()
{
    session().rename(objectId(22), QStringLiteral("Another tool"));
    QVERIFY(design().getModificationCount(0) != 0);
    QVERIFY(session().save().empty());
    QCOMPARE(design().getModificationCount(0), 0);
    session().take(objectId(1), {objectId(41)});
    QVERIFY(design().getModificationCount(0) != 0);
}

void SessionDesignTest::resultsCountIfTheyAreThere()
{
    QJsonObject changed = smallDesign();
    QJsonArray files = changed.value(QStringLiteral("files")).toArray();
    files.append(fileEntry(42, QStringLiteral("Draw"), QStringLiteral("result"),
                           QStringLiteral("draw.csv")));
    changed.insert(QStringLiteral("files"), files);
    reopenAs(changed);
    QVERIFY(!design().hasSimulationResults());
    writeFile(m_opened->path(QStringLiteral("draw.csv")), "stroke\n");
    QTRY_VERIFY(design().hasSimulationResults());
}

void SessionDesignTest::resultsRenamedOrAddedAreEvaluationData()
{
    addResult();
    QVERIFY(design().hasSimulationResults());
    QVERIFY(design().hasEvaluationDataChanged());
    QVERIFY(session().save().empty());
    QVERIFY(!design().hasEvaluationDataChanged());
    session().rename(session().designs().front().files.back().id, QStringLiteral("Forces"));
    QVERIFY(design().hasEvaluationDataChanged());
}

void SessionDesignTest::valuesAreInputOfTheSimulation()
{
    session().rename(objectId(2), QStringLiteral("Blank"));
    QVERIFY(!design().hasSimulationInputChanged());
    session().setQuantity(objectId(2), Quantity::Thickness, 1.75);
    QVERIFY(design().hasSimulationInputChanged());
    QVERIFY(session().save().empty());
    QVERIFY(!design().hasSimulationInputChanged());
}

void SessionDesignTest::olderFilesAreConvertedBySaving()
{
    QJsonObject old = smallDesign();
    old.insert(QStringLiteral("version"), 1);
    reopenAs(old);
    QVERIFY(!design().isCurrentVersion());
    QVERIFY(session().save(objectId(1), DesignSession::OnConflict::Refuse).empty());
    QVERIFY(design().isCurrentVersion());
    QVERIFY(readFile(m_opened->designFile()).contains("\"version\": 2"));
}

void SessionDesignTest::closedDesignHasNoFile()
{
    session().close();
    QVERIFY(design().getFileName().isEmpty());
    QVERIFY(design().isNew());
    QCOMPARE(design().getModificationCount(0), 0);
    QVERIFY(!design().hasSimulationResults());
    QVERIFY(design().isCurrentVersion());
}

void SessionDesignTest::designOfASessionThatIsGoneHasNoFile()
{
    const SessionDesign left = design();
    m_opened.reset();
    QVERIFY(left.getFileName().isEmpty());
    QVERIFY(left.isNew());
    QCOMPARE(left.getModificationCount(0), 0);
    QVERIFY(!left.hasSimulationResults());
    QVERIFY(!left.hasEvaluationDataChanged());
    QVERIFY(!left.hasSimulationInputChanged());
}

ZORVANE_TEST(SessionDesignTest)
#include "SessionDesignTest.moc"
