#include "Benchmarks/Support/RatioRow.h"
#include "Files/CopyProgress.h"
#include "Files/CopyQuestions.h"
#include "Files/Portable/CopyEngine.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <limits>
#include <memory>
#include <unistd.h>

namespace Zorvane::Benchmarks {

namespace {

class NoQuestions : public CopyQuestions
{
public:
    CopyAnswer ask(const CopyCollision&) override { return {CopyDecision::Cancel, false}; }
    bool copyInSpiteOfSpace(qint64, qint64) override { return true; }
    void report(const QList<CopyRemark>& failures, const QList<CopyRemark>& remarks) override
    {
        qFatal("a file could not be copied: %s", qPrintable((failures + remarks).first().reason));
    }
};

class NoProgress : public CopyProgress
{
public:
    bool goOn(const CopyProgressState&) override { return true; }
};

/**
 * Files copied by us and by cp with a sync after it, in turn, into folders of their own beside the
 * program. Nothing is removed until the end: a file system that has just removed many files is
 * busy with that for a while. Each side counts with its best time.
 */
class CopyContest
{
public:
    /** With `hole` each file is made of that many more bytes that were never written. */
    CopyContest(int files, qint64 bytesEach, qint64 hole, int rounds)
        : m_root(QCoreApplication::applicationDirPath() + QStringLiteral("/copy-XXXXXX"))
        , m_rounds(rounds)
    {
        makeSources(files, bytesEach, hole);
    }

    void run()
    {
        for (int round = 0; round < m_rounds; ++round) {
            // Some disks are fast until a budget is used up: neither side may always come first.
            const bool weGoFirst = round % 2 == 0;
            if (weGoFirst)
                m_ours = std::min(m_ours, timeOf([&] { copyByUs(newFolder()); }));
            m_peer = std::min(m_peer, timeOf([&] { copyByCp(newFolder()); }));
            if (!weGoFirst)
                m_ours = std::min(m_ours, timeOf([&] { copyByUs(newFolder()); }));
        }
    }

    double ours() const { return m_ours; }
    double peer() const { return m_peer; }

private:
    QString newFolder()
    {
        const QString name = QString::number(m_folders++);
        QDir(m_root.path()).mkdir(name);
        return m_root.filePath(name);
    }

    void makeSources(int files, qint64 bytesEach, qint64 hole)
    {
        const QString folder = newFolder();
        QByteArray block(static_cast<int>(std::min<qint64>(bytesEach, 1 << 20)), 'z');
        for (int i = 0; i < files; ++i) {
            const QString path = folder + QStringLiteral("/part-%1.stl").arg(i);
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly) || !file.seek(hole / 2))
                qFatal("no room for the benchmark's files");
            for (qint64 written = 0; written < bytesEach; written += block.size())
                file.write(block.replace(0, 8, QByteArray::number(written + i).rightJustified(8)));
            if (hole > 0 && !file.resize(hole + bytesEach))
                qFatal("no room for the benchmark's files");
            m_sources.append(path);
        }
    }

    template <typename Work>
    static double timeOf(Work work)
    {
        constexpr double nanosecondsPerMillisecond = 1e6;
        ::sync();
        QElapsedTimer timer;
        timer.start();
        work();
        return static_cast<double>(timer.nsecsElapsed()) / nanosecondsPerMillisecond;
    }

    void copyByCp(const QString& folder) const
    {
        QStringList arguments{QStringLiteral("--sparse=auto")};
        arguments << m_sources << QStringLiteral("--target-directory") << folder;
        if (QProcess::execute(QStringLiteral("cp"), arguments) != 0)
            qFatal("cp failed");
        ::sync();
    }

    void copyByUs(const QString& folder) const
    {
        NoQuestions questions;
        NoProgress progress;
        CopyEngine(questions, progress).run(m_sources, folder);
    }

    QTemporaryDir m_root;
    QStringList m_sources;
    int m_rounds;
    int m_folders = 0;
    double m_ours = std::numeric_limits<double>::max();
    double m_peer = std::numeric_limits<double>::max();
};

void addContest(const std::string& name, int files, qint64 bytesEach, qint64 hole, int rounds)
{
    const auto peer = std::make_shared<double>(0.0);
    addValueRow(
        name, "ms",
        [=] {
            CopyContest contest(files, bytesEach, hole, rounds);
            contest.run();
            *peer = contest.peer();
            return contest.ours();
        },
        [=] { return *peer; });
}

} // namespace

} // namespace Zorvane::Benchmarks

int main(int argc, char** argv)
{
    constexpr int manyFiles = 10000;
    constexpr qint64 small = 4096;
    constexpr qint64 large = Q_INT64_C(1) << 30;
    constexpr qint64 little = Q_INT64_C(1) << 20;
    Zorvane::Benchmarks::addContest("copy/one-gib", 1, large, 0, 2);
    Zorvane::Benchmarks::addContest("copy/10000-small", manyFiles, small, 0, 4);
    Zorvane::Benchmarks::addContest("copy/sparse", 1, little, 2 * large, 20);
    return Zorvane::Benchmarks::runRows(argc, argv);
}
