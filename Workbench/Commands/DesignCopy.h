#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Design/Problem.h"

#include <QtCore/QCoreApplication>

#include <optional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** Another design like one that there is. */
class DesignCopy
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignCopy)

public:
    /**
     * The same design for another file, under identifiers of its own, so that both can be open at
     * once. Entries that this program doesn't understand stay as they are.
     */
    static Design of(const Design& design, const QString& file);

    /** The file's name as every file dialog takes it: inches in two single quotes. */
    static QString typableName(const QString& designFile);

    /** A typable name for a copy beside the design's file that nothing has yet. */
    static QString proposedFile(const QString& designFile);

    /**
     * Copies the files that the design refers to from their places below `from` to the same places
     * below the design's folder; nothing if both are one folder. Shows progress and asks about
     * names that are taken; where the user keeps both files, the design refers to the copy. None
     * when all of them are in place, else why not: what was copied until then stays. Missing files
     * don't count, and what leads out of the folder isn't copied. Not supported: the files of
     * designs that this one refers to.
     */
    static std::optional<Problem> bringFiles(QWidget* parent, Design& design, const QString& from);
};

} // namespace Zorvane::Workbench
