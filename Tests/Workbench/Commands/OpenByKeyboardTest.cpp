#include "FileDialogs/FileDialogDriver.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Commands/Keyboard.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Preview/PreviewWindow.h"
#include "Workbench/Window/MainWindow.h"

#include <QtCore/QLocale>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QTreeView>

#include <functional>
#include <memory>

namespace Zorvane::Workbench {

using Kind = PreviewContent::Kind;
using Testing::activate;
using Testing::ExpectedModals;
using Testing::isFocused;
using Testing::press;
using Testing::type;

namespace {

PreviewWindow* previewWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* preview = qobject_cast<PreviewWindow*>(widget))
            return preview;
    return nullptr;
}

/** In the order shown. */
QStringList namesIn(const QFileDialog& dialog)
{
    const auto* list = dialog.findChild<QAbstractItemView*>(QStringLiteral("treeView"));
    QStringList names;
    for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
        names << list->model()->index(row, 0, list->rootIndex()).data().toString();
    return names;
}

} // namespace

/**
 * Opens files in Qt's dialog as somebody does who has a keyboard only. The test is its own reader
 * of files.
 */
class OpenByKeyboardTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void opensAMeshSeenBefore();
    void walksThroughTheList();
    void enteringAFolderClearsThePreview();
    void previewIsSwitchedOffAndOn();
    void escapeOpensNothing();
    void everyControlIsReachedByTab();
    void previewNeverTakesTheFocus();
    void importing_leavesTheFocusInTheTree();

private:
    void openDialog();
    /** Runs the dialog of File > Open with `use`, which has to close it. */
    void withDialog(const std::function<void(QFileDialog&)>& use);
    QString file(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    const NativeFileDialogReplacement m_qtDialogs{[] { return nullptr; }};
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void OpenByKeyboardTest::initTestCase()
{
    TestCase::initTestCase();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void OpenByKeyboardTest::init()
{
    QLocale::setDefault(QLocale::c());
    QSettings().clear();
    m_folder = std::make_unique<QTemporaryDir>();
    Testing::writeFile(file("a-mesh.stl"), Testing::binaryStl(Testing::cube()));
    Testing::writeFile(file("b-table.csv"), "stroke;force\n0;0\n");
    Testing::writeFile(file("c-text.txt"), "one\ntwo\n");
    Testing::writeFile(file("d-broken.stl"), "solid");
    QSettings().setValue(QStringLiteral("LastFile/Design"), file("a-mesh.stl"));
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get(), Zorvane::Testing::patience));
}

void OpenByKeyboardTest::cleanup()
{
    m_window.reset();
    m_folder.reset();
    TestCase::cleanup();
}

/** Alt and the letters of the menu's texts: File > Open Files. */
void OpenByKeyboardTest::openDialog()
{
    activate(*m_window);
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_O);
}

void OpenByKeyboardTest::withDialog(const std::function<void(QFileDialog&)>& use)
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Open Files"), [&use](QFileDialog& dialog) {
        activate(dialog);
        use(dialog);
    });
    openDialog();
    QVERIFY2(modals.allMet(), qPrintable(modals.failures().join(QLatin1Char('\n'))));
    QVERIFY(!previewWindow() || previewWindow()->isHidden());
}

void OpenByKeyboardTest::opensAMeshSeenBefore()
{
    withDialog([](QFileDialog& dialog) {
        QVERIFY(isFocused("fileNameEdit"));
        QVERIFY(previewWindow() && previewWindow()->isVisible());
        type(dialog, QStringLiteral("a-mesh.stl"));
        QTRY_COMPARE(previewWindow()->pane().shownKind(), Kind::Picture);
        QCOMPARE(previewWindow()->pane().title(), QStringLiteral("a-mesh.stl"));
        press(dialog, Qt::Key_Return);
    });
    QCOMPARE(int(m_window->session().looseParts().size()), 1);
    QCOMPARE(m_window->session().looseParts().front().name, QStringLiteral("a-mesh.stl"));
}

void OpenByKeyboardTest::walksThroughTheList()
{
    withDialog([](QFileDialog& dialog) {
        const PreviewPane& pane = previewWindow()->pane();
        // All files: the last of the types.
        press(dialog, Qt::Key_Tab);
        QVERIFY(isFocused("fileTypeCombo"));
        press(dialog, Qt::Key_End);
        for (int tab = 0; tab < 20 && !isFocused("treeView"); ++tab)
            press(dialog, Qt::Key_Backtab, Qt::ShiftModifier);
        // Read and sorted in the background.
        QTRY_COMPARE(namesIn(dialog),
                     (QStringList{QStringLiteral("a-mesh.stl"), QStringLiteral("b-table.csv"),
                                  QStringLiteral("c-text.txt"), QStringLiteral("d-broken.stl")}));
        const auto selectLast = [&dialog] {
            const auto* list = dialog.findChild<QAbstractItemView*>(QStringLiteral("treeView"));
            // Files that come in late take the selection away.
            if (!list->selectionModel()->hasSelection()) {
                press(dialog, Qt::Key_Home);
                press(dialog, Qt::Key_End);
            }
            return list->selectionModel()->hasSelection();
        };
        QTRY_VERIFY(selectLast() && pane.title() == QLatin1String("d-broken.stl"));
        QVERIFY(pane.message().startsWith(QStringLiteral("d-broken.stl cannot be shown:\n")));
        press(dialog, Qt::Key_Up);
        QTRY_COMPARE(pane.title(), QStringLiteral("c-text.txt"));
        QCOMPARE(pane.shownKind(), Kind::Text);
        press(dialog, Qt::Key_Up);
        QTRY_COMPARE(pane.title(), QStringLiteral("b-table.csv"));
        QCOMPARE(pane.shownKind(), Kind::Table);
        press(dialog, Qt::Key_Up);
        QTRY_COMPARE(pane.shownKind(), Kind::Picture);
        press(dialog, Qt::Key_Return);
    });
    QCOMPARE(int(m_window->session().looseParts().size()), 1);
}

