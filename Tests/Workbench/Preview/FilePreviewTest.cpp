#include "Workbench/Preview/FilePreview.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Workbench {

using Kind = PreviewContent::Kind;

class FilePreviewTest : public Testing::TestCase
{
    Q_OBJECT

private:
    QString make(const QString& name, const QByteArray& content) const
    {
        return Testing::writeFile(m_folder.filePath(name), content);
    }
    static PreviewContent read(const QString& path) { return FilePreview::read(path, {}); }

    const QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase();
    void meshesAreDrawn_data();
    void meshesAreDrawn();
    void picturesHaveTheSizeAskedFor_data();
    void picturesHaveTheSizeAskedFor();
    void darkPicturesAreDark();
    void tablesAreTakenApart();
    void longTablesAreToldSo();
    void textsAreShown_data();
    void textsAreShown();
    void onlyTheHeadOfHugeFilesIsRead_data();
    void onlyTheHeadOfHugeFilesIsRead();
    void whatIsNotShownSaysWhy_data();
    void whatIsNotShownSaysWhy();
    void brokenMeshesSayWhere();
};

void FilePreviewTest::initTestCase()
{
    TestCase::initTestCase();
    QLocale::setDefault(QLocale::c());
}

void FilePreviewTest::meshesAreDrawn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const TriangleMesh cube = Testing::cube();
    QTest::newRow("STL") << "a.stl" << Testing::asciiStl(cube);
    QTest::newRow("binary STL") << "b.STL" << Testing::binaryStl(cube);
    QTest::newRow("OBJ") << "c.obj" << Testing::obj(cube);
    QTest::newRow("PLY") << "d.ply" << Testing::asciiPly(cube);
}

void FilePreviewTest::meshesAreDrawn()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const PreviewContent preview = read(make(name, content));
    QCOMPARE(preview.kind, Kind::Picture);
    QCOMPARE(preview.note, QString::fromUtf8(u8"12 triangles \u00b7 10 \u00d7 10 \u00d7 10 mm"));
    // The cube in the middle, nothing in the corners.
    const QImage& picture = preview.picture;
    QVERIFY(picture.pixel(picture.rect().center()) != picture.pixel(0, picture.height() / 2));
}

