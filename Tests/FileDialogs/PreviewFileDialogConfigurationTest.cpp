#include "FileDialogs/PreviewFileDialogConfiguration.h"

#include "FileDialogs/ScreenGeometry.h"
#include "Tests/FileDialogs/PreviewFixtures.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/VirtualSlot.h"

#include <QtCore/QSettings>
#include <QtGui/QScreen>

using namespace Zorvane;
using Testing::previewConfiguration;

class PreviewFileDialogConfigurationTest : public Testing::TestCase
{
    Q_OBJECT

private:
    /** A configuration with a handler, on the screen that there is. */
    struct Setup
    {
        std::shared_ptr<Testing::RecordingEditor> editor =
            std::make_shared<Testing::RecordingEditor>();
        PreviewFileDialogEventHandler handler{editor};
        PreviewFileDialogConfiguration configuration = previewConfiguration();

        Setup() { configuration.setEventHandler(&handler); }
    };

    static QRect stored()
    {
        QRect rect;
        const QSettings settings;
        rect.setTopLeft(settings.value(QStringLiteral("PreviewTest/topLeft")).toPoint());
        rect.setBottomRight(settings.value(QStringLiteral("PreviewTest/bottomRight")).toPoint());
        return rect;
    }
    static bool isStored() { return QSettings().contains(QStringLiteral("PreviewTest/topLeft")); }
    /** What the arithmetic makes of the two on the screen that there is. */
    static QRect sideBySide(QRect dialog, QRect& preview)
    {
        const QRect area = QGuiApplication::screens().first()->availableGeometry();
        placeSideBySide(dialog, preview, area, {30, 30});
        return dialog;
    }

private Q_SLOTS:
    void init();
    void tellsWhatItWasMadeWith();
    void textsAreUtf8();
    void handlerIsPointedBackAndAddsACheckBox();
    void checkBoxStartsAsItWasLeft();
    void everyHandlerAddsACheckBox();
    void handlerCanBeTakenAway();
    void offsetIsTheMarginOnThePreviewsScreen();
    void offsetIsInvalidWithoutHandlerOrScreen();
    void withoutAHandlerThePreviewStandsBesideTheDefaultSize();
    void withAnotherHandlerStoredGeometryDoesNotCount();
    void withoutStoredGeometryNothingIsDecided();
    void previewStandsBesideTheStoredGeometry();
    void temporaryGeometryCountsMoreThanStored();
    void temporaryGeometryIsUsedOnce();
    void dialogOnNoScreenComesToThePreviews_data();
    void dialogOnNoScreenComesToThePreviews();
    void nullRectangleLeftInTheSettingsIsNone();
    void dialogGeometryBesideThePreviewComesFirst();
    void dialogGeometryWithoutPreviewIsTheStoredOne();
    void geometryIsKeptOnlyWithAPreviewHandler();
    void layoutRepeatsItself();
    void dialogIsAsHighAsThePreview();
    void copiesAreEqual();
    void operationsKeepTheirPlaces();
};

void PreviewFileDialogConfigurationTest::init()
{
    QSettings().clear();
}

void PreviewFileDialogConfigurationTest::tellsWhatItWasMadeWith()
{
    const PreviewFileDialogConfiguration configuration = previewConfiguration();
    QCOMPARE(configuration.getShowPreviewKey(), QStringLiteral("PreviewTest/ShowPreview"));
    QCOMPARE(configuration.getDialogCaptionForSingleFile(), QStringLiteral("Open one"));
    QCOMPARE(configuration.getDialogCaptionForMultipleFiles(), QStringLiteral("Open several"));
    QCOMPARE(configuration.getScopeName(), QStringLiteral("Import"));
    const std::list<ZvFileType> types{ZvFileType::StlAscii, ZvFileType::Csv};
    QVERIFY(configuration.getFileTypes() == types);
    QVERIFY(configuration.enableAllFilesEntry());
    QCOMPARE(configuration.numberOfcustomControls(), 0);
    QCOMPARE(configuration.getDefaultDialogSize(), QSize(625, 600));
    const int distance = PreviewFileDialogConfiguration::s_distanceBetweenFileDlgAndPreviewer;
    QCOMPARE(distance, 5);
}

void PreviewFileDialogConfigurationTest::textsAreUtf8()
{
    const PreviewFileDialogConfiguration configuration("", "", u8"\u958b\u304f", u8"\u00d6ffnen",
                                                       u8"\u00c4", {}, false);
    QCOMPARE(configuration.getDialogCaptionForSingleFile(), QString::fromUtf8(u8"\u958b\u304f"));
    QCOMPARE(configuration.getDialogCaptionForMultipleFiles(), QString::fromUtf8(u8"\u00d6ffnen"));
    QCOMPARE(configuration.getScopeName(), QString::fromUtf8(u8"\u00c4"));
    QVERIFY(!configuration.enableAllFilesEntry());
}

