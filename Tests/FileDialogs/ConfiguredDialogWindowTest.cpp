#include "Tests/FileDialogs/ConfiguredDialogTestCase.h"

#include <QtGui/QScreen>
#include <QtGui/QWindow>

using namespace Zorvane;
using namespace Zorvane::Testing;

class ConfiguredDialogWindowTest : public ConfiguredDialogTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensWhereItWasLeft();
    void withoutStoredGeometryOpensByOffsetAndSize();
    void storedOnAScreenThatIsGone();
    void frameDoesNotGrow();
    void movedDialogIsRecordedBeforeItCloses();
    void handlerPlacesTheDialog();
    void placingByNothingMovesNothing();
    void maximizedDialogIsRestoredAndPlaced();
    void dialogGeometryIsTheOuterOne();
    void ownerIsBlocked();
    void windowWithoutParentStaysUsable();
    void destroyingTheOwnerCancels();
    void closingTheOwnersWindowCancels();
    void aSecondDialogOpensFromInsideTheFirst();
};

void ConfiguredDialogWindowTest::opensWhereItWasLeft()
{
    const QRect stored(40, 50, 610, 500);
    m_configuration->storeFileDialogGeometry(stored);
    open([&stored](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), stored);
        dialog.move(90, 80);
        QTRY_COMPARE(dialog.frameGeometry().topLeft(), QPoint(90, 80));
        dialog.reject();
    });
    QRect left;
    QVERIFY(m_configuration->getFileDialogGeometry(left));
    QCOMPARE(left, QRect(90, 80, 610, 500));
}

void ConfiguredDialogWindowTest::withoutStoredGeometryOpensByOffsetAndSize()
{
    m_configuration->setTopLeftOffset(QSize(30, 20));
    m_configuration->setDefaultDialogSize(QSize(640, 520));
    open([](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(30, 20, 640, 520));
        dialog.reject();
    });
}

void ConfiguredDialogWindowTest::storedOnAScreenThatIsGone()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    m_configuration->storeFileDialogGeometry(QRect(5000, 4000, 600, 550));
    open([&screen](QFileDialog& dialog) {
        QTRY_VERIFY2(screen.contains(dialog.frameGeometry()), "the dialog stays out of sight");
        dialog.reject();
    });
}

void ConfiguredDialogWindowTest::frameDoesNotGrow()
{
    const QRect stored(40, 50, 610, 500);
    m_configuration->storeFileDialogGeometry(stored);
    for (int i = 0; i < 3; ++i) {
        open([&stored](QFileDialog& dialog) {
            QTRY_COMPARE(dialog.frameGeometry(), stored);
            dialog.reject();
        });
    }
    QRect left;
    QVERIFY(m_configuration->getFileDialogGeometry(left));
    QCOMPARE(left, stored);
}

void ConfiguredDialogWindowTest::movedDialogIsRecordedBeforeItCloses()
{
    m_configuration->storeFileDialogGeometry(QRect(40, 50, 610, 500));
    open([this](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(40, 50, 610, 500));
        // The window manager may still be about to place the window.
        const auto isMovedAndRecorded = [&dialog, this] {
            dialog.move(70, 60);
            QRect recorded;
            return m_configuration->getFileDialogGeometry(recorded) &&
                   recorded == QRect(70, 60, 610, 500);
        };
        QTRY_VERIFY(isMovedAndRecorded());
        dialog.reject();
    });
}

void ConfiguredDialogWindowTest::handlerPlacesTheDialog()
{
    FileDialogConfiguration other(QStringLiteral("Other"));
    other.storeFileDialogGeometry(QRect(11, 22, 633, 504));
    m_handler->onType = [&other](const FileDialogCallbackInterface& callbacks) {
        callbacks.placeDialog(&other);
    };
    open([](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(11, 22, 633, 504));
        dialog.reject();
    });
}

void ConfiguredDialogWindowTest::placingByNothingMovesNothing()
{
    m_configuration->storeFileDialogGeometry(QRect(40, 50, 610, 500));
    m_handler->onType = [](const FileDialogCallbackInterface& callbacks) {
        callbacks.placeDialog(nullptr);
    };
    open([this](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(40, 50, 610, 500));
        QVERIFY(m_handler->events.contains(QStringLiteral("type")));
        dialog.reject();
    });
}

