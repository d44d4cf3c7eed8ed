#pragma once

#include "Files/Portable/CopyContext.h"
#include "Files/Portable/FileTransfer.h"

namespace Zorvane {

/** Makes a complete copy of a source, with its time and permissions, that has no name yet. */
class CopyStager
{
public:
    /**
     * `advance` is called with the bytes of each slice; false cancels. `closeFiles` closes files
     * of complete copies where too many are open; false if there were none.
     */
    CopyStager(CopyContext& context, std::function<bool(qint64 bytes)> advance,
               std::function<bool()> closeFiles);

    /** False if the item failed or the copy was cancelled. */
    bool stage(CopyItem& item);
    /** Bytes that the last copy wrote. */
    qint64 bytesWritten() const { return m_transfer.bytesWritten(); }

private:
    int openSource(const CopyItem& item, Descriptor& source);
    bool openBoth(CopyItem& item, Descriptor& source, struct stat& opened);
    bool copyContent(CopyItem& item, const Descriptor& source, const struct stat& opened);
    bool keepAttributes(CopyItem& item, const struct stat& opened);

    template <typename Open>
    int openWithRoom(Open open)
    {
        const int error = open();
        return (error == EMFILE || error == ENFILE) && m_closeFiles() ? open() : error;
    }

    CopyContext& m_context;
    std::function<bool()> m_closeFiles;
    FileTransfer m_transfer;
};

/** Why a source that is no file cannot be copied. */
QString notAFileText();

} // namespace Zorvane
