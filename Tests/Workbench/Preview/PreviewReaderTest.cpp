#include "Workbench/Preview/PreviewReader.h"

#include "Tests/Support/PlatformFacts.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Workbench/Meshes/MeshWriter.h"
#include "Workbench/Texts/Language.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QLockFile>
#include <QtCore/QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace Zorvane::Workbench {

using Kind = PreviewContent::Kind;

namespace {

constexpr char s_misbehave[] = "--misbehave";

/** Waits for its end, and lets others see by the lock beside its file that it is alive. */
int hang(const QString& path, const ProcessLimits& limits)
{
    QLockFile alive(path + QStringLiteral(".alive"));
    alive.lock(); // writes a file, which the limits forbid
    // The lock's own file is there a moment before the lock.
    QFile(path + QStringLiteral(".started")).open(QIODevice::WriteOnly);
    if (limitThisProcess(limits))
        QEventLoop().exec();
    return EXIT_FAILURE;
}

/** Takes memory until it gets none; ends well if nobody stops it. */
void takeMemory()
{
    constexpr std::size_t piece = 1024 * 1024;
    std::vector<std::unique_ptr<char[]>> pieces;
    while (pieces.size() < 1024) {
        pieces.emplace_back(new char[piece]);
        std::memset(pieces.back().get(), 1, piece);
    }
    const QByteArray answer = PreviewContent::message(QStringLiteral("not limited")).toBytes();
    std::fwrite(answer.constData(), 1, std::size_t(answer.size()), stdout);
}

void writeWithoutEnd()
{
    const QByteArray some(64 * 1024, 'x');
    while (std::fwrite(some.constData(), 1, std::size_t(some.size()), stdout) > 0)
        std::fflush(stdout);
}

/** A process that doesn't do what it should: `way` is the second argument, the path the last. */
std::optional<int> misbehave(int argc, char** argv)
{
    if (argc < 3 || std::strcmp(argv[1], s_misbehave) != 0)
        return std::nullopt;
    const QCoreApplication application(argc, argv);
    const QString way = QCoreApplication::arguments().at(2);
    const QString path = QCoreApplication::arguments().last();
    ProcessLimits limits;
    limits.memory = 64 * 1024 * 1024;
    limits.milliseconds = 60'000;
    if (way == QLatin1String("hang"))
        return hang(path, limits);
    if (!limitThisProcess(limits))
        return EXIT_FAILURE;
    if (way == QLatin1String("crash"))
        std::abort();
    if (way == QLatin1String("fail"))
        return EXIT_FAILURE;
    if (way == QLatin1String("bomb"))
        takeMemory();
    if (way == QLatin1String("flood"))
        writeWithoutEnd();
    if (way == QLatin1String("babble"))
        std::puts("No content at all.");
    return EXIT_SUCCESS;
}

// Tests of whole windows read files through this program, too.
const Testing::ChildProcess previewWorker(&runPreviewWorker);
const Testing::ChildProcess misbehavingWorker(&misbehave);

/** Such a process in place of one that reads. */
PreviewProgram misbehaving(const char* way)
{
    return {QCoreApplication::applicationFilePath(),
            {QString::fromLatin1(s_misbehave), QString::fromLatin1(way)}};
}

/** The answers of a reader. */
class Answers
{
public:
    explicit Answers(PreviewReader& reader)
    {
        QObject::connect(&reader, &PreviewReader::ready,
                         [this](const QString& path, const PreviewContent& content) {
                             paths << path;
                             last = content;
                         });
    }

    int count() const { return paths.size(); }

    QStringList paths;
    PreviewContent last;
};

} // namespace

class PreviewReaderTest : public Testing::TestCase
{
    Q_OBJECT

private:
    QString make(const QString& name, const QByteArray& content) const
    {
        return Testing::writeFile(m_folder.filePath(name), content);
    }
    static PreviewRequest of(const QString& path)
    {
        PreviewRequest request;
        request.path = path;
        // Long enough for any machine: what is meant to run out of time has less.
        request.limits.milliseconds = 120'000;
        return request;
    }
    /** Whether the process that hangs at the path lives. */
    static bool isAlive(const QString& path)
    {
        QLockFile lock(path + QStringLiteral(".alive"));
        lock.setStaleLockTime(0);
        return !lock.tryLock(0);
    }
    static bool hasStarted(const QString& path)
    {
        return QFile::exists(path + QStringLiteral(".started"));
    }

