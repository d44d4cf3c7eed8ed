#include "Actions/ZVMainActions.h"

#include "Host/ApplicationWidgets/SvgIcon.h"
#include "Host/BuildInformation/BuildInformation.h"
#include "Host/Configuration/VanTrelConfiguration.h"
#include "Host/Resources/IconPathProvider.h"
#include "Host/Widgets/ZVExclusiveActionGroup.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QFile>
#include <QtCore/QMetaEnum>
#include <QtCore/QPointer>
#include <QtCore/QTranslator>
#include <QtGui/QIcon>
#include <QtWidgets/QAction>
#include <QtWidgets/QActionGroup>

#include <set>

using namespace Zorvane;

namespace {

constexpr int s_rows = 122;
const QString s_file = QStringLiteral(":/expectations/main-actions.tsv");

/** The rows of the expectations by column title. */
using Row = QMap<QString, QString>;

QList<Row> expectedRows()
{
    QFile file(s_file);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines.removeAll(QString());
    const QStringList titles = lines.takeFirst().split(QLatin1Char('\t'));
    QList<Row> rows;
    for (const QString& line : qAsConst(lines)) {
        const QStringList cells = line.split(QLatin1Char('\t'));
        Row row;
        for (int i = 0; i < titles.size(); ++i)
            row[titles[i]] = cells.value(i);
        rows.append(row);
    }
    return rows;
}

/** The table's actions in the order of their creation, without the undefined one. */
QList<QAction*> createdActions()
{
    auto actions =
        ZVMainActions::getInstance()->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    actions.removeFirst();
    return actions;
}

QKeySequence expectedShortcut(const QString& cell)
{
    const QString prefix = QStringLiteral("QKeySequence::");
    if (!cell.startsWith(prefix))
        return QKeySequence(cell, QKeySequence::PortableText);
    const int key = QMetaEnum::fromType<QKeySequence::StandardKey>().keyToValue(
        cell.mid(prefix.size()).toLatin1().constData());
    return QKeySequence(QKeySequence::StandardKey(key));
}

QString expectedToolTip(QString cell, const QKeySequence& shortcut)
{
    const QString suffix =
        shortcut.isEmpty() ? QString()
                           : QStringLiteral("    ") + shortcut.toString(QKeySequence::PortableText);
    return cell.replace(QStringLiteral("    {}"), suffix);
}

QIcon expectedIcon(const QString& cell)
{
    if (cell.isEmpty())
        return {};
    const auto provider = Resources::getIconPathProvider();
    if (cell == QStringLiteral("svg overview of the provider"))
        return createSvgIcon(provider->getOverviewIconPath());
    if (cell == QStringLiteral("two-size product coordinates of the provider"))
        return createTwoSizeSvgIcon(provider->getProductCoordinatesIconPath());
    const QString path = cell.section(QLatin1Char(' '), 1);
    return cell.startsWith(QStringLiteral("svg ")) ? createSvgIcon(path)
                                                   : createTwoSizeSvgIcon(path);
}

QImage picture(const QIcon& icon, int size)
{
    return icon.pixmap(size, size).toImage();
}

bool isBlank(const QImage& image)
{
    QImage empty(image.size(), image.format());
    empty.fill(Qt::transparent);
    return image == empty;
}

QString groupName(const QAction* action)
{
    ZVMainActions* const table = ZVMainActions::getInstance();
    const QActionGroup* const group = action->actionGroup();
    if (!group)
        return {};
    if (group == table->getViewReferenceCoordSysGroup())
        return QStringLiteral("coordinates");
    if (group == table->getViewReferenceStationVisibilityGroup())
        return QStringLiteral("stations");
    return group->objectName();
}

QAction* actionNamed(const char* name)
{
    return ZVMainActions::getInstance()->findChild<QAction*>(QString::fromLatin1(name));
}

class OwnIcons : public Resources::IconPathProvider
{
public:
    QString getOverviewIconPath() const override
    {
        return QStringLiteral(":/Icons/Shared/add_16.svg");
    }
    QString getProductCoordinatesIconPath() const override
    {
        return QStringLiteral(":/Icons/Ribbon/strip_view");
    }
};

/** Turns every text around, and remembers in which context it was asked for. */
class MirrorTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (qstrcmp(context, "Zorvane::ZVMainActions") != 0)
            return {};
        m_asked.insert(QString::fromUtf8(source));
        const bool isShortcut = qstrcmp(source, "Ctrl+T") == 0;
        return isShortcut ? QStringLiteral("Alt+9")
                          : QStringLiteral("<") + QString::fromUtf8(source);
    }
    mutable std::set<QString> m_asked;
};

} // namespace

class ZVMainActionsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void holdsEveryRowOfTheTable_data();
    void holdsEveryRowOfTheTable();
    void holdsNothingElse();

    void thereIsNoTableBeforeItIsCreated();
    void creatingTwiceKeepsTheFirstTable();
    void aReleasedTableIsGone();
    void aNewTableHasFreshActions();

    void valuesAreAvailableByName();
    void placeholdersHaveNoAction();
    void asksForTheStateOfAnAction();
    void disablesActions();
    void installsAllButNothingOfOtherContexts();

    void windowLayoutsExcludeOneAnother();
    void exclusiveGroupsGoByValue();
    void textsOfCoordinatesFollowTheProduct_data();
    void textsOfCoordinatesFollowTheProduct();
    void textsOfCoordinatesAreAskedForAtCreation();
    void exportMayBeRestricted_data();
    void exportMayBeRestricted();
    void iconsOfTheProviderAreUsed();
    void textsAndShortcutsAreTranslated();
    void deletedGroup_isNull();
    void noActionCarriesItsId();
};

void ZVMainActionsTest::init()
{
    ZVMainActions::createInstance();
}

void ZVMainActionsTest::cleanup()
{
    ZVMainActions::releaseInstance();
    BuildInformation::setProductType(0);
    VanTrelConfiguration::registerInstance(nullptr);
    Resources::registerIconPathProvider(nullptr);
    TestCase::cleanup();
}

void ZVMainActionsTest::holdsEveryRowOfTheTable_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<Row>("row");
    const QList<Row> rows = expectedRows();
    QCOMPARE(rows.size(), s_rows);
    for (int i = 0; i < rows.size(); ++i)
        QTest::newRow(qPrintable(rows[i][QStringLiteral("objectName")])) << i << rows[i];
}

void ZVMainActionsTest::holdsEveryRowOfTheTable()
{
    QFETCH(int, place);
    QFETCH(Row, row);
    const auto cell = [&row](const char* title) { return row[QString::fromLatin1(title)]; };
    const auto yesOrNo = [](bool yes) {
        return yes ? QStringLiteral("yes") : QStringLiteral("no");
    };
    const QAction* const action = createdActions().value(place);
    QVERIFY(action);
    QCOMPARE(action->objectName(), cell("objectName"));
    QCOMPARE(action->text(), cell("text"));
    const QKeySequence shortcut = expectedShortcut(cell("shortcut"));
    QCOMPARE(action->shortcut(), shortcut);
    QCOMPARE(action->shortcuts().size(), shortcut.isEmpty() ? 0 : 1);
    const QAction bare(cell("text"));
    const QString toolTip = cell("toolTip");
    QCOMPARE(action->toolTip(),
             toolTip.isEmpty() ? bare.toolTip() : expectedToolTip(toolTip, shortcut));
    QCOMPARE(action->shortcutContext(), Qt::WindowShortcut);
    const QIcon icon = expectedIcon(cell("icon"));
    QCOMPARE(action->icon().isNull(), icon.isNull());
    for (const int size : {16, 32}) {
        QCOMPARE(picture(action->icon(), size), picture(icon, size));
        QVERIFY(icon.isNull() || !isBlank(picture(icon, size)));
    }
    QCOMPARE(yesOrNo(action->isCheckable()), cell("checkable"));
    QCOMPARE(yesOrNo(action->isChecked()), cell("checked"));
    QCOMPARE(yesOrNo(action->isEnabled()), cell("enabled"));
    QCOMPARE(action->iconText(),
             cell("iconText") == QStringLiteral("yes") ? action->text() : bare.iconText());
    QCOMPARE(groupName(action), cell("group"));
    const auto* const group = qobject_cast<ZVExclusiveActionGroup*>(action->actionGroup());
    QCOMPARE(group ? group->value(action).toString() : QString(), cell("groupValue"));

    if (cell("number").isEmpty())
        return;
    const int id = QMetaEnum::fromType<ZVMainActions::Actions>().keyToValue(
        cell("value").toLatin1().constData());
    QCOMPARE(QString::number(id), cell("number"));
    QCOMPARE((*ZVMainActions::getInstance())[id], action);
}

