#include "Workbench/DialogPanel/DialogPanel.h"

#include "FileDialogs/FileDialog.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/Support/TestCase.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/DialogPanel/ExampleFiles.h"
#include "Workbench/Window/MainWindow.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <memory>
#include <vector>

namespace Zorvane::Workbench {

using Variant = DialogVariant;

namespace {

QAbstractButton* buttonOf(const QWidget& window, const char* text)
{
    for (auto* button : window.findChildren<QAbstractButton*>())
        if (button->text().remove(QLatin1Char('&')) == QLatin1String(text))
            return button;
    return nullptr;
}

} // namespace

class DialogPanelTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void listsEveryVariant();
    void enterOpensWhatIsChosen();
    void aDoubleClickOpens();
    void tellsWhileTheDialogIsOpen();
    void resultsStandOneBelowTheOther();
    void resultsAreCopied();
    void resultsAreCleared();
    void onlyOneOpensAtATime();
    void escapeClosesAndDeletes();
    void escapeWaitsForTheDialog();
    void mayGoWhileADialogIsOpen();
    void everyControlHasANameAndIsReachedByTab();
    void aKeyLeadsToEachPart_data();
    void aKeyLeadsToEachPart();
    void theMenuOpensOnePanel();

private:
    void showPanel();
    QString native(const char* name) const
    {
        return QDir::toNativeSeparators(m_panel->files().file(QLatin1String(name)));
    }

    QPointer<DialogPanel> m_panel;
    Testing::DialogScript m_script;
    const NativeFileDialogReplacement m_replacement{
        [this] { return std::make_unique<Testing::ScriptedDriver>(m_script); }};
};

void DialogPanelTest::init()
{
    QSettings().clear();
    m_script = Testing::DialogScript();
    m_panel = new DialogPanel;
}

void DialogPanelTest::cleanup()
{
    delete m_panel;
    TestCase::cleanup();
}

void DialogPanelTest::showPanel()
{
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel, Zorvane::Testing::patience));
}

void DialogPanelTest::listsEveryVariant()
{
    const auto* list = m_panel->findChild<QListWidget*>();
    const std::vector<DialogRun::Variant> variants = DialogRun::variants();
    QCOMPARE(list->count(), int(variants.size()));
    for (int row = 0; row < list->count(); ++row)
        QCOMPARE(list->item(row)->text(), variants[std::size_t(row)].title);
    QCOMPARE(m_panel->findChild<QComboBox*>()->count(), 4);
}

void DialogPanelTest::enterOpensWhatIsChosen()
{
    showPanel();
    m_panel->choose(Variant::SavePreselectedType);
    m_script.answer(QStringList(native("forces.csv")));
    QTest::keyClick(m_panel->findChild<QListWidget*>(), Qt::Key_Return);
    QCOMPARE(int(m_script.requests.size()), 1);
    QCOMPARE(m_panel->outcome().files, QStringList(native("forces.csv")));
    QCOMPARE(m_script.last().owner.data(), static_cast<QWidget*>(m_panel));
    QVERIFY(m_panel->isEnabled());
}

