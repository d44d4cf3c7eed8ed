#pragma once

#include "Workbench/Preview/PreviewContent.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSize>

namespace Zorvane::Workbench {

/** How a picture is to look. */
struct PreviewLook
{
    QSize pixels{480, 480};
    bool dark = false;
};

/**
 * Reads files for a preview: meshes as a picture, tables of values separated by commas and the
 * like, and the beginning of whatever else is a text. Takes the time and the memory that a file
 * asks for, and what reads a file may fail in any way: not for the process that shows windows.
 */
class FilePreview
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::FilePreview)

public:
    /** In bytes; of tables and texts no more than this is read. */
    static constexpr qint64 longestHead = 256 * 1024;
    static constexpr int mostLines = 500;

    /** What cannot be shown gives a message with the reason. Needs no display. */
    static PreviewContent read(const QString& path, const PreviewLook& look);
};

} // namespace Zorvane::Workbench
