#pragma once

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <optional>
#include <string>

Q_DECLARE_METATYPE(std::string)

namespace Zorvane::Testing {

/** In milliseconds. Only a failing test waits so long, however busy the machine is. */
constexpr int patience = 60'000;

/**
 * Base of every test class. A warning or worse through Qt's message handler fails the running
 * test function, unless `expectWarning` announced it; an announced one that never comes fails
 * it too. A test class that has `initTestCase`, `init` or `cleanup` of its own calls the base's.
 */
class TestCase : public QObject
{
    Q_OBJECT

protected:
    /** The next warning that matches is wanted. */
    static void expectWarning(const QString& pattern);

protected Q_SLOTS:
    void initTestCase();
    void cleanup();
};

/** Whether `./test --long` runs: tests of random cases then take minutes instead of seconds. */
bool isLongRun();

/** Settings of tests are kept in a folder that is removed when the program ends. */
void prepareApplication();

template <typename Test>
int runTest(int argc, char** argv)
{
    prepareApplication();
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/**
 * Enters a test class into its program. `PROGRAM CLASS [option of Qt Test...]` runs one class, each
 * in a process of its own, so that no class sees what another one left behind.
 */
struct TestClass
{
    TestClass(const char* name, int (*run)(int argc, char** argv));
};

/**
 * Enters a second use of a test program, which some tests start as a child process. `run` returns
 * nothing where the arguments are not meant for it.
 */
struct ChildProcess
{
    explicit ChildProcess(std::optional<int> (*run)(int argc, char** argv));
};

} // namespace Zorvane::Testing

// QtTest's own five seconds are too few for a machine with much else to do.
#undef QTRY_VERIFY
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, Zorvane::Testing::patience)
#undef QTRY_VERIFY2
#define QTRY_VERIFY2(condition, message) \
    QTRY_VERIFY2_WITH_TIMEOUT(condition, message, Zorvane::Testing::patience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected) \
    QTRY_COMPARE_WITH_TIMEOUT(actual, expected, Zorvane::Testing::patience)

#define ZORVANE_TEST(Test) ZORVANE_TEST_RUN_BY(Test, &Zorvane::Testing::runTest<Test>)

/** For a test that needs another application object than the usual one. */
#define ZORVANE_TEST_RUN_BY(Test, run) \
    static const Zorvane::Testing::TestClass programEntryOf##Test(#Test, run);
