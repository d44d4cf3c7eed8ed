#include "Workbench/Convert/MeshConversion.h"

#include "Dialogs/FileConverterLogInterface.h"
#include "Host/FileHandling/StlContent.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Workbench/Convert/BackgroundWork.h"
#include "Workbench/Meshes/MeshFacts.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSemaphore>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThreadPool>
#include <QtCore/QTimer>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>
#include <utility>

using namespace Zorvane;
using namespace Zorvane::Workbench;

namespace {

class MessageList : public FileConverterLogInterface
{
public:
    void addMessage(const QString& message) override
    {
        messages.append(message);
        if (listener)
            listener(message);
    }

    QStringList messages;
    std::function<void(const QString& message)> listener;
};

/** Keeps all threads busy, so that work begun then waits, and lets it go on in the end. */
class BusyThreads
{
public:
    ~BusyThreads() { finish(); }

    void begin()
    {
        for (; m_count < m_pool.maxThreadCount(); ++m_count)
            m_pool.start([this] { m_mayEnd.acquire(); });
    }
    /** Returns when what waited is done, too. */
    void finish()
    {
        m_mayEnd.release(std::exchange(m_count, 0));
        m_pool.waitForDone();
    }

private:
    QThreadPool& m_pool = Workbench::backgroundThreads();
    QSemaphore m_mayEnd;
    int m_count = 0;
};

QStringList everythingIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class MeshConversionTest : public Testing::TestCase
{
    Q_OBJECT

private:
    QString write(const QString& name, const QByteArray& content) const;
    QString out(const QString& name) const { return m_out->filePath(name); }
    int convert(const QString& file, const QString& folder);
    int convert(const QString& file) { return convert(file, m_out->path()); }

    std::unique_ptr<QTemporaryDir> m_in;
    std::unique_ptr<QTemporaryDir> m_out;
    MessageList m_log;

private Q_SLOTS:
    void init();
    void kindsOfFilesBecomeStl_data();
    void kindsOfFilesBecomeStl();
    void thereAndBackIsTheSameMesh();
    void messagesTellWhatIsDone();
    void nothingIsReplaced();
    void inputInTheOutputFolderStays();
    void brokenInputIsToldAndWritesNothing_data();
    void brokenInputIsToldAndWritesNothing();
    void missingInputIsTold();
    void unusableFolderIsTold_data();
    void unusableFolderIsTold();
    void cancelledConversionLeavesNothingBehind_data();
    void cancelledConversionLeavesNothingBehind();
    void conversionThatGoesMeanwhileWritesNothing_data();
    void conversionThatGoesMeanwhileWritesNothing();
    void choosersAreSetUp();
};

void MeshConversionTest::init()
{
    m_in = std::make_unique<QTemporaryDir>();
    m_out = std::make_unique<QTemporaryDir>();
    m_log = {};
}

QString MeshConversionTest::write(const QString& name, const QByteArray& content) const
{
    QFile file(m_in->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qWarning("The test's file could not be written.");
    return file.fileName();
}

int MeshConversionTest::convert(const QString& file, const QString& folder)
{
    return MeshConversion().convert(FileName(file), FileName(folder), m_log);
}

void MeshConversionTest::kindsOfFilesBecomeStl_data()
{
    const TriangleMesh cube = Testing::cube();
    QTest::addColumn<QString>("input");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("output");
    QTest::addColumn<bool>("isBinary");
    QTest::newRow("binary STL to ASCII")
        << "die.stl" << Testing::binaryStl(cube) << "die-ascii.stl" << false;
    QTest::newRow("ASCII STL to binary")
        << "die.stl" << Testing::asciiStl(cube) << "die-binary.stl" << true;
    QTest::newRow("binary STL that begins with solid")
        << "die.STL" << Testing::binaryStl(cube, "solid") << "die-ascii.stl" << false;
    QTest::newRow("OBJ") << "die.obj" << Testing::obj(cube) << "die.stl" << true;
    QTest::newRow("ASCII PLY") << "die.ply" << Testing::asciiPly(cube) << "die.stl" << true;
    QTest::newRow("binary PLY") << "die.v2.ply" << Testing::binaryPly(cube, true) << "die.v2.stl"
                                << true;
}

void MeshConversionTest::kindsOfFilesBecomeStl()
{
    QFETCH(QString, input);
    QFETCH(QByteArray, content);
    QFETCH(QString, output);
    QFETCH(bool, isBinary);
    const QString file = write(input, content);
    QCOMPARE(convert(file), 0);
    QCOMPARE(QDir(m_out->path()).entryList(QDir::Files), QStringList(output));
    QCOMPARE(isBinaryStl(FileName(out(output))), isBinary);
    const MeshReading reading = MeshReader::read(out(output));
    QVERIFY(reading.mesh);
    const MeshFacts facts = meshFacts(*reading.mesh);
    QCOMPARE(facts.triangles, std::size_t(12));
    QVERIFY(facts.watertight);
    QCOMPARE(facts.box.size(), QVector3D(10, 10, 10));
    QCOMPARE(contentOf(file), content);
}

void MeshConversionTest::thereAndBackIsTheSameMesh()
{
    // Numbers that are no round ones in either form.
    const QString file =
        write(QStringLiteral("die.stl"), Testing::binaryStl(Testing::cube(1 / 3.F)));
    QCOMPARE(convert(file), 0);
    QCOMPARE(convert(out(QStringLiteral("die-ascii.stl"))), 0);
    const MeshReading before = MeshReader::read(file);
    const MeshReading after = MeshReader::read(out(QStringLiteral("die-ascii-binary.stl")));
    QVERIFY(before.mesh && after.mesh);
    QCOMPARE(after.mesh->triangles.size(), before.mesh->triangles.size());
    QCOMPARE(meshFacts(*after.mesh).box.highest, meshFacts(*before.mesh).box.highest);
}

void MeshConversionTest::messagesTellWhatIsDone()
{
    const QString file = write(QStringLiteral("die.obj"), Testing::obj(Testing::cube()));
    QCOMPARE(convert(file), 0);
    QCOMPARE(m_log.messages.size(), 4);
    QVERIFY(m_log.messages[0].startsWith(QStringLiteral("Reading ")));
    QVERIFY(m_log.messages[0].contains(QDir::toNativeSeparators(file)));
    QCOMPARE(m_log.messages[1], QStringLiteral("12 triangles over 8 points."));
    QVERIFY(m_log.messages[2].endsWith(QStringLiteral("die.stl as binary STL...")));
    QVERIFY(m_log.messages[3].startsWith(QStringLiteral("Written: ")));
}

void MeshConversionTest::nothingIsReplaced()
{
    const QString file = write(QStringLiteral("die.obj"), Testing::obj(Testing::cube()));
    QCOMPARE(convert(file), 0);
    const QByteArray first = contentOf(out(QStringLiteral("die.stl")));
    write(QStringLiteral("die.obj"), Testing::obj(Testing::openBox()));
    QCOMPARE(convert(file), 0);
    QCOMPARE(convert(file), 0);
    QCOMPARE(contentOf(out(QStringLiteral("die.stl"))), first);
    QCOMPARE(QDir(m_out->path()).entryList(QDir::Files, QDir::Name),
             QStringList({QStringLiteral("die (2).stl"), QStringLiteral("die (3).stl"),
                          QStringLiteral("die.stl")}));
}

void MeshConversionTest::inputInTheOutputFolderStays()
{
    const QByteArray content = Testing::binaryStl(Testing::cube());
    const QString file = write(QStringLiteral("die.stl"), content);
    QCOMPARE(convert(file, m_in->path()), 0);
    QCOMPARE(contentOf(file), content);
    QVERIFY(QFile::exists(m_in->filePath(QStringLiteral("die-ascii.stl"))));
}

void MeshConversionTest::brokenInputIsToldAndWritesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("cut binary STL") << "die.stl" << Testing::binaryStl(Testing::cube()).left(200);
    QTest::newRow("empty OBJ") << "die.obj" << QByteArray();
    QTest::newRow("PLY without a head") << "die.ply" << QByteArray("nothing of the kind");
    QTest::newRow("no mesh by its ending") << "die.txt" << QByteArray("die");
}

void MeshConversionTest::brokenInputIsToldAndWritesNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QCOMPARE(convert(write(name, content)), 1);
    QVERIFY(m_log.messages.last().contains(name));
    QVERIFY(QDir(m_out->path()).isEmpty());
}

