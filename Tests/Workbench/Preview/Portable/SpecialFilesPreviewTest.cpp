#include "Tests/Support/TestCase.h"
#include "Workbench/Preview/FilePreview.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <sys/stat.h>

namespace Zorvane::Workbench {

/** What looks like a file by its name, and would never end if it were read. */
class SpecialFilesPreviewTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void areNotRead_data();
    void areNotRead();
};

void SpecialFilesPreviewTest::areNotRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("note");
    static const QTemporaryDir folder;
    const auto pipe = [](const char* name) {
        const QString path = folder.filePath(QString::fromLatin1(name));
        return mkfifo(QFile::encodeName(path).constData(), 0600) == 0 ? path : QString();
    };
    const QString none = QStringLiteral("is no file");
    QTest::newRow("pipe") << pipe("pipe.txt") << none;
    QTest::newRow("pipe like a mesh") << pipe("pipe.stl") << none;
    QTest::newRow("pipe like a table") << pipe("pipe.csv") << none;
    QTest::newRow("device without end") << QStringLiteral("/dev/zero") << none;
    const QString link = folder.filePath(QStringLiteral("link.txt"));
    QFile::link(QStringLiteral("/dev/zero"), link);
    QTest::newRow("link to one") << link << none;
    const QString loop = folder.filePath(QStringLiteral("loop.txt"));
    QFile::link(loop, loop);
    QTest::newRow("link to itself") << loop << QStringLiteral("doesn't exist");
}

void SpecialFilesPreviewTest::areNotRead()
{
    QFETCH(QString, path);
    const PreviewContent preview = FilePreview::read(path, {});
    QCOMPARE(preview.kind, PreviewContent::Kind::Message);
    QTEST(preview.note, "note");
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::SpecialFilesPreviewTest;

ZORVANE_TEST(SpecialFilesPreviewTest)
#include "SpecialFilesPreviewTest.moc"
