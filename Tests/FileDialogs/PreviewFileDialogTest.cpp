#include "FileDialogs/PreviewFileDialog.h"

#include "FileDialogs/FileDialog.h"
#include "FileDialogs/FileDialogDriver.h"
#include "Files/DefaultPathProvider.h"
#include "Files/FileTypeFilters.h"
#include "Files/LastPathProvider.h"
#include "Host/System/CommandLineParser.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/FileDialogs/PreviewFixtures.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>

#include <functional>

using namespace Zorvane;

namespace {

/** As long as it lives, dialogs answer as the function does that is told what they were asked. */
class AnsweredDialog
{
public:
    using Answer = std::function<FileDialogResult(const FileDialogRequest&)>;

    explicit AnsweredDialog(Answer answer)
    {
        m_script.whileOpen = [this, answer = std::move(answer)](const auto& request) {
            m_script.results.push_back(answer(request));
        };
    }

private:
    Testing::DialogScript m_script;
    const NativeFileDialogReplacement m_replacement{
        [this] { return std::make_unique<Testing::ScriptedDriver>(m_script); }};
};

} // namespace

class PreviewFileDialogTest : public Testing::TestCase
{
    Q_OBJECT

private:
    /** One dialog object with all that belongs to it. */
    struct Setup
    {
        std::shared_ptr<Testing::RecordingEditor> editor =
            std::make_shared<Testing::RecordingEditor>();
        std::shared_ptr<PreviewFileDialogConfiguration> configuration =
            std::make_shared<PreviewFileDialogConfiguration>(Testing::previewConfiguration());
        Testing::RecordingCallbacks callbacks{*editor};
        PreviewFileDialog dialog{editor, configuration, nullptr};

        FileDialogEventHandler& handler() { return *configuration->getEventHandler(); }
    };

    static QVariant storedShowPreview()
    {
        return QSettings().value(QStringLiteral("PreviewTest/ShowPreview"));
    }
    static void storeShowPreview(bool shown)
    {
        QSettings().setValue(QStringLiteral("PreviewTest/ShowPreview"), shown);
    }
    QString file() const { return QDir::toNativeSeparators(m_folder.filePath(m_fileName)); }

    const QTemporaryDir m_folder;
    const QString m_fileName = QStringLiteral("door.stl");

private Q_SLOTS:
    void init();
    void showsThePreviewAroundTheDialog();
    void initializesThePreviewOnce();
    void keepsThePreviewHiddenIfTheUserWantsNone();
    void asksForOneFile();
    void asksForTypesOfTheCaller();
    void asksForSeveralFiles();
    void usesTheLastPathWithoutAProvider();
    void cancelHidesThePreview();
    void exceptionHidesThePreview();
    void selectionIsShown_data();
    void selectionIsShown();
    void firstTypeChangePlacesTheDialog();
    void secondDialogIsNotPlacedByTypeChanges();
    void checkBoxSwitchesThePreviewOn();
    void checkBoxSwitchesThePreviewOff();
    void otherCheckBoxesAreNotOurs();
    void stateIsWrittenOnlyWhenItChanges();
    void withoutKeyThePreviewIsWantedAndNotRemembered();
    void anyConfigurationMayHaveThePreviewsHandler();
    void alternativeDialogHasNoPreview();
    void configurationOutlivesTheDialog();
    void dialogDestroyedWhileOpen_keepsWhatTheCallNeeds();
    void parentWithTheDialogAsMember_mayBeDestroyed();
    void reusedDialog_standsWhereItWasLeft();
    void reusedDialog_hasItsCheckBoxAsItWasLeft();
    void previewMadeLate_showsTheSelectedFile();
    void previewOffTheScreen_isLaidOutAsTheDialogOpens_data();
    void previewOffTheScreen_isLaidOutAsTheDialogOpens();
};

