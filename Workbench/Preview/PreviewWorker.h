#pragma once

#include "Workbench/Preview/FilePreview.h"
#include "Workbench/Preview/ProcessLimits.h"

#include <QtCore/QStringList>

#include <optional>

namespace Zorvane::Workbench {

/** One file to look at. */
struct PreviewRequest
{
    QString path;
    PreviewLook look;
    ProcessLimits limits;

    /** The arguments by which a program that calls `runPreviewWorker` knows what to do. */
    QStringList arguments() const;
};

/**
 * The other end of `PreviewReader`. A program whose main() begins with this call can be asked to
 * read a file for a preview: then it limits itself, reads, writes the content, in the user's
 * language, to its standard output, and main() ends with the result. None if the program was
 * started for something else.
 */
std::optional<int> runPreviewWorker(int argc, char** argv);

} // namespace Zorvane::Workbench
