#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "Host/Widgets/BaseView.h"
#include "Workbench/Import/FileChooser.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QObject>

#include <memory>

namespace Zorvane {
class PathProvider;
}

namespace Zorvane::Workbench {

class DesignSession;

/**
 * The commands Import and Export: ask for files or a folder, where this design used one last, do
 * it, and tell what came of it. Session and view must outlive it; all of them may go while it asks,
 * which ends the command.
 */
class FileExchange : public QObject
{
    Q_OBJECT

public:
    FileExchange(DesignSession& session, BaseView* view, QObject* parent);
    ~FileExchange() override;

    void setFileChooser(std::unique_ptr<FileChooser> chooser);

    /** The design of the object, else the first one; null if no design is open. */
    GUIdentifier targetFor(const GUIdentifier& objectId) const;
    bool canExport(const GUIdentifier& objectId) const;

    void importFiles(GUIdentifier designId);
    void exportFiles(GUIdentifier objectId);

Q_SIGNALS:
    /** Something to look at: a part or a file. */
    void imported(const Zorvane::GUIdentifier& object);
    void done(const QString& text);
    void failed(const QString& text);

private:
    QString importFilters() const;
    PathProvider& pathsOf(const GUIdentifier& objectId) const;
    void tell(const Problems& problems);

    DesignSession& m_session;
    BaseView* m_view;
    std::unique_ptr<FileChooser> m_chooser;
};

} // namespace Zorvane::Workbench
