#pragma once

#include "Tests/Support/Windows/CallScript.h"
#include "Tests/Support/Windows/RegisteredClass.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <vector>

#include <windows.h>

#include <sherrors.h>
#include <shobjidl.h>

namespace Zorvane::Testing {

/** What the fake engine does to one file, in place of asking a user. */
struct CopyBehavior
{
    /** What it reports of the item. */
    HRESULT result = S_OK;
    /** Whether there is a copy; under a free name where the name is taken. */
    bool makesCopy = true;
    /** Says "pending" first, with the same items. */
    bool pendingFirst = false;
    /** Not told of at all, as after an abort. */
    bool isSilent = false;
    /** What the copy is called; empty as its source. */
    QString name = {};
    /** Puts the copy in the place of the file that has its name. */
    bool replaces = false;
};

/** What a test says to the fake engine, and what it learns from it. */
struct FileOperationScript
{
    CallScript calls;
    /** By file name; all other files are copied. */
    QHash<QString, CopyBehavior> behaviors;
    HRESULT performResult = S_OK;
    /** Tells of the items from the last to the first. */
    bool backwards = false;
    /** Tells of each item twice. */
    bool twice = false;
    /** What else the engine tells while it works. */
    std::function<void(IFileOperationProgressSink*)> whilePerforming;
    /** Writes down the calls of the items that are made, too. */
    bool itemsTell = false;

    HWND owner = nullptr;
    DWORD flags = 0;
    QString folder;
    /** References that are left on the array, its items, the folder and the sink after the run. */
    ULONG leftReferences = 0;
    int operations = 0;
};

/**
 * A file operation engine in the shell's place as long as this lives: it copies files for real,
 * and takes behaviours for what a user would answer. Wine's own engine refuses everything.
 */
class FakeFileOperations
{
public:
    explicit FakeFileOperations(FileOperationScript& script);

private:
    RegisteredClass m_class;
};

} // namespace Zorvane::Testing
