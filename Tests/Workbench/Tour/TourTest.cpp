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

const QLatin1String
    s_pictures("drawn-cup draw-die turned filtered-by-text filtered-by-kinds editing-a-name "
               "renamed name-refused changed-by-another-program file-missing preview-mesh "
               "preview-mesh-dark preview-table-dark preview-table preview-text preview-damaged "
               "save-as save-as-dark save-as-replaces save-as-replaces-dark save-a-copy "
               "save-a-copy-dark open-folder open-folder-dark save-questions save-questions-dark "
               "simulation simulation-results redone converted converted-dark converting "
               "converting-dark not-converted not-converted-dark changed-by-two "
               "changed-by-two-dark questions-about-changes questions-about-changes-dark "
               "undefined-action undefined-action-dark door-panel who-uses-a-material "
               "colours-of-parts thickness-and-force from-the-other-corner only-geometry "
               "mirror-image menus menus-of-tubes-dark help help-dark about about-dark "
               "500-files-being-read 500-files-read scroll-position-kept broken-inputs "
               "100000-triangles a-tree-under-stress dialog-controls-dark dialog-panel-dark "
               "dialog-controls dialog-panel dialog-in-a-dialog dark at-150-percent "
               "from-right-to-left in-german");

// A system with a shell copies by that, which asks and shows progress itself.
const QLatin1String s_picturesOfOurCopier(
    "import-question import-question-dark import-collision import-collision-dark "
    "imported import-progress import-progress-dark exported");

/** What the tour shows here, without the numbers of the pictures. */
QStringList expectedPictures()
{
    QString names = s_pictures;
    if (Testing::PlatformCopies::askByOurDialog())
        names += QLatin1Char(' ') + s_picturesOfOurCopier;
    return names.split(QLatin1Char(' '));
}

/** Those of a list that another one lacks, to be read. */
QString lackedBy(const QStringList& other, QStringList names)
{
    for (const QString& name : other)
        names.removeOne(name);
    return names.join(QLatin1Char(' '));
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
    void initTestCase();
    void showsEverythingAndEndsWell();
    void leavesAPictureOfEveryStep();
    void leavesPicturesThatAreNotBlank();
    void showsDialogsLightAndDark();
    void tellsWhatEachPictureShows();
    void endsBadlyWhenItCannotStorePictures();
    void refusesUnknownOptions();

private:
    Outcome m_outcome{};
    QString m_text;
    QStringList m_pictures;
};

/** Takes the tour, once for all that look at what it left. */
void TourTest::initTestCase()
{
    TestCase::initTestCase();
    QVERIFY(QDir(s_folder).removeRecursively());
    m_outcome = runWorkbench({QStringLiteral("--tour"), s_folder});
    m_pictures = QDir(s_folder).entryList({QStringLiteral("*.png")});
    QFile file(QDir(s_folder).filePath(QStringLiteral("tour.md")));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(m_outcome.errors));
    m_text = QString::fromUtf8(file.readAll());
}

void TourTest::showsEverythingAndEndsWell()
{
    QVERIFY2(m_outcome.exitCode == 0, qPrintable(m_outcome.errors));
    QVERIFY(!m_text.contains(QStringLiteral("NOT SHOWN")));
}

void TourTest::leavesAPictureOfEveryStep()
{
    QStringList shown;
    for (const QString& picture : qAsConst(m_pictures))
        shown << picture.section(QLatin1Char('-'), 1).chopped(4);
    const QStringList expected = expectedPictures();
    QCOMPARE(lackedBy(shown, expected), QString());
    QCOMPARE(lackedBy(expected, shown), QString());
}

void TourTest::leavesPicturesThatAreNotBlank()
{
    for (const QString& picture : qAsConst(m_pictures)) {
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
    const auto lightness = [this](const QString& name) {
        const QStringList found =
            m_pictures.filter(QRegularExpression(QStringLiteral("^\\d+-%1\\.png$").arg(name)));
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
    QStringList told;
    const QRegularExpression link(QStringLiteral("\\]\\(([^)]*)\\)"));
    for (auto match = link.globalMatch(m_text); match.hasNext();)
        told << match.next().captured(1);
    QCOMPARE(lackedBy(told, m_pictures), QString());
    QCOMPARE(lackedBy(m_pictures, told), QString());
    for (const char* shown :
         {"Operations (1)", "the operation's new name", "File missing", "Mesh files (500)",
          "Mesh files (501)", "truncated.stl: ", "shopping-list.stl: ", "sparse.stl: ", "cut.dsg: ",
          "1 design · 3 of 14 objects shown", "no place lost in 120 refreshes",
          "Mesh view, Legend of colours, Details", "read aloud: 4 references",
          "3.4e6 N stepped to 3.41e6 N", "two dialogs at once"})
        QVERIFY2(m_text.contains(QString::fromUtf8(shown)), shown);
    QVERIFY(m_text.contains(Testing::PlatformCopies::askByOurDialog()
                                ? QStringLiteral("both questions")
                                : QStringLiteral("The system's own dialogs ask here.")));
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
ZORVANE_TEST(TourTest)
#include "TourTest.moc"
