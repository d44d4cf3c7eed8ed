#pragma once

#include "Files/Portable/Descriptor.h"
#include "Files/Portable/SystemCalls.h"

#include <string>
#include <vector>

namespace Zorvane {

/**
 * The folder that copies go to, held open, so that a folder renamed or replaced by a link meanwhile
 * doesn't lead copies astray. Functions that return an int return an error number, 0 for success.
 */
class TargetFolder
{
public:
    /** How a complete file gets its final name without ever replacing another. */
    enum class Means
    {
        LinkUnnamed, /**< The file has no name until then, so a crash leaves nothing behind. */
        RenameNoReplace,
        Link, /**< A second name, after which the temporary one is removed. */
        None
    };

    explicit TargetFolder(const SystemCalls& calls);

    /** Opens the folder and tries out what can be done in it. Success may come with `None`. */
    int open(const std::string& path);
    /** Removes temporary files that a killed copy left. `goOn` is called often; false ends it. */
    void removeAbandonedFiles(const std::function<bool()>& goOn);

    const SystemCalls& calls() const { return m_calls; }
    int descriptor() const { return m_folder.get(); }
    Means means() const { return m_means; }
    std::size_t mostNameBytes() const;
    /** Whether one flush of the file system does what flushing each file does. */
    bool flushesTogether() const { return m_flushesTogether; }
    /** Whether names can neither be removed nor replaced. */
    bool isAppendOnly() const { return m_isAppendOnly; }

    /** Its full path at this moment: as it was opened by, as long as that leads here. */
    std::string path() const;

    /** What has the name, without following a link; ENOENT if nothing. */
    int entry(const std::string& leaf, struct stat& status) const;
    bool has(const std::string& leaf) const;
    /** Whether the name is the open file's. */
    bool isNameOf(int file, const std::string& leaf) const;

    /** Makes the names durable. */
    int flush() const;

    /**
     * A new empty file: without a name if `name` comes back empty. Only such a one, which no other
     * program can open, has these permissions at once, as far as this process may give them.
     */
    int createFile(Descriptor& file, std::string& name, mode_t permissions);
    std::string freshName() const;
    /** Locks a file against being taken for an abandoned one; false if another has locked it. */
    bool lockFile(int file) const;
    /** Removes a temporary name of this copy. */
    int remove(const std::string& leaf);
    /** Temporary names that could not be removed. */
    const std::vector<std::string>& leftovers() const { return m_leftovers; }

private:
    Means probe(int& error);
    Means probeNamed(int& error);
    bool canLinkUnnamed() const;
    int createNamed(Descriptor& file, std::string& name);
    int openEntry(Descriptor& file, const std::string& leaf, int flags, mode_t mode) const;

    const SystemCalls& m_calls;
    Descriptor m_folder;
    std::string m_path;
    Means m_means = Means::None;
    bool m_flushesTogether = false;
    bool m_isAppendOnly = false;
    std::vector<std::string> m_leftovers;
};

} // namespace Zorvane
