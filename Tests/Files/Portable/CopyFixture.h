#pragma once

#include "Files/Portable/CopyEngine.h"
#include "Tests/Files/ScriptedCopy.h"

#include <QtCore/QTemporaryDir>

#include <map>
#include <string>

namespace Zorvane::Testing {

using Outcome = FileCopyUtility::Outcome;
using Record = FileCopyUtility::FileCopyInfo;
using Records = QList<Record>;

/** Content by name, names in bytes. */
using FolderContent = std::map<std::string, std::string>;

/** A source and a target folder on the disk, and everything to look at them with. */
class CopyFixture
{
public:
    CopyFixture();
    ~CopyFixture();

    CopyFixture(const CopyFixture&) = delete;
    CopyFixture& operator=(const CopyFixture&) = delete;

    QString sourceFolder() const { return m_root.filePath(QStringLiteral("source")); }
    QString targetFolder() const { return m_root.filePath(QStringLiteral("target")); }
    /** In bytes, with the name added. */
    std::string source(const std::string& name) const;
    std::string target(const std::string& name) const;

    /** Write a file; the returned text is what a copy takes as a source. */
    QString addSource(const std::string& name, const std::string& content);
    void addTarget(const std::string& name, const std::string& content);

    /** Every entry, hidden and strangely named ones too; folders have the content "<folder>". */
    FolderContent sourceContent() const;
    FolderContent targetContent() const;

    Records copy(const QStringList& sources, const SystemCalls& calls = SystemCalls::real());

    ScriptedQuestions questions;
    ScriptedProgress progress;

private:
    QTemporaryDir m_root;
};

void writeFile(const std::string& path, const std::string& content);
std::string contentOfFile(const std::string& path);
FolderContent contentOf(const std::string& folder);

/**
 * What the target folder must hold, given what it held and what the copy reports: the content of
 * each copied source under the reported name, everything else as before, and nothing more.
 */
FolderContent reportedContent(const FolderContent& before, const Records& outcomes,
                              const FolderContent& sources);

} // namespace Zorvane::Testing
