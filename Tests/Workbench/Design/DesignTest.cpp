#include "Workbench/Design/Design.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/SessionFolder.h"
#include "Workbench/Design/FileNames.h"

#include <filesystem>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

class DesignTest : public TestCase, private SessionFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init() { renew(); }
    void designIsFoundByItsFile_data();
    void designIsFoundByItsFile();
    void otherFilesAreNoDesignsThatAreOpen_data();
    void otherFilesAreNoDesignsThatAreOpen();
    void hardLinkIsTheSameFile();
    void endingTellsADesign_data();
    void endingTellsADesign();
};

void DesignTest::designIsFoundByItsFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("as it was opened") << QStringLiteral("small.dsg");
    QTest::newRow("there and back") << QStringLiteral("sub/../small.dsg");
    QTest::newRow("separated twice") << QStringLiteral(".//small.dsg");
}

void DesignTest::designIsFoundByItsFile()
{
    QFETCH(QString, name);
    openSmallDesign();
    writeFile(path("sub/other.stl"), "solid");
    QCOMPARE(m_session->findByFile(path(name)), &m_session->designs().front());
    QCOMPARE(designOfFile(m_session->designs(), path(name)), &m_session->designs().front());
}

void DesignTest::otherFilesAreNoDesignsThatAreOpen_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("equal content") << QStringLiteral("copy.dsg");
    QTest::newRow("not there") << QStringLiteral("gone.dsg");
    QTest::newRow("folder") << QString();
}

void DesignTest::otherFilesAreNoDesignsThatAreOpen()
{
    QFETCH(QString, name);
    openSmallDesign();
    writeFile(path("copy.dsg"), toText(smallDesign()));
    QVERIFY(m_session->findByFile(path(name)) == nullptr);
    QVERIFY(m_session->findByFile(QString()) == nullptr);
}

void DesignTest::hardLinkIsTheSameFile()
{
    const std::filesystem::path file = openSmallDesign().toStdWString();
    std::filesystem::create_hard_link(file, path("linked.dsg").toStdWString());
    QCOMPARE(m_session->findByFile(path("linked.dsg")), &m_session->designs().front());
}

void DesignTest::endingTellsADesign_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isDesign");
    QTest::newRow("small letters") << QStringLiteral("folder/door.dsg") << true;
    QTest::newRow("capital letters") << QStringLiteral("DOOR.DSG") << true;
    QTest::newRow("dots before it") << QStringLiteral("door.v2.dsg") << true;
    QTest::newRow("another ending") << QStringLiteral("door.dsg.bak") << false;
    QTest::newRow("no dot") << QStringLiteral("dsg") << false;
    QTest::newRow("a folder's ending") << QStringLiteral("door.dsg/part") << false;
}

void DesignTest::endingTellsADesign()
{
    QFETCH(QString, path);
    QTEST(FileNames::isDesign(path), "isDesign");
}

ZORVANE_TEST(DesignTest)
#include "DesignTest.moc"