    const QTemporaryDir m_folder;

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }
    void readsFiles_data();
    void readsFiles();
    void speaksTheLanguageOfTheUser_data();
    void speaksTheLanguageOfTheUser();
    void namesOfAllKindsArrive_data();
    void namesOfAllKindsArrive();
    void answersComeFromTheEventLoop();
    void failuresAreTold_data();
    void failuresAreTold();
    void aHangIsEnded();
    void memoryIsLimited();
    void hugeFilesAreAnswered_data();
    void hugeFilesAreAnswered();
    void aFileThatVanishedIsTold();
    void theNextRequestDropsThePrevious();
    void onlyTheLastOfManyIsAnswered();
    void cancelDropsTheRequest();
    void theReadersEndEndsItsProcess();
    void readsOnAfterAFailure();
    void otherArgumentsAreNotForUs_data();
    void otherArgumentsAreNotForUs();
};

void PreviewReaderTest::readsFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Kind>("kind");
    QTest::newRow("mesh") << "a.stl" << Testing::asciiStl(Testing::cube()) << Kind::Picture;
    QTest::newRow("table") << "a.csv" << QByteArray("a,b\n1,2\n") << Kind::Table;
    QTest::newRow("text") << "a.txt" << QByteArray("text\n") << Kind::Text;
    QTest::newRow("nothing") << "b.txt" << QByteArray() << Kind::Message;
    QTest::newRow("broken mesh") << "b.stl" << QByteArray("solid") << Kind::Message;
}

void PreviewReaderTest::readsFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(Kind, kind);
    PreviewReader reader;
    const Answers answers(reader);
    PreviewRequest request = of(make(name, content));
    request.look.pixels = QSize(120, 90);
    reader.request(request);
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.paths.first(), request.path);
    // The same as read here, which for these files is safe.
    const Language language{QLocale()};
    const PreviewContent wanted = FilePreview::read(request.path, request.look);
    QCOMPARE(answers.last.kind, kind);
    QCOMPARE(answers.last.note, wanted.note);
    QCOMPARE(answers.last.picture, wanted.picture);
    QVERIFY(answers.last.rows == wanted.rows);
    QCOMPARE(answers.last.text, wanted.text);
    QVERIFY(!reader.isReading());
}

void PreviewReaderTest::speaksTheLanguageOfTheUser_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("told");
    const QLocale german(QLocale::German, QLocale::Germany);
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QLocale icelandic(QLocale::Icelandic, QLocale::Iceland);
    const auto row = [](const char* rule, const QLocale& locale, const char* name,
                        const char* told) {
        QTest::newRow(rule) << locale << QString::fromUtf8(name) << QString::fromUtf8(told);
    };
    row("note in German", german, "a.txt", "2 Zeilen");
    row("reason in German", german, "none.txt", "gibt es nicht");
    row("note in English", english, "a.txt", "2 lines");
    row("reason in English", english, "none.txt", "doesn't exist");
    row("English for a language without texts", icelandic, "none.txt", "doesn't exist");
}

void PreviewReaderTest::speaksTheLanguageOfTheUser()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, name);
    QFETCH(QString, told);
    make(QStringLiteral("a.txt"), "one\ntwo\n");
    QLocale::setDefault(locale);
    PreviewReader reader;
    const Answers answers(reader);
    reader.request(of(m_folder.filePath(name)));
    QTRY_COMPARE(answers.count(), 1);
    QVERIFY2(answers.last.note.startsWith(told), qPrintable(answers.last.note));
}

void PreviewReaderTest::namesOfAllKindsArrive_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("spaces") << " a b .txt";
    QTest::newRow("dashes") << "--help";
    QTest::newRow("the mode's own name") << "--read-preview";
    QTest::newRow("Japanese") << QString::fromUtf8(u8"\u91d1\u578b.txt");
    QTest::newRow("quotes") << "it's (1) [2];x.txt";
    QTest::newRow("long") << QString(251, QLatin1Char('n')) + QStringLiteral(".txt");
}

void PreviewReaderTest::namesOfAllKindsArrive()
{
    QFETCH(QString, name);
    PreviewReader reader;
    const Answers answers(reader);
    reader.request(of(make(name, "text")));
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.last.text, QStringLiteral("text"));
}

