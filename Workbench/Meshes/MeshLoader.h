#pragma once

#include "Workbench/Meshes/MeshFacts.h"
#include "Workbench/Meshes/TriangleMesh.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QThreadPool>

#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <optional>

namespace Zorvane::Workbench {

using SharedMesh = std::shared_ptr<const TriangleMesh>;

/**
 * Reads mesh files on worker threads and keeps what it read: facts and problems of every file,
 * meshes as long as they fit into the limit, those used last. All signals come from the event loop
 * of the thread that the loader lives in, never from within a call of `request`.
 */
class MeshLoader : public QObject
{
    Q_OBJECT

public:
    /** In bytes of points and triangles. */
    static constexpr std::size_t defaultCacheLimit = std::size_t(256) * 1024 * 1024;

    explicit MeshLoader(QObject* parent = nullptr);
    /** Waits for the files being read at the moment. */
    ~MeshLoader() override;

    /**
     * Each file is answered by one `loaded` or `failed`, in the order asked for as far as files
     * take the same time. A file asked for again before its answer is read once, with the content
     * it has then. A mesh that is still kept and whose file looks unchanged is not read again.
     */
    void request(const QStringList& paths);
    /** As `request`, before all others that wait: for what the user looks at. */
    void requestFirst(const QString& path);
    /** As `request`, and reads the file even if it looks unchanged: for when it was touched. */
    void requestAnew(const QString& path);
    /** Drops all that waits; no answers come for it or for what is being read. */
    void cancel();

    /** Null unless kept. Counts as use. */
    SharedMesh mesh(const QString& path);
    /** Of the last good reading; none while not read, or after a failure. */
    std::optional<MeshFacts> facts(const QString& path) const;
    /** Of the last reading, if it failed. */
    std::optional<Problem> problem(const QString& path) const;

    bool isBusy() const;
    /** Answers since the loader was last idle, and files asked for since then. */
    int done() const { return m_done; }
    int total() const { return m_total; }
    /** Files read at the same time, those that wait now as well: at least one, two unless set. */
    void setMostReadAtOnce(int files);
    void setCacheLimit(std::size_t bytes);
    std::size_t cachedBytes() const { return m_cachedBytes; }

Q_SIGNALS:
    void loaded(const QString& path, const Zorvane::Workbench::SharedMesh& mesh,
                const Zorvane::Workbench::MeshFacts& facts);
    void failed(const QString& path, const Zorvane::Workbench::Problem& problem);
    /** After each request, answer and cancel. */
    void progress(int done, int total);
    /** Nothing waits and nothing is being read; after a cancel too. */
    void finished();

private:
    /** Tells one content of a file from another, as far as that shows from outside. */
    struct Stamp
    {
        qint64 size = -1;
        QDateTime time;
    };
    /** What is known of a file. */
    struct Entry
    {
        Stamp stamp;
        std::optional<MeshFacts> facts;
        std::optional<Problem> problem;
        SharedMesh mesh;
        quint64 lastUse = 0;
    };
    /** A file being read. */
    struct Job
    {
        QString path;
        Stamp stamp;
        int round = 0;
        /** Asked for again since, or even though it looks unchanged. */
        bool askedAgain = false;
        bool askedAnew = false;
    };
    struct Answer
    {
        SharedMesh mesh;
        MeshFacts facts;
        Problem problem;
    };

    static Stamp stampOf(const QString& path);
    static bool isSame(const Stamp& left, const Stamp& right);
    static Answer read(const QString& path);
    static std::size_t bytesOf(const TriangleMesh& mesh);

    void accept(const QString& path, bool first);
    Job* findCurrentJob(const QString& path);
    void startWaiting();
    void start(const QString& path);
    void finishJob(int number, const Answer& answer);
    void keep(const Job& job, const Answer& answer);
    void tell(const QString& path, const Answer& answer);
    void forgetOldest();

    QThreadPool m_pool;
    std::deque<QString> m_waiting;
    /** By number, those of earlier rounds too, whose answers nobody wants any more. */
    std::map<int, Job> m_jobs;
    int m_nextJob = 0;
    /** Counts the cancels. */
    int m_round = 0;
    QHash<QString, Entry> m_entries;
    quint64 m_uses = 0;
    std::size_t m_cachedBytes = 0;
    std::size_t m_cacheLimit = defaultCacheLimit;
    int m_done = 0;
    int m_total = 0;
};

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::SharedMesh)
