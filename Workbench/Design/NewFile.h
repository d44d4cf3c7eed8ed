#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace Zorvane::Workbench {

/**
 * A file to write, there and empty, under a name that nothing had before: "stem.ending", or with
 * the first number that is free, "stem (2).ending"; the stem is shortened where the system has no
 * such long names. It vanishes again with this object, unless it is kept.
 */
class NewFile
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::NewFile)

public:
    /** `ending` with its dot. The folder must be there. */
    NewFile(const QString& folder, const QString& stem, const QString& ending);
    ~NewFile();

    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    /** Absolute path; empty if no file can be made there. */
    const QString& path() const { return m_path; }
    /** Why not, translated. */
    const QString& obstacle() const { return m_obstacle; }
    void keep() { m_isKept = true; }

private:
    QString m_path;
    QString m_obstacle;
    bool m_isKept = false;
};

} // namespace Zorvane::Workbench