void MeshConversionTest::missingInputIsTold()
{
    QCOMPARE(convert(m_in->filePath(QStringLiteral("none.stl"))), 1);
    QCOMPARE(convert(QString()), 1);
    QVERIFY(QDir(m_out->path()).isEmpty());
}

void MeshConversionTest::unusableFolderIsTold_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("none") << QString();
    QTest::newRow("not there") << QStringLiteral("/no/such/folder");
    QTest::newRow("a file") << QCoreApplication::applicationFilePath();
}

void MeshConversionTest::unusableFolderIsTold()
{
    QFETCH(QString, folder);
    const QString file = write(QStringLiteral("die.obj"), Testing::obj(Testing::cube()));
    QCOMPARE(convert(file, folder), 2);
    QVERIFY(m_log.messages.last().contains(QStringLiteral("there is no such folder")));
}

void MeshConversionTest::cancelledConversionLeavesNothingBehind_data()
{
    QTest::addColumn<QString>("step");
    QTest::newRow("while reading") << "Reading";
    QTest::newRow("while writing") << "Writing";
}

void MeshConversionTest::cancelledConversionLeavesNothingBehind()
{
    QFETCH(QString, step);
    const QByteArray content = Testing::obj(Testing::cube());
    const QString file = write(QStringLiteral("die.obj"), content);
    BusyThreads threads;
    m_log.listener = [&](const QString& message) {
        if (message.startsWith(step))
            threads.begin();
    };
    Testing::ExpectedModals modals;
    modals.expectDialog<QProgressDialog>(QStringLiteral("progress"), [&](QProgressDialog& shown) {
        QVERIFY(shown.labelText().startsWith(step));
        QTest::mouseClick(shown.findChild<QPushButton*>(), Qt::LeftButton);
    });
    QCOMPARE(convert(file), int(MeshConversion::Cancelled));
    QCOMPARE(m_log.messages.last(), QStringLiteral("Cancelled. Nothing was written."));
    // The work that was left goes on to its end, and takes what it has written away.
    threads.finish();
    QCOMPARE(everythingIn(m_out->path()), QStringList());
    QCOMPARE(everythingIn(m_in->path()), QStringList(QStringLiteral("die.obj")));
    QCOMPARE(contentOf(file), content);

    m_log.listener = nullptr;
    QCOMPARE(convert(file), 0);
    QCOMPARE(everythingIn(m_out->path()), QStringList(QStringLiteral("die.stl")));
}