void PreviewFileDialogConfigurationTest::handlerIsPointedBackAndAddsACheckBox()
{
    Setup setup;
    QCOMPARE(setup.configuration.getEventHandler(), &setup.handler);
    QVERIFY(setup.handler.isPreviewWanted()); // which it asks its configuration for
    QCOMPARE(setup.configuration.numberOfcustomControls(), 1);
    const FileDialogConfiguration::CustomItem& box = setup.configuration.getCustomControl(0);
    QCOMPARE(box.controlId, 0);
    QCOMPARE(box.controlType, 0);
    QVERIFY(!box.prominent);
    QCOMPARE(box.controlState, 3);
    QVERIFY(box.groupLabel.isEmpty());
    QCOMPARE(box.content.toString(), QStringLiteral("Preview"));
    QCOMPARE(box.initialValue, QVariant(true));
}

void PreviewFileDialogConfigurationTest::checkBoxStartsAsItWasLeft()
{
    QSettings().setValue(QStringLiteral("PreviewTest/ShowPreview"), false);
    const Setup setup;
    QCOMPARE(setup.configuration.getCustomControl(0).initialValue, QVariant(false));
}

void PreviewFileDialogConfigurationTest::everyHandlerAddsACheckBox()
{
    Setup setup;
    PreviewFileDialogEventHandler second(setup.editor);
    setup.configuration.setEventHandler(&second);
    QCOMPARE(setup.configuration.numberOfcustomControls(), 2);
    QCOMPARE(setup.configuration.getEventHandler(), &second);
}

void PreviewFileDialogConfigurationTest::handlerCanBeTakenAway()
{
    Setup setup;
    setup.configuration.setEventHandler(static_cast<PreviewFileDialogEventHandler*>(nullptr));
    QVERIFY(!setup.configuration.getEventHandler());
    QCOMPARE(setup.configuration.numberOfcustomControls(), 1);
}

void PreviewFileDialogConfigurationTest::offsetIsTheMarginOnThePreviewsScreen()
{
    Setup setup;
    const QPoint corner = QGuiApplication::screens().first()->geometry().topLeft();
    const QSize wanted(30 + corner.x(), 30 + corner.y());
    QCOMPARE(setup.configuration.getTopLeftOffset(), wanted);
    setup.editor->screenNumber = -1;
    QCOMPARE(setup.configuration.getTopLeftOffset(), wanted);
}

void PreviewFileDialogConfigurationTest::offsetIsInvalidWithoutHandlerOrScreen()
{
    Setup setup;
    setup.editor->screenNumber = QGuiApplication::screens().size();
    QCOMPARE(setup.configuration.getTopLeftOffset(), QSize(-1, -1));
    QCOMPARE(previewConfiguration().getTopLeftOffset(), QSize(-1, -1));
    FileDialogEventHandler plain;
    PreviewFileDialogConfiguration configuration = previewConfiguration();
    configuration.setEventHandler(&plain);
    QCOMPARE(configuration.getTopLeftOffset(), QSize(-1, -1));
}

void PreviewFileDialogConfigurationTest::withoutAHandlerThePreviewStandsBesideTheDefaultSize()
{
    PreviewFileDialogConfiguration configuration = previewConfiguration();
    QCOMPARE(configuration.getPositionForPreviewer(), QPoint(629, -1));
    configuration.setDefaultDialogSize({400, 300});
    QCOMPARE(configuration.getPositionForPreviewer(), QPoint(404, -1));
    configuration.storeTemporaryFileDialogGeometry({10, 10, 100, 100});
    QCOMPARE(configuration.getPositionForPreviewer(), QPoint(404, -1));
}

void PreviewFileDialogConfigurationTest::withAnotherHandlerStoredGeometryDoesNotCount()
{
    FileDialogEventHandler plain;
    PreviewFileDialogConfiguration configuration = previewConfiguration();
    configuration.setEventHandler(&plain);
    QSettings().setValue(QStringLiteral("PreviewTest/topLeft"), QPoint(50, 60));
    QSettings().setValue(QStringLiteral("PreviewTest/bottomRight"), QPoint(349, 359));
    QCOMPARE(configuration.getPositionForPreviewer(), QPoint(629, -1));
}

void PreviewFileDialogConfigurationTest::withoutStoredGeometryNothingIsDecided()
{
    Setup setup;
    const QSize offset = setup.configuration.getTopLeftOffset();
    QCOMPARE(setup.configuration.getPositionForPreviewer(),
             QPoint(offset.width() + 625 + 5, offset.height()));
    // Nothing was decided: the dialog goes where it would go by itself.
    QRect rect;
    QVERIFY(!setup.configuration.getFileDialogGeometry(rect));
    QVERIFY(!isStored());
}

