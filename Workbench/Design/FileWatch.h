#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

namespace Zorvane::Workbench {

/**
 * Tells when files change, appear or vanish, in whatever way another program goes about it:
 * rewritten in place, replaced by renaming another file over it, deleted and put back. Changes that
 * come in a burst are told together. Files that don't exist yet are waited for, through the nearest
 * folder that exists.
 *
 * Not supported: file systems that don't report changes (some network drives).
 */
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject* parent = nullptr);

    /** Watches these files, and the entries of these folders, and nothing else. Absolute paths. */
    void watch(const QStringList& files, const QStringList& folders);

Q_SIGNALS:
    /** The files of those watched that are different; empty if only a folder's entries are. */
    void changed(const QStringList& files);

private:
    struct Stamp
    {
        qint64 size = -1;
        QDateTime time;
        bool readable = false;

        friend bool operator==(const Stamp& left, const Stamp& right)
        {
            return left.size == right.size && left.time == right.time &&
                   left.readable == right.readable;
        }
    };

    static Stamp stampOf(const QString& file);
    /** The nearest folder above the file that exists. */
    static QString nearestFolder(const QString& file);
    void noteFile(const QString& file);
    void noteFolder();
    void tell();
    void watchAll();

    QFileSystemWatcher m_watcher;
    QTimer m_collect;
    QHash<QString, Stamp> m_stamps;
    QStringList m_folders;
    QSet<QString> m_touched;
    bool m_folderTouched = false;
};

} // namespace Zorvane::Workbench
