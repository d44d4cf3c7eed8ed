#include "FileDialogs/FileDialogConfiguration.h"

#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/VirtualSlot.h"

#include <QtCore/QSettings>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

using namespace Zorvane;
using CustomItem = FileDialogConfiguration::CustomItem;
using Testing::MainWindowProperty;
using Testing::RecordingHandler;

namespace {

const QRect s_untouched(1, 2, 3, 4);
/** Asked for before there is an application, and so a desktop. */
const QSize s_offsetWithoutDesktop = FileDialogConfiguration().getTopLeftOffset();

CustomItem item(int id, const char* text)
{
    CustomItem made;
    made.controlId = id;
    made.content = QString::fromLatin1(text);
    return made;
}

class Callbacks : public FileDialogCallbackInterface
{
public:
    void setControlState(int, int) const override {}
    void placeDialog(FileDialogConfiguration*) const override {}
    QRect getDialogGeometry() const override { return QRect(); }
};

} // namespace

class FileDialogConfigurationTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void startsWithTheDefaults();
    void controlStartsEnabledAndVisible();
    void geometryIsKept();
    void geometryIsKeptUnderTheKey();
    void withoutStoredGeometryTheRectangleStays_data();
    void withoutStoredGeometryTheRectangleStays();
    void emptyRectangleIsKeptToo();
    void temporaryGeometryIsForgotten();
    void previewersHaveNoPosition();

    void controlsStayInOrder();
    void controlsAreFoundByIdentifier();
    void defaultSizeFollowsThePreviewer();
    void offsetCountsFromTheScreenOfTheMainWindow();
    void withoutAMainWindowTheOffsetStaysAsGiven_data();
    void withoutAMainWindowTheOffsetStaysAsGiven();
    void withoutADesktopThereIsNoOffset();

    void copiesShareNothingButTheHandler();
    void handlerDoesNothing();
    void handlerKnowsItsConfiguration();
    void virtualOperationsKeepTheirOrder();
};

void FileDialogConfigurationTest::init()
{
    QSettings().clear();
}

void FileDialogConfigurationTest::startsWithTheDefaults()
{
    FileDialogConfiguration configuration;
    QCOMPARE(FileDialogConfiguration::s_defaultSettingsKey, QStringLiteral("StandardFileDialog"));
    QCOMPARE(configuration.getDefaultDialogSize(), QSize(625, 600));
    QCOMPARE(configuration.getTopLeftOffset(), QSize(0, 0));
    QCOMPARE(configuration.numberOfcustomControls(), 0);
    QVERIFY(!configuration.getEventHandler());
    configuration.storeFileDialogGeometry(QRect(1, 2, 3, 4));
    QVERIFY(QSettings().contains(QStringLiteral("StandardFileDialog/topLeft")));
}

void FileDialogConfigurationTest::controlStartsEnabledAndVisible()
{
    const CustomItem control;
    QCOMPARE(control.controlId, 0);
    QCOMPARE(control.controlType, 0);
    QCOMPARE(control.controlState, 3);
    QVERIFY(!control.prominent);
}

void FileDialogConfigurationTest::geometryIsKept()
{
    FileDialogConfiguration(QStringLiteral("Key"))
        .storeFileDialogGeometry(QRect(-10, 20, 640, 480));
    QRect rect = s_untouched;
    QVERIFY(FileDialogConfiguration(QStringLiteral("Key")).getFileDialogGeometry(rect));
    QCOMPARE(rect, QRect(-10, 20, 640, 480));
}

void FileDialogConfigurationTest::geometryIsKeptUnderTheKey()
{
    FileDialogConfiguration(QStringLiteral("Import/Mesh"))
        .storeFileDialogGeometry(QRect(10, 20, 640, 480));
    const QSettings settings;
    QCOMPARE(settings.value(QStringLiteral("Import/Mesh/topLeft")), QVariant(QPoint(10, 20)));
    QCOMPARE(settings.value(QStringLiteral("Import/Mesh/bottomRight")), QVariant(QPoint(649, 499)));
    QRect rect = s_untouched;
    QVERIFY(!FileDialogConfiguration(QStringLiteral("Other")).getFileDialogGeometry(rect));
}

void FileDialogConfigurationTest::withoutStoredGeometryTheRectangleStays_data()
{
    QTest::addColumn<QString>("only");
    QTest::newRow("nothing stored") << QString();
    QTest::newRow("one corner only") << QStringLiteral("Key/topLeft");
    QTest::newRow("the other corner only") << QStringLiteral("Key/bottomRight");
}

