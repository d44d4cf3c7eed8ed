#include "Files/Portable/TargetFolder.h"

#include "Files/Portable/FileIdentity.h"
#include "Files/Portable/LocalPath.h"
#include "Files/Portable/TemporaryNames.h"

#include <fcntl.h>

namespace Zorvane {

namespace {

// Only the owner reads a file before it is complete and has its source's permissions.
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
    m_path = fullPathBytes(path);
    m_flushesTogether = m_calls.isFileSystemFlushReliable(file);
    m_isAppendOnly = m_calls.isAppendOnly(file);
    int error = 0;
    m_means = probe(error);
    return error;
}

std::string TargetFolder::path() const
{
    struct stat mine
    {};
    struct stat found
    {};
    const bool leadsHere =
        errorOf([&] { return m_calls.status(m_folder.get(), mine); }) == 0 &&
        errorOf([&] { return m_calls.statusAt(AT_FDCWD, m_path.c_str(), found, 0); }) == 0 &&
        isSameFile(mine, found);
    const std::string now = leadsHere ? std::string() : m_calls.pathOf(m_folder.get());
    return now.empty() ? m_path : now;
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

bool TargetFolder::isNameOf(int file, const std::string& leaf) const
{
    struct stat mine
    {};
    struct stat named
    {};
    return m_calls.status(file, mine) == 0 && entry(leaf, named) == 0 && isSameFile(mine, named);
}

int TargetFolder::flush() const
{
    const int error = errorOf([&] { return m_calls.flush(m_folder.get()); });
    // Some file systems know no flushing of folders; their names are durable when made.
    return error == EINVAL || error == ENOTSUP || error == ENOSYS ? 0 : error;
}

int TargetFolder::openEntry(Descriptor& file, const std::string& leaf, int flags, mode_t mode) const
{
    const int opened = uninterrupted(
        [&] { return m_calls.openAt(m_folder.get(), leaf.c_str(), flags | O_CLOEXEC, mode); });
    if (opened < 0)
        return errno;
    file = Descriptor(m_calls, opened);
    return 0;
}

int TargetFolder::createFile(Descriptor& file, std::string& name, mode_t permissions)
{
    if (m_means != Means::LinkUnnamed)
        return createNamed(file, name);
    name.clear();
    return openEntry(file, ".", m_calls.unnamedFileFlags, permissions);
}

int TargetFolder::createNamed(Descriptor& file, std::string& name)
{
    constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW;
    constexpr int mostAttempts = 100;
    int error = EEXIST;
    for (int attempt = 0; attempt < mostAttempts && error == EEXIST; ++attempt) {
        name = freshName();
        error = openEntry(file, name, flags, s_privateMode);
        // Until it is locked, another copy may take the file for an abandoned one and remove it.
        if (error == 0 && !(lockFile(file.get()) && isNameOf(file.get(), name))) {
            remove(name);
            error = EEXIST;
        }
    }
    if (error != 0)
        name.clear();
    return error;
}

std::string TargetFolder::freshName() const
{
    constexpr unsigned half = 32;
    return temporaryCopyName(quint64(m_calls.random()) << half | m_calls.random());
}

TargetFolder::Means TargetFolder::probe(int& error)
{
    if (canLinkUnnamed())
        return Means::LinkUnnamed;
    if (!m_isAppendOnly)
        return probeNamed(error);
    // A temporary name could never be removed.
    error = EPERM;
    return Means::None;
}

TargetFolder::Means TargetFolder::probeNamed(int& error)
{
    const int folder = m_folder.get();
    Descriptor file;
    std::string name;
    const std::string other = freshName();
    error = createNamed(file, name);
    if (error != 0)
        return Means::None;
    const auto renamed = [&] {
        return m_calls.renameNoReplace(folder, name.c_str(), other.c_str());
    };
    if (errorOf(renamed) == 0) {
        error = remove(other);
        return Means::RenameNoReplace;
    }
    // Where this fails, one more file would only be one more to stay behind.
    error = remove(name);
    if (error == 0)
        error = createNamed(file, name);
    if (error != 0)
        return Means::None;
    const auto linked = [&] { return m_calls.link(folder, name.c_str(), other.c_str()); };
    const bool links = errorOf(linked) == 0;
    const int first = remove(name);
    const int second = remove(other);
    error = first != 0 ? first : second;
    return links ? Means::Link : Means::None;
}

/** Creates no name: linking to one that is there already fails last for that reason. */
bool TargetFolder::canLinkUnnamed() const
{
    if (m_calls.unnamedFileFlags == 0)
        return false;
    Descriptor file;
    if (openEntry(file, ".", m_calls.unnamedFileFlags, s_privateMode) != 0)
        return false;
    return errorOf([&] { return m_calls.linkUnnamed(file.get(), m_folder.get(), "."); }) == EEXIST;
}

bool TargetFolder::lockFile(int file) const
{
    // Where there are no locks, no file is taken for an abandoned one either.
    return m_calls.lock(file) == 0 || errno != EWOULDBLOCK;
}

int TargetFolder::remove(const std::string& leaf)
{
    const int error = errorOf([&] { return m_calls.unlink(m_folder.get(), leaf.c_str()); });
    if (error == 0 || error == ENOENT)
        return 0;
    m_leftovers.push_back(leaf);
    return error;
}

void TargetFolder::removeAbandonedFiles(const std::function<bool()>& goOn)
{
    if (m_isAppendOnly)
        return;
    std::vector<std::string> names;
    m_calls.visitNames(m_folder.get(), [&](const char* name) {
        if (isTemporaryCopyName(name))
            names.emplace_back(name);
        return goOn();
    });
    for (const std::string& name : names) {
        constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
        Descriptor file;
        // Some file systems lock only what is open for writing, which not every file may be.
        const bool isOpen = openEntry(file, name, O_RDWR | flags, 0) == 0 ||
                            openEntry(file, name, O_RDONLY | flags, 0) == 0;
        if (isOpen && m_calls.lock(file.get()) == 0 && isNameOf(file.get(), name))
            m_calls.unlink(m_folder.get(), name.c_str());
        if (!goOn())
            return;
    }
}

} // namespace Zorvane
