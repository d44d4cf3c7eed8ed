#include "Files/Portable/StagedFile.h"

#include <utility>

namespace Zorvane {

namespace {

constexpr off_t s_piece = off_t(32) << 20;

} // namespace

StagedFile::StagedFile(TargetFolder& folder)
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
    if ((error == EEXIST || error == ENOENT) && m_folder.isNameOf(m_file.get(), leaf)) {
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
    if (m_folder.isAppendOnly())
        return EPERM; // a temporary name would stay
    if (m_temporaryName.empty()) {
        if (const int error = giveTemporaryName())
            return error;
    }
    const SystemCalls& calls = m_folder.calls();
    const int folder = m_folder.descriptor();
    const int error =
        errorOf([&] { return calls.rename(folder, m_temporaryName.c_str(), leaf.c_str()); });
    if (error != 0 && !(error == ENOENT && m_folder.isNameOf(m_file.get(), leaf)))
        return error;
    m_temporaryName.clear();
    return 0;
}

int StagedFile::giveTemporaryName()
{
    const std::string name = m_folder.freshName();
    m_folder.lockFile(m_file.get());
    const int error = errorOf([&] {
        return m_folder.calls().linkUnnamed(m_file.get(), m_folder.descriptor(), name.c_str());
    });
    // The file's own name after an error is a lost answer.
    if (error == 0 || m_folder.isNameOf(m_file.get(), name)) {
        m_temporaryName = name;
        return 0;
    }
    return error == EEXIST ? EAGAIN : error; // it is not the final name that exists
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

void StagedFile::removeTemporaryName()
{
    if (m_temporaryName.empty())
        return;
    const std::string name = std::exchange(m_temporaryName, std::string());
    m_folder.remove(name);
}

} // namespace Zorvane