void FileDialogConfigurationTest::withoutStoredGeometryTheRectangleStays()
{
    QFETCH(QString, only);
    if (!only.isEmpty())
        QSettings().setValue(only, QPoint(10, 20));
    QRect rect = s_untouched;
    QVERIFY(!FileDialogConfiguration(QStringLiteral("Key")).getFileDialogGeometry(rect));
    QCOMPARE(rect, s_untouched);
}

void FileDialogConfigurationTest::emptyRectangleIsKeptToo()
{
    FileDialogConfiguration configuration(QStringLiteral("Key"));
    configuration.storeFileDialogGeometry(QRect());
    QCOMPARE(QSettings().value(QStringLiteral("Key/topLeft")), QVariant(QPoint(0, 0)));
    QCOMPARE(QSettings().value(QStringLiteral("Key/bottomRight")), QVariant(QPoint(-1, -1)));
    QRect rect = s_untouched;
    QVERIFY(configuration.getFileDialogGeometry(rect));
    QVERIFY(rect.isNull());
}

void FileDialogConfigurationTest::temporaryGeometryIsForgotten()
{
    FileDialogConfiguration configuration(QStringLiteral("Key"));
    configuration.storeTemporaryFileDialogGeometry(QRect(10, 20, 640, 480));
    QVERIFY(QSettings().allKeys().isEmpty());
}

void FileDialogConfigurationTest::previewersHaveNoPosition()
{
    QCOMPARE(FileDialogConfiguration().getPositionForPreviewer(), QPoint(-1, -1));
}

void FileDialogConfigurationTest::controlsStayInOrder()
{
    FileDialogConfiguration configuration;
    configuration.addCustomControl(item(5, "first"));
    configuration.addCustomControl(item(3, "second"));
    QCOMPARE(configuration.numberOfcustomControls(), 2);
    QCOMPARE(configuration.getCustomControl(0).content.toString(), QStringLiteral("first"));
    QCOMPARE(configuration.getCustomControl(1).controlId, 3);
}

void FileDialogConfigurationTest::controlsAreFoundByIdentifier()
{
    FileDialogConfiguration configuration;
    configuration.addCustomControl(item(5, "first"));
    configuration.addCustomControl(item(7, "second"));
    configuration.addCustomControl(item(7, "third"));
    QCOMPARE(configuration.findCustomControl(7)->content.toString(), QStringLiteral("second"));
    QCOMPARE(configuration.findCustomControl(5), &configuration.getCustomControl(0));
    QVERIFY(!configuration.findCustomControl(6));
}

void FileDialogConfigurationTest::defaultSizeFollowsThePreviewer()
{
    RecordingHandler handler;
    FileDialogConfiguration configuration;
    configuration.setEventHandler(&handler);
    QCOMPARE(configuration.getDefaultDialogSize(), QSize(625, 600));
    handler.previewer = QRect(0, 0, 400, 777);
    QCOMPARE(configuration.getDefaultDialogSize(), QSize(625, 777));
    configuration.setDefaultDialogSize(QSize(500, 300));
    QCOMPARE(configuration.getDefaultDialogSize(), QSize(500, 777));
    handler.previewer = QRect(0, 0, 400, 0);
    QCOMPARE(configuration.getDefaultDialogSize(), QSize(500, 300));
}

void FileDialogConfigurationTest::offsetCountsFromTheScreenOfTheMainWindow()
{
    FileDialogConfiguration configuration;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QPoint corner = screen->geometry().topLeft();
        QWidget window;
        const MainWindowProperty property(&window);
        window.setGeometry(QRect(corner + QPoint(50, 50), QSize(200, 100)));
        window.show();
        configuration.setTopLeftOffset(QSize(0, 0));
        QTRY_COMPARE(configuration.getTopLeftOffset(), QSize(corner.x(), corner.y()));
        configuration.setTopLeftOffset(QSize(30, 40));
        QCOMPARE(configuration.getTopLeftOffset(), QSize(corner.x() + 30, corner.y() + 40));
    }
}

