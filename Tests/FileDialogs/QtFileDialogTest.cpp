#include "FileDialogs/QtFileDialog.h"

#include "Tests/FileDialogs/ConfiguredDialogTestCase.h"
#include "Tests/Support/PlatformFacts.h"

#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeView>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

const QString s_placeName = QStringLiteral("parts of the door");

const QListView& sideBarOf(const QFileDialog& dialog)
{
    return *dialog.findChild<QListView*>(QStringLiteral("sidebar"));
}

QSplitter& splitterOf(const QFileDialog& dialog)
{
    return *dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
}

bool areNamesWhole(const QFileDialog& dialog)
{
    return sideBarOf(dialog).viewport()->width() >= sideBarOf(dialog).sizeHintForColumn(0);
}

/** But for the handle between the two and what is lost by rounding. */
bool isAThird(const QFileDialog& dialog)
{
    const int width = sideBarOf(dialog).width();
    const int whole = splitterOf(dialog).width();
    return 3 * width <= whole && 3 * width >= whole - splitterOf(dialog).handleWidth() - 6;
}

/** What Qt keeps of one dialog for the next, and nothing else of its settings. */
void forgetWhatQtKeeps()
{
    QSettings(QSettings::UserScope, QStringLiteral("QtProject"))
        .remove(QStringLiteral("FileDialog"));
}

using Ask = std::function<QString(PathProvider*)>;

void addPurposes()
{
    QTest::addColumn<Ask>("ask");
    QTest::newRow("open") << Ask([](PathProvider* provider) {
        return FileDialog::getOpenFileName(meshCaption, meshFilter, provider, meshScope);
    });
    QTest::newRow("open several") << Ask([](PathProvider* provider) {
        return FileDialog::getOpenFileNames(meshCaption, meshFilter, provider, meshScope).value(0);
    });
    QTest::newRow("save") << Ask([](PathProvider* provider) {
        return FileDialog::getSaveFileName(meshCaption, meshFilter, provider, meshScope, QString());
    });
    QTest::newRow("save in a folder") << Ask([](PathProvider* provider) {
        return FileDialog::getSaveFileNameInDir(meshCaption, meshFilter,
                                                provider->getPathFromScope({}), provider, meshScope,
                                                QString(), QString());
    });
    QTest::newRow("folder") << Ask([](PathProvider* provider) {
        return FileDialog::getExistingDirectoryName(meshCaption, provider, meshScope);
    });
}

} // namespace

Q_DECLARE_METATYPE(Ask)

/** Qt's dialog without a configuration: the same for every purpose. */
class QtFileDialogTest : public ConfiguredDialogTestCase
{
    Q_OBJECT

private:
    /** Shows the dialog of the data row; the answer must close it. */
    QString ask(const std::function<void(QFileDialog&)>& answer);
    QString askToOpen(const QString& filter, const std::function<void(QFileDialog&)>& answer);
    QString askToSave(const QString& typed);
    static void storeGeometry(const QRect& rect)
    {
        FileDialogConfiguration().storeFileDialogGeometry(rect);
    }

private Q_SLOTS:
    void init();
    void cleanup();

    void wideDialog_showsNamesOfPlacesWhole_data() { addPurposes(); }
    void wideDialog_showsNamesOfPlacesWhole();
    void narrowDialog_givesPlacesAThird_data() { addPurposes(); }
    void narrowDialog_givesPlacesAThird();
    void wideSideBar_staysWide();
    void firstOpening_showsColumnsWhole_data() { addPurposes(); }
    void firstOpening_showsColumnsWhole();
    void narrowDialog_showsNamesWhole();
    void placesOfTheProvider_areOfferedOnce_data() { addPurposes(); }
    void placesOfTheProvider_areOfferedOnce();
    void leftDialog_opensThereAgain_data() { addPurposes(); }
    void leftDialog_opensThereAgain();
    void maximizedDialog_opensMaximized_data() { addPurposes(); }
    void maximizedDialog_opensMaximized();
    void mainWindow_ownsTheDialog_data() { addPurposes(); }
    void mainWindow_ownsTheDialog();
    void destroyedMainWindow_cancels_data() { addPurposes(); }
    void destroyedMainWindow_cancels();

