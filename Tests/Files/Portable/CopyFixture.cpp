#include "Tests/Files/Portable/CopyFixture.h"

#include "Files/PathText.h"

#include <QtCore/QDir>

#include <dirent.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>

namespace Zorvane::Testing {

namespace {

std::string leafOf(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

} // namespace

CopyFixture::CopyFixture()
{
    QDir root(m_root.path());
    root.mkdir(QStringLiteral("source"));
    root.mkdir(QStringLiteral("target"));
}

CopyFixture::~CopyFixture()
{
    // QTemporaryDir cannot remove names that are not UTF-8.
    std::error_code ignored;
    std::filesystem::remove_all(pathToBytes(m_root.path()), ignored);
}

std::string CopyFixture::source(const std::string& name) const
{
    return pathToBytes(sourceFolder()) + '/' + name;
}

std::string CopyFixture::target(const std::string& name) const
{
    return pathToBytes(targetFolder()) + '/' + name;
}

QString CopyFixture::addSource(const std::string& name, const std::string& content)
{
    writeFile(source(name), content);
    return pathFromBytes(source(name));
}

void CopyFixture::addTarget(const std::string& name, const std::string& content)
{
    writeFile(target(name), content);
}

FolderContent CopyFixture::sourceContent() const
{
    return contentOf(pathToBytes(sourceFolder()));
}

FolderContent CopyFixture::targetContent() const
{
    return contentOf(pathToBytes(targetFolder()));
}

Records CopyFixture::copy(const QStringList& sources, const SystemCalls& calls)
{
    return CopyEngine(questions, progress, calls).run(sources, targetFolder());
}

void writeFile(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

std::string contentOfFile(const std::string& path)
{
    // By blocks: letter by letter takes most of a test's time.
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

FolderContent contentOf(const std::string& folder)
{
    FolderContent content;
    DIR* stream = opendir(folder.c_str());
    while (const dirent* entry = readdir(stream)) {
        const std::string name(entry->d_name);
        if (name == "." || name == "..")
            continue;
        const std::string path = folder + '/' + name;
        struct stat status
        {};
        if (stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
            content[name] = S_ISDIR(status.st_mode) ? "<folder>" : "<special>";
            continue;
        }
        content[name] = contentOfFile(path);
    }
    closedir(stream);
    return content;
}

FolderContent reportedContent(const FolderContent& before, const Records& outcomes,
                              const FolderContent& sources)
{
    FolderContent content = before;
    for (const Record& outcome : outcomes) {
        if (!outcome.target.isEmpty())
            content[leafOf(pathToBytes(outcome.target))] =
                sources.at(leafOf(pathToBytes(outcome.source)));
    }
    return content;
}

} // namespace Zorvane::Testing
