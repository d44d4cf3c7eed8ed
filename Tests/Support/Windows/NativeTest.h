#pragma once

#include "Tests/Support/TestCase.h"

#include <QtCore/QtGlobal>

/** The main function of tests that need real windows of the system. */
#define ZORVANE_NATIVE_TEST_MAIN(Test)                      \
    int main(int argc, char** argv)                         \
    {                                                       \
        qputenv("QT_QPA_PLATFORM", "windows");              \
        return Zorvane::Testing::runTest<Test>(argc, argv); \
    }
