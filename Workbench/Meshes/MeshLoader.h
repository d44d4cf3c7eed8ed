#pragma once

#include "Workbench/Design/Problem.h"
#include "Workbench/Meshes/MeshFacts.h"
#include "Workbench/Meshes/TriangleMesh.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstddef>
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
    /** Waits for the files being read at the moment, at most two. */
    ~MeshLoader() override;

    /**
     * Each file is answered by one `loaded` or `failed`, in the order asked for as far as files
     * take the same time. A file asked for again before its answer is read once, with the content
     * it has then. A mesh that is still kept and whose file looks unchanged is not read again.
     */
    void request(const QStringList& paths);
    /** As `request`, before all others that wait: for what the user looks at. */
    void requestFirst(const QString& path);
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
    int done() const;
    int total() const;
    void setCacheLimit(std::size_t bytes);
    std::size_t cachedBytes() const;

Q_SIGNALS:
    void loaded(const QString& path, const Zorvane::Workbench::SharedMesh& mesh,
                const Zorvane::Workbench::MeshFacts& facts);
    void failed(const QString& path, const Zorvane::Workbench::Problem& problem);
    /** After each request, answer and cancel. */
    void progress(int done, int total);
    /** Nothing waits and nothing is being read; after a cancel too. */
    void finished();

private:
    class State;
    std::unique_ptr<State> m_state;
};

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::SharedMesh)
