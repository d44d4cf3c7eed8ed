#pragma once

#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Testing {

/** A file system of its own, seen by this process only, as long as this lives. */
class MountedFolder
{
public:
    MountedFolder() = default;
    ~MountedFolder();

    MountedFolder(const MountedFolder&) = delete;
    MountedFolder& operator=(const MountedFolder&) = delete;

    /** Both are false where programs may not mount, or have nothing to mount with. */
    bool mountMemory(int kibibytes);
    bool mountImage(const QString& image);
    bool mountAgain(const QString& options);

    /** Makes an ext4 image; false where that is not possible. */
    static bool makeImage(const QString& file, int mebibytes);
    static bool runTool(const QString& program, const QStringList& arguments);

    QString path() const { return m_place.path(); }

private:
    bool mount(const QStringList& arguments);

    QTemporaryDir m_place;
    bool m_isMounted = false;
};

/** Whether the long variants of tests are wanted: ZORVANE_LONG_TESTS=1. */
bool wantsLongTests();

} // namespace Zorvane::Testing