void OpenByKeyboardTest::enteringAFolderClearsThePreview()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("sub")));
    withDialog([](QFileDialog& dialog) {
        const PreviewPane& pane = previewWindow()->pane();
        type(dialog, QStringLiteral("sub"));
        QTRY_COMPARE(pane.message(), QStringLiteral("sub cannot be shown:\nis a folder"));
        press(dialog, Qt::Key_Return);
        QCOMPARE(dialog.directory().dirName(), QStringLiteral("sub"));
        QTRY_COMPARE(pane.message(), QStringLiteral("Select a file to see it here."));
        QVERIFY(!previewWindow()->isReading());
        press(dialog, Qt::Key_Escape);
    });
}

void OpenByKeyboardTest::previewIsSwitchedOffAndOn()
{
    withDialog([](QFileDialog& dialog) {
        type(dialog, QStringLiteral("a-mesh.stl"));
        QTRY_COMPARE(previewWindow()->pane().shownKind(), Kind::Picture);
        auto* box = dialog.findChild<QCheckBox*>();
        for (int tab = 0; tab < 30 && !box->hasFocus(); ++tab)
            press(dialog, Qt::Key_Tab);
        press(dialog, Qt::Key_Space);
        QVERIFY(!box->isChecked());
        QVERIFY(previewWindow()->isHidden());
        press(dialog, Qt::Key_Space);
        QVERIFY(previewWindow()->isVisible());
        QTRY_COMPARE(previewWindow()->pane().shownKind(), Kind::Picture);
        press(dialog, Qt::Key_Space);
        press(dialog, Qt::Key_Escape);
    });
    // As it was left.
    withDialog([](QFileDialog& dialog) {
        QVERIFY(!dialog.findChild<QCheckBox*>()->isChecked());
        QVERIFY(!previewWindow() || previewWindow()->isHidden());
        press(dialog, Qt::Key_Escape);
    });
}

void OpenByKeyboardTest::escapeOpensNothing()
{
    withDialog([](QFileDialog& dialog) {
        type(dialog, QStringLiteral("a-mesh.stl"));
        press(dialog, Qt::Key_Escape);
    });
    QVERIFY(m_window->session().looseParts().empty());
    QVERIFY(m_window->isEnabled());
    QVERIFY(!previewWindow());
}

void OpenByKeyboardTest::everyControlIsReachedByTab()
{
    withDialog([](QFileDialog& dialog) {
        type(dialog, QStringLiteral("a-mesh.stl"));
        QSet<QString> reached;
        for (int tab = 0; tab < 40; ++tab) {
            press(dialog, Qt::Key_Tab);
            QVERIFY(dialog.isAncestorOf(QApplication::focusWidget()));
            reached << QApplication::focusWidget()->objectName();
            if (qobject_cast<QCheckBox*>(QApplication::focusWidget()))
                reached << QStringLiteral("preview");
        }
        for (const char* name : {"fileNameEdit", "fileTypeCombo", "treeView", "preview"})
            QVERIFY2(reached.contains(QString::fromLatin1(name)), name);
        press(dialog, Qt::Key_Escape);
    });
}

void OpenByKeyboardTest::previewNeverTakesTheFocus()
{
    withDialog([](QFileDialog& dialog) {
        type(dialog, QStringLiteral("c-text.txt"));
        QTRY_VERIFY(!previewWindow()->isReading());
        QVERIFY(QApplication::activeWindow() != previewWindow());
        QVERIFY(previewWindow()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
        // Beside the dialog, not over it.
        QTRY_VERIFY(!previewWindow()->frameGeometry().intersects(dialog.frameGeometry()));
        press(dialog, Qt::Key_Escape);
    });
}

void OpenByKeyboardTest::importing_leavesTheFocusInTheTree()
{
    const Testing::OpenedDesign design;
    Testing::writeFile(design.path(QStringLiteral("draw.csv")), "stroke\n");
    m_window->open({design.designFile()});
    m_window->treeView().setFocus();
    const std::size_t files = m_window->session().designs().front().files.size();
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Import Files"), [](QFileDialog& dialog) {
        activate(dialog);
        type(dialog, QStringLiteral("draw.csv"));
        press(dialog, Qt::Key_Return);
    });
    press(*m_window, Qt::Key_I, Qt::ControlModifier);
    QVERIFY2(modals.allMet(), qPrintable(modals.failures().join(QLatin1Char('\n'))));
    QCOMPARE(m_window->session().designs().front().files.size(), files + 1);
    activate(*m_window);
    QCOMPARE(QApplication::focusWidget(), &m_window->treeView());
    press(*m_window, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_window->session().designs().front().files.size(), files);
    // It looks at files of the design, whose folder Windows could not remove.
    m_window.reset();
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::OpenByKeyboardTest;
ZORVANE_TEST(OpenByKeyboardTest)
#include "OpenByKeyboardTest.moc"
