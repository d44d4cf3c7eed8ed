#include "Workbench/Design/NewFile.h"

#include "Files/FileNameRules.h"
#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Workbench {

class NewFileTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheFirstFreeName();
    void vanishesUnlessItIsKept();
    void caseMakesAnotherNameWhereItCounts();
    void longStemsAreShortened_data();
    void longStemsAreShortened();
    void impossibleNamesAreTold_data();
    void impossibleNamesAreTold();
    void aFolderMustBeThere();

private:
    static QString leafOf(const NewFile& file) { return QFileInfo(file.path()).fileName(); }
};

void NewFileTest::takesTheFirstFreeName()
{
    const QTemporaryDir folder;
    const QString stem = QStringLiteral("part");
    const QString ending = QStringLiteral(".stl");
    const NewFile first(folder.path(), stem, ending);
    const NewFile second(folder.path(), stem, ending);
    const NewFile third(folder.path(), stem, ending);
    QCOMPARE(leafOf(first), QStringLiteral("part.stl"));
    QCOMPARE(leafOf(second), QStringLiteral("part (2).stl"));
    QCOMPARE(leafOf(third), QStringLiteral("part (3).stl"));
}

void NewFileTest::vanishesUnlessItIsKept()
{
    const QTemporaryDir folder;
    for (const bool isKept : {false, true}) {
        QString path;
        {
            NewFile file(folder.path(), QStringLiteral("part"), QStringLiteral(".stl"));
            path = file.path();
            QVERIFY(QFileInfo::exists(path));
            if (isKept)
                file.keep();
        }
        QCOMPARE(QFileInfo::exists(path), isKept);
    }
}

void NewFileTest::caseMakesAnotherNameWhereItCounts()
{
    const QTemporaryDir folder;
    const NewFile first(folder.path(), QStringLiteral("part"), QStringLiteral(".stl"));
    const NewFile second(folder.path(), QStringLiteral("PART"), QStringLiteral(".STL"));
    QCOMPARE(leafOf(second), Testing::doesCaseOfNamesCount() ? QStringLiteral("PART.STL")
                                                             : QStringLiteral("PART (2).STL"));
}

void NewFileTest::longStemsAreShortened_data()
{
    QTest::addColumn<QString>("stem");
    QTest::newRow("letters") << QString(300, QLatin1Char('x'));
    QTest::newRow("umlauts") << QString::fromUtf8("ü").repeated(250);
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("\U0001F527").repeated(200);
}

void NewFileTest::longStemsAreShortened()
{
    QFETCH(QString, stem);
    const QString ending = QStringLiteral("-binary.stl");
    if (fittedFileName(stem, ending, 248).toUtf8().size() > s_longestFileName)
        QSKIP("the file system below Wine takes no such name; NTFS does");
    const QTemporaryDir folder;
    for (int number = 1; number <= 3; ++number) {
        NewFile file(folder.path(), stem, ending);
        QVERIFY2(!file.path().isEmpty(), qPrintable(file.obstacle()));
        QVERIFY(leafOf(file).endsWith(ending));
        // What goes to it goes by a file beside it, whose name is longer.
        QSaveFile writing(file.path());
        QVERIFY2(writing.open(QIODevice::WriteOnly), qPrintable(writing.errorString()));
        QVERIFY(writing.commit());
        file.keep();
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 3);
}

void NewFileTest::impossibleNamesAreTold_data()
{
    QTest::addColumn<QString>("stem");
    for (const char* stem :
         {"CON", "nul", "com1", "Aux ", "LPT9.old", "a:b", "what?", "a\"b", "a|b"})
        QTest::newRow(stem) << QString::fromLatin1(stem);
}

void NewFileTest::impossibleNamesAreTold()
{
    QFETCH(QString, stem);
    const QTemporaryDir folder;
    const NewFile file(folder.path(), stem, QStringLiteral(".stl"));
    const QString name = stem + QStringLiteral(".stl");
    const bool isPossible = Testing::mayBeFileName(name);
    QCOMPARE(leafOf(file), isPossible ? name : QString());
    QCOMPARE(file.obstacle().isEmpty(), isPossible);
    QVERIFY(isPossible || file.obstacle().startsWith(name + QLatin1Char(' ')));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), isPossible ? 1 : 0);
}

void NewFileTest::aFolderMustBeThere()
{
    const QTemporaryDir folder;
    const NewFile file(folder.filePath(QStringLiteral("none")), QStringLiteral("a"),
                       QStringLiteral(".stl"));
    QVERIFY(file.path().isEmpty());
    QCOMPARE(file.obstacle(), QStringLiteral("there is no such folder"));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::NewFileTest;
ZORVANE_TEST(NewFileTest)
#include "NewFileTest.moc"
