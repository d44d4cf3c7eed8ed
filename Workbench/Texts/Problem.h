#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <vector>

namespace Zorvane::Workbench {

/** What is wrong with a file, in words for the person who looks after it. A plain value. */
struct Problem
{
    /** Absolute path of the file concerned. */
    QString file;
    /** The place within it, such as "operations[1].tools[0].id" or "line 12"; empty: all of it. */
    QString where;
    /** Translated; one sentence without a full stop. */
    QString reason;

    /** "file: where: reason" with native separators, for a message or a log. */
    QString text() const;

    friend bool operator==(const Problem& left, const Problem& right)
    {
        return left.file == right.file && left.where == right.where && left.reason == right.reason;
    }
    friend bool operator!=(const Problem& left, const Problem& right) { return !(left == right); }
};

using Problems = std::vector<Problem>;

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::Problem)
