#pragma once

#include "Workbench/Design/Design.h"

#include <QtCore/QString>

namespace Zorvane::Workbench {

/** Where a reference of a design leads. */
struct ResolvedReference
{
    FileState state = FileState::Missing;
    /** Absolute path; empty when outside. */
    QString file;
};

/**
 * Looks for the file at `path`, which is relative to `folder`. Absolute paths, paths that climb out
 * by "..", and symbolic links that lead out are outside. Only a file counts as existing, not a
 * folder. On every platform '\' separates too and "C:" is absolute, so that a design means the same
 * everywhere. Names that this system keeps for devices or would change lead to no file.
 * Not supported: telling hard links from files.
 */
ResolvedReference resolveReference(const QString& folder, const QString& path);

/** Resolves every reference of the design again; true if a state changed. */
bool refreshReferences(Design& design);

} // namespace Zorvane::Workbench