void MeshConversionTest::conversionThatGoesMeanwhileWritesNothing_data()
{
    cancelledConversionLeavesNothingBehind_data();
}

void MeshConversionTest::conversionThatGoesMeanwhileWritesNothing()
{
    QFETCH(QString, step);
    const QString file = write(QStringLiteral("die.obj"), Testing::obj(Testing::cube()));
    BusyThreads threads;
    auto conversion = std::make_unique<MeshConversion>();
    auto log = std::make_unique<MessageList>();
    log->listener = [&](const QString& message) {
        if (!message.startsWith(step))
            return;
        threads.begin();
        QTimer::singleShot(0, this, [&] {
            conversion.reset();
            log.reset();
            threads.finish();
        });
    };
    QCOMPARE(conversion->convert(FileName(file), FileName(m_out->path()), *log),
             int(MeshConversion::Cancelled));
    QVERIFY(!conversion);
    QCOMPARE(everythingIn(m_out->path()), QStringList());
}

void MeshConversionTest::choosersAreSetUp()
{
    MeshConversion conversion;
    QString caption;
    QString filter;
    QString key;
    conversion.getInputFileDialogSettings(caption, filter, key);
    QVERIFY(!caption.isEmpty());
    QCOMPARE(filter, QStringLiteral("Meshes (*.stl *.obj *.ply)"));
    QCOMPARE(key, QStringLiteral("ConvertInput"));
    conversion.getOutputDirectoryDialogSettings(caption, key);
    QCOMPARE(key, QStringLiteral("ConvertOutput"));
}

ZORVANE_TEST(MeshConversionTest)
#include "MeshConversionTest.moc"
