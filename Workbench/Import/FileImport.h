#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "Host/Widgets/BaseView.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QStringList>

namespace Zorvane::Workbench {

struct ImportOutcome
{
    /** Those in the design's folder that the design refers to now. */
    QStringList files;
    /** Why nothing was imported. Empty as well if the user gave the import up. */
    Problems problems;
};

/**
 * Brings files into an open design. Files outside of the design's folder are offered for copying
 * next to the design; then the design refers to all of them, which is an unsaved change. Files in
 * sub-folders of the design are used where they lie.
 *
 * A file that cannot be imported keeps all of them from it. Giving up at a question changes
 * nothing; what a cancelled copy has completed stays and is imported.
 */
class FileImport
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::FileImport)

public:
    /**
     * Neither is owned. The view, the parent of questions, may be null. When the session goes while
     * the user is asked, nothing is imported.
     */
    FileImport(DesignSession& session, BaseView* view);

    ImportOutcome run(GUIdentifier designId, const QStringList& files);

private:
    QPointer<DesignSession> m_session;
    QPointer<BaseView> m_view;
};

} // namespace Zorvane::Workbench
