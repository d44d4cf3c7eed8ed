#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Design/Successors.h"

#include <QtCore/QCoreApplication>

namespace Zorvane::Workbench {

/** Another design like one that there is. */
class DesignCopy
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignCopy)

public:
    /**
     * The same design for another file, under identifiers of its own, so that both can be open at
     * once. Entries that this program doesn't understand stay as they are. `successors` gets all
     * identifiers, those that lead to nothing at present as well.
     */
    static Design of(const Design& design, const QString& file, Successors* successors = nullptr);

    /** The file's name as every file dialog takes it: inches in two single quotes. */
    static QString typableName(const QString& designFile);

    /** A typable name for a copy beside the design's file that nothing has yet. */
    static QString proposedFile(const QString& designFile);
};

} // namespace Zorvane::Workbench
