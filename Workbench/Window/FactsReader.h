#pragma once

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>

namespace Zorvane::Workbench {

class DesignSession;
class MeshLoader;

/**
 * Has every mesh of a session read once, and again when its file changes, so that the facts are
 * there without anybody asking. Session and loader must outlive it.
 */
class FactsReader : public QObject
{
    Q_OBJECT

public:
    FactsReader(DesignSession& session, MeshLoader& loader, QObject* parent = nullptr);

    /** Leaves what has not been read without facts, until `readAgain` or a change of the file. */
    void cancel();
    void readAgain();

private:
    void readNewFiles();

    DesignSession& m_session;
    MeshLoader& m_loader;
    QSet<QString> m_known;
};

} // namespace Zorvane::Workbench
