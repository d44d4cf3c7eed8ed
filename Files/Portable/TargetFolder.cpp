#include "Files/Portable/TargetFolder.h"

#include "Files/CopyNames.h"

#include <fcntl.h>

namespace Zorvane {

namespace {

// Nobody but the owner reads a file before it is complete and has its source's permissions.
constexpr mode_t s_privateMode = S_IRUSR | S_IWUSR;
constexpr std::size_t s_usualMostNameBytes = 255;

} // namespace

TargetFolder::TargetFolder(const SystemCalls& calls)
    : m_calls(calls)
{}

int TargetFolder::open(const std::string& path)
{
    const int file = uninterrupted([&] {
        return m_calls.openAt(AT_FDCWD, path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    });
    if (file < 0)
        return errno;
    m_folder = Descriptor(m_calls, file);
    m_flushesTogether = m_calls.isFileSystemFlushReliable(file);
    int error = 0;
    m_means = probe(error);
    return error;
}

std::size_t TargetFolder::mostNameBytes() const
{
    const long most = m_calls.mostNameBytes(m_folder.get());
    return most > 0 ? static_cast<std::size_t>(most) : s_usualMostNameBytes;
}

int TargetFolder::entry(const std::string& leaf, struct stat& status) const
{
    return errorOf([&] {
        return m_calls.statusAt(m_folder.get(), leaf.c_str(), status, AT_SYMLINK_NOFOLLOW);
    });
}

bool TargetFolder::has(const std::string& leaf) const
{
    struct stat status
    {};
    return entry(leaf, status) == 0;
}

int TargetFolder::flush() const
{
    const int error = errorOf([&] { return m_calls.flush(m_folder.get()); });
    // Some file systems know no flushing of folders; their names are durable when made.
    return error == EINVAL || error == ENOTSUP || error == ENOSYS ? 0 : error;
}

int TargetFolder::createFile(Descriptor& file, std::string& name, mode_t permissions) const
{
    if (m_means != Means::LinkUnnamed)
        return createNamed(file, name);
    const int opened = uninterrupted([&] {
        return m_calls.openAt(m_folder.get(), ".", m_calls.unnamedFileFlags | O_CLOEXEC,
                              permissions);
    });
    if (opened < 0)
        return errno;
    file = Descriptor(m_calls, opened);
    name.clear();
    return 0;
}

int TargetFolder::createNamed(Descriptor& file, std::string& name) const
{
    constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    constexpr int mostAttempts = 100;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        name = freshName();
        const int opened = uninterrupted(
            [&] { return m_calls.openAt(m_folder.get(), name.c_str(), flags, s_privateMode); });
        if (opened >= 0) {
            file = Descriptor(m_calls, opened);
            return 0;
        }
        if (errno != EEXIST)
            break;
    }
    const int error = errno;
    name.clear();
    return error;
}

std::string TargetFolder::freshName() const
{
    return temporaryCopyName(m_calls.random());
}

TargetFolder::Means TargetFolder::probe(int& error) const
{
    if (canLinkUnnamed())
        return Means::LinkUnnamed;
    Descriptor file;
    std::string name;
    error = createNamed(file, name);
    if (error != 0)
        return Means::None;
    const int folder = m_folder.get();
    const std::string other = freshName();
    const char* from = name.c_str();
    const char* to = other.c_str();
    if (errorOf([&] { return m_calls.renameNoReplace(folder, from, to); }) == 0) {
        error = remove(other);
        return Means::RenameNoReplace;
    }
    const bool linked = errorOf([&] { return m_calls.link(folder, from, to); }) == 0;
    const int first = linked ? remove(other) : 0;
    const int second = remove(name);
    error = first != 0 ? first : second;
    return linked ? Means::Link : Means::None;
}

bool TargetFolder::canLinkUnnamed() const
{
    if (m_calls.unnamedFileFlags == 0)
        return false;
    const int folder = m_folder.get();
    const int flags = m_calls.unnamedFileFlags | O_CLOEXEC;
    const Descriptor file(
        m_calls, uninterrupted([&] { return m_calls.openAt(folder, ".", flags, s_privateMode); }));
    if (!file.isOpen())
        return false;
    const std::string name = freshName();
    if (errorOf([&] { return m_calls.linkUnnamed(file.get(), folder, name.c_str()); }) != 0)
        return false;
    return remove(name) == 0;
}

int TargetFolder::remove(const std::string& leaf) const
{
    return errorOf([&] { return m_calls.unlink(m_folder.get(), leaf.c_str()); });
}

} // namespace Zorvane
