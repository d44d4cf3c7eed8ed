#include "Dialogs/FileConverterLogInterface.h"
#include "Tests/Support/Portable/SmallDisk.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Convert/MeshConversion.h"
#include "Workbench/Meshes/GeneratedMeshes.h"
#include "Workbench/Meshes/MeshWriter.h"
#include "Workbench/Saving/DesignSaving.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Tour/TourReport.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"
#include "Workbench/Writing/SettingsFile.h"
#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QDir>
#include <QtCore/QPoint>
#include <QtCore/QScopeGuard>
#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>

#include <memory>

namespace Zorvane::Workbench {

using Testing::objectId;
using Testing::readFile;
using Testing::SmallDisk;
using Testing::writeFile;

namespace {

class MessageLog : public FileConverterLogInterface
{
public:
    void addMessage(const QString& message) override { messages.append(message); }

    QStringList messages;
};

/** Whether it is the system's reason, also where the test has to do with a limit of its own. */
bool tellsOfFullDisk(const QString& text)
{
    return text.contains(qt_error_string(ENOSPC)) || text.contains(qt_error_string(EFBIG));
}

} // namespace

/** Every kind of file that the program writes, where there is no room for it. */
class FullDiskTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fullDisk_keepsOldFile_data();
    void fullDisk_keepsOldFile();
    void design_isKeptAndStaysModified();
    void newDesignMark_refusesSimulation();
    void results_areReportedAndLeaveNothing();
    void mesh_keepsOldFile();
    void convertedFile_leavesNothing();
    void tour_isReported();
    void settings_keepOldOnes();
    void choiceNotStored_isReported();

private:
    QString openDesign(DesignSession& session) const;
    QStringList filesIn(const QString& folder) const
    {
        return QDir(m_disk->filePath(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    std::unique_ptr<SmallDisk> m_disk;
};

void FullDiskTest::init()
{
    m_disk = std::make_unique<SmallDisk>();
}

void FullDiskTest::cleanup()
{
    m_disk.reset();
    TestCase::cleanup();
}

QString FullDiskTest::openDesign(DesignSession& session) const
{
    writeFile(m_disk->filePath(QStringLiteral("geometry/die.stl")),
              Testing::binaryStl(Testing::cube()));
    writeFile(m_disk->filePath(QStringLiteral("steel.json")), "{}");
    const QString file = writeFile(m_disk->filePath(QStringLiteral("small.dsg")),
                                   Testing::toText(Testing::smallDesign()));
    session.open({file});
    return file;
}

void FullDiskTest::fullDisk_keepsOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("within a buffer") << 100;
    QTest::newRow("more than a buffer") << 100'000;
}

void FullDiskTest::fullDisk_keepsOldFile()
{
    QFETCH(int, size);
    const QString file = writeFile(m_disk->filePath(QStringLiteral("file")), "old");
    QVERIFY(m_disk->fill());
    const QString reason = writeWholeFile(file, QByteArray(size, 'n'));
    m_disk->makeRoom();
    QVERIFY2(tellsOfFullDisk(reason), qPrintable(reason));
    QCOMPARE(readFile(file), QByteArray("old"));
    QCOMPARE(filesIn({}), QStringList(QStringLiteral("file")));
    QCOMPARE(writeWholeFile(file, QByteArray(size, 'n')), QString());
    QCOMPARE(readFile(file).size(), size);
}

void FullDiskTest::design_isKeptAndStaysModified()
{
    MainWindow window;
    DesignSession& session = window.session();
    const QString file = openDesign(session);
    const QByteArray before = readFile(file);
    session.rename(objectId(10), QStringLiteral("Left door"));
    QVERIFY(m_disk->fill());
    QVERIFY(!window.saving().save(objectId(1)));
    m_disk->makeRoom();
    QVERIFY2(tellsOfFullDisk(window.messageBar().text()), qPrintable(window.messageBar().text()));
    QCOMPARE(readFile(file), before);
    QVERIFY(session.isDesignModified(objectId(1)));
    QVERIFY(window.saving().save(objectId(1)));
    QVERIFY(readFile(file).contains("Left door"));
    QVERIFY(!session.isDesignModified(objectId(1)));
}

void FullDiskTest::newDesignMark_refusesSimulation()
{
    DesignSession session;
    openDesign(session);
    SimulationRunner runner;
    QVERIFY(m_disk->fill());
    const std::optional<Problem> problem = runner.start(session.designs().front());
    m_disk->makeRoom();
    QVERIFY(problem);
    QVERIFY2(problem->reason.contains(QStringLiteral("full")), qPrintable(problem->reason));
    QCOMPARE(filesIn({}), QStringList({QStringLiteral("small.dsg"), QStringLiteral("steel.json")}));
}

void FullDiskTest::results_areReportedAndLeaveNothing()
{
    DesignSession session;
    openDesign(session);
    SimulationRunner runner;
    QSignalSpy failed(&runner, &SimulationRunner::failed);
    QVERIFY(!runner.start(session.designs().front()));
    QVERIFY(m_disk->fill());
    QTRY_COMPARE(failed.size(), 1);
    m_disk->makeRoom();
    const QString reason = failed[0][1].value<Problem>().reason;
    QVERIFY2(tellsOfFullDisk(reason), qPrintable(reason));
    QCOMPARE(filesIn(QStringLiteral("results")), QStringList());
}

void FullDiskTest::mesh_keepsOldFile()
{
    const QString file = writeFile(m_disk->filePath(QStringLiteral("mesh.stl")), "old");
    QVERIFY(m_disk->fill());
    const std::optional<Problem> problem = writeStl(blockMesh({1, 2, 3}), file, StlFormat::Binary);
    m_disk->makeRoom();
    QVERIFY(problem);
    QVERIFY2(tellsOfFullDisk(problem->reason), qPrintable(problem->reason));
    QCOMPARE(readFile(file), QByteArray("old"));
}

void FullDiskTest::convertedFile_leavesNothing()
{
    const QString source = writeFile(m_disk->filePath(QStringLiteral("cube.stl")),
                                     Testing::binaryStl(Testing::cube()));
    const QString folder = QStringLiteral("converted");
    QVERIFY(QDir(m_disk->path()).mkdir(folder));
    QVERIFY(m_disk->fill());
    MessageLog log;
    MeshConversion conversion;
    const int code = conversion.convert(FileName(source), FileName(m_disk->filePath(folder)), log);
    m_disk->makeRoom();
    QCOMPARE(code, int(MeshConversion::ConversionOutputFailed));
    QVERIFY2(tellsOfFullDisk(log.messages.last()), qPrintable(log.messages.last()));
    QCOMPARE(filesIn(folder), QStringList());
}

void FullDiskTest::tour_isReported()
{
    TourReport report(m_disk->filePath(QStringLiteral("tour")));
    QImage picture(40, 40, QImage::Format_RGB32);
    for (int pixel = 0; pixel < 1600; ++pixel)
        picture.setPixel(pixel % 40, pixel / 40, QRgb(pixel));
    report.addPicture(QStringLiteral("before"), picture);
    QVERIFY(report.failures().isEmpty());
    QVERIFY(m_disk->fill());
    report.addPicture(QStringLiteral("after"), picture);
    const bool isWritten = report.write();
    m_disk->makeRoom();
    QCOMPARE(report.failures().size(), 1);
    QVERIFY(!isWritten);
    QCOMPARE(filesIn(QStringLiteral("tour")), QStringList(QStringLiteral("01-before.png")));
}

void FullDiskTest::settings_keepOldOnes()
{
    const QString file = m_disk->filePath(QStringLiteral("settings.json"));
    QSettings settings(file, settingsFileFormat());
    settings.setValue(QStringLiteral("Window/Place"), QPoint(1, 2));
    settings.sync();
    const QByteArray before = readFile(file);
    QVERIFY(m_disk->fill(true));
    settings.setValue(QStringLiteral("Long"), QString(8000, QLatin1Char('x')));
    settings.sync();
    m_disk->makeRoom();
    QCOMPARE(settings.status(), QSettings::AccessError);
    QCOMPARE(readFile(file), before);
}

void FullDiskTest::choiceNotStored_isReported()
{
    const QSettings::Format before = QSettings::defaultFormat();
    QSettings::setDefaultFormat(settingsFileFormat());
    QSettings::setPath(settingsFileFormat(), QSettings::UserScope, m_disk->path());
    const auto restore = qScopeGuard([before] { QSettings::setDefaultFormat(before); });
    MainWindow window;
    const QList<QAction*> appearances =
        window.commands().subMenu(CommandSubMenu::Appearance).actions();
    appearances.last()->trigger();
    QVERIFY(window.messageBar().text().isEmpty());
    QVERIFY(m_disk->fill());
    appearances.first()->trigger();
    m_disk->makeRoom();
    QVERIFY(!window.messageBar().text().isEmpty());
    QCOMPARE(storedAppearance(), Appearance::System);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::FullDiskTest;
ZORVANE_TEST(FullDiskTest)
#include "FullDiskTest.moc"
