#include "Actions/GenericMainActions.h"

#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtGui/QIcon>
#include <QtWidgets/QAction>
#include <QtWidgets/QPushButton>

#include <iterator>
#include <memory>

using namespace Zorvane;

namespace {

enum Id
{
    Fold = 3,
    Trim = 7,
    Spring = 40,
    Unknown = 99
};

class Table : public GenericMainActions
{
public:
    Table()
        : GenericMainActions(nullptr)
    {}

    using GenericMainActions::createAction;
    using GenericMainActions::mapReverse;

    QAction* add(int id, const QString& text = QStringLiteral("Text"),
                 const QKeySequence& shortcut = {}, const QString& toolTip = {})
    {
        return m_actions[id] = createAction(text, {}, toolTip, shortcut, this, {});
    }
    void enter(int id, QAction* action) { m_actions[id] = action; }
    QList<int> ids() const { return m_actions.keys(); }
};

/** Counts instead of telling the user. */
class CountingTable : public Table
{
public:
    int m_calls = 0;

protected:
    void notDefinedAction() override { ++m_calls; }
};

/** Finds every id at the same action. */
class OverridingTable : public Table
{
public:
    QAction m_only;
    QAction* action(int) const override { return const_cast<QAction*>(&m_only); }
};

QKeySequence keys(const char* text)
{
    return QKeySequence(QString::fromLatin1(text), QKeySequence::PortableText);
}

} // namespace

class GenericMainActionsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void handsOutActionsById();
    void anUnknownIdYieldsTheUndefinedAction();
    void askingRegistersNothing();
    void theUndefinedActionTellsTheUser();
    void aSubclassMayTellInItsOwnWay();
    void theSubscriptHonoursAnOverriddenLookup();

    void composesToolTips_data();
    void composesToolTips();
    void createsActionsAsAsked();
    void anActionWithoutExtrasHasQtsDefaults();
    void aSecondCombinationIsInTheToolTipToo();
    void everyKeyIsToldInItsPortableText_data();
    void everyKeyIsToldInItsPortableText();

    void changesAToolTip();
    void anEmptyToolTipChangesNothing();
    void aChangedToolTipTellsThePresentShortcut();
    void changingTheToolTipOfAnUnknownIdChangesTheUndefinedAction();
    void changingTheToolTipOfANullEntryDoesNothing();

    void connectsById();
    void disconnectsById();
    void disconnectsAllReceivers();
    void connectingAnUnknownIdLeavesANullEntry();
    void disconnectingAnUnknownIdLeavesANullEntry();

    void writesIdsIntoTheDataOfWhatIsThere();

    void installsActionsInTheOrderOfTheirIds();
    void installsOnlyActionsOfTheWindowsContext();
    void installsSomeActionsInTheOrderGiven();
    void passesOverNullEntriesWhenInstallingAll();

    void actionsDieWithTheTable();
    void deletedAction_leavesTheTable_data();
    void deletedAction_leavesTheTable();
    void deletedUndefinedAction_isReplaced();
    void hasOneSlot();
};

void GenericMainActionsTest::handsOutActionsById()
{
    Table table;
    QAction* const fold = table.add(Fold);
    QAction* const trim = table.add(Trim);
    QCOMPARE(table.action(Fold), fold);
    QCOMPARE(table[Trim], trim);
}

void GenericMainActionsTest::anUnknownIdYieldsTheUndefinedAction()
{
    Table table;
    table.add(Fold);
    QAction* const undefined = table.action(Unknown);
    QVERIFY(undefined);
    QCOMPARE(undefined->text(), QStringLiteral("???"));
    QCOMPARE(table.action(Unknown), undefined);
    QCOMPARE(table[-1], undefined);
    QCOMPARE(undefined->parent(), &table);
}

void GenericMainActionsTest::askingRegistersNothing()
{
    Table table;
    table.action(Unknown);
    QWidget window;
    table.registerApplicationActions(&window);
    QVERIFY(window.actions().isEmpty());
}

void GenericMainActionsTest::theUndefinedActionTellsTheUser()
{
    Table table;
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Undefined action called"), [](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), QStringLiteral("Undefined action called"));
        QCOMPARE(box.text(), QStringLiteral("Undefined action called"));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        box.button(QMessageBox::Ok)->click();
    });
    table[Unknown]->trigger();
    QVERIFY(modals.allMet());
}

void GenericMainActionsTest::aSubclassMayTellInItsOwnWay()
{
    CountingTable table;
    table[Unknown]->trigger();
    QCOMPARE(table.m_calls, 1);
}

