#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Testing {

/** The folders that path providers know, in a folder of the test's own, and no last paths. */
class FolderSetup
{
public:
    FolderSetup()
    {
        qputenv("ZORVANE_PATH_DATA", m_dir.filePath(QStringLiteral("data")).toLocal8Bit());
        qputenv("ZORVANE_PATH_MY_DOCUMENTS", documents().toLocal8Bit());
        QDir(m_dir.path()).mkpath(QStringLiteral("documents"));
    }

    QString documents() const { return path("documents"); }
    QString data(const char* folder) const { return path("data/") + QLatin1String(folder); }
    /** A default folder as the suite's settings give it, without native separators. */
    static QString asConfigured(const QString& folder)
    {
        return QDir::fromNativeSeparators(folder);
    }
    /** A path below the test's folder, as the system writes it. */
    QString path(const char* below) const
    {
        return QDir::toNativeSeparators(m_dir.filePath(QString::fromUtf8(below)));
    }

    /** Makes the folder, and returns its path. */
    QString makeFolder(const char* below) const
    {
        QDir(m_dir.path()).mkpath(QString::fromUtf8(below));
        return path(below);
    }

    /** Makes the file and its folder, and returns its path. */
    QString makeFile(const char* below, const QByteArray& content = "content") const
    {
        const QString file = path(below);
        QDir().mkpath(QFileInfo(file).path());
        QFile made(file);
        return made.open(QIODevice::WriteOnly) && made.write(content) == content.size() ? file
                                                                                        : QString();
    }

private:
    const QTemporaryDir m_dir;
};

} // namespace Zorvane::Testing
