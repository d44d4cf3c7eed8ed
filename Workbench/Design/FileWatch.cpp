#include "Workbench/Design/FileWatch.h"

#include <QtCore/QFileInfo>

#include <utility>

namespace Zorvane::Workbench {

namespace {

constexpr int collectMilliseconds = 30;

} // namespace

FileWatch::FileWatch(QObject* parent)
    : QObject(parent)
{
    m_collect.setSingleShot(true);
    m_collect.setInterval(collectMilliseconds);
    connect(&m_collect, &QTimer::timeout, this, &FileWatch::tell);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::noteFile);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::noteFolder);
}

void FileWatch::watch(const QStringList& files, const QStringList& folders)
{
    QHash<QString, Stamp> stamps;
    for (const QString& file : files) {
        const auto known = m_stamps.constFind(file);
        // A file known before keeps its stamp: what changed meanwhile is still to be told.
        stamps.insert(file, known == m_stamps.cend() ? stampOf(file) : known.value());
    }
    m_stamps = std::move(stamps);
    m_folders = folders;
    watchAll();
}

FileWatch::Stamp FileWatch::stampOf(const QString& file)
{
    const QFileInfo info(file);
    return info.exists() ? Stamp{info.size(), info.lastModified(), info.isReadable()} : Stamp();
}

QString FileWatch::nearestFolder(const QString& file)
{
    QString folder = QFileInfo(file).path();
    while (!QFileInfo(folder).isDir()) {
        const QString parent = QFileInfo(folder).path();
        if (parent == folder)
            return {};
        folder = parent;
    }
    return folder;
}

void FileWatch::noteFile(const QString& file)
{
    m_touched.insert(file);
    // Not restarted: a file that is written without end must not keep the others from being told.
    if (!m_collect.isActive())
        m_collect.start();
}

void FileWatch::noteFolder()
{
    m_folderTouched = true;
    if (!m_collect.isActive())
        m_collect.start();
}

void FileWatch::tell()
{
    const QSet<QString> touched = std::exchange(m_touched, {});
    const bool folderTouched = std::exchange(m_folderTouched, false);
    // The watcher may hold on to a replaced file under the same name, so it forgets what changed;
    // and it watches again before looking, so that no later change is missed.
    if (!touched.isEmpty())
        m_watcher.removePaths(touched.values());
    QStringList replaced;
    for (auto file = m_stamps.cbegin(); file != m_stamps.cend(); ++file) {
        if (!(stampOf(file.key()) == file.value()) && !touched.contains(file.key()))
            replaced.append(file.key());
    }
    if (!replaced.isEmpty())
        m_watcher.removePaths(replaced);
    watchAll();
    QStringList different;
    for (auto file = m_stamps.begin(); file != m_stamps.end(); ++file) {
        const Stamp now = stampOf(file.key());
        if (touched.contains(file.key()) || !(now == file.value()))
            different.append(file.key());
        file.value() = now;
    }
    different.sort();
    if (folderTouched || !different.isEmpty())
        Q_EMIT changed(different);
}

void FileWatch::watchAll()
{
    QSet<QString> wanted;
    for (auto file = m_stamps.cbegin(); file != m_stamps.cend(); ++file) {
        // A file that may not be read cannot be watched either.
        if (QFileInfo(file.key()).isReadable())
            wanted.insert(file.key());
        wanted.insert(nearestFolder(file.key()));
    }
    for (const QString& folder : std::as_const(m_folders))
        wanted.insert(QFileInfo(folder).isDir() ? folder : nearestFolder(folder));
    wanted.remove(QString());
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    const QSet<QString> present(watched.cbegin(), watched.cend());
    const QStringList superfluous = (present - wanted).values();
    const QStringList lacking = (wanted - present).values();
    if (!superfluous.isEmpty())
        m_watcher.removePaths(superfluous);
    if (!lacking.isEmpty())
        m_watcher.addPaths(lacking);
}

} // namespace Zorvane::Workbench