void GenericMainActionsTest::theSubscriptHonoursAnOverriddenLookup()
{
    OverridingTable table;
    QCOMPARE(table[Unknown], &table.m_only);
    table.changeToolTip(Unknown, QStringLiteral("New"));
    QCOMPARE(table.m_only.toolTip(), QStringLiteral("New"));
}

void GenericMainActionsTest::composesToolTips_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* toolTip, const char* shortcut,
                        const char* expected) {
        QTest::newRow(name) << QString::fromLatin1(toolTip) << QString::fromLatin1(shortcut)
                            << QString::fromLatin1(expected);
    };
    row("with a shortcut, after four spaces", "Save Design", "Ctrl+S", "Save Design    Ctrl+S");
    row("without a shortcut as it is", "Save Design", "", "Save Design");
    row("none with a shortcut: Qt shows the text", "", "Ctrl+S", "Save");
    row("neither", "", "", "Save");
    row("keys by their portable names", "Exit", "Alt+F4", "Exit    Alt+F4");
    row("keys that parse to nothing usable", "Export", "no such key", "Export    ");
}

void GenericMainActionsTest::composesToolTips()
{
    QFETCH(QString, toolTip);
    QFETCH(QString, shortcut);
    Table table;
    const QAction* const action = table.createAction(QStringLiteral("&Save..."), {}, toolTip,
                                                     QKeySequence(shortcut), &table, {});
    QTEST(action->toolTip(), "expected");
    QCOMPARE(action->shortcut(), QKeySequence(shortcut));
}

void GenericMainActionsTest::createsActionsAsAsked()
{
    Table table;
    QObject owner;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    const QIcon icon(pixmap);
    const QAction* const action =
        table.createAction(QStringLiteral("&Fold"), icon, QStringLiteral("Fold it"), keys("F"),
                           &owner, QStringLiteral("FoldAction"));
    QCOMPARE(action->text(), QStringLiteral("&Fold"));
    QCOMPARE(action->icon().cacheKey(), icon.cacheKey());
    QCOMPARE(action->shortcut(), keys("F"));
    QCOMPARE(action->parent(), &owner);
    QCOMPARE(action->objectName(), QStringLiteral("FoldAction"));
    QVERIFY2(table.action(0)->text() == QStringLiteral("???"), "creating registers nothing");
}

void GenericMainActionsTest::anActionWithoutExtrasHasQtsDefaults()
{
    Table table;
    const QAction* const action =
        table.createAction(QStringLiteral("&Fold"), {}, {}, {}, &table, {});
    const QAction bare(QStringLiteral("&Fold"));
    QVERIFY(action->icon().isNull());
    QVERIFY(action->shortcut().isEmpty());
    QCOMPARE(action->shortcutContext(), Qt::WindowShortcut);
    QCOMPARE(action->toolTip(), bare.toolTip());
    QVERIFY(action->objectName().isEmpty());
    QVERIFY(action->isEnabled() && !action->isCheckable());
}

void GenericMainActionsTest::aSecondCombinationIsInTheToolTipToo()
{
    Table table;
    const QAction* const action = table.createAction(
        QStringLiteral("Fold"), {}, QStringLiteral("Fold"), keys("Ctrl+K, F"), &table, {});
    QCOMPARE(action->toolTip(), QStringLiteral("Fold    Ctrl+K, F"));
}

void GenericMainActionsTest::everyKeyIsToldInItsPortableText_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::newRow("alone") << 0;
    const int s_all[] = {Qt::SHIFT, Qt::CTRL, Qt::ALT, Qt::META, int(Qt::KeypadModifier)};
    for (int choice = 1; choice < 1 << std::size(s_all); ++choice) {
        int modifiers = 0;
        for (std::size_t i = 0; i < std::size(s_all); ++i)
            modifiers |= choice & (1 << i) ? s_all[i] : 0;
        QTest::addRow("%#010x", unsigned(modifiers)) << modifiers;
    }
}

void GenericMainActionsTest::everyKeyIsToldInItsPortableText()
{
    QFETCH(int, modifiers);
    QList<int> plainKeys{Qt::Key_Escape, Qt::Key_Right,  Qt::Key_F1,   Qt::Key_F24,
                         Qt::Key_PageUp, Qt::Key_Delete, Qt::Key_Back, Qt::Key_unknown};
    for (int character = 1; character <= 0x17f; ++character)
        plainKeys.append(character);

    Table table;
    for (const int key : qAsConst(plainKeys)) {
        const QKeySequence shortcut(modifiers | key);
        const QAction* const action =
            table.add(Fold, QStringLiteral("Text"), shortcut, QStringLiteral("Tip"));
        QCOMPARE(action->toolTip(),
                 QStringLiteral("Tip    ") + shortcut.toString(QKeySequence::PortableText));
    }
}