void PreviewFileDialogTest::init()
{
    QSettings().clear();
    CommandLineParser::instance()->parse({QStringLiteral("test")});
    QFile made(file());
    QVERIFY(made.open(QIODevice::WriteOnly));
}

void PreviewFileDialogTest::showsThePreviewAroundTheDialog()
{
    Setup setup;
    const AnsweredDialog replacement([&](const FileDialogRequest&) {
        const QSize offset = setup.configuration->getTopLeftOffset();
        const QString moved =
            QStringLiteral("moveTo %1 %2").arg(offset.width() + 630).arg(offset.height());
        const QStringList wanted{QStringLiteral("initialize -1"), QStringLiteral("setVisible 1"),
                                 moved};
        [&] { QCOMPARE(setup.editor->takeCalls(), wanted); }();
        return FileDialogResult::accepted({file()});
    });
    QCOMPARE(setup.dialog.getOpenFileName(DefaultPathProvider::getInstance()), file());
    QCOMPARE(setup.editor->takeCalls(), QStringList{QStringLiteral("setVisible 0")});
}

void PreviewFileDialogTest::initializesThePreviewOnce()
{
    Setup setup;
    const AnsweredDialog replacement(
        [](const FileDialogRequest&) { return FileDialogResult::cancelled(); });
    setup.dialog.getOpenFileName(nullptr);
    setup.dialog.getOpenFileNames(nullptr);
    QCOMPARE(setup.editor->calls.count(QStringLiteral("initialize -1")), 1);
    QCOMPARE(setup.editor->calls.count(QStringLiteral("setVisible 1")), 2);
}

void PreviewFileDialogTest::keepsThePreviewHiddenIfTheUserWantsNone()
{
    storeShowPreview(false);
    Setup setup;
    const AnsweredDialog replacement(
        [](const FileDialogRequest&) { return FileDialogResult::cancelled(); });
    setup.dialog.getOpenFileName(nullptr);
    const QStringList wanted{QStringLiteral("setVisible 0"), QStringLiteral("setVisible 0")};
    QCOMPARE(setup.editor->takeCalls(), wanted);
}

void PreviewFileDialogTest::asksForOneFile()
{
    Setup setup;
    const QString wantedFilter = QString::fromStdString(
        getFileFilterForTypes({ZvFileType::StlAscii, ZvFileType::Csv}, true, {}));
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        [&] {
            QCOMPARE(request.caption, QStringLiteral("Open one"));
            QVERIFY(!(request.purpose == FileDialogPurpose::OpenFiles));
            QCOMPARE(request.configuration, setup.configuration.get());
            QCOMPARE(filterTypes(request.filter), wantedFilter.split(QStringLiteral(";;")));
        }();
        return FileDialogResult::accepted({file()});
    });
    DefaultPathProvider provider;
    QCOMPARE(setup.dialog.getOpenFileName(&provider), file());
    QCOMPARE(QSettings().value(QStringLiteral("LastFile/Import")).toString(), file());
}

void PreviewFileDialogTest::asksForTypesOfTheCaller()
{
    Setup setup;
    QList<QStringList> names;
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        names << filterTypes(request.filter);
        return FileDialogResult::cancelled();
    });
    setup.dialog.setFilter(QStringLiteral("A (*.a);;B (*.b)"));
    setup.dialog.getOpenFileName(nullptr);
    QCOMPARE(names.last(), (QStringList{QStringLiteral("A (*.a)"), QStringLiteral("B (*.b)")}));
    setup.dialog.setFilter(QString());
    setup.dialog.getOpenFileNames(nullptr);
    QCOMPARE(names.last().size(), 3);
}

void PreviewFileDialogTest::asksForSeveralFiles()
{
    Setup setup;
    const QStringList chosen{file(), QStringLiteral("b")};
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        [&] {
            QCOMPARE(request.caption, QStringLiteral("Open several"));
            QVERIFY((request.purpose == FileDialogPurpose::OpenFiles));
            QCOMPARE(request.configuration, setup.configuration.get());
        }();
        return FileDialogResult::accepted(chosen);
    });
    QCOMPARE(setup.dialog.getOpenFileNames(DefaultPathProvider::getInstance()), chosen);
    QCOMPARE(setup.editor->calls.last(), QStringLiteral("setVisible 0"));
}

