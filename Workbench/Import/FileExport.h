#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class DesignSession;

struct ExportOutcome
{
    /** Full paths of the copies, under the names that they got. */
    QStringList copies;
    /** Why nothing was copied. Empty as well if the user cancelled or skipped. */
    Problems problems;
};

/** Copies files of a session out to a folder. The session's files only are read. */
class FileExport
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::FileExport)

public:
    /**
     * The files behind an object, each once: one of a part, tool, blank, material or file, those of
     * an operation's tools. None for a design, which is copied by copying its folder, and for files
     * that lead out of it.
     */
    static QStringList filesOf(const DesignSession& session, const GUIdentifier& objectId);

    /**
     * Copies all of them, or none if one of them cannot be. Shows progress, and asks about names
     * that are taken; failures while copying have been told when this returns.
     */
    static ExportOutcome run(QWidget* parent, const QStringList& files, const QString& folder);
};

} // namespace Zorvane::Workbench
