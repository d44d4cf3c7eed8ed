#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

namespace Zorvane::Workbench {

/** The upper left part of a table. */
struct TableHead
{
    static constexpr int mostRows = 200;
    static constexpr int mostColumns = 30;
    /** In characters; longer cells are cut. */
    static constexpr int longestCell = 200;

    std::vector<QStringList> rows;
    /** Whether the table goes on below and to the right of what was taken. */
    bool hasMoreRows = false;
    bool hasMoreColumns = false;

    /**
     * Reads a text of cells separated by semicolons, commas or tabs, whichever the first line has
     * most of. Cells may stand in quotes. Empty lines are left out.
     */
    static TableHead read(const QString& text);
};

} // namespace Zorvane::Workbench