void GenericMainActionsTest::changesAToolTip()
{
    Table table;
    table.add(Fold, QStringLiteral("Fold"), keys("Shift+F"), QStringLiteral("Old"));
    table.add(Trim, QStringLiteral("Trim"));
    table.changeToolTip(Fold, QStringLiteral("New"));
    table.changeToolTip(Trim, QStringLiteral("Trim it"));
    QCOMPARE(table[Fold]->toolTip(), QStringLiteral("New    Shift+F"));
    QCOMPARE(table[Trim]->toolTip(), QStringLiteral("Trim it"));
}

void GenericMainActionsTest::anEmptyToolTipChangesNothing()
{
    Table table;
    table.add(Fold, QStringLiteral("Fold"), keys("Shift+F"), QStringLiteral("Old"));
    table.changeToolTip(Fold, {});
    QCOMPARE(table[Fold]->toolTip(), QStringLiteral("Old    Shift+F"));
}

void GenericMainActionsTest::aChangedToolTipTellsThePresentShortcut()
{
    Table table;
    table.add(Fold, QStringLiteral("Fold"), keys("Shift+F"), QStringLiteral("Old"));
    table[Fold]->setShortcut(keys("Ctrl+1"));
    table.changeToolTip(Fold, QStringLiteral("New"));
    QCOMPARE(table[Fold]->toolTip(), QStringLiteral("New    Ctrl+1"));
}

void GenericMainActionsTest::changingTheToolTipOfAnUnknownIdChangesTheUndefinedAction()
{
    Table table;
    table.changeToolTip(Unknown, QStringLiteral("Nothing here"));
    QCOMPARE(table[Unknown]->toolTip(), QStringLiteral("Nothing here"));
    QCOMPARE(table[Unknown]->text(), QStringLiteral("???"));
}

void GenericMainActionsTest::changingTheToolTipOfANullEntryDoesNothing()
{
    Table table;
    expectWarning(QStringLiteral("QObject::connect"));
    table.connect(Unknown, &table, SLOT(deleteLater()));
    table.changeToolTip(Unknown, QStringLiteral("New"));
    QVERIFY(!table.action(Unknown));
}

void GenericMainActionsTest::connectsById()
{
    Table table;
    QAction receiver;
    receiver.setCheckable(true);
    table.add(Fold);
    table.add(Trim);
    table.connect(Fold, &receiver, SLOT(toggle()));
    table[Trim]->trigger();
    QVERIFY(!receiver.isChecked());
    table[Fold]->trigger();
    QVERIFY(receiver.isChecked());
}

void GenericMainActionsTest::disconnectsById()
{
    Table table;
    QAction receiver;
    receiver.setCheckable(true);
    table.add(Fold);
    table.connect(Fold, &receiver, SLOT(toggle()));
    table.disconnect(Fold, &receiver, SLOT(toggle()));
    table[Fold]->trigger();
    QVERIFY(!receiver.isChecked());
}

void GenericMainActionsTest::disconnectsAllReceivers()
{
    Table table;
    QAction first;
    QAction second;
    first.setCheckable(true);
    second.setCheckable(true);
    table.add(Fold);
    table.connect(Fold, &first, SLOT(toggle()));
    table.connect(Fold, &second, SLOT(toggle()));
    table.disconnect(Fold, nullptr, nullptr);
    table[Fold]->trigger();
    QVERIFY(!first.isChecked() && !second.isChecked());
}

void GenericMainActionsTest::connectingAnUnknownIdLeavesANullEntry()
{
    Table table;
    QVERIFY(table.action(Unknown));
    expectWarning(QStringLiteral("QObject::connect: Cannot connect"));
    table.connect(Unknown, &table, SLOT(deleteLater()));
    QCOMPARE(table.action(Unknown), static_cast<QAction*>(nullptr));
    QVERIFY2(table.action(Unknown + 1), "others stay undefined");
}

void GenericMainActionsTest::disconnectingAnUnknownIdLeavesANullEntry()
{
    Table table;
    expectWarning(QStringLiteral("QObject::disconnect"));
    table.disconnect(Unknown, &table, SLOT(deleteLater()));
    QCOMPARE(table.action(Unknown), static_cast<QAction*>(nullptr));
}

