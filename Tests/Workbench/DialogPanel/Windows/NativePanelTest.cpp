#include "Workbench/DialogPanel/DialogPanel.h"

#include "FileDialogs/FileDialog.h"
#include "Tests/Support/Windows/DialogPilot.h"
#include "Tests/Workbench/DialogPanel/DialogVariantRows.h"
#include "Workbench/DialogPanel/ExampleFiles.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QSettings>

#include <optional>

namespace Zorvane::Workbench {

using Testing::DialogPilot;
using Testing::DialogWindow;
using Variant = DialogVariant;

/** The panel's variants by the dialogs of the system, as somebody looks at them. */
class NativePanelTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyVariantIsCancelled_data();
    void everyVariantIsCancelled();
    void whatIsChosenComesOut_data();
    void whatIsChosenComesOut();
    void controlsAreTold();
    void aDialogInsideADialogCounts();
    void whatAHandlerThrowsComesOut();

private:
    QString native(const char* name) const
    {
        return QDir::toNativeSeparators(m_panel->files().file(QLatin1String(name)));
    }
    const DialogOutcome& open(Variant variant)
    {
        m_panel->choose(variant);
        m_panel->openChosen();
        return m_panel->outcome();
    }

    QPointer<DialogPanel> m_panel;
};

void NativePanelTest::init()
{
    QSettings().clear();
    m_panel = new DialogPanel;
    m_panel->show();
}

void NativePanelTest::cleanup()
{
    QVERIFY(DialogWindow::all().empty());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    delete m_panel;
    TestCase::cleanup();
}

void NativePanelTest::everyVariantIsCancelled_data()
{
    QTest::addColumn<Variant>("variant");
    for (const DialogRun::Variant& variant : DialogRun::variants())
        if (variant.id != Variant::Folder && variant.id != Variant::ProposedFolder)
            QTest::newRow(qPrintable(variant.title)) << variant.id;
}

void NativePanelTest::everyVariantIsCancelled()
{
    QFETCH(Variant, variant);
    QString title;
    DialogPilot pilot;
    pilot.then([&title](const DialogWindow& dialog) {
        title = dialog.title();
        dialog.cancel();
    });
    const DialogOutcome& outcome = open(variant);
    QVERIFY(pilot.isDone());
    QCOMPARE(title, outcome.title);
    QVERIFY(outcome.files.isEmpty());
    QCOMPARE(outcome.mostOpen, 1);
    QCOMPARE(outcome.openAfterwards, 0);
    QVERIFY2(outcome.text().contains(QStringLiteral("-> cancelled 0x800704c7")),
             qPrintable(outcome.text()));
    QVERIFY(!outcome.text().contains(QStringLiteral("QtFileDialog")));
    QVERIFY(m_panel->isEnabled());
}

void NativePanelTest::whatIsChosenComesOut_data()
{
    QTest::addColumn<Variant>("variant");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("names");
    const QString block = QStringLiteral("block.stl");
    const QString plate = QStringLiteral("plate.stl");
    const QString both = QStringLiteral("\"plate.stl\" \"block.stl\"");
    QTest::newRow("one") << Variant::OpenOne << block << QStringList{block};
    QTest::newRow("several") << Variant::OpenSeveral << both << QStringList{plate, block};
    QTest::newRow("with controls") << Variant::OpenControls << block << QStringList{block};
    QTest::newRow("with preview") << Variant::PreviewOne << plate << QStringList{plate};
    QTest::newRow("nested") << Variant::Nested << block << QStringList{block};
    QTest::newRow("saved") << Variant::SavePreselectedType << QStringLiteral("new.txt")
                           << QStringList{QStringLiteral("new.txt")};
}

void NativePanelTest::whatIsChosenComesOut()
{
    QFETCH(Variant, variant);
    QFETCH(QString, typed);
    QFETCH(QStringList, names);
    DialogPilot pilot;
    pilot.then([&typed](const DialogWindow& dialog) { dialog.typeFileName(typed); });
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    const DialogOutcome& outcome = open(variant);
    QVERIFY(pilot.isDone());
    QCOMPARE(outcome.files.size(), names.size());
    for (int place = 0; place < names.size(); ++place)
        QVERIFY2(outcome.files.at(place).startsWith(
                     QDir::toNativeSeparators(m_panel->files().file(names.at(place)))),
                 qPrintable(outcome.files.at(place)));
    QVERIFY(m_panel->resultText().contains(QStringLiteral("-> accepted 0x00000000")));
}

void NativePanelTest::controlsAreTold()
{
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) {
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Include &folders")));
    });
    pilot.waitUntil("the check box", [this](const DialogWindow&) {
        return m_panel->resultText().contains(QStringLiteral("onCheckBoxToggled(true, 1)"));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.chooseItem(dialog.comboBoxes().at(0), 0); });
    pilot.waitUntil("the combo box", [this](const DialogWindow&) {
        return m_panel->resultText().contains(QStringLiteral("onItemSelected("));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    const DialogOutcome& outcome = open(Variant::OpenControls);
    QVERIFY(pilot.isDone());
    QVERIFY(outcome.text().contains(QStringLiteral("1 Include folders: on")));
    QCOMPARE(outcome.events.filter(QStringLiteral("onTypeChanged()")).size(), 1);
}

void NativePanelTest::aDialogInsideADialogCounts()
{
    std::optional<DialogPilot> inner;
    DialogPilot pilot;
    pilot.then([&inner](const DialogWindow& dialog) {
        inner.emplace();
        inner->then([](const DialogWindow& box) { box.typeFileName(QStringLiteral("plate.stl")); });
        inner->then([](const DialogWindow& box) { box.accept(); });
        dialog.click(dialog.findControl(L"Button", QStringLiteral("Open &another dialog")));
    });
    pilot.waitUntil("the end of the inner dialog", [this](const DialogWindow&) {
        return m_panel->resultText().contains(QStringLiteral("2: -> "));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.cancel(); });
    const DialogOutcome& outcome = open(Variant::Nested);
    QVERIFY(pilot.isDone() && inner && inner->isDone());
    QVERIFY2(outcome.events.contains(QStringLiteral("[1] 2: -> \"%1\"").arg(native("plate.stl"))),
             qPrintable(outcome.text()));
    QCOMPARE(outcome.mostOpen, 2);
    QVERIFY(outcome.files.isEmpty());
}

void NativePanelTest::whatAHandlerThrowsComesOut()
{
    DialogPilot pilot;
    pilot.then([](const DialogWindow& dialog) {
        dialog.click(dialog.findControl(L"Button", QStringLiteral("&Fail")));
    });
    const DialogOutcome& outcome = open(Variant::Throwing);
    QVERIFY(pilot.isDone());
    QCOMPARE(outcome.exception, QStringLiteral("the handler has failed"));
    QVERIFY(m_panel->isEnabled());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::NativePanelTest;
ZORVANE_TEST(NativePanelTest)
#include "NativePanelTest.moc"
