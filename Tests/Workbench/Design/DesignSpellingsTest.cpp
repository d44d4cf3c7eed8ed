#include "Workbench/Design/DesignSession.h"

#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/SessionFolder.h"

#include <QtCore/QFileInfo>

#include <filesystem>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

/**
 * One design file is read once and known by the spelling that came first. Where the case of letters
 * counts, two names of one file stand in for two spellings.
 */
class DesignSpellingsTest : public TestCase, private SessionFolder
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesAreOpenedOnce();
    void foldersAreOpenedOnce();
    void referencesLeadToTheOpenDesign();
    void designsReferredToAreOpenedOnce();
    void circlesAreFound();
    void designsAreReplacedByKnownFiles();

private:
    QString door() const { return path("door.dsg"); }
    QString frame() const { return path("frame.dsg"); }
    QString inCapitals(const QString& file) const;
    void expectOnly(const QStringList& files) const;
};

void DesignSpellingsTest::init()
{
    const QString design = QStringLiteral("design");
    renew();
    writeFile(door(), toText(designWithFiles(10, QStringLiteral("Door"), {})));
    writeFile(frame(), toText(designWithFiles(20, QStringLiteral("Frame"),
                                              {fileEntry(21, QStringLiteral("The door"), design,
                                                         QStringLiteral("DOOR.DSG"))})));
    inCapitals(door());
}

QString DesignSpellingsTest::inCapitals(const QString& file) const
{
    const QString other = path(QFileInfo(file).fileName().toUpper());
    if (doesCaseOfNamesCount() && !QFileInfo::exists(other))
        std::filesystem::create_hard_link(file.toStdU16String(), other.toStdU16String());
    return other;
}

void DesignSpellingsTest::expectOnly(const QStringList& files) const
{
    QVERIFY(m_session->problems().empty());
    QStringList open;
    for (const Design& design : m_session->designs())
        open << design.file;
    QCOMPARE(open, files);
}

void DesignSpellingsTest::filesAreOpenedOnce()
{
    m_session->open({door(), inCapitals(door()), door()});
    expectOnly({door()});
}

void DesignSpellingsTest::foldersAreOpenedOnce()
{
    const QString capitals = inCapitals(door());
    m_session->open({capitals, m_folder->path()});
    expectOnly({capitals, frame()});
}

void DesignSpellingsTest::referencesLeadToTheOpenDesign()
{
    m_session->open({door(), frame()});
    expectOnly({door(), frame()});
    QCOMPARE(m_session->designs().back().files.front().design, id(10));
    QVERIFY(!m_session->canClose(id(10)));
}

void DesignSpellingsTest::designsReferredToAreOpenedOnce()
{
    m_session->open({frame(), door()});
    expectOnly({frame(), inCapitals(door())});
    QCOMPARE(m_session->designs().front().files.front().design, id(10));
}

void DesignSpellingsTest::circlesAreFound()
{
    writeFile(door(), toText(designWithFiles(
                          10, QStringLiteral("Door"),
                          {fileEntry(11, QStringLiteral("Itself"), QStringLiteral("design"),
                                     QStringLiteral("DOOR.DSG"))})));
    m_session->open({door()});
    QCOMPARE(m_session->designs().size(), std::size_t(1));
    QCOMPARE(m_session->problems().size(), std::size_t(1));
    QVERIFY(m_session->problems().front().reason.startsWith(
        QStringLiteral("closes a circle of designs")));
}

void DesignSpellingsTest::designsAreReplacedByKnownFiles()
{
    const QString other = writeFile(path("other.dsg"), "no design");
    m_session->open({other, door()});
    const QString capitals = inCapitals(other);
    writeFile(other, toText(designWithFiles(30, QStringLiteral("Other"), {})));
    m_session->replace(id(10), capitals);
    expectOnly({other});
}

ZORVANE_TEST(DesignSpellingsTest)
#include "DesignSpellingsTest.moc"