void ZVMainActionsTest::holdsNothingElse()
{
    QCOMPARE(createdActions().size(), s_rows);
    std::set<int> expected;
    for (const Row& row : expectedRows())
        if (!row[QStringLiteral("number")].isEmpty())
            expected.insert(row[QStringLiteral("number")].toInt());
    QCOMPARE(int(expected.size()), 116);
    ZVMainActions& table = *ZVMainActions::getInstance();
    QAction* const undefined = table[-1];
    for (int id = -1; id < 200; ++id)
        QCOMPARE(table[id] != undefined, expected.count(id) == 1);
}

void ZVMainActionsTest::thereIsNoTableBeforeItIsCreated()
{
    ZVMainActions::releaseInstance();
    QCOMPARE(ZVMainActions::getInstance(), static_cast<ZVMainActions*>(nullptr));
    QVERIFY2(!ZVMainActions::getInstance(), "asking creates none");
}

void ZVMainActionsTest::creatingTwiceKeepsTheFirstTable()
{
    ZVMainActions* const first = ZVMainActions::getInstance();
    const QPointer<QAction> open = first->action(ZVMainActions::Open);
    ZVMainActions::createInstance();
    QCOMPARE(ZVMainActions::getInstance(), first);
    QCOMPARE(first->action(ZVMainActions::Open), open.data());
}

void ZVMainActionsTest::aReleasedTableIsGone()
{
    const QPointer<QObject> table = ZVMainActions::getInstance();
    QVERIFY(!table->parent());
    ZVMainActions::releaseInstance();
    QVERIFY(!table);
    QVERIFY(!ZVMainActions::getInstance());
    ZVMainActions::releaseInstance();
}

void ZVMainActionsTest::aNewTableHasFreshActions()
{
    ZVMainActions& old = *ZVMainActions::getInstance();
    QAction receiver;
    receiver.setCheckable(true);
    old.connect(ZVMainActions::Open, &receiver, SLOT(toggle()));
    old[ZVMainActions::Save]->setEnabled(false);
    ZVMainActions::releaseInstance();
    ZVMainActions::createInstance();
    ZVMainActions& table = *ZVMainActions::getInstance();
    table[ZVMainActions::Open]->trigger();
    QVERIFY(!receiver.isChecked());
    QVERIFY(ZVMainActions::isEnabled(ZVMainActions::Save));
}

