#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Testing {

/**
 * A file system of 1 MB to fill up, gone with this object. Where mounting is not allowed, a folder
 * instead, and while it counts as full no file of the process can grow, wherever it lies.
 */
class SmallDisk
{
public:
    SmallDisk();
    ~SmallDisk();

    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    QString path() const { return m_folder.path(); }
    QString filePath(const QString& name) const { return m_folder.filePath(name); }
    /**
     * Until `makeRoom`, new files get names but no content, beyond that of one small file: some
     * programs write a small lock file first, and what matters after that.
     */
    bool fill(bool leavesSmallFile = false);
    void makeRoom();

private:
    QString filler() const;

    QTemporaryDir m_folder;
    bool m_isMounted = false;
};

} // namespace Zorvane::Testing
