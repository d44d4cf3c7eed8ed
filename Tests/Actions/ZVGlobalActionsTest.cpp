#include "Actions/ZVGlobalActions.h"

#include "Host/ApplicationWidgets/SvgIcon.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QIcon>
#include <QtWidgets/QAction>

using namespace Zorvane;

class ZVGlobalActionsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneTable();
    void helpIsAsTheSuiteShowsIt();
    void twoCommandsAreReachedByKeyboardOnly();
    void onlyTheDebugActionCarriesItsId();
    void allCanBeInstalled();
    void valuesAreAvailableByName();
};

void ZVGlobalActionsTest::thereIsOneTable()
{
    ZVGlobalActions* const table = ZVGlobalActions::instance();
    QVERIFY(table);
    QCOMPARE(ZVGlobalActions::instance(), table);
    QVERIFY(!table->parent());
    QCOMPARE(table->action(99)->text(), QStringLiteral("???"));
}

void ZVGlobalActionsTest::helpIsAsTheSuiteShowsIt()
{
    const QAction* const help = ZVGlobalActions::instance()->action(ZVGlobalActions::HelpContents);
    const QKeySequence keys(QKeySequence::HelpContents);
    QCOMPARE(help->objectName(), QStringLiteral("HelpAction"));
    QCOMPARE(help->text(), QStringLiteral("HelpContents"));
    QCOMPARE(help->shortcut(), keys);
    QCOMPARE(help->toolTip(), QStringLiteral("Open Help File    ") + keys.toString());
    QCOMPARE(help->icon().pixmap(16).toImage(),
             createSvgIcon(QStringLiteral(":/Icons/Application/help_16.svg")).pixmap(16).toImage());
    QVERIFY(!help->icon().pixmap(16).isNull());
    QVERIFY(help->isEnabled());
}

void ZVGlobalActionsTest::twoCommandsAreReachedByKeyboardOnly()
{
    ZVGlobalActions& table = *ZVGlobalActions::instance();
    for (const int id :
         {ZVGlobalActions::HelpContentsDebug, ZVGlobalActions::CustomerTicketSystem}) {
        QVERIFY(table[id]->text().isEmpty());
        QVERIFY(table[id]->objectName().isEmpty());
        QVERIFY(table[id]->icon().isNull());
        QCOMPARE(table[id]->parent(), &table);
    }
    QCOMPARE(table[ZVGlobalActions::HelpContentsDebug]->shortcut(),
             QKeySequence(int(Qt::SHIFT) + Qt::Key_F1));
    QCOMPARE(table[ZVGlobalActions::CustomerTicketSystem]->shortcut(), QKeySequence(Qt::Key_F8));
}

void ZVGlobalActionsTest::onlyTheDebugActionCarriesItsId()
{
    const ZVGlobalActions& table = *ZVGlobalActions::instance();
    QCOMPARE(table[ZVGlobalActions::HelpContentsDebug]->data(),
             QVariant(int(ZVGlobalActions::HelpContentsDebug)));
    QVERIFY(!table[ZVGlobalActions::HelpContents]->data().isValid());
    QVERIFY(!table[ZVGlobalActions::CustomerTicketSystem]->data().isValid());
}

void ZVGlobalActionsTest::allCanBeInstalled()
{
    ZVGlobalActions& table = *ZVGlobalActions::instance();
    QWidget window;
    table.registerApplicationActions(&window);
    QCOMPARE(window.actions(), (QList<QAction*>{table[ZVGlobalActions::HelpContents],
                                                table[ZVGlobalActions::HelpContentsDebug],
                                                table[ZVGlobalActions::CustomerTicketSystem]}));
}

void ZVGlobalActionsTest::valuesAreAvailableByName()
{
    const QMetaEnum values = QMetaEnum::fromType<ZVGlobalActions::Actions>();
    QCOMPARE(values.keyCount(), 3);
    QCOMPARE(values.valueToKey(0), "HelpContents");
    QCOMPARE(values.valueToKey(1), "HelpContentsDebug");
    QCOMPARE(values.valueToKey(2), "CustomerTicketSystem");
    const QMetaObject& meta = ZVGlobalActions::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

ZORVANE_TEST(ZVGlobalActionsTest)
#include "ZVGlobalActionsTest.moc"
