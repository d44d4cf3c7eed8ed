#include "Tests/Support/TestCase.h"

#include "Tests/Support/PlatformFacts.h"

#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Testing {

namespace {

QtMessageHandler s_testLog = nullptr;

QStringList& expectedPatterns()
{
    static QStringList patterns;
    return patterns;
}

bool takeExpected(const QString& message)
{
    QStringList& patterns = expectedPatterns();
    for (int i = 0; i < patterns.size(); ++i) {
        if (QRegularExpression(patterns.at(i)).match(message).hasMatch()) {
            patterns.removeAt(i);
            return true;
        }
    }
    return false;
}

void failOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (isRemarkOfPlatform(message))
        return;
    if (type == QtDebugMsg || type == QtInfoMsg || type == QtFatalMsg) {
        s_testLog(type, context, message);
    } else if (!takeExpected(message)) {
        s_testLog(type, context, message);
        QTest::qFail(qPrintable(QStringLiteral("unexpected warning: ") + message), context.file,
                     context.line);
    }
}

} // namespace

void TestCase::expectWarning(const QString& pattern)
{
    expectedPatterns().append(pattern);
}

void TestCase::initTestCase()
{
    // QtTest installs its own handler when it starts a class; ours stands in front of it.
    s_testLog = qInstallMessageHandler(failOnWarning);
}

void TestCase::cleanup()
{
    const QStringList missed = expectedPatterns();
    expectedPatterns().clear();
    if (!missed.isEmpty())
        QTest::qFail(qPrintable(QStringLiteral("expected warnings that never came: ") +
                                missed.join(QStringLiteral(", "))),
                     __FILE__, __LINE__);
}

bool isLongRun()
{
    return qEnvironmentVariableIsSet("ZORVANE_LONG_TESTS");
}

void prepareApplication()
{
    static const QTemporaryDir settings;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", usualPlatform());
    QStandardPaths::setTestModeEnabled(true);
    // A test can answer only dialogs that Qt draws; those of the system have tests of their own.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setOrganizationName(QStringLiteral("Zorvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Tests"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    // Qt's own file dialogs keep theirs in the native format, whatever the default is.
    for (const QSettings::Format format : {QSettings::IniFormat, QSettings::NativeFormat})
        QSettings::setPath(format, QSettings::UserScope, settings.path());
}

} // namespace Zorvane::Testing