void PreviewFileDialogTest::usesTheLastPathWithoutAProvider()
{
    LastPathProvider::getInstance()->setPathToScope(file(), QStringLiteral("Import"));
    Setup setup;
    QStringList folders;
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        folders << dialogStart(request.start).folder;
        return FileDialogResult::cancelled();
    });
    setup.dialog.getOpenFileName(nullptr);
    setup.dialog.getOpenFileNames(nullptr);
    const QString folder = QDir::toNativeSeparators(m_folder.path());
    QCOMPARE(folders, (QStringList{folder, folder}));
}

void PreviewFileDialogTest::cancelHidesThePreview()
{
    Setup setup;
    const AnsweredDialog replacement(
        [](const FileDialogRequest&) { return FileDialogResult::cancelled(); });
    QCOMPARE(setup.dialog.getOpenFileName(nullptr), QString());
    QCOMPARE(setup.editor->takeCalls().last(), QStringLiteral("setVisible 0"));
    QCOMPARE(setup.dialog.getOpenFileNames(nullptr), QStringList());
    QCOMPARE(setup.editor->takeCalls().last(), QStringLiteral("setVisible 0"));
}

void PreviewFileDialogTest::exceptionHidesThePreview()
{
    Setup setup;
    const AnsweredDialog replacement(
        [](const FileDialogRequest&) -> FileDialogResult { throw std::length_error("too long"); });
    QVERIFY_EXCEPTION_THROWN(setup.dialog.getOpenFileName(nullptr), std::length_error);
    QCOMPARE(setup.editor->calls.last(), QStringLiteral("setVisible 0"));
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void PreviewFileDialogTest::selectionIsShown_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("shown");
    const QString japanese = QString::fromUtf8(u8"/a/\u91d1\u578b.stl");
    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("one") << QStringList{QStringLiteral("/a/b.stl")} << QStringLiteral("/a/b.stl");
    QTest::newRow("the first of several")
        << QStringList{QStringLiteral("/a/2"), QStringLiteral("/a/1")} << QStringLiteral("/a/2");
    QTest::newRow("beyond Latin letters") << QStringList{japanese} << japanese;
}

void PreviewFileDialogTest::selectionIsShown()
{
    QFETCH(QStringList, selected);
    QFETCH(QString, shown);
    Setup setup;
    setup.handler().onSelectionChanged(selected, setup.callbacks);
    QCOMPARE(setup.editor->takeCalls(), QStringList{QStringLiteral("showFile ") + shown});
}

void PreviewFileDialogTest::firstTypeChangePlacesTheDialog()
{
    Setup setup;
    setup.handler().onTypeChanged(setup.callbacks);
    QCOMPARE(setup.editor->takeCalls(), QStringList{QStringLiteral("placeDialog")});
    QCOMPARE(setup.callbacks.placed, setup.configuration.get());
    setup.handler().onTypeChanged(setup.callbacks);
    QCOMPARE(setup.editor->takeCalls(), QStringList());
}

void PreviewFileDialogTest::secondDialogIsNotPlacedByTypeChanges()
{
    Setup setup;
    int placed = 0;
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        request.configuration->getEventHandler()->onTypeChanged(setup.callbacks);
        placed += setup.editor->takeCalls().count(QStringLiteral("placeDialog"));
        return FileDialogResult::cancelled();
    });
    setup.dialog.getOpenFileName(nullptr);
    QCOMPARE(placed, 1);
    setup.dialog.getOpenFileName(nullptr);
    QCOMPARE(placed, 1);
}