    void allFilesWithADot_showFilesWithoutOne();
    void presetNameWithDoubleQuotes_isOpened();
    void typedNameWithDoubleQuotes_isOpened();
    void nameSetWithoutFocus_isOpenedInsteadOfThePreset();
    void newNameWithDoubleQuotes_isSaved();
    void existingNameWithDoubleQuotes_isAskedAbout();
    void nameInDoubleQuotes_isSavedWithoutThem();
    void saveDialog_hasControlsAndKeepsItsGeometry();
};

void QtFileDialogTest::init()
{
    ConfiguredDialogTestCase::init();
    forgetWhatQtKeeps();
    QList<QUrl> urls;
    for (const QString& name : {QStringLiteral("a"), s_placeName}) {
        QVERIFY(QDir(m_dir->path()).mkpath(name));
        urls << QUrl::fromLocalFile(m_dir->filePath(name));
    }
    // What one offers is offered by all that come later.
    QFileDialog().setSidebarUrls(urls);
}

void QtFileDialogTest::cleanup()
{
    forgetWhatQtKeeps();
    TestCase::cleanup();
}

QString QtFileDialogTest::ask(const std::function<void(QFileDialog&)>& answer)
{
    QFETCH(Ask, ask);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, answer);
    return ask(&m_provider);
}

QString QtFileDialogTest::askToOpen(const QString& filter,
                                    const std::function<void(QFileDialog&)>& answer)
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, answer);
    return FileDialog::getOpenFileName(meshCaption, filter, &m_provider, meshScope);
}

QString QtFileDialogTest::askToSave(const QString& typed)
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, [&typed](QFileDialog& dialog) {
        nameEdit(dialog)->setText(typed);
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    return FileDialog::getSaveFileName(meshCaption, meshFilter, &m_provider, meshScope, QString());
}

void QtFileDialogTest::wideDialog_showsNamesOfPlacesWhole()
{
    storeGeometry(QRect(0, 0, 780, 500));
    ask([](QFileDialog& dialog) {
        QVERIFY(areNamesWhole(dialog));
        dialog.reject();
    });
}

void QtFileDialogTest::narrowDialog_givesPlacesAThird()
{
    const QString name(60, QLatin1Char('n'));
    QVERIFY(QDir(m_dir->path()).mkpath(name));
    QFileDialog().setSidebarUrls({QUrl::fromLocalFile(m_dir->filePath(name))});
    storeGeometry(QRect(0, 0, 500, 500));
    ask([](QFileDialog& dialog) {
        QVERIFY(!areNamesWhole(dialog));
        QVERIFY(isAThird(dialog));
        dialog.reject();
    });
}

void QtFileDialogTest::wideSideBar_staysWide()
{
    storeGeometry(QRect(0, 0, 700, 500));
    int width = 0;
    askToOpen(meshFilter, [&width](QFileDialog& dialog) {
        QSplitter& splitter = splitterOf(dialog);
        splitter.setSizes({splitter.width() / 2, splitter.width() / 2});
        width = sideBarOf(dialog).width();
        dialog.reject();
    });
    askToOpen(meshFilter, [&width](QFileDialog& dialog) {
        QCOMPARE(sideBarOf(dialog).width(), width);
        dialog.reject();
    });
}

void QtFileDialogTest::firstOpening_showsColumnsWhole()
{
    ask([](QFileDialog& dialog) {
        const auto* details = part<QTreeView>(dialog, "treeView");
        QTRY_VERIFY(details->model()->rowCount(details->rootIndex()) > 0);
        const QAbstractItemView& view = *details;
        for (int column = 1; column < details->header()->count(); ++column)
            QTRY_VERIFY(details->columnWidth(column) >= view.sizeHintForColumn(column));
        QVERIFY(details->columnWidth(0) > 0);
        dialog.reject();
    });
}

