#pragma once

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace Zorvane::Testing {

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

/** Settings of tests live in a folder that goes away with the program. */
void prepareApplication();

template <typename Test>
int runTest(int argc, char** argv)
{
    prepareApplication();
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace Zorvane::Testing

#define ZORVANE_TEST_MAIN(Test)                             \
    int main(int argc, char** argv)                         \
    {                                                       \
        return Zorvane::Testing::runTest<Test>(argc, argv); \
    }
