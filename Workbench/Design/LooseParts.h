#pragma once

#include "Workbench/Design/Design.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

namespace Zorvane::Workbench {

/**
 * The mesh files opened by themselves. A file named keeps its place when it goes missing; a folder
 * shows the mesh files that it holds at the moment, by name, without hidden ones.
 *
 * Not supported: file names that are not valid in the system's encoding.
 */
class LooseParts
{
public:
    /** A file or a folder, by absolute path; does nothing if it is open already. */
    void add(const QString& path, bool isFolder);
    void clear();
    /** Looks at the disk again; true if the parts are different. */
    bool refresh();

    const std::vector<Part>& parts() const { return m_parts; }
    QStringList folders() const;

    static QStringList meshFilesIn(const QString& folder);

private:
    struct Entry
    {
        QString path;
        bool isFolder = false;
    };

    std::vector<Entry> m_entries;
    std::vector<Part> m_parts;
};

} // namespace Zorvane::Workbench
