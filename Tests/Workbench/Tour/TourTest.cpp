#include "Tests/Support/PlatformCopies.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <set>

namespace Zorvane::Workbench {

namespace {

const QString s_folder = QStringLiteral(ZORVANE_TOUR_FOLDER);

struct Outcome
{
    int exitCode;
    QString errors;
};

Outcome runWorkbench(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(ZORVANE_WORKBENCH), arguments);
    if (!process.waitForFinished(240'000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, QStringLiteral("did not end by itself: ") + process.errorString()};
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardError())};
}

std::size_t colourCount(const QImage& image)
{
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            colours.insert(image.pixel(x, y));
    return colours.size();
}

} // namespace

class TourTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsEverythingAndEndsWell();
    void leavesPicturesThatAreNotBlank();
    void showsDialogsLightAndDark();
    void tellsWhatEachPictureShows();
    void endsBadlyWhenItCannotStorePictures();
    void refusesUnknownOptions();
};

void TourTest::showsEverythingAndEndsWell()
{
    QVERIFY(QDir(s_folder).removeRecursively());
    const Outcome outcome = runWorkbench({QStringLiteral("--tour"), s_folder});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
}

void TourTest::leavesPicturesThatAreNotBlank()
{
    const QStringList pictures = QDir(s_folder).entryList({QStringLiteral("*.png")});
    // Five are of questions and progress that a system with a shell shows itself.
    QVERIFY(pictures.size() >= (Testing::PlatformCopies::askByOurDialog() ? 34 : 29));
    for (const QString& picture : pictures) {
        const QImage image(QDir(s_folder).filePath(picture));
        QVERIFY2(image.width() >= 1000 && image.height() >= 600, qPrintable(picture));
        QVERIFY2(colourCount(image) > 100, qPrintable(picture));
    }
}

void TourTest::showsDialogsLightAndDark()
{
    QStringList dialogs{QStringLiteral("help"),      QStringLiteral("about"),
                        QStringLiteral("save-as"),   QStringLiteral("converting"),
                        QStringLiteral("converted"), QStringLiteral("not-converted")};
    if (Testing::PlatformCopies::askByOurDialog())
        dialogs << QStringLiteral("import-question") << QStringLiteral("import-collision")
                << QStringLiteral("import-progress");
    const QStringList pictures = QDir(s_folder).entryList({QStringLiteral("*.png")});
    const auto lightness = [&pictures](const QString& name) {
        const QStringList found =
            pictures.filter(QRegularExpression(QStringLiteral("^\\d+-%1\\.png$").arg(name)));
        const QImage image(QDir(s_folder).filePath(found.value(0)));
        // In the status bar, which no dialog covers.
        return found.isEmpty() ? -1 : qGray(image.pixel(image.width() / 2, image.height() - 4));
    };
    for (const QString& dialog : qAsConst(dialogs)) {
        QVERIFY2(lightness(dialog) > 128, qPrintable(dialog));
        const int dark = lightness(dialog + QStringLiteral("-dark"));
        QVERIFY2(dark >= 0 && dark < 128, qPrintable(dialog));
    }
}

void TourTest::tellsWhatEachPictureShows()
{
    QFile file(QDir(s_folder).filePath(QStringLiteral("tour.md")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    for (const QString& picture : QDir(s_folder).entryList({QStringLiteral("*.png")}))
        QVERIFY2(text.contains(QStringLiteral("](%1)").arg(picture)), qPrintable(picture));
    for (const char* shown :
         {"Operations (3)", "the operation's new name", "File missing", "Mesh files (500)",
          "Mesh files (501)", "truncated.stl: ", "shopping-list.stl: ", "sparse.stl: ", "cut.dsg: ",
          "1 design · 3 of 14 objects shown", "no place lost in 120 refreshes",
          "Mesh view, Legend of colours, Details", "read aloud: 4 references",
          "3.4e6 N stepped to 3.41e6 N", "two dialogs at once"})
        QVERIFY2(text.contains(QString::fromUtf8(shown)), shown);
    QVERIFY(text.contains(Testing::PlatformCopies::askByOurDialog()
                              ? QStringLiteral("both questions")
                              : QStringLiteral("The system's own dialogs ask here.")));
    QVERIFY(!text.contains(QStringLiteral("NOT SHOWN")));
}

void TourTest::endsBadlyWhenItCannotStorePictures()
{
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath(QStringLiteral("file")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const Outcome outcome =
        runWorkbench({QStringLiteral("--tour"), folder.filePath(QStringLiteral("file/tour"))});
    QVERIFY(outcome.exitCode > 0);
    QVERIFY(outcome.errors.contains(QStringLiteral("not shown")));
}

void TourTest::refusesUnknownOptions()
{
    const Outcome outcome = runWorkbench({QStringLiteral("--no-such-option")});
    QVERIFY(outcome.exitCode > 0);
    QVERIFY(outcome.errors.contains(QStringLiteral("no-such-option")));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::TourTest;
ZORVANE_TEST_MAIN(TourTest)
#include "TourTest.moc"
