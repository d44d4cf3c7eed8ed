#include "Workbench/Preview/PreviewWindow.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Tests/Workbench/Meshes/MeshFiles.h"
#include "Workbench/Preview/FilePreviewEditor.h"

#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTableWidget>

namespace Zorvane::Workbench {

using Kind = PreviewContent::Kind;

/** The test is its own reader of files. */
class PreviewWindowTest : public Testing::TestCase
{
    Q_OBJECT

private:
    QString make(const char* name, const QByteArray& content) const
    {
        return Testing::writeFile(m_folder.filePath(QString::fromLatin1(name)), content);
    }
    static QString prompt() { return QStringLiteral("Select a file to see it here."); }

    const QTemporaryDir m_folder;

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }
    void showsMeshes();
    void showsTables();
    void showsTexts();
    void tellsWhatCannotBeShown();
    void emptyPathClears();
    void lastOfManyIsShown();
    void followsThePalette();
    void namesAreNoMarkup();
    void picturesAreNeverEnlarged();

    void editorMakesItsWindowWhenInitialized();
    void editorStaysInFrontOfTheWindowBeside();
    void editorShowsTheFileThatWasSelectedBefore();
    void editorReadsNothingWhileHidden();
    void editorMovesItsWindow();
};

void PreviewWindowTest::showsMeshes()
{
    PreviewWindow window;
    window.show();
    window.showFile(make("cube.stl", Testing::binaryStl(Testing::cube())));
    QTRY_COMPARE(window.pane().shownKind(), Kind::Picture);
    QCOMPARE(window.pane().title(), QStringLiteral("cube.stl"));
    QVERIFY(window.pane().note().startsWith(QStringLiteral("12 triangles")));
    // Drawn for the room that there is.
    const auto* view = window.findChild<PictureView*>();
    const QSize room = (QSizeF(view->size()) * view->devicePixelRatioF()).toSize();
    QCOMPARE(view->picture().size(), room);
    QVERIFY(!view->accessibleDescription().isEmpty());
}

void PreviewWindowTest::showsTables()
{
    PreviewWindow window;
    window.show();
    window.showFile(make("t.csv", "name;stroke;note\na;1,5\nb;-2;x\n"));
    QTRY_COMPARE(window.pane().shownKind(), Kind::Table);
    const auto* table = window.findChild<QTableWidget*>();
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->columnCount(), 3);
    QCOMPARE(table->horizontalHeaderItem(1)->text(), QStringLiteral("stroke"));
    QCOMPARE(table->item(1, 0)->text(), QStringLiteral("b"));
    QVERIFY(table->item(0, 1)->textAlignment() & Qt::AlignRight);
    QVERIFY(!(table->item(0, 0)->textAlignment() & Qt::AlignRight));
    QVERIFY(!table->item(0, 2));
    // The next table has nothing of this one.
    window.showFile(make("u.csv", "only\n"));
    QTRY_COMPARE(window.pane().title(), QStringLiteral("u.csv"));
    QCOMPARE(table->columnCount(), 1);
    QCOMPARE(table->rowCount(), 0);
}

void PreviewWindowTest::showsTexts()
{
    PreviewWindow window;
    window.show();
    window.showFile(make("t.txt", "one\ntwo\n"));
    QTRY_COMPARE(window.pane().shownKind(), Kind::Text);
    const auto* text = window.findChild<QPlainTextEdit*>();
    QCOMPARE(text->toPlainText(), QStringLiteral("one\ntwo"));
    QVERIFY(text->isReadOnly());
    QVERIFY(window.pane().note().startsWith(QStringLiteral("2 lines")));
}

void PreviewWindowTest::tellsWhatCannotBeShown()
{
    PreviewWindow window;
    window.show();
    window.showFile(m_folder.filePath(QStringLiteral("gone.txt")));
    QTRY_COMPARE(window.pane().message(),
                 QStringLiteral("gone.txt cannot be shown:\ndoesn't exist"));
    QVERIFY(window.pane().note().isEmpty());
}

void PreviewWindowTest::emptyPathClears()
{
    PreviewWindow window;
    window.show();
    QCOMPARE(window.pane().message(), prompt());
    window.showFile(make("t.txt", "one"));
    QTRY_COMPARE(window.pane().shownKind(), Kind::Text);
    window.showFile({});
    QCOMPARE(window.pane().message(), prompt());
    QVERIFY(!window.isReading());
    // Also what is still being read.
    window.showFile(make("t.txt", "one"));
    window.showFile({});
    QVERIFY(!window.isReading());
    QCOMPARE(window.pane().message(), prompt());
}