void FilePreviewTest::picturesHaveTheSizeAskedFor_data()
{
    QTest::addColumn<QSize>("asked");
    QTest::addColumn<QSize>("got");
    QTest::newRow("usual") << QSize(321, 123) << QSize(321, 123);
    QTest::newRow("tiny") << QSize(1, 0) << QSize(16, 16);
    QTest::newRow("huge") << QSize(100'000, 3000) << QSize(2048, 2048);
    QTest::newRow("invalid") << QSize() << QSize(16, 16);
}

void FilePreviewTest::picturesHaveTheSizeAskedFor()
{
    QFETCH(QSize, asked);
    QFETCH(QSize, got);
    const QString mesh = make(QStringLiteral("a.stl"), Testing::asciiStl(Testing::cube()));
    QCOMPARE(FilePreview::read(mesh, {asked, false}).picture.size(), got);
}

void FilePreviewTest::darkPicturesAreDark()
{
    const QString mesh = make(QStringLiteral("a.stl"), Testing::asciiStl(Testing::cube()));
    const auto lightness = [&](bool dark) {
        return QColor(FilePreview::read(mesh, {{64, 64}, dark}).picture.pixel(0, 0)).lightness();
    };
    QVERIFY(lightness(true) < 128);
    QVERIFY(lightness(false) > 128);
}

void FilePreviewTest::tablesAreTakenApart()
{
    const PreviewContent preview =
        read(make(QStringLiteral("forces.CSV"), "stroke;force\n0;0\n10;184\n"));
    QCOMPARE(preview.kind, Kind::Table);
    QCOMPARE(int(preview.rows.size()), 3);
    QCOMPARE(preview.rows[2], (QStringList{QStringLiteral("10"), QStringLiteral("184")}));
    QCOMPARE(preview.note, QString::fromUtf8(u8"2 rows \u00b7 2 columns"));
    QCOMPARE(read(make(QStringLiteral("one.csv"), "a\n1\n")).note,
             QString::fromUtf8(u8"1 row \u00b7 1 column"));
}

void FilePreviewTest::longTablesAreToldSo()
{
    const QByteArray row = QByteArray(40, ',') + '\n';
    const PreviewContent preview = read(make(QStringLiteral("long.csv"), row.repeated(100'000)));
    QCOMPARE(preview.kind, Kind::Table);
    QCOMPARE(preview.note, QString::fromUtf8(u8"first 199 rows \u00b7 first 30 columns"));
    // Few rows, so long that only the first is within what is read.
    const QByteArray longRow = QByteArray(100'000, 'x') + '\n';
    const PreviewContent cut = read(make(QStringLiteral("cut.csv"), longRow.repeated(4)));
    QCOMPARE(int(cut.rows.size()), 2);
    QCOMPARE(cut.note, QString::fromUtf8(u8"first 1 rows \u00b7 1 column"));
}

void FilePreviewTest::textsAreShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("note");
    const QByteArray many = QByteArray("x\n").repeated(FilePreview::mostLines);
    const QString shownOfMany = QString::fromLatin1(many.chopped(1));
    const auto row = [](const char* name, const char* file, const QByteArray& content,
                        const QString& text, const char* note) {
        QTest::newRow(name) << QString::fromLatin1(file) << content << text
                            << QString::fromUtf8(note);
    };
    row("a line", "a.txt", "one", QStringLiteral("one"), u8"1 line \u00b7 3 bytes");
    row("a design", "a.dsg", "{\n}\n", QStringLiteral("{\n}"), u8"2 lines \u00b7 4 bytes");
    row("no ending", "README", "a\r\nb\r\n", QStringLiteral("a\nb"), u8"2 lines \u00b7 6 bytes");
    row("as many lines as fit", "b.log", many, shownOfMany, u8"500 lines \u00b7 1000 bytes");
    row("more", "c.log", many + "y", shownOfMany, u8"first 500 lines \u00b7 1001 bytes");
}

void FilePreviewTest::textsAreShown()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const PreviewContent preview = read(make(name, content));
    QCOMPARE(preview.kind, Kind::Text);
    QTEST(preview.text, "text");
    QTEST(preview.note, "note");
}

void FilePreviewTest::onlyTheHeadOfHugeFilesIsRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Kind>("kind");
    QTest::newRow("text") << "huge.txt" << Kind::Text;
    QTest::newRow("table") << "huge.csv" << Kind::Table;
    QTest::newRow("mesh") << "huge.stl" << Kind::Message;
}

void FilePreviewTest::onlyTheHeadOfHugeFilesIsRead()
{
    QFETCH(QString, name);
    QFETCH(Kind, kind);
    const QByteArray head = QByteArray("some;words\n").repeated(100'000);
    const QString path = make(name, head);
    // Mostly a hole, which takes no room on the disk; its zeros are no text.
    QVERIFY(QFile::resize(path, 2 * MeshReader::largestFile));
    const PreviewContent preview = read(path);
    QCOMPARE(preview.kind, kind);
    QVERIFY(preview.text.size() <= FilePreview::longestHead);
    if (kind == Kind::Message)
        QVERIFY2(preview.note.startsWith(QStringLiteral("is too large")), qPrintable(preview.note));
}

void FilePreviewTest::whatIsNotShownSaysWhy_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("note");
    QTest::newRow("gone") << m_folder.filePath(QStringLiteral("gone.txt")) << "doesn't exist";
    QTest::newRow("no path") << QString() << "doesn't exist";
    QTest::newRow("folder") << m_folder.path() << "is a folder";
    QTest::newRow("empty text") << make(QStringLiteral("e.txt"), {}) << "is empty";
    QTest::newRow("empty table") << make(QStringLiteral("e.csv"), "\n\n") << "is empty";
    QTest::newRow("empty mesh") << make(QStringLiteral("e.stl"), {}) << "is empty";
    QTest::newRow("neither") << make(QStringLiteral("e.bin"), QByteArray(2048, '\0'))
                             << "is neither a mesh, a table nor a text, and 2.00 KiB in size";
}

void FilePreviewTest::whatIsNotShownSaysWhy()
{
    QFETCH(QString, path);
    const PreviewContent preview = read(path);
    QCOMPARE(preview.kind, Kind::Message);
    QTEST(preview.note, "note");
}

void FilePreviewTest::brokenMeshesSayWhere()
{
    const QString path = make(QStringLiteral("broken.obj"), "v 0 0 0\nv 1 0 0\nf 1 2 3\n");
    const PreviewContent preview = read(path);
    QCOMPARE(preview.kind, Kind::Message);
    const Problem problem = MeshReader::read(path).problem;
    QCOMPARE(preview.note, problem.where + QStringLiteral(": ") + problem.reason);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::FilePreviewTest;

ZORVANE_TEST(FilePreviewTest)
#include "FilePreviewTest.moc"