void PreviewFileDialogConfigurationTest::previewStandsBesideTheStoredGeometry()
{
    Setup setup;
    const QRect dialog(40, 50, 350, 300);
    setup.configuration.storeFileDialogGeometry(dialog);
    QRect preview = setup.editor->geometry;
    const QRect moved = sideBySide(dialog, preview);
    QCOMPARE(setup.configuration.getPositionForPreviewer(), preview.topLeft());
    QRect rect;
    QVERIFY(setup.configuration.getFileDialogGeometry(rect));
    QCOMPARE(rect, moved);
}

void PreviewFileDialogConfigurationTest::temporaryGeometryCountsMoreThanStored()
{
    Setup setup;
    setup.configuration.storeFileDialogGeometry({40, 50, 350, 300});
    const QRect dialog(200, 80, 400, 300);
    setup.configuration.storeTemporaryFileDialogGeometry(dialog);
    QRect preview = setup.editor->geometry;
    const QRect moved = sideBySide(dialog, preview);
    QCOMPARE(setup.configuration.getPositionForPreviewer(), preview.topLeft());
    QCOMPARE(stored(), QRect(40, 50, 350, 300));
    QRect rect;
    QVERIFY(setup.configuration.getFileDialogGeometry(rect));
    QCOMPARE(rect, moved);
}

void PreviewFileDialogConfigurationTest::temporaryGeometryIsUsedOnce()
{
    Setup setup;
    setup.configuration.storeTemporaryFileDialogGeometry({200, 80, 400, 300});
    const QPoint first = setup.configuration.getPositionForPreviewer();
    // From now on the layout starts from what it decided on itself.
    QRect decided;
    QVERIFY(setup.configuration.getFileDialogGeometry(decided));
    setup.editor->geometry.moveTopLeft(first);
    QRect preview = setup.editor->geometry;
    sideBySide(decided, preview);
    QCOMPARE(setup.configuration.getPositionForPreviewer(), preview.topLeft());
}

void PreviewFileDialogConfigurationTest::dialogOnNoScreenComesToThePreviews_data()
{
    QTest::addColumn<int>("screenNumber");
    QTest::newRow("the first") << 0;
    QTest::newRow("the default") << -1;
}

void PreviewFileDialogConfigurationTest::dialogOnNoScreenComesToThePreviews()
{
    QFETCH(int, screenNumber);
    Setup setup;
    setup.editor->screenNumber = screenNumber;
    setup.configuration.storeFileDialogGeometry({20'000, 20'000, 350, 300});
    const QRect area = QGuiApplication::screens().first()->availableGeometry();
    QRect preview = setup.editor->geometry;
    const QRect wanted =
        sideBySide(QRect(area.topLeft() + QPoint(30, 30), QSize(350, 300)), preview);
    QCOMPARE(setup.configuration.getPositionForPreviewer(), preview.topLeft());
    QRect rect;
    QVERIFY(setup.configuration.getFileDialogGeometry(rect));
    QCOMPARE(rect, wanted);
    QCOMPARE(rect.topLeft(), area.topLeft() + QPoint(30, 30));
}

void PreviewFileDialogConfigurationTest::nullRectangleLeftInTheSettingsIsNone()
{
    Setup setup;
    setup.configuration.storeFileDialogGeometry(QRect());
    const QSize offset = setup.configuration.getTopLeftOffset();
    QCOMPARE(setup.configuration.getPositionForPreviewer(),
             QPoint(offset.width() + 625 + 5, offset.height()));
}

void PreviewFileDialogConfigurationTest::dialogGeometryBesideThePreviewComesFirst()
{
    class Recording : public PreviewFileDialogConfiguration
    {
    public:
        using PreviewFileDialogConfiguration::PreviewFileDialogConfiguration;
        explicit Recording(const PreviewFileDialogConfiguration& other)
            : PreviewFileDialogConfiguration(other)
        {}
        void storeFileDialogGeometry(const QRect& rect) override
        {
            writes.append(rect);
            PreviewFileDialogConfiguration::storeFileDialogGeometry(rect);
        }
        QList<QRect> writes;
    };
    const Setup setup;
    Recording configuration(setup.configuration);
    configuration.storeTemporaryFileDialogGeometry({40, 50, 350, 300});
    configuration.getPositionForPreviewer();
    QVERIFY(configuration.writes.isEmpty());
    QRect rect;
    for (int asked = 1; asked <= 2; ++asked) {
        QVERIFY(configuration.getFileDialogGeometry(rect));
        QCOMPARE(rect, QRect(40, 50, 350, 300));
        QCOMPARE(configuration.writes.size(), asked);
        QCOMPARE(configuration.writes.last(), QRect());
    }
    QCOMPARE(QSettings().value(QStringLiteral("PreviewTest/topLeft")).toPoint(), QPoint(0, 0));
    QCOMPARE(QSettings().value(QStringLiteral("PreviewTest/bottomRight")).toPoint(),
             QPoint(-1, -1));
    configuration.storeFileDialogGeometry({1, 2, 3, 4});
    QCOMPARE(stored(), QRect(1, 2, 3, 4));
}