void QtFileDialogTest::narrowDialog_showsNamesWhole()
{
    askToOpen(meshFilter, [this](QFileDialog& dialog) {
        const auto* details = part<QTreeView>(dialog, "treeView");
        dialog.resize(dialog.minimumSizeHint());
        const QString name = QStringLiteral("the-blank-holder-of-the-second-draw.stl");
        QVERIFY(QFile(m_dir->filePath(name)).open(QFile::WriteOnly));
        QTRY_VERIFY(shows(dialog, name));
        const QAbstractItemView& view = *details;
        QTRY_VERIFY(details->columnWidth(0) >=
                    std::min(view.sizeHintForColumn(0), view.viewport()->width()));
        dialog.reject();
    });
}

void QtFileDialogTest::placesOfTheProvider_areOfferedOnce()
{
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("place")));
    m_provider.places = {path(QStringLiteral("place")), path(QStringLiteral("gone"))};
    const QList<QUrl> before = QFileDialog().sidebarUrls();
    const QUrl place = QUrl::fromLocalFile(m_dir->filePath(QStringLiteral("place")));
    ask([&](QFileDialog& dialog) {
        QCOMPARE(dialog.sidebarUrls(), before + QList<QUrl>{place});
        dialog.reject();
    });
    QFileDialog later;
    later.setOption(QFileDialog::DontUseNativeDialog);
    QCOMPARE(later.sidebarUrls(), before);
}

void QtFileDialogTest::leftDialog_opensThereAgain()
{
    const QRect left(33, 44, 611, 477);
    ask([&left](QFileDialog& dialog) {
        dialog.resize(left.size() - (dialog.frameGeometry().size() - dialog.size()));
        dialog.move(left.topLeft());
        QTRY_COMPARE(dialog.frameGeometry(), left);
        dialog.reject();
    });
    for (int i = 0; i < 2; ++i) {
        ask([&left](QFileDialog& dialog) {
            QTRY_COMPARE(dialog.frameGeometry(), left);
            dialog.reject();
        });
    }
}

void QtFileDialogTest::maximizedDialog_opensMaximized()
{
    ask([](QFileDialog& dialog) {
        dialog.showMaximized();
        QTRY_VERIFY(dialog.isMaximized());
        QTRY_VERIFY(
            dialog.frameGeometry().contains(QGuiApplication::primaryScreen()->availableGeometry()));
        dialog.reject();
    });
    ask([](QFileDialog& dialog) {
        QVERIFY(dialog.isMaximized());
        dialog.reject();
    });
}

void QtFileDialogTest::mainWindow_ownsTheDialog()
{
    QWidget window;
    window.show();
    const MainWindowProperty property(&window);
    ask([&window](QFileDialog& dialog) {
        QVERIFY(!dialog.parentWidget());
        QCOMPARE(dialog.windowHandle()->transientParent(), window.windowHandle());
        dialog.reject();
    });
}