void GenericMainActionsTest::writesIdsIntoTheDataOfWhatIsThere()
{
    Table table;
    table.add(Trim);
    table.add(Fold);
    table.mapReverse();
    table.add(Spring);
    QCOMPARE(table[Fold]->data(), QVariant(int(Fold)));
    QCOMPARE(table[Trim]->data(), QVariant(int(Trim)));
    QVERIFY(!table[Spring]->data().isValid());
    QVERIFY(!table[Unknown]->data().isValid());
}

void GenericMainActionsTest::installsActionsInTheOrderOfTheirIds()
{
    Table table;
    QAction* const spring = table.add(Spring);
    QAction* const fold = table.add(Fold);
    QAction* const trim = table.add(Trim);
    QWidget window;
    table.registerApplicationActions(&window);
    QCOMPARE(window.actions(), (QList<QAction*>{fold, trim, spring}));
}

void GenericMainActionsTest::installsOnlyActionsOfTheWindowsContext()
{
    Table table;
    QAction* const fold = table.add(Fold);
    table.add(Trim)->setShortcutContext(Qt::ApplicationShortcut);
    table.add(Spring)->setShortcutContext(Qt::WidgetShortcut);
    QWidget window;
    table.registerApplicationActions(&window);
    table.registerApplicationActions({Trim, Spring}, &window);
    QCOMPARE(window.actions(), (QList<QAction*>{fold}));
}

void GenericMainActionsTest::installsSomeActionsInTheOrderGiven()
{
    Table table;
    QAction* const fold = table.add(Fold);
    table.add(Trim);
    QAction* const spring = table.add(Spring);
    QWidget window;
    table.registerApplicationActions({Spring, Fold}, &window);
    QCOMPARE(window.actions(), (QList<QAction*>{spring, fold}));
}

void GenericMainActionsTest::passesOverNullEntriesWhenInstallingAll()
{
    Table table;
    QAction* const fold = table.add(Fold);
    expectWarning(QStringLiteral("QObject::connect"));
    table.connect(Unknown, &table, SLOT(deleteLater()));
    QWidget window;
    table.registerApplicationActions(&window);
    QCOMPARE(window.actions(), (QList<QAction*>{fold}));
}

void GenericMainActionsTest::actionsDieWithTheTable()
{
    QPointer<QAction> fold;
    QPointer<QAction> undefined;
    QWidget window;
    {
        Table table;
        fold = table.add(Fold);
        undefined = table[Unknown];
        table.registerApplicationActions(&window);
    }
    QVERIFY(!fold && !undefined);
    QVERIFY(window.actions().isEmpty());
}

void GenericMainActionsTest::deletedAction_leavesTheTable_data()
{
    QTest::addColumn<int>("owner");
    QTest::newRow("owned by the table") << 0;
    QTest::newRow("created for another owner") << 1;
    QTest::newRow("given to another owner later") << 2;
    QTest::newRow("created by the subclass itself") << 3;
}

void GenericMainActionsTest::deletedAction_leavesTheTable()
{
    QFETCH(int, owner);
    CountingTable table;
    auto window = std::make_unique<QWidget>();
    QAction* const kept = table.add(Trim);
    QAction* const deleted =
        owner == 3
            ? new QAction(&table)
            : table.createAction(QStringLiteral("Fold"), {}, {}, {},
                                 owner == 1 ? window.get() : static_cast<QObject*>(&table), {});
    table.enter(Fold, deleted);
    if (owner == 2)
        deleted->setParent(window.get());
    if (owner == 1 || owner == 2)
        window.reset();
    else
        delete deleted;

    QVERIFY(!table.ids().contains(Fold));
    QCOMPARE(table.action(Fold), table.action(Unknown));
    table.action(Fold)->trigger();
    QCOMPARE(table.m_calls, 1);
    QWidget installed;
    table.registerApplicationActions(&installed);
    QCOMPARE(installed.actions(), {kept});
    table.mapReverse();
    QCOMPARE(kept->data().toInt(), int(Trim));
}

void GenericMainActionsTest::deletedUndefinedAction_isReplaced()
{
    CountingTable table;
    delete table.action(Unknown);
    QCOMPARE(table.action(Unknown)->text(), QStringLiteral("???"));
    table.action(Unknown)->trigger();
    QCOMPARE(table.m_calls, 1);
}

void GenericMainActionsTest::hasOneSlot()
{
    const QMetaObject& meta = GenericMainActions::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("notDefinedAction()"));
    QCOMPARE(slot.access(), QMetaMethod::Protected);
}

ZORVANE_TEST(GenericMainActionsTest)
#include "GenericMainActionsTest.moc"