void ConfiguredDialogWindowTest::maximizedDialogIsRestoredAndPlaced()
{
    m_configuration->storeFileDialogGeometry(QRect(40, 50, 610, 500));
    m_configuration->addCustomControl(checkBox(1, "Place"));
    FileDialogConfiguration other(QStringLiteral("Other"));
    other.storeFileDialogGeometry(QRect(11, 22, 633, 504));
    m_handler->onToggle = [&other](bool, const FileDialogCallbackInterface& callbacks) {
        callbacks.placeDialog(&other);
    };
    open([](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(40, 50, 610, 500));
        dialog.showMaximized();
        QTRY_VERIFY(dialog.frameGeometry().width() > 633);
        custom<QCheckBox>(dialog, "Place")->click();
        QTRY_COMPARE(dialog.frameGeometry(), QRect(11, 22, 633, 504));
        // The widget takes any new size for the end of its being maximized; the window knows.
        QCOMPARE(dialog.windowHandle()->windowState(), Qt::WindowNoState);
        QTRY_COMPARE(dialog.windowHandle()->frameGeometry(), QRect(11, 22, 633, 504));
        dialog.reject();
    });
}

void ConfiguredDialogWindowTest::dialogGeometryIsTheOuterOne()
{
    m_configuration->addCustomControl(checkBox(1, "Preview"));
    QRect told;
    m_handler->onToggle = [&told](bool, const FileDialogCallbackInterface& callbacks) {
        told = callbacks.getDialogGeometry();
    };
    open([&told](QFileDialog& dialog) {
        custom<QCheckBox>(dialog, "Preview")->click();
        QCOMPARE(told, dialog.frameGeometry());
        dialog.reject();
    });
    QVERIFY(told.isValid());
}

void ConfiguredDialogWindowTest::ownerIsBlocked()
{
    QWidget window;
    QWidget panel(&window);
    m_owner = &panel;
    open([&](QFileDialog& dialog) {
        QVERIFY(dialog.isEnabled());
        QCOMPARE(dialog.parentWidget(), &panel);
        QVERIFY(!panel.isEnabled());
        QVERIFY(!window.isEnabled());
        dialog.reject();
    });
    QVERIFY(panel.isEnabled());
    QVERIFY(window.isEnabled());
}

void ConfiguredDialogWindowTest::windowWithoutParentStaysUsable()
{
    QWidget window;
    QPushButton preview(QStringLiteral("Turn"));
    window.show();
    preview.show();
    QVERIFY(QTest::qWaitForWindowExposed(&preview, Zorvane::Testing::patience));
    m_owner = &window;
    int clicks = 0;
    connect(&preview, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    open([&](QFileDialog& dialog) {
        QTest::mouseClick(preview.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QTRY_COMPARE(clicks, 1);
        dialog.reject();
    });
}

void ConfiguredDialogWindowTest::destroyingTheOwnerCancels()
{
    m_owner = new QWidget;
    m_owner->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_owner, Zorvane::Testing::patience));
    QCOMPARE(open([this](QFileDialog&) { delete m_owner; }), QString());
    QVERIFY(!m_owner);
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Import to ''"));
}

void ConfiguredDialogWindowTest::closingTheOwnersWindowCancels()
{
    QWidget window;
    auto* panel = new QWidget(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, Zorvane::Testing::patience));
    m_owner = panel;
    QCOMPARE(open([&window](QFileDialog&) { window.close(); }), QString());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    QVERIFY(window.isEnabled());
    QVERIFY(panel->isEnabled());
}

void ConfiguredDialogWindowTest::aSecondDialogOpensFromInsideTheFirst()
{
    FileDialogConfiguration second(QStringLiteral("Second"));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("first"), [&](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QCOMPARE(FileDialog::getOpenFileName(QStringLiteral("Second"), meshFilter, &m_provider,
                                             meshScope, &second, &dialog),
                 path(QStringLiteral("a.stl")));
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QVERIFY(dialog.isEnabled());
        dialog.reject();
    });
    modals.expectDialog<QFileDialog>(QStringLiteral("second"), [](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 2);
        nameEdit(dialog)->setText(QStringLiteral("a.stl"));
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    QCOMPARE(FileDialog::getOpenFileName(meshCaption, meshFilter, &m_provider, meshScope,
                                         m_configuration.get()),
             QString());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

ZORVANE_TEST(ConfiguredDialogWindowTest)
#include "ConfiguredDialogWindowTest.moc"