void PreviewWindowTest::lastOfManyIsShown()
{
    PreviewWindow window;
    window.show();
    for (const char* name : {"1.txt", "2.txt", "3.txt", "4.txt"})
        window.showFile(make(name, name));
    QTRY_COMPARE(window.pane().title(), QStringLiteral("4.txt"));
    QVERIFY(!window.isReading());
}

void PreviewWindowTest::followsThePalette()
{
    PreviewWindow window;
    window.show();
    window.showFile(make("cube.stl", Testing::binaryStl(Testing::cube())));
    QTRY_COMPARE(window.pane().shownKind(), Kind::Picture);
    const auto* view = window.findChild<PictureView*>();
    QVERIFY(QColor(view->picture().pixel(0, 0)).lightness() > 128);
    QPalette dark = window.palette();
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    window.setPalette(dark);
    QTRY_VERIFY(QColor(view->picture().pixel(0, 0)).lightness() < 128);
}

void PreviewWindowTest::namesAreNoMarkup()
{
    PreviewWindow window;
    window.show();
    window.showFile(m_folder.filePath(QStringLiteral("<b>x<")));
    QTRY_COMPARE(window.pane().title(), QStringLiteral("<b>x<"));
    for (const QLabel* label : window.findChildren<QLabel*>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

void PreviewWindowTest::picturesAreNeverEnlarged()
{
    PictureView view;
    view.resize(100, 100);
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    view.setPicture(picture);
    const QImage shown = view.grab().toImage();
    QCOMPARE(shown.pixelColor(50, 50), QColor(Qt::red));
    QCOMPARE(shown.pixelColor(41, 46), QColor(Qt::red));
    QVERIFY(shown.pixelColor(38, 50) != QColor(Qt::red));
    QVERIFY(shown.pixelColor(50, 57) != QColor(Qt::red));
    QImage large(1000, 200, QImage::Format_RGB32);
    large.fill(Qt::red);
    view.setPicture(large);
    const QImage shrunk = view.grab().toImage();
    QCOMPARE(shrunk.pixelColor(2, 50), QColor(Qt::red));
    QVERIFY(shrunk.pixelColor(50, 35) != QColor(Qt::red));
}

void PreviewWindowTest::editorMakesItsWindowWhenInitialized()
{
    FilePreviewEditor editor(nullptr);
    QVERIFY(!editor.isInitialized());
    QVERIFY(!editor.getGeometry().isValid());
    editor.setVisible(true);
    editor.moveTo({1, 2});
    QVERIFY(!editor.isInitialized());
    QCOMPARE(editor.getScreenNumber(), 0);
    for (const int screen : {-1, 0, 99}) {
        editor.initialize(screen);
        QVERIFY(editor.isInitialized());
        QVERIFY(editor.window()->isHidden());
        QCOMPARE(editor.getScreenNumber(), 0);
        QVERIFY(editor.getGeometry().isValid());
    }
}

void PreviewWindowTest::editorStaysInFrontOfTheWindowBeside()
{
    QWidget window;
    auto* const beside = new QWidget(&window);
    window.show();
    FilePreviewEditor editor(beside);
    editor.initialize(-1);
    editor.setVisible(true);
    QCOMPARE(editor.window()->windowHandle()->transientParent(), window.windowHandle());
    QVERIFY(editor.window()->isWindow());
    QVERIFY(!editor.window()->parent());
}

void PreviewWindowTest::editorShowsTheFileThatWasSelectedBefore()
{
    FilePreviewEditor editor(nullptr);
    editor.showFile(make("t.txt", "one").toStdString());
    editor.initialize(-1);
    editor.setVisible(true);
    QTRY_COMPARE(editor.window()->pane().title(), QStringLiteral("t.txt"));
}

void PreviewWindowTest::editorReadsNothingWhileHidden()
{
    FilePreviewEditor editor(nullptr);
    editor.initialize(-1);
    editor.showFile(make("t.txt", "one").toStdString());
    QVERIFY(!editor.window()->isReading());
    editor.setVisible(true);
    QVERIFY(editor.window()->isReading());
    editor.setVisible(false);
    QVERIFY(!editor.window()->isReading());
}

void PreviewWindowTest::editorMovesItsWindow()
{
    FilePreviewEditor editor(nullptr);
    editor.initialize(-1);
    editor.setVisible(true);
    editor.moveTo({70, 90});
    QTRY_COMPARE(editor.getGeometry().topLeft(), QPoint(70, 90));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::PreviewWindowTest;
ZORVANE_TEST(PreviewWindowTest)
#include "PreviewWindowTest.moc"