void ZVMainActionsTest::valuesAreAvailableByName()
{
    const QMetaEnum values = QMetaEnum::fromType<ZVMainActions::Actions>();
    QCOMPARE(values.name(), "Actions");
    QCOMPARE(values.keyCount(), 118);
    for (int i = 0; i < values.keyCount(); ++i)
        QCOMPARE(values.value(i), i);
    QCOMPARE(values.valueToKey(27), "ExportForCorvashel_DISCONTINUED_DO_NOT_USE");
    QCOMPARE(values.keyToValue("OpenFromVanTrelWithStandard"), 117);
    const QMetaObject& meta = ZVMainActions::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void ZVMainActionsTest::placeholdersHaveNoAction()
{
    const ZVMainActions& table = *ZVMainActions::getInstance();
    for (const auto id : {ZVMainActions::ExportForCorvashel_DISCONTINUED_DO_NOT_USE,
                          ZVMainActions::OpenFromVanTrelWithStandard}) {
        QCOMPARE(table.action(id)->text(), QStringLiteral("???"));
        QVERIFY(!ZVMainActions::enabledState(id));
        QVERIFY(!ZVMainActions::isEnabled(id));
        QVERIFY(ZVMainActions::isDisabled(id));
    }
}

void ZVMainActionsTest::asksForTheStateOfAnAction()
{
    QVERIFY(ZVMainActions::isDisabled(ZVMainActions::Undo));
    QVERIFY(!ZVMainActions::enabledState(ZVMainActions::Undo));
    QVERIFY(ZVMainActions::isEnabled(ZVMainActions::Open));
    QVERIFY(ZVMainActions::enabledState(ZVMainActions::Open));
    (*ZVMainActions::getInstance())[ZVMainActions::Undo]->setEnabled(true);
    QVERIFY(ZVMainActions::isEnabled(ZVMainActions::Undo));
    QVERIFY(!ZVMainActions::isDisabled(ZVMainActions::Undo));
    QVERIFY(ZVMainActions::isDisabled(ZVMainActions::Actions(120)));
}

void ZVMainActionsTest::disablesActions()
{
    ZVMainActions& table = *ZVMainActions::getInstance();
    table.disableActions({});
    table.disableActions({ZVMainActions::Save,
                          ZVMainActions::ExportForCorvashel_DISCONTINUED_DO_NOT_USE,
                          ZVMainActions::Undo});
    QVERIFY(ZVMainActions::isDisabled(ZVMainActions::Save));
    QVERIFY(ZVMainActions::isDisabled(ZVMainActions::Undo));
    QVERIFY(ZVMainActions::isEnabled(ZVMainActions::SaveAs));
    // A null entry would have taken its place.
    QCOMPARE(table.action(ZVMainActions::ExportForCorvashel_DISCONTINUED_DO_NOT_USE)->text(),
             QStringLiteral("???"));
    QVERIFY(table[-1]->isEnabled());
}

void ZVMainActionsTest::installsAllButNothingOfOtherContexts()
{
    ZVMainActions& table = *ZVMainActions::getInstance();
    table[ZVMainActions::Open]->setShortcutContext(Qt::ApplicationShortcut);
    QWidget window;
    table.registerApplicationActions(&window);
    QCOMPARE(window.actions().size(), 115);
    QVERIFY(!window.actions().contains(table[ZVMainActions::Open]));
    QCOMPARE(window.actions().first(), table[ZVMainActions::OpenWithStandard]);
    QCOMPARE(window.actions().last(), table[ZVMainActions::OpenGuideLineEditor]);
}

void ZVMainActionsTest::windowLayoutsExcludeOneAnother()
{
    ZVMainActions& table = *ZVMainActions::getInstance();
    table[ZVMainActions::WindowFourView]->trigger();
    table[ZVMainActions::WindowAutoBestFor2]->trigger();
    table[ZVMainActions::WindowTwoViewVertical]->trigger();
    QVERIFY(!table[ZVMainActions::WindowFourView]->isChecked());
    QVERIFY(table[ZVMainActions::WindowTwoViewVertical]->isChecked());
    QVERIFY(table[ZVMainActions::WindowAutoBestFor2]->isChecked());
    const auto* const group = table[ZVMainActions::WindowOneView]->actionGroup();
    QCOMPARE(group->parent(), &table);
    QCOMPARE(group->actions().size(), 4);
}

void ZVMainActionsTest::exclusiveGroupsGoByValue()
{
    ZVMainActions& table = *ZVMainActions::getInstance();
    ZVExclusiveActionGroup* const coordinates = table.getViewReferenceCoordSysGroup();
    ZVExclusiveActionGroup* const stations = table.getViewReferenceStationVisibilityGroup();
    QCOMPARE(coordinates->parent(), &table);
    QCOMPARE(stations->parent(), &table);
    QCOMPARE(coordinates->value(), QVariant(1));
    QVERIFY(!stations->value().isValid());
    coordinates->setValue(2);
    stations->setValue(0);
    QVERIFY(actionNamed("PresslineViewAction")->isChecked());
    QVERIFY(!actionNamed("PressCoordinatesAction")->isChecked());
    QVERIFY(actionNamed("SinglePitchAction")->isChecked());
}

void ZVMainActionsTest::textsOfCoordinatesFollowTheProduct_data()
{
    QTest::addColumn<int>("product");
    QTest::addColumn<QString>("press");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, int product, const char* press, const char* line) {
        QTest::newRow(name) << product << QString::fromLatin1(press) << QString::fromLatin1(line);
    };
    const char* const press = "Operation Coordinates";
    const char* const line = "Pressline View";
    row("pitched stations", 5, "Non-Pitched Station Coordinates", "Pitched Station Coordinates");
    row("no product", 0, press, line);
    row("the one below", 4, press, line);
    row("the one above", 6, press, line);
    row("a negative one", -5, press, line);
}

void ZVMainActionsTest::textsOfCoordinatesFollowTheProduct()
{
    QFETCH(int, product);
    ZVMainActions::releaseInstance();
    BuildInformation::setProductType(product);
    ZVMainActions::createInstance();
    QTEST(actionNamed("PressCoordinatesAction")->text(), "press");
    QTEST(actionNamed("PresslineViewAction")->text(), "line");
    QVERIFY(actionNamed("PressCoordinatesAction")->isChecked());
    QCOMPARE(ZVMainActions::getInstance()->getViewReferenceCoordSysGroup()->value(), QVariant(1));
}