void FileDialogConfigurationTest::withoutAMainWindowTheOffsetStaysAsGiven_data()
{
    QTest::addColumn<QVariant>("property");
    QTest::newRow("no property") << QVariant();
    QTest::newRow("a text") << QVariant(QStringLiteral("window"));
    QTest::newRow("an object that is no widget") << QVariant::fromValue<QObject*>(qApp);
    QTest::newRow("a null widget") << QVariant::fromValue<QWidget*>(nullptr);
}

void FileDialogConfigurationTest::withoutAMainWindowTheOffsetStaysAsGiven()
{
    QFETCH(QVariant, property);
    const MainWindowProperty set(property);
    FileDialogConfiguration configuration;
    configuration.setTopLeftOffset(QSize(30, 40));
    QCOMPARE(configuration.getTopLeftOffset(), QSize(30, 40));
}

void FileDialogConfigurationTest::withoutADesktopThereIsNoOffset()
{
    QVERIFY(!s_offsetWithoutDesktop.isValid());
}

void FileDialogConfigurationTest::copiesShareNothingButTheHandler()
{
    RecordingHandler handler;
    FileDialogConfiguration original(QStringLiteral("Key"));
    original.setEventHandler(&handler);
    original.addCustomControl(item(1, "first"));
    FileDialogConfiguration copy(original);
    original.addCustomControl(item(2, "second"));
    QCOMPARE(copy.numberOfcustomControls(), 1);
    QCOMPARE(copy.getEventHandler(), &handler);
    FileDialogConfiguration assigned;
    assigned = original;
    QCOMPARE(assigned.numberOfcustomControls(), 2);
    assigned.storeFileDialogGeometry(QRect(1, 1, 5, 5));
    QRect rect;
    QVERIFY(copy.getFileDialogGeometry(rect));
}

void FileDialogConfigurationTest::handlerDoesNothing()
{
    FileDialogEventHandler handler;
    const Callbacks callbacks;
    QVERIFY(handler.getPreviewerSize().isNull());
    handler.onSelectionChanged({QStringLiteral("a")}, callbacks);
    handler.onCheckBoxToggled(true, 1, callbacks);
    handler.onItemSelected(1, 2);
    handler.onTypeChanged(callbacks);
}

void FileDialogConfigurationTest::handlerKnowsItsConfiguration()
{
    struct Handler : FileDialogEventHandler
    {
        FileDialogConfiguration* known() const { return m_configuration; }
    };
    Handler handler;
    QVERIFY(!handler.known());
    FileDialogConfiguration configuration;
    handler.setFileDialogConfiguration(&configuration);
    QCOMPARE(handler.known(), &configuration);
    QCOMPARE(Handler(handler).known(), &configuration);
}

void FileDialogConfigurationTest::virtualOperationsKeepTheirOrder()
{
    using Testing::virtualSlot;
    // A virtual destructor takes two places.
    QCOMPARE(int(virtualSlot(&FileDialogConfiguration::setEventHandler)), 2);
    QCOMPARE(int(virtualSlot(&FileDialogConfiguration::getTopLeftOffset)), 3);
    QCOMPARE(int(virtualSlot(&FileDialogConfiguration::getFileDialogGeometry)), 4);
    QCOMPARE(int(virtualSlot(&FileDialogConfiguration::storeFileDialogGeometry)), 5);
    QCOMPARE(int(virtualSlot(&FileDialogConfiguration::getPositionForPreviewer)), 6);
    QCOMPARE(int(virtualSlot(&FileDialogConfiguration::storeTemporaryFileDialogGeometry)), 7);
    QCOMPARE(int(virtualSlot(&FileDialogEventHandler::getPreviewerSize)), 2);
    QCOMPARE(int(virtualSlot(&FileDialogEventHandler::onSelectionChanged)), 3);
    QCOMPARE(int(virtualSlot(&FileDialogEventHandler::onCheckBoxToggled)), 4);
    QCOMPARE(int(virtualSlot(&FileDialogEventHandler::onItemSelected)), 5);
    QCOMPARE(int(virtualSlot(&FileDialogEventHandler::onTypeChanged)), 6);
    QCOMPARE(int(virtualSlot(&FileDialogCallbackInterface::setControlState)), 2);
    QCOMPARE(int(virtualSlot(&FileDialogCallbackInterface::placeDialog)), 3);
    QCOMPARE(int(virtualSlot(&FileDialogCallbackInterface::getDialogGeometry)), 4);
}

ZORVANE_TEST(FileDialogConfigurationTest)
#include "FileDialogConfigurationTest.moc"
