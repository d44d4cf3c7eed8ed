#include "Workbench/Window/FactsReader.h"

#include "Workbench/Design/DesignSession.h"
#include "Workbench/Meshes/MeshLoader.h"

namespace Zorvane::Workbench {

FactsReader::FactsReader(DesignSession& session, MeshLoader& loader, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_loader(loader)
{
    connect(&session, &DesignSession::changed, this, &FactsReader::readNewFiles);
    connect(&session, &DesignSession::fileChanged, this, [this](const QString& path) {
        if (m_known.contains(path))
            m_loader.request({path});
    });
}

void FactsReader::cancel()
{
    m_loader.cancel();
}

void FactsReader::readAgain()
{
    m_known.clear();
    readNewFiles();
}

void FactsReader::readNewFiles()
{
    const QStringList files = m_session.meshFiles();
    QStringList wanted;
    for (const QString& file : files)
        if (!m_known.contains(file))
            wanted << file;
    // A file that went away and comes back is read anew.
    m_known = QSet<QString>(files.begin(), files.end());
    if (!wanted.isEmpty())
        m_loader.request(wanted);
}

} // namespace Zorvane::Workbench
