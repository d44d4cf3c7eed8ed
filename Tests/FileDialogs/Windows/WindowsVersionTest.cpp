#include "FileDialogs/FileDialogDriver.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QSettings>

#include <windows.h>

using namespace Zorvane;

namespace {

constexpr char driverQuestion[] = "--tell-driver";

enum Answer
{
    NoDriver = 40,
    Driver = 41
};

std::optional<int> answerDriverQuestion(int argc, char** argv)
{
    if (argc != 2 || qstrcmp(argv[1], driverQuestion) != 0)
        return std::nullopt;
    return createNativeFileDialogDriver() ? Driver : NoDriver;
}

const Testing::ChildProcess driverProcess(&answerDriverQuestion);

/** As long as it lives, Wine shows this program another version of Windows when it starts. */
class ShownVersion
{
public:
    explicit ShownVersion(const QString& version)
        : m_settings(QStringLiteral("HKEY_CURRENT_USER\\Software\\Wine\\AppDefaults\\") +
                         QFileInfo(QCoreApplication::applicationFilePath()).fileName(),
                     QSettings::NativeFormat)
    {
        m_settings.setValue(QStringLiteral("Version"), version);
        m_settings.sync();
    }
    ~ShownVersion() { m_settings.clear(); }

private:
    QSettings m_settings;
};

bool isWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

} // namespace

/** Whether there is a native dialog, by the version of Windows: told by this program run again. */
class WindowsVersionTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void beforeVersionSixThereIsNoDriver_data();
    void beforeVersionSixThereIsNoDriver();
};

void WindowsVersionTest::beforeVersionSixThereIsNoDriver_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<int>("answer");
    QTest::newRow("5.2") << QStringLiteral("winxp64") << int(NoDriver);
    QTest::newRow("6.0") << QStringLiteral("vista") << int(Driver);
    QTest::newRow("6.1") << QStringLiteral("win7") << int(Driver);
    QTest::newRow("10.0") << QStringLiteral("win10") << int(Driver);
}

void WindowsVersionTest::beforeVersionSixThereIsNoDriver()
{
    if (!isWine())
        QSKIP("only Wine can pretend to be another version of Windows");
    QFETCH(QString, version);
    const ShownVersion shown(version);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(driverQuestion)});
    // The test's own time limit is the limit.
    QVERIFY(child.waitForFinished(-1));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QTEST(child.exitCode(), "answer");
}

ZORVANE_TEST(WindowsVersionTest)
#include "WindowsVersionTest.moc"
