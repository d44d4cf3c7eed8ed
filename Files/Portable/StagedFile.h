#pragma once

#include "Files/Portable/TargetFolder.h"

#include <functional>
#include <string>

namespace Zorvane {

/**
 * A file in the making. It has no name or a temporary one until it is published; unpublished, it
 * is removed with this object. Functions return an error number, 0 for success.
 */
class StagedFile
{
public:
    explicit StagedFile(TargetFolder& folder);
    ~StagedFile();
    StagedFile(StagedFile&& other) noexcept;
    StagedFile& operator=(StagedFile&&) = delete;

    int create(mode_t permissions);
    int descriptor() const { return m_file.get(); }

    /** Gives the file its name; EEXIST where something has it. Nothing is ever replaced. */
    int publishNew(const std::string& leaf);
    /** Gives the file its name in place of what has it, at one stroke. EPERM in a folder that
     * doesn't allow it. */
    int publishReplacing(const std::string& leaf);

    /**
     * Gives up what has been written, in pieces, and calls `advance` after each: the system needs
     * a while for large files. Does nothing once the file may have its name.
     */
    void giveUpContent(const std::function<void()>& advance);

private:
    int giveName(const std::string& leaf);
    int giveTemporaryName();
    void removeTemporaryName();

    TargetFolder& m_folder;
    Descriptor m_file;
    std::string m_temporaryName;
    bool m_mayHaveName = false;
};

} // namespace Zorvane
