#pragma once

#include "Tests/Files/Portable/CopyFixture.h"
#include "Tests/Files/Portable/FaultySystem.h"

#include <QtCore/QByteArray>
#include <QtTest/QtTest>

namespace Zorvane::Testing {

/** The ways by which files get their names, from the best to the poorest. */
enum Means
{
    LinkUnnamed,
    RenameNoReplace,
    Link
};

inline void addMeansColumn()
{
    QTest::addColumn<int>("means");
}

inline void addMeansRows()
{
    addMeansColumn();
    QTest::newRow("unnamed files") << int(LinkUnnamed);
    QTest::newRow("renaming without replacing") << int(RenameNoReplace);
    QTest::newRow("hard links only") << int(Link);
}

inline void restrictTo(FaultySystem& system, int means)
{
    if (means != LinkUnnamed)
        system.removeUnnamedFiles();
    if (means == Link)
        system.removeNoReplaceRename();
    if (means == RenameNoReplace)
        system.removeHardLinks();
}

inline QByteArray describe(const FolderContent& content)
{
    QByteArray text;
    for (const auto& [name, value] : content)
        text +=
            QByteArray::fromStdString(name) + ": " + QByteArray::number(int(value.size())) + "; ";
    return text;
}

} // namespace Zorvane::Testing
