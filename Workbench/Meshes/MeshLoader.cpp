#include "Workbench/Meshes/MeshLoader.h"

#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRunnable>

#include <algorithm>
#include <functional>
#include <utility>

namespace Zorvane::Workbench {

MeshLoader::MeshLoader(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<SharedMesh>("Zorvane::Workbench::SharedMesh");
    qRegisterMetaType<MeshFacts>("Zorvane::Workbench::MeshFacts");
    qRegisterMetaType<Problem>("Zorvane::Workbench::Problem");
    setMostReadAtOnce(2);
}

MeshLoader::~MeshLoader()
{
    // Jobs post to this object, so they end first.
    m_pool.waitForDone();
}

void MeshLoader::request(const QStringList& paths)
{
    for (const QString& path : paths)
        accept(path, false);
    startWaiting();
    Q_EMIT progress(m_done, m_total);
}

void MeshLoader::requestFirst(const QString& path)
{
    accept(path, true);
    startWaiting();
    Q_EMIT progress(m_done, m_total);
}

void MeshLoader::requestAnew(const QString& path)
{
    const auto known = m_entries.find(path);
    if (known != m_entries.end())
        known->stamp = Stamp();
    if (Job* job = findCurrentJob(path))
        job->askedAnew = true;
    request({path});
}

void MeshLoader::accept(const QString& path, bool first)
{
    if (!isBusy())
        m_done = m_total = 0;
    if (Job* job = findCurrentJob(path)) {
        job->askedAgain = true;
        return;
    }
    const auto waiting = std::find(m_waiting.begin(), m_waiting.end(), path);
    if (waiting == m_waiting.end())
        ++m_total;
    else if (first)
        m_waiting.erase(waiting);
    else
        return;
    if (first)
        m_waiting.push_front(path);
    else
        m_waiting.push_back(path);
}

void MeshLoader::cancel()
{
    const bool wasBusy = isBusy();
    m_waiting.clear();
    ++m_round;
    m_total = m_done;
    if (!wasBusy)
        return;
    Q_EMIT progress(m_done, m_total);
    Q_EMIT finished();
}

MeshLoader::Job* MeshLoader::findCurrentJob(const QString& path)
{
    const auto found = std::find_if(m_jobs.begin(), m_jobs.end(), [&](const auto& entry) {
        return entry.second.round == m_round && entry.second.path == path;
    });
    return found == m_jobs.end() ? nullptr : &found->second;
}

void MeshLoader::startWaiting()
{
    while (!m_waiting.empty() && int(m_jobs.size()) < m_pool.maxThreadCount()) {
        const QString path = m_waiting.front();
        m_waiting.pop_front();
        start(path);
    }
}

void MeshLoader::start(const QString& path)
{
    const int number = m_nextJob++;
    const Stamp stamp = stampOf(path);
    m_jobs[number] = {path, stamp, m_round, false, false};
    const auto post = [this, number](const Answer& answer) {
        QMetaObject::invokeMethod(
            this, [this, number, answer] { finishJob(number, answer); }, Qt::QueuedConnection);
    };
    const auto known = m_entries.constFind(path);
    const bool isKnown = known != m_entries.cend() && isSame(known->stamp, stamp) &&
                         (known->mesh != nullptr || known->problem);
    if (isKnown)
        post({known->mesh, known->facts.value_or(MeshFacts()), known->problem.value_or(Problem())});
    else
        m_pool.start(QRunnable::create([post, path] { post(read(path)); }));
}

MeshLoader::Answer MeshLoader::read(const QString& path)
{
    MeshReading reading = MeshReader::read(path);
    if (!reading.mesh)
        return {nullptr, {}, reading.problem};
    const auto mesh = std::make_shared<const TriangleMesh>(std::move(*reading.mesh));
    return {mesh, meshFacts(*mesh), {}};
}

void MeshLoader::finishJob(int number, const Answer& answer)
{
    const auto found = m_jobs.find(number);
    const Job job = found->second;
    m_jobs.erase(found);
    const bool wanted = job.round == m_round;
    const bool stale = job.askedAnew || (job.askedAgain && !isSame(stampOf(job.path), job.stamp));
    if (wanted && stale)
        m_waiting.push_front(job.path);
    startWaiting();
    if (!wanted || stale)
        return;
    keep(job, answer);
    ++m_done;
    tell(job.path, answer);
}

void MeshLoader::keep(const Job& job, const Answer& answer)
{
    Entry& entry = m_entries[job.path];
    if (entry.mesh != nullptr)
        m_cachedBytes -= bytesOf(*entry.mesh);
    entry = {job.stamp, {}, {}, answer.mesh, ++m_uses};
    if (answer.mesh != nullptr) {
        entry.facts = answer.facts;
        m_cachedBytes += bytesOf(*answer.mesh);
    } else {
        entry.problem = answer.problem;
    }
    forgetOldest();
}

void MeshLoader::tell(const QString& path, const Answer& answer)
{
    // A receiver may ask for more or cancel, which starts or ends a round of its own.
    const int round = m_round;
    if (answer.mesh != nullptr)
        Q_EMIT loaded(path, answer.mesh, answer.facts);
    else
        Q_EMIT failed(path, answer.problem);
    if (round != m_round)
        return;
    Q_EMIT progress(m_done, m_total);
    if (!isBusy())
        Q_EMIT finished();
}

void MeshLoader::forgetOldest()
{
    while (m_cachedBytes > m_cacheLimit) {
        auto oldest = m_entries.end();
        for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
            if (entry->mesh != nullptr &&
                (oldest == m_entries.end() || entry->lastUse < oldest->lastUse))
                oldest = entry;
        }
        m_cachedBytes -= bytesOf(*oldest->mesh);
        oldest->mesh.reset();
    }
}

SharedMesh MeshLoader::mesh(const QString& path)
{
    const auto entry = m_entries.find(path);
    if (entry == m_entries.end())
        return nullptr;
    entry->lastUse = ++m_uses;
    return entry->mesh;
}

std::optional<MeshFacts> MeshLoader::facts(const QString& path) const
{
    const auto entry = m_entries.constFind(path);
    return entry == m_entries.cend() ? std::nullopt : entry->facts;
}

std::optional<Problem> MeshLoader::problem(const QString& path) const
{
    const auto entry = m_entries.constFind(path);
    return entry == m_entries.cend() ? std::nullopt : entry->problem;
}

bool MeshLoader::isBusy() const
{
    return !m_waiting.empty() ||
           std::any_of(m_jobs.begin(), m_jobs.end(),
                       [this](const auto& entry) { return entry.second.round == m_round; });
}

void MeshLoader::setMostReadAtOnce(int files)
{
    m_pool.setMaxThreadCount(std::max(files, 1));
    startWaiting();
}

void MeshLoader::setCacheLimit(std::size_t bytes)
{
    m_cacheLimit = bytes;
    forgetOldest();
}

MeshLoader::Stamp MeshLoader::stampOf(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? Stamp{info.size(), info.lastModified()} : Stamp();
}

bool MeshLoader::isSame(const Stamp& left, const Stamp& right)
{
    return left.size == right.size && left.time == right.time;
}

std::size_t MeshLoader::bytesOf(const TriangleMesh& mesh)
{
    return mesh.points.size() * sizeof(QVector3D) +
           mesh.triangles.size() * sizeof(TriangleMesh::Triangle);
}

} // namespace Zorvane::Workbench
