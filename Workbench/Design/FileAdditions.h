#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QCoreApplication>

#include <optional>
#include <vector>

namespace Zorvane::Workbench {

/** Has designs refer to further files. Changes designs in memory only and never a file. */
class FileAdditions
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::FileAdditions)

public:
    /** By the file's ending; nothing is read. */
    static FileKind kindOf(const QString& file);
    /** Why no design can refer to the file, or to a copy of that name; nothing if one can. */
    static std::optional<Problem> obstacle(const QString& file);
    /** Why this design cannot refer to the file where it lies; nothing if it can. */
    static std::optional<Problem> obstacle(const Design& design, const QString& file);

    /**
     * Adds a reference to a file without obstacle and, for a mesh, a part that shows it; nothing
     * if the design refers to the file already. Returns the new objects, the reference first.
     */
    static std::vector<GUIdentifier> add(Design& design, const QString& file);
    /** The design's reference to the file, however its path is written; null if there is none. */
    static const FileReference* find(const Design& design, const QString& file);
};

} // namespace Zorvane::Workbench