void QtFileDialogTest::destroyedMainWindow_cancels()
{
    auto window = std::make_unique<QWidget>();
    window->show();
    const MainWindowProperty property(window.get());
    QCOMPARE(ask([&window](QFileDialog&) { window.reset(); }), QString());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void QtFileDialogTest::allFilesWithADot_showFilesWithoutOne()
{
    const QString filter = QStringLiteral("All Files (*.*);;Tables (*.csv)");
    QString selected;
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, [](QFileDialog& dialog) {
        QTRY_VERIFY(shows(dialog, QStringLiteral("plain")));
        nameEdit(dialog)->setText(QStringLiteral("plain"));
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    QCOMPARE(FileDialog::getOpenFileName(meshCaption, QString(), filter, &m_provider, meshScope,
                                         &selected, QFileDialog::Options(), nullptr, nullptr),
             path(QStringLiteral("plain")));
    QCOMPARE(selected, QStringLiteral("All Files (*.*)"));
}

void QtFileDialogTest::presetNameWithDoubleQuotes_isOpened()
{
    const QString name = QStringLiteral("12\" blank.stl");
    if (!mayBeFileName(name))
        QSKIP("no file can have such a name on this platform");
    QVERIFY(writeFile(path(name)));
    m_provider.path = path(name);
    QCOMPARE(askToOpen(meshFilter,
                       [&name](QFileDialog& dialog) {
                           QCOMPARE(nameEdit(dialog)->text(), name);
                           QTRY_VERIFY(openButton(dialog)->isEnabled());
                           QTest::mouseClick(openButton(dialog), Qt::LeftButton);
                       }),
             path(name));
}

void QtFileDialogTest::typedNameWithDoubleQuotes_isOpened()
{
    const QString name = QStringLiteral("12\" blank.stl");
    if (!mayBeFileName(name))
        QSKIP("no file can have such a name on this platform");
    QVERIFY(writeFile(path(name)));
    QCOMPARE(askToOpen(meshFilter,
                       [&name](QFileDialog& dialog) {
                           QTRY_VERIFY(dialog.isActiveWindow());
                           QTest::keyClicks(nameEdit(dialog), name);
                           QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
                       }),
             path(name));
}

void QtFileDialogTest::nameSetWithoutFocus_isOpenedInsteadOfThePreset()
{
    m_provider.path = path(QStringLiteral("a.stl"));
    QCOMPARE(askToOpen(meshFilter,
                       [](QFileDialog& dialog) {
                           QTRY_VERIFY(shows(dialog, QStringLiteral("b.stl")));
                           openButton(dialog)->setFocus();
                           nameEdit(dialog)->setText(QStringLiteral("b.stl"));
                           QTest::mouseClick(openButton(dialog), Qt::LeftButton);
                       }),
             path(QStringLiteral("b.stl")));
}

void QtFileDialogTest::newNameWithDoubleQuotes_isSaved()
{
    const QString name = QStringLiteral("12\" blank.stl");
    if (!mayBeFileName(name))
        QSKIP("no file can have such a name on this platform");
    QCOMPARE(askToSave(name), m_dir->filePath(name));
}

void QtFileDialogTest::existingNameWithDoubleQuotes_isAskedAbout()
{
    const QString name = QStringLiteral("12\" blank.stl");
    if (!mayBeFileName(name))
        QSKIP("no file can have such a name on this platform");
    QVERIFY(writeFile(path(name)));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, [&name](QFileDialog& dialog) {
        nameEdit(dialog)->setText(name);
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    modals.expectMessageBox(QStringLiteral("already exists"), QMessageBox::Yes);
    QCOMPARE(
        FileDialog::getSaveFileName(meshCaption, meshFilter, &m_provider, meshScope, QString()),
        m_dir->filePath(name));
}

void QtFileDialogTest::nameInDoubleQuotes_isSavedWithoutThem()
{
    QCOMPARE(askToSave(QStringLiteral("\"new.stl\"")), m_dir->filePath(QStringLiteral("new.stl")));
}

void QtFileDialogTest::saveDialog_hasControlsAndKeepsItsGeometry()
{
    m_configuration->addCustomControl(checkBox(1, "Compressed"));
    m_configuration->storeFileDialogGeometry(QRect(40, 50, 610, 500));
    FileDialogRequest request;
    request.purpose = FileDialogPurpose::SaveFile;
    request.caption = meshCaption;
    request.filter = meshFilter;
    request.start = m_dir->path();
    request.configuration = m_configuration.get();
    request.addsEnding = true;
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, [](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(40, 50, 610, 500));
        custom<QCheckBox>(dialog, "Compressed")->click();
        dialog.selectNameFilter(QStringLiteral("Tables (*.csv)"));
        nameEdit(dialog)->setText(QStringLiteral("new"));
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    const FileDialogResult result = FileDialog::ask(request);
    QVERIFY(result.outcome == FileDialogResult::Outcome::Accepted);
    QCOMPARE(result.path(), path(QStringLiteral("new.csv")));
    QCOMPARE(result.selectedFilter, QStringLiteral("Tables (*.csv)"));
    QVERIFY(result.isEndingAdded);
    QVERIFY(m_handler->events.contains(QStringLiteral("toggled 1 1")));
}

ZORVANE_TEST(QtFileDialogTest)
#include "QtFileDialogTest.moc"