void PreviewReaderTest::answersComeFromTheEventLoop()
{
    PreviewReader reader(PreviewProgram{m_folder.filePath(QStringLiteral("no program")), {}},
                         nullptr);
    const Answers answers(reader);
    reader.request(of(m_folder.path()));
    QCOMPARE(answers.count(), 0);
    QVERIFY(reader.isReading());
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.last.note, QStringLiteral("cannot be read: no process can be started for it"));
}

void PreviewReaderTest::failuresAreTold_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<QString>("note");
    const QString damaged =
        QStringLiteral("cannot be read: it may be damaged, or too large for a preview");
    QTest::newRow("crash") << QByteArray("crash") << damaged;
    QTest::newRow("failure") << QByteArray("fail") << damaged;
    QTest::newRow("memory") << QByteArray("bomb") << damaged;
    QTest::newRow("silence") << QByteArray("nothing") << damaged;
    QTest::newRow("nonsense") << QByteArray("babble") << damaged;
    QTest::newRow("no end of it") << QByteArray("flood")
                                  << QStringLiteral("makes a preview that is too large");
}

void PreviewReaderTest::failuresAreTold()
{
    QFETCH(QByteArray, way);
    if (way == "bomb" && !Testing::memoryLimitsHold())
        QSKIP("this system does not keep to limits of memory");
    PreviewReader reader(misbehaving(way.constData()), nullptr);
    const Answers answers(reader);
    reader.request(of(m_folder.filePath(QStringLiteral("any"))));
    QTRY_COMPARE_WITH_TIMEOUT(answers.count(), 1, 120'000);
    QCOMPARE(answers.last.kind, Kind::Message);
    QTEST(answers.last.note, "note");
    QVERIFY(!reader.isReading());
}

void PreviewReaderTest::aHangIsEnded()
{
    PreviewReader reader(misbehaving("hang"), nullptr);
    const Answers answers(reader);
    PreviewRequest request = of(m_folder.filePath(QStringLiteral("hang")));
    request.limits.milliseconds = 1500;
    reader.request(request);
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.last.note, QStringLiteral("takes longer than 1.5 s to read"));
    QTRY_VERIFY(!isAlive(request.path));
}

void PreviewReaderTest::memoryIsLimited()
{
    if (!Testing::memoryLimitsHold())
        QSKIP("this system does not keep to limits of memory");
    // 400,000 triangles: some 20 MB as a file, and much more while it is read.
    TriangleMesh mesh;
    const TriangleMesh cube = Testing::cube();
    for (std::uint32_t copy = 0; copy < 33'334; ++copy) {
        for (const QVector3D& point : cube.points)
            mesh.points.push_back(point + QVector3D(float(copy) * 20, 0, 0));
        for (const TriangleMesh::Triangle& triangle : cube.triangles)
            mesh.triangles.push_back(
                {triangle[0] + copy * 8, triangle[1] + copy * 8, triangle[2] + copy * 8});
    }
    PreviewRequest request = of(make(QStringLiteral("large.stl"), Testing::binaryStl(mesh)));
    PreviewReader reader;
    const Answers answers(reader);
    request.limits.memory = 32 * 1024 * 1024;
    reader.request(request);
    QTRY_COMPARE_WITH_TIMEOUT(answers.count(), 1, 120'000);
    QCOMPARE(answers.last.kind, Kind::Message);
    QVERIFY(!answers.last.note.isEmpty());
    request.limits.memory = ProcessLimits().memory;
    reader.request(request);
    QTRY_COMPARE_WITH_TIMEOUT(answers.count(), 2, 120'000);
    QCOMPARE(answers.last.kind, Kind::Picture);
}

void PreviewReaderTest::hugeFilesAreAnswered_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("head");
    QTest::newRow("mesh") << "huge.stl" << QByteArray("solid");
    QTest::newRow("table") << "huge.csv" << QByteArray("a;b\n").repeated(100'000);
    QTest::newRow("text") << "huge.log" << QByteArray("word\n").repeated(100'000);
    QTest::newRow("zeros") << "huge.bin" << QByteArray();
}

void PreviewReaderTest::hugeFilesAreAnswered()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, head);
    const QString path = make(name, head);
    QVERIFY(QFile::resize(path, 3LL * 1024 * 1024 * 1024));
    PreviewReader reader;
    const Answers answers(reader);
    reader.request(of(path));
    QTRY_COMPARE(answers.count(), 1);
    QVERIFY(!answers.last.note.isEmpty());
    QVERIFY(!answers.last.note.startsWith(QStringLiteral("cannot be read")));
    QVERIFY(QFile::remove(path));
}

void PreviewReaderTest::aFileThatVanishedIsTold()
{
    const QString path = make(QStringLiteral("vanishing.txt"), "text");
    QVERIFY(QFile::remove(path));
    PreviewReader reader;
    const Answers answers(reader);
    reader.request(of(path));
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.last.note, QStringLiteral("doesn't exist"));
}