void PreviewFileDialogTest::checkBoxSwitchesThePreviewOn()
{
    storeShowPreview(false);
    Setup setup;
    setup.handler().onCheckBoxToggled(true, 0, setup.callbacks);
    QCOMPARE(storedShowPreview(), QVariant(true));
    // Beside the dialog's present place, 5 pixels on.
    const QRect dialog = setup.callbacks.geometry;
    QCOMPARE(
        setup.editor->takeCalls(),
        (QStringList{QStringLiteral("initialize -1"), QStringLiteral("setVisible 1"),
                     QStringLiteral("moveTo %1 %2").arg(30 + dialog.width() + 4).arg(dialog.y()),
                     QStringLiteral("placeDialog")}));
    QCOMPARE(setup.callbacks.placed, setup.configuration.get());
    QRect placed;
    QVERIFY(setup.configuration->getFileDialogGeometry(placed));
    QCOMPARE(placed, QRect(30, dialog.y(), dialog.width(), dialog.height()));
}

void PreviewFileDialogTest::checkBoxSwitchesThePreviewOff()
{
    Setup setup;
    setup.handler().onCheckBoxToggled(false, 0, setup.callbacks);
    QCOMPARE(storedShowPreview(), QVariant(false));
    QCOMPARE(setup.editor->takeCalls(), QStringList{QStringLiteral("setVisible 0")});
    // The dialog's place was not noted.
    QRect placed;
    QVERIFY(!setup.configuration->getFileDialogGeometry(placed));
}

void PreviewFileDialogTest::otherCheckBoxesAreNotOurs()
{
    Setup setup;
    setup.handler().onCheckBoxToggled(false, 1, setup.callbacks);
    setup.handler().onItemSelected(0, 1);
    QCOMPARE(setup.editor->takeCalls(), QStringList());
    QVERIFY(!storedShowPreview().isValid());
}

void PreviewFileDialogTest::stateIsWrittenOnlyWhenItChanges()
{
    Setup setup;
    // An equal value stays just as it is written.
    QSettings().setValue(QStringLiteral("PreviewTest/ShowPreview"), QStringLiteral("1"));
    setup.handler().onCheckBoxToggled(true, 0, setup.callbacks);
    QCOMPARE(storedShowPreview(), QVariant(QStringLiteral("1")));
    setup.handler().onCheckBoxToggled(false, 0, setup.callbacks);
    QCOMPARE(storedShowPreview().toBool(), false);
    QSettings().remove(QStringLiteral("PreviewTest/ShowPreview"));
    setup.handler().onCheckBoxToggled(true, 0, setup.callbacks);
    QVERIFY(storedShowPreview().isValid());
}

void PreviewFileDialogTest::withoutKeyThePreviewIsWantedAndNotRemembered()
{
    Setup setup;
    PreviewFileDialogEventHandler handler(setup.editor);
    PreviewFileDialogConfiguration keyless("Keyless", "", "", "", "", {}, true);
    keyless.setEventHandler(&handler);
    QCOMPARE(keyless.getCustomControl(0).initialValue, QVariant(true));
    handler.onCheckBoxToggled(false, 0, setup.callbacks);
    QCOMPARE(setup.editor->takeCalls().last(), QStringLiteral("setVisible 0"));
    QVERIFY(handler.isPreviewWanted());
    QVERIFY(QSettings().allKeys().filter(QStringLiteral("Preview")).isEmpty());
}

