#include "Files/Portable/StagedFile.h"

#include "Files/Portable/FileIdentity.h"

#include <utility>

namespace Zorvane {

namespace {

constexpr off_t s_piece = off_t(32) << 20;

} // namespace

StagedFile::StagedFile(const TargetFolder& folder)
    : m_folder(folder)
{}

StagedFile::~StagedFile()
{
    removeTemporaryName();
}

StagedFile::StagedFile(StagedFile&& other) noexcept
    : m_folder(other.m_folder)
    , m_file(std::move(other.m_file))
    , m_temporaryName(std::exchange(other.m_temporaryName, std::string()))
    , m_mayHaveName(other.m_mayHaveName)
{}

int StagedFile::create(mode_t permissions)
{
    return m_folder.createFile(m_file, m_temporaryName, permissions);
}

int StagedFile::publishNew(const std::string& leaf)
{
    m_mayHaveName = true;
    const int error = giveName(leaf);
    // Over a network an answer may get lost, and the repeated call then meets its own success.
    if ((error == EEXIST || error == ENOENT) && hasName(leaf)) {
        removeTemporaryName();
        return 0;
    }
    return error;
}

int StagedFile::giveName(const std::string& leaf)
{
    const SystemCalls& calls = m_folder.calls();
    const int folder = m_folder.descriptor();
    const char* from = m_temporaryName.c_str();
    int error = ENOTSUP;
    switch (m_folder.means()) {
    case TargetFolder::Means::LinkUnnamed:
        return errorOf([&] { return calls.linkUnnamed(m_file.get(), folder, leaf.c_str()); });
    case TargetFolder::Means::RenameNoReplace:
        error = errorOf([&] { return calls.renameNoReplace(folder, from, leaf.c_str()); });
        if (error == 0)
            m_temporaryName.clear();
        return error;
    case TargetFolder::Means::Link:
        error = errorOf([&] { return calls.link(folder, from, leaf.c_str()); });
        if (error == 0)
            removeTemporaryName();
        return error;
    case TargetFolder::Means::None:
        break;
    }
    return error;
}

int StagedFile::publishReplacing(const std::string& leaf)
{
    m_mayHaveName = true;
    const SystemCalls& calls = m_folder.calls();
    const int folder = m_folder.descriptor();
    if (m_temporaryName.empty()) {
        const std::string name = m_folder.freshName();
        const int error =
            errorOf([&] { return calls.linkUnnamed(m_file.get(), folder, name.c_str()); });
        // Its own name after an error is a lost answer; EEXIST otherwise would look like `leaf`'s.
        if (error != 0 && !hasName(name))
            return error == EEXIST ? EAGAIN : error;
        m_temporaryName = name;
    }
    const int error =
        errorOf([&] { return calls.rename(folder, m_temporaryName.c_str(), leaf.c_str()); });
    if (error != 0 && !(error == ENOENT && hasName(leaf)))
        return error;
    m_temporaryName.clear();
    return 0;
}

void StagedFile::giveUpContent(const std::function<void()>& advance)
{
    const SystemCalls& calls = m_folder.calls();
    struct stat status
    {};
    if (m_mayHaveName || !m_file.isOpen() || calls.status(m_file.get(), status) != 0)
        return;
    for (off_t left = status.st_size - s_piece; left > 0; left -= s_piece) {
        if (errorOf([&] { return calls.setSize(m_file.get(), left); }) != 0)
            return; // closing does it at one stroke
        advance();
    }
}

bool StagedFile::hasName(const std::string& leaf) const
{
    struct stat mine
    {};
    struct stat named
    {};
    return m_folder.calls().status(m_file.get(), mine) == 0 && m_folder.entry(leaf, named) == 0 &&
           isSameFile(mine, named);
}

void StagedFile::removeTemporaryName()
{
    if (m_temporaryName.empty())
        return;
    const std::string name = std::exchange(m_temporaryName, std::string());
    m_folder.remove(name);
}

} // namespace Zorvane
