#pragma once

#include "Files/Portable/Descriptor.h"
#include "Files/Portable/SystemCalls.h"

#include <string>

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
        Link, /**< A second name, then the temporary one goes. */
        None
    };

    explicit TargetFolder(const SystemCalls& calls);

    /** Opens the folder and tries out what can be done in it. Success may come with `None`. */
    int open(const std::string& path);

    const SystemCalls& calls() const { return m_calls; }
    int descriptor() const { return m_folder.get(); }
    Means means() const { return m_means; }
    std::size_t mostNameBytes() const;
    /** Whether one flush of the file system does what flushing each file does. */
    bool flushesTogether() const { return m_flushesTogether; }

    /** What has the name, without following a link; ENOENT if nothing. */
    int entry(const std::string& leaf, struct stat& status) const;
    bool has(const std::string& leaf) const;

    /** Makes the names durable. */
    int flush() const;

    /**
     * A new empty file: without a name if `name` comes back empty. Only such a one, which nobody
     * else can open, has these permissions at once, as far as this process may give them.
     */
    int createFile(Descriptor& file, std::string& name, mode_t permissions) const;
    std::string freshName() const;
    int remove(const std::string& leaf) const;

private:
    Means probe(int& error) const;
    bool canLinkUnnamed() const;
    int createNamed(Descriptor& file, std::string& name) const;

    const SystemCalls& m_calls;
    Descriptor m_folder;
    Means m_means = Means::None;
    bool m_flushesTogether = false;
};

} // namespace Zorvane