void PreviewFileDialogTest::anyConfigurationMayHaveThePreviewsHandler()
{
    Setup setup;
    PreviewFileDialogEventHandler handler(setup.editor);
    FileDialogConfiguration plain;
    QVERIFY(!handler.isPreviewWanted());
    handler.setFileDialogConfiguration(&plain);
    QVERIFY(!handler.isPreviewWanted());
    handler.onCheckBoxToggled(true, 0, setup.callbacks);
    QVERIFY(!storedShowPreview().isValid());
    QCOMPARE(setup.editor->takeCalls(),
             (QStringList{QStringLiteral("initialize -1"), QStringLiteral("setVisible 1"),
                          QStringLiteral("moveTo -1 -1"), QStringLiteral("placeDialog")}));
    handler.setFileDialogConfiguration(nullptr);
    handler.onCheckBoxToggled(true, 0, setup.callbacks);
    QCOMPARE(setup.editor->takeCalls(), QStringList{QStringLiteral("setVisible 1")});
    handler.onTypeChanged(setup.callbacks);
    QCOMPARE(setup.editor->takeCalls(), QStringList{QStringLiteral("placeDialog")});
    QCOMPARE(handler.getPreviewerSize(), setup.editor->geometry);
}

void PreviewFileDialogTest::alternativeDialogHasNoPreview()
{
    CommandLineParser::instance()->parse(
        {QStringLiteral("test"), QStringLiteral("--alternativeFileDialog")});
    Setup setup;
    QVERIFY(!setup.configuration->getEventHandler());
    QCOMPARE(setup.configuration->numberOfcustomControls(), 0);
    Testing::ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Qt's dialog"),
                                     [](QFileDialog& dialog) { dialog.reject(); });
    QCOMPARE(setup.dialog.getOpenFileName(nullptr), QString());
    QVERIFY(modals.allMet());
    QCOMPARE(setup.editor->takeCalls(), QStringList());
}

void PreviewFileDialogTest::configurationOutlivesTheDialog()
{
    const auto configuration =
        std::make_shared<PreviewFileDialogConfiguration>(Testing::previewConfiguration());
    const auto editor = std::make_shared<Testing::RecordingEditor>();
    {
        const PreviewFileDialog dialog(editor, configuration, nullptr);
        QVERIFY(configuration->getEventHandler());
    }
    QVERIFY(!configuration->getEventHandler());
    QCOMPARE(configuration->getPositionForPreviewer(), QPoint(629, -1));
    QCOMPARE(editor.use_count(), 1L);
}

void PreviewFileDialogTest::dialogDestroyedWhileOpen_keepsWhatTheCallNeeds()
{
    auto editor = std::make_shared<Testing::RecordingEditor>();
    auto dialog = std::make_unique<PreviewFileDialog>(
        editor, std::make_shared<PreviewFileDialogConfiguration>(Testing::previewConfiguration()),
        nullptr);
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        dialog.reset();
        request.configuration->storeFileDialogGeometry(QRect(10, 20, 400, 300));
        request.configuration->getEventHandler()->onSelectionChanged(
            {file()}, Testing::RecordingCallbacks(*editor));
        return FileDialogResult::cancelled();
    });
    PreviewFileDialog& asked = *dialog;
    QCOMPARE(asked.getOpenFileName(nullptr), QString());
    QRect stored;
    QVERIFY(FileDialogConfiguration(QStringLiteral("PreviewTest")).getFileDialogGeometry(stored));
    QCOMPARE(stored, QRect(10, 20, 400, 300));
    QCOMPARE(editor->calls.last(), QStringLiteral("setVisible 0"));
    QCOMPARE(editor.use_count(), 1L);
}

void PreviewFileDialogTest::parentWithTheDialogAsMember_mayBeDestroyed()
{
    struct Window : QWidget
    {
        PreviewFileDialog dialog{
            std::make_shared<Testing::RecordingEditor>(),
            std::make_shared<PreviewFileDialogConfiguration>(Testing::previewConfiguration()),
            this};
    };
    const NativeFileDialogReplacement qtsDialog([] { return nullptr; });
    auto window = std::make_unique<Window>();
    window->show();
    Testing::ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("Open one"),
                                     [&window](QFileDialog&) { window.reset(); });
    PreviewFileDialog& dialog = window->dialog;
    QCOMPARE(dialog.getOpenFileName(nullptr), QString());
    QVERIFY(QSettings().contains(QStringLiteral("PreviewTest/topLeft")));
}