void PreviewReaderTest::theNextRequestDropsThePrevious()
{
    PreviewReader reader(misbehaving("hang"), nullptr);
    const Answers answers(reader);
    const QString first = m_folder.filePath(QStringLiteral("first"));
    const QString second = m_folder.filePath(QStringLiteral("second"));
    reader.request(of(first));
    QTRY_VERIFY(hasStarted(first));
    QVERIFY(isAlive(first));
    reader.request(of(second));
    QTRY_VERIFY(!isAlive(first));
    QTRY_VERIFY(hasStarted(second));
    QVERIFY(isAlive(second));
    QVERIFY(reader.isReading());
    QCOMPARE(answers.count(), 0);
}

void PreviewReaderTest::onlyTheLastOfManyIsAnswered()
{
    PreviewReader reader;
    const Answers answers(reader);
    QString last;
    for (int i = 0; i < 20; ++i) {
        last = make(QStringLiteral("%1.txt").arg(i), QByteArray::number(i));
        reader.request(of(last));
    }
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.paths.first(), last);
    QCOMPARE(answers.last.text, QStringLiteral("19"));
    QVERIFY(!reader.isReading());
}

void PreviewReaderTest::cancelDropsTheRequest()
{
    PreviewReader reader(misbehaving("hang"), nullptr);
    const Answers answers(reader);
    const QString path = m_folder.filePath(QStringLiteral("cancelled"));
    reader.request(of(path));
    QTRY_VERIFY(hasStarted(path));
    reader.cancel();
    QVERIFY(!reader.isReading());
    QTRY_VERIFY(!isAlive(path));
    QCOMPARE(answers.count(), 0);
}

void PreviewReaderTest::theReadersEndEndsItsProcess()
{
    const QString path = m_folder.filePath(QStringLiteral("ended"));
    {
        PreviewReader reader(misbehaving("hang"), nullptr);
        reader.request(of(path));
        QTRY_VERIFY(hasStarted(path));
        QVERIFY(isAlive(path));
    }
    // Windows lets go of an ended process's files a moment later.
    QTRY_VERIFY(!isAlive(path));
}

void PreviewReaderTest::readsOnAfterAFailure()
{
    PreviewReader reader;
    const Answers answers(reader);
    PreviewRequest request = of(make(QStringLiteral("on.txt"), "text"));
    request.limits.milliseconds = 0;
    reader.request(request);
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.last.kind, Kind::Message);
    request.limits.milliseconds = 120'000;
    reader.request(request);
    QTRY_COMPARE(answers.count(), 2);
    QCOMPARE(answers.last.kind, Kind::Text);
}

void PreviewReaderTest::otherArgumentsAreNotForUs_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QStringList ours = of(QStringLiteral("path")).arguments();
    const QStringList fewer = ours.mid(0, ours.size() - 1);
    const QStringList more = QStringList(ours) << QString();
    const QStringList others = QStringList{QStringLiteral("--other")} << ours.mid(1);
    QTest::newRow("none") << QStringList();
    QTest::newRow("the user's") << QStringList{QStringLiteral("--tour"), QStringLiteral("folder")};
    QTest::newRow("too few") << fewer;
    QTest::newRow("too many") << more;
    QTest::newRow("another mode") << others;
}

void PreviewReaderTest::otherArgumentsAreNotForUs()
{
    QFETCH(QStringList, arguments);
    std::vector<QByteArray> texts{"program"};
    for (const QString& argument : arguments)
        texts.push_back(argument.toLocal8Bit());
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    QVERIFY(!runPreviewWorker(int(pointers.size()), pointers.data()));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::PreviewReaderTest;
ZORVANE_TEST(PreviewReaderTest)
#include "PreviewReaderTest.moc"
