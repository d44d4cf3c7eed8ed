#pragma once

#include "Host/HostExport.h"

#include <QtCore/QString>

#include <string>

namespace Zorvane {

/**
 * The path of a file or folder: a plain value that never looks at the disk. Held in UTF-8 with
 * forward slashes (on Windows backslashes are turned on the way in); nothing else is tidied, so
 * "." and ".." and the case of letters stay. Compared and ordered letter by letter; whether two
 * names mean the same file is asked of `FileUtilities::isEquivalent`.
 */
class ZORVANE_HOST_EXPORT FileName
{
public:
    /** The empty name, which means no file. */
    FileName() = default;
    explicit FileName(const std::string& path);
    explicit FileName(const char* path);
    explicit FileName(const QString& path);

    bool isEmpty() const { return m_path.empty(); }

    /** The path with forward slashes. */
    const std::string& toString() const { return m_path; }
    /** The path as the system writes it, with backslashes on Windows. */
    std::string toNativeString() const;
    QString toQString() const;

    /** What follows the last dot of the leaf name, as spelled; empty for ".profile" and "part.". */
    std::string getExtension() const;
    /**
     * The folder that holds the file; "." for a bare name; the empty name for the empty name and
     * for a root ("/", "C:/", "//server/share").
     */
    FileName getParentPath() const;
    /** The name without its folder; empty for a root. */
    std::string getLeafName() const;

    friend bool operator==(const FileName& left, const FileName& right)
    {
        return left.m_path == right.m_path;
    }
    friend bool operator!=(const FileName& left, const FileName& right) { return !(left == right); }
    friend bool operator<(const FileName& left, const FileName& right)
    {
        return left.m_path < right.m_path;
    }

private:
    std::string m_path;
};

} // namespace Zorvane