void PreviewFileDialogTest::reusedDialog_standsWhereItWasLeft()
{
    Setup setup;
    setup.configuration->storeFileDialogGeometry(QRect(40, 50, 300, 250));
    QRect placed;
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        request.configuration->getFileDialogGeometry(placed);
        // As the user moves it.
        request.configuration->storeFileDialogGeometry(QRect(100, 120, 310, 260));
        return FileDialogResult::cancelled();
    });
    setup.dialog.getOpenFileName(nullptr);
    QCOMPARE(placed.topLeft(), QPoint(40, 50));
    setup.editor->calls.clear();
    setup.dialog.getOpenFileName(nullptr);
    QCOMPARE(placed, QRect(100, 120, 310, 260));
    QCOMPARE(setup.editor->calls.at(1), QStringLiteral("moveTo 414 120"));
}

void PreviewFileDialogTest::reusedDialog_hasItsCheckBoxAsItWasLeft()
{
    Setup setup;
    QVariantList checked;
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        checked << request.configuration->getCustomControl(0).initialValue;
        setup.handler().onCheckBoxToggled(false, 0, setup.callbacks);
        return FileDialogResult::cancelled();
    });
    setup.dialog.getOpenFileName(nullptr);
    setup.dialog.getOpenFileName(nullptr);
    QCOMPARE(checked, (QVariantList{true, false}));
}

void PreviewFileDialogTest::previewMadeLate_showsTheSelectedFile()
{
    storeShowPreview(false);
    Setup setup;
    setup.handler().onSelectionChanged({file()}, setup.callbacks);
    setup.editor->calls.clear();
    setup.handler().onCheckBoxToggled(true, 0, setup.callbacks);
    QCOMPARE(setup.editor->calls.first(), QStringLiteral("initialize -1"));
    QCOMPARE(setup.editor->calls.count(QStringLiteral("showFile ") + file()), 1);
}

void PreviewFileDialogTest::previewOffTheScreen_isLaidOutAsTheDialogOpens_data()
{
    QTest::addColumn<int>("previewWidth");
    QTest::addColumn<int>("minimumWidth");
    QTest::addColumn<int>("previewLeft");
    QTest::addColumn<QRect>("dialog");
    QTest::newRow("it fits: both stay") << 100 << 0 << 660 << QRect();
    QTest::newRow("the dialog is narrowed") << 300 << 0 << 469 << QRect(30, 30, 435, 250);
    QTest::newRow("the dialog can be no narrower: the margin is")
        << 300 << 450 << 484 << QRect(30, 30, 450, 250);
    QTest::newRow("nor are there margins left") << 300 << 490 << 500 << QRect(6, 30, 490, 250);
}

void PreviewFileDialogTest::previewOffTheScreen_isLaidOutAsTheDialogOpens()
{
    QFETCH(int, previewWidth);
    QFETCH(int, minimumWidth);
    QFETCH(int, previewLeft);
    QFETCH(QRect, dialog);
    if (QGuiApplication::primaryScreen()->availableGeometry() != QRect(0, 0, 800, 600))
        QSKIP("the numbers are those of a screen of 800 x 600");
    Setup setup;
    setup.editor->geometry = QRect(0, 0, previewWidth, 250);
    const AnsweredDialog replacement([&](const FileDialogRequest& request) {
        request.configuration->setMinimumDialogWidth(minimumWidth);
        setup.handler().onTypeChanged(setup.callbacks);
        [&] { QCOMPARE(setup.editor->geometry.topLeft(), QPoint(previewLeft, 30)); }();
        QRect placed;
        request.configuration->getFileDialogGeometry(placed);
        [&] { QCOMPARE(placed, dialog); }();
        return FileDialogResult::cancelled();
    });
    setup.dialog.getOpenFileName(nullptr);
}

ZORVANE_TEST(PreviewFileDialogTest)
#include "PreviewFileDialogTest.moc"
