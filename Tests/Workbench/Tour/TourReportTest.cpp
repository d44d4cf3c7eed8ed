#include "Workbench/Tour/TourReport.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Workbench {

namespace {

QImage colourfulPicture()
{
    QImage picture(100, 100, QImage::Format_RGB32);
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            picture.setPixel(x, y, qRgb(2 * x, 2 * y, 7));
    return picture;
}

QImage blankPicture()
{
    QImage picture(100, 100, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

QString readReport(const QTemporaryDir& folder)
{
    QFile file(folder.filePath(QStringLiteral("tour.md")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TourReportTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void numbersPicturesAndTellsThem();
    void aBlankPictureIsAFailure();
    void whatIsNotMetIsAFailureAndTold();
    void aFolderThatCannotBeMadeIsAFailure();
};

void TourReportTest::numbersPicturesAndTellsThem()
{
    const QTemporaryDir folder;
    TourReport report(folder.path());
    report.beginStep(QStringLiteral("First"), QStringLiteral("It begins."));
    report.addPicture(QStringLiteral("one"), colourfulPicture());
    report.beginStep(QStringLiteral("Second"), QStringLiteral("It goes on."));
    report.addPicture(QStringLiteral("two"), colourfulPicture());
    report.addNote(QStringLiteral("a note"));
    QVERIFY(report.failures().isEmpty());
    QVERIFY(report.write());
    QCOMPARE(report.pictureCount(), 2);
    QCOMPARE(QDir(folder.path()).entryList({QStringLiteral("*.png")}),
             QStringList({QStringLiteral("01-one.png"), QStringLiteral("02-two.png")}));
    const QString text = readReport(folder);
    for (const char* part : {"## 1. First", "It begins.", "![First](01-one.png)", "## 2. Second",
                             "- a note", "Everything was shown as it should be."})
        QVERIFY2(text.contains(QLatin1String(part)), part);
    QVERIFY2(!text.contains(QStringLiteral("\n\n\n")), "one blank line is enough");
    QVERIFY(text.endsWith(QLatin1Char('\n')));
}

void TourReportTest::aBlankPictureIsAFailure()
{
    const QTemporaryDir folder;
    TourReport report(folder.path());
    report.addPicture(QStringLiteral("blank"), blankPicture());
    QCOMPARE(report.failures().size(), 1);
    report.addPicture(QStringLiteral("nothing"), QImage());
    QVERIFY(report.failures().size() > 1);
}

void TourReportTest::whatIsNotMetIsAFailureAndTold()
{
    const QTemporaryDir folder;
    TourReport report(folder.path());
    report.beginStep(QStringLiteral("Step"), {});
    report.expect(true, QStringLiteral("this"));
    report.expect(false, QStringLiteral("that"));
    QCOMPARE(report.failures(), QStringList(QStringLiteral("Step: that")));
    QVERIFY(report.write());
    const QString text = readReport(folder);
    QVERIFY(text.contains(QStringLiteral("- shown: this")));
    QVERIFY(text.contains(QStringLiteral("- **NOT SHOWN:** that")));
    QVERIFY(text.contains(QStringLiteral("1 expectations were not met")));
}

void TourReportTest::aFolderThatCannotBeMadeIsAFailure()
{
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath(QStringLiteral("file")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    TourReport report(folder.filePath(QStringLiteral("file/tour")));
    QVERIFY(!report.failures().isEmpty());
    QVERIFY(!report.write());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::TourReportTest;
ZORVANE_TEST(TourReportTest)
#include "TourReportTest.moc"
