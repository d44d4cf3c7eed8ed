#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>

#include <optional>

namespace Zorvane::Workbench {

/**
 * Writes design files. What was read and not understood is written back; a field is rewritten only
 * when its value changed. Keys come out in alphabetical order.
 */
class DesignWriter
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignWriter)

public:
    /** The text of the design's file, in UTF-8, ending with a line end. */
    static QByteArray toJson(const Design& design);
    /**
     * Writes to `design.file` in one step. Returns a problem on failure; the file is as before.
     */
    static std::optional<Problem> write(const Design& design);

    /** Whether a design file would hold the same for both, whatever their files' states. */
    static bool isSame(const Part& left, const Part& right);
    static bool isSame(const FileReference& left, const FileReference& right);
};

} // namespace Zorvane::Workbench