void ZVMainActionsTest::textsOfCoordinatesAreAskedForAtCreation()
{
    BuildInformation::setProductType(5);
    ZVMainActions::createInstance();
    QCOMPARE(actionNamed("PressCoordinatesAction")->text(),
             QStringLiteral("Operation Coordinates"));
}

void ZVMainActionsTest::exportMayBeRestricted_data()
{
    QTest::addColumn<bool>("configured");
    QTest::addColumn<bool>("restricted");
    QTest::addColumn<QString>("toolTip");
    const QString usual = QStringLiteral("Export to VanTrel...");
    QTest::newRow("no configuration") << false << false << usual;
    QTest::newRow("not restricted") << true << false << usual;
    QTest::newRow("restricted")
        << true << true
        << QStringLiteral("The export of the complete VanTrel Data is disabled. Select "
                          "a VanTrel Export Standards are required.");
}

void ZVMainActionsTest::exportMayBeRestricted()
{
    QFETCH(bool, configured);
    QFETCH(bool, restricted);
    ZVMainActions::releaseInstance();
    if (configured) {
        const auto exchange = std::make_shared<VanTrelConfiguration>();
        exchange->setDisableExportWithoutStandard(restricted);
        VanTrelConfiguration::registerInstance(exchange);
    }
    ZVMainActions::createInstance();
    const QAction* const action =
        ZVMainActions::getInstance()->action(ZVMainActions::ExportToVantrel);
    QTEST(action->toolTip(), "toolTip");
    QCOMPARE(action->text(), QStringLiteral("Export to VanTrel..."));
    QVERIFY(action->isEnabled());
    QCOMPARE(
        ZVMainActions::getInstance()->action(ZVMainActions::ExportToVantrelWithStandard)->toolTip(),
        QStringLiteral("Export to VanTrel Standards..."));
}

void ZVMainActionsTest::iconsOfTheProviderAreUsed()
{
    ZVMainActions::releaseInstance();
    Resources::registerIconPathProvider(std::make_shared<OwnIcons>());
    ZVMainActions::createInstance();
    QCOMPARE(picture(ZVMainActions::getInstance()
                         ->action(ZVMainActions::ViewToggleSelectionOverview)
                         ->icon(),
                     16),
             picture(createSvgIcon(QStringLiteral(":/Icons/Shared/add_16.svg")), 16));
    QCOMPARE(picture(actionNamed("ProductCoordinatesAction")->icon(), 32),
             picture(createTwoSizeSvgIcon(QStringLiteral(":/Icons/Ribbon/strip_view")), 32));
}

void ZVMainActionsTest::textsAndShortcutsAreTranslated()
{
    ZVMainActions::releaseInstance();
    MirrorTranslator translator;
    QCoreApplication::installTranslator(&translator);
    ZVMainActions::createInstance();
    QCoreApplication::removeTranslator(&translator);
    const QAction* const action = ZVMainActions::getInstance()->action(ZVMainActions::OpenTemplate);
    QCOMPARE(action->text(), QStringLiteral("<Open &Template..."));
    QCOMPARE(action->toolTip(), QStringLiteral("<Open Template    Alt+9"));
    QCOMPARE(action->shortcut(), QKeySequence(int(Qt::ALT) + Qt::Key_9));
    QCOMPARE(action->objectName(), QStringLiteral("OpenTemplateAction"));
    QCOMPARE(actionNamed("RotatedIsometricViewAction")->text(),
             QStringLiteral("<Isometric View (-90\u00b0 Around Z)"));
    for (const char* const text :
         {"Pressline View", "Show All Stations/Features", "shortcut to be defined", "A", "*"})
        QVERIFY2(translator.m_asked.count(QString::fromLatin1(text)) == 1, text);
}

void ZVMainActionsTest::deletedGroup_isNull()
{
    delete ZVMainActions::getInstance()->getViewReferenceCoordSysGroup();
    QVERIFY(!ZVMainActions::getInstance()->getViewReferenceCoordSysGroup());
    QVERIFY(ZVMainActions::getInstance()->getViewReferenceStationVisibilityGroup());
}

void ZVMainActionsTest::noActionCarriesItsId()
{
    // Ids are written into the data before there are actions, and so into none.
    for (const QAction* const action : createdActions())
        QVERIFY2(!action->data().isValid(), qPrintable(action->objectName()));
}

ZORVANE_TEST(ZVMainActionsTest)
#include "ZVMainActionsTest.moc"
