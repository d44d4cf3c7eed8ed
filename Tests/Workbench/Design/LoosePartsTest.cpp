#include "Workbench/Design/LooseParts.h"

#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"

#include <QtCore/QTemporaryDir>

#include <filesystem>
#include <memory>

using namespace Zorvane;
using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

/** One file counts once, however it is spelled. */
class LoosePartsTest : public TestCase
{
    Q_OBJECT

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    QString otherSpelling() const;
    QStringList names() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LooseParts> m_parts;

private Q_SLOTS:
    void init();
    void otherSpellingsOfAFileCountOnce();
    void aFileOfAFolderCountsOnce();
    void otherFilesCountWhereCaseDoes();
    void missingFilesKeepTheirPlaces();
};

void LoosePartsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_parts = std::make_unique<LooseParts>();
    writeFile(path("cup.stl"), "solid");
}

/** Of the cup; where the case of letters counts, another name of the same file. */
QString LoosePartsTest::otherSpelling() const
{
    const QString other = path("CUP.STL");
    if (doesCaseOfNamesCount())
        std::filesystem::create_hard_link(path("cup.stl").toStdU16String(), other.toStdU16String());
    return other;
}

QStringList LoosePartsTest::names() const
{
    QStringList names;
    for (const Part& part : m_parts->parts())
        names << part.name;
    return names;
}

void LoosePartsTest::otherSpellingsOfAFileCountOnce()
{
    m_parts->add(path("cup.stl"), false);
    m_parts->add(otherSpelling(), false);
    QVERIFY(m_parts->refresh());
    QCOMPARE(names(), QStringList(QStringLiteral("cup.stl")));
}

void LoosePartsTest::aFileOfAFolderCountsOnce()
{
    m_parts->add(otherSpelling(), false);
    m_parts->add(m_folder->path(), true);
    QVERIFY(m_parts->refresh());
    QCOMPARE(names(), QStringList(QStringLiteral("CUP.STL")));
}

void LoosePartsTest::otherFilesCountWhereCaseDoes()
{
    if (!doesCaseOfNamesCount())
        QSKIP("there are no two names that differ in case only");
    writeFile(path("Cup.stl"), "another one");
    m_parts->add(path("cup.stl"), false);
    m_parts->add(path("Cup.stl"), false);
    m_parts->add(path("none.stl"), false);
    m_parts->add(path("None.stl"), false);
    QVERIFY(m_parts->refresh());
    QCOMPARE(names().size(), 4);
}

void LoosePartsTest::missingFilesKeepTheirPlaces()
{
    m_parts->add(path("none.stl"), false);
    m_parts->add(path("cup.stl"), false);
    m_parts->add(path("none.stl"), false);
    QVERIFY(m_parts->refresh());
    QCOMPARE(names(), (QStringList{QStringLiteral("none.stl"), QStringLiteral("cup.stl")}));
    QCOMPARE(int(m_parts->parts().front().state), int(FileState::Missing));
    QVERIFY(!m_parts->refresh());
}

ZORVANE_TEST(LoosePartsTest)
#include "LoosePartsTest.moc"