void PreviewFileDialogConfigurationTest::dialogGeometryWithoutPreviewIsTheStoredOne()
{
    Setup setup;
    QRect rect(9, 9, 9, 9);
    QVERIFY(!setup.configuration.getFileDialogGeometry(rect));
    QCOMPARE(rect, QRect(9, 9, 9, 9));
    setup.configuration.storeFileDialogGeometry({40, 50, 350, 300});
    QVERIFY(setup.configuration.getFileDialogGeometry(rect));
    QCOMPARE(rect, QRect(40, 50, 350, 300));
    setup.configuration.setEventHandler(static_cast<FileDialogEventHandler*>(nullptr));
    QVERIFY(!setup.configuration.getFileDialogGeometry(rect));
}

void PreviewFileDialogConfigurationTest::geometryIsKeptOnlyWithAPreviewHandler()
{
    PreviewFileDialogConfiguration configuration = previewConfiguration();
    configuration.storeFileDialogGeometry({1, 2, 3, 4});
    QVERIFY(!isStored());
    FileDialogEventHandler plain;
    configuration.setEventHandler(&plain);
    configuration.storeFileDialogGeometry({1, 2, 3, 4});
    QVERIFY(!isStored());
    Setup setup;
    setup.configuration.storeFileDialogGeometry({1, 2, 3, 4});
    QCOMPARE(stored(), QRect(1, 2, 3, 4));
}

void PreviewFileDialogConfigurationTest::layoutRepeatsItself()
{
    Setup setup;
    setup.configuration.storeTemporaryFileDialogGeometry({200, 80, 400, 300});
    setup.configuration.getPositionForPreviewer();
    const QPoint second = setup.configuration.getPositionForPreviewer();
    QRect decided;
    setup.configuration.getFileDialogGeometry(decided);
    for (int repeat = 0; repeat < 3; ++repeat) {
        QCOMPARE(setup.configuration.getPositionForPreviewer(), second);
        QRect again;
        setup.configuration.getFileDialogGeometry(again);
        QCOMPARE(again, decided);
    }
}

void PreviewFileDialogConfigurationTest::dialogIsAsHighAsThePreview()
{
    Setup setup;
    setup.editor->geometry = QRect(0, 0, 300, 480);
    QCOMPARE(setup.configuration.getDefaultDialogSize(), QSize(625, 480));
    setup.editor->geometry = QRect();
    QCOMPARE(setup.configuration.getDefaultDialogSize(), QSize(625, 600));
}

void PreviewFileDialogConfigurationTest::copiesAreEqual()
{
    Setup setup;
    const PreviewFileDialogConfiguration copy(setup.configuration);
    QCOMPARE(copy.getScopeName(), setup.configuration.getScopeName());
    QCOMPARE(copy.numberOfcustomControls(), 1);
    QCOMPARE(copy.getEventHandler(), &setup.handler);
    PreviewFileDialogConfiguration assigned("", "", "", "", "", {}, false);
    assigned = setup.configuration;
    QCOMPARE(assigned.getShowPreviewKey(), setup.configuration.getShowPreviewKey());
    QVERIFY(assigned.getFileTypes() == setup.configuration.getFileTypes());
}

void PreviewFileDialogConfigurationTest::operationsKeepTheirPlaces()
{
    using Configuration = PreviewFileDialogConfiguration;
    using Setter = void (Configuration::*)(PreviewFileDialogEventHandler*);
    QCOMPARE(Testing::virtualSlot(static_cast<Setter>(&Configuration::setEventHandler)), 8);
    using Editor = PreviewEditorInterface;
    const std::ptrdiff_t slots[]{
        Testing::virtualSlot(&Editor::initialize),  Testing::virtualSlot(&Editor::getScreenNumber),
        Testing::virtualSlot(&Editor::getGeometry), Testing::virtualSlot(&Editor::setVisible),
        Testing::virtualSlot(&Editor::moveTo),      Testing::virtualSlot(&Editor::isInitialized),
        Testing::virtualSlot(&Editor::reserved),    Testing::virtualSlot(&Editor::showFile)};
    for (std::ptrdiff_t place = 0; place < 8; ++place)
        QCOMPARE(slots[place], place + 2);
}

ZORVANE_TEST(PreviewFileDialogConfigurationTest)
#include "PreviewFileDialogConfigurationTest.moc"