void DialogPanelTest::aDoubleClickOpens()
{
    showPanel();
    auto* list = m_panel->findChild<QListWidget*>();
    const QPoint place = list->visualItemRect(list->item(3)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(int(m_script.requests.size()), 1);
    QVERIFY((m_script.last().purpose == FileDialogPurpose::OpenFiles));
}

void DialogPanelTest::tellsWhileTheDialogIsOpen()
{
    QString text;
    QString name;
    m_script.whileOpen = [&](const FileDialogRequest& request) {
        text = m_panel->resultText();
        QVERIFY(!m_panel->isEnabled());
        request.configuration->getEventHandler()->onItemSelected(3, 0);
        name = m_panel->outcome().events.last();
    };
    m_panel->choose(Variant::OpenControls);
    m_panel->openChosen();
    QVERIFY(text.contains(QStringLiteral("[1] open(\"Open with controls\"")));
    QVERIFY(!text.contains(QStringLiteral("Nothing chosen")));
    QCOMPARE(name, QStringLiteral("[1] onItemSelected(3, 0)"));
    QVERIFY(m_panel->resultText().contains(QStringLiteral("Nothing chosen")));
    QVERIFY(m_panel->resultText().contains(QStringLiteral("3 Unit: Millimetres")));
    QVERIFY(m_panel->resultText().endsWith(QStringLiteral("Dialogs open: at most 1, now 0")));
}

void DialogPanelTest::resultsStandOneBelowTheOther()
{
    m_panel->choose(Variant::OpenOne);
    m_panel->openChosen();
    const QString first = m_panel->resultText();
    QVERIFY(first.startsWith(QStringLiteral("Open one file\n")));
    m_panel->choose(Variant::Save);
    m_panel->openChosen();
    QVERIFY(m_panel->resultText().startsWith(first + QStringLiteral("\n\nSave\n")));
}

void DialogPanelTest::resultsAreCopied()
{
    m_panel->choose(Variant::OpenSeveral);
    m_script.answer({native("notes.txt"), native("block.stl")});
    m_panel->openChosen();
    buttonOf(*m_panel, "Copy")->click();
    const QString copied = QGuiApplication::clipboard()->text();
    QCOMPARE(copied, m_panel->resultText());
    QVERIFY(copied.contains(QStringLiteral("Chosen: 2\n    %1\n    %2\n")
                                .arg(native("notes.txt"), native("block.stl"))));
}

void DialogPanelTest::resultsAreCleared()
{
    m_panel->openChosen();
    buttonOf(*m_panel, "Clear")->click();
    QCOMPARE(m_panel->resultText(), QString());
    m_panel->openChosen();
    QVERIFY(m_panel->resultText().startsWith(QStringLiteral("Open one file\n")));
}

void DialogPanelTest::onlyOneOpensAtATime()
{
    m_script.whileOpen = [this](const FileDialogRequest&) { m_panel->openChosen(); };
    m_panel->openChosen();
    QCOMPARE(int(m_script.requests.size()), 1);
    m_panel->openChosen();
    QCOMPARE(int(m_script.requests.size()), 2);
}

void DialogPanelTest::escapeClosesAndDeletes()
{
    showPanel();
    const QString folder = m_panel->files().folder();
    QTest::keyClick(m_panel->focusWidget(), Qt::Key_Escape);
    QTRY_VERIFY(!m_panel);
    QVERIFY(!QFileInfo::exists(folder));
}

void DialogPanelTest::escapeWaitsForTheDialog()
{
    m_panel->show();
    m_script.whileOpen = [this](const FileDialogRequest&) { m_panel->reject(); };
    m_panel->openChosen();
    QVERIFY(m_panel && m_panel->isVisible());
    QVERIFY(m_panel->outcome().isFinished);
}

void DialogPanelTest::mayGoWhileADialogIsOpen()
{
    const QString folder = m_panel->files().folder();
    bool areFilesThere = false;
    m_script.whileOpen = [&](const FileDialogRequest&) {
        delete m_panel;
        areFilesThere = QFileInfo::exists(folder);
    };
    m_panel->openChosen();
    QVERIFY(areFilesThere);
    QVERIFY(!QFileInfo::exists(folder));
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void DialogPanelTest::everyControlHasANameAndIsReachedByTab()
{
    showPanel();
    std::vector<QWidget*> reached;
    while (std::find(reached.begin(), reached.end(), QApplication::focusWidget()) ==
           reached.end()) {
        QWidget* now = QApplication::focusWidget();
        QVERIFY2(!QAccessible::queryAccessibleInterface(now)->text(QAccessible::Name).isEmpty(),
                 now->metaObject()->className());
        reached.push_back(now);
        QTest::keyClick(now, Qt::Key_Tab);
    }
    // As one reads: what to open, who shows it, open it, and what came out.
    const std::vector<QWidget*> wanted{
        m_panel->findChild<QListWidget*>(), m_panel->findChild<QComboBox*>(),
        buttonOf(*m_panel, "Open"),         m_panel->findChild<QPlainTextEdit*>(),
        buttonOf(*m_panel, "Copy"),         buttonOf(*m_panel, "Clear"),
        buttonOf(*m_panel, "Close")};
    QVERIFY(reached == wanted);
}

void DialogPanelTest::aKeyLeadsToEachPart_data()
{
    QTest::addColumn<QString>("label");
    for (const char* label : {"&Variants:", "&Shown by:", "&Results:", "&Open", "&Copy", "C&lear"})
        QTest::newRow(label) << QString::fromLatin1(label);
}

void DialogPanelTest::aKeyLeadsToEachPart()
{
    QFETCH(QString, label);
    int found = 0;
    for (const QLabel* one : m_panel->findChildren<QLabel*>())
        found += one->text() == label && one->buddy() ? 1 : 0;
    for (const QAbstractButton* one : m_panel->findChildren<QAbstractButton*>())
        found += one->text() == label ? 1 : 0;
    QCOMPARE(found, 1);
}

void DialogPanelTest::theMenuOpensOnePanel()
{
    MainWindow window;
    QAction* const action = window.commands()[WorkbenchActions::FileDialogs];
    QVERIFY(!action->toolTip().isEmpty());
    action->trigger();
    action->trigger();
    const QList<DialogPanel*> panels = window.findChildren<DialogPanel*>();
    QCOMPARE(panels.size(), 1);
    QVERIFY(panels.first()->isVisible());
    QVERIFY(!panels.first()->isModal());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DialogPanelTest;
ZORVANE_TEST(DialogPanelTest)
#include "DialogPanelTest.moc"
