#include "Host/Widgets/ZVTreeViewItem.h"

#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Host/Widgets/TreeRows.h"
#include "Tests/Support/ModelSignalRecorder.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDataStream>
#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

#include <cstdint>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

IDCombiner idOf(std::uint64_t value)
{
    return IDCombiner(Identifier(value));
}

QVariant variantOf(std::uint64_t value)
{
    return QVariant::fromValue(idOf(value));
}

/** Counts how many are alive. */
class CountedRow : public ZVTreeViewItem
{
public:
    CountedRow() { ++alive; }
    ~CountedRow() override { --alive; }

    static int alive;
};

int CountedRow::alive = 0;

constexpr int IdRole = Qt::UserRole + 4;
const char* const c_threeRows = "a b c";

} // namespace

class ZVTreeViewItemTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Values
    void nothingIsStoredAtFirst();
    void valuesAreKeptPerColumnAndRole();
    void editAndDisplayRoleAreOneValue_data();
    void editAndDisplayRoleAreOneValue();
    void invalidValueRemoves_data();
    void invalidValueRemoves();
    void negativeColumnIsRefused();
    void anyTypeMayStandWhereTheTextStands();
    void emptyTextIsNotNone();
    void textIsToldInUtf8_data();
    void textIsToldInUtf8();
    // Ids
    void idIsTypedUnderAnyRole_data();
    void idIsTypedUnderAnyRole();
    void foreignValueUnderTheIdRoleIsKeptAsItIs();
    void idOfAnotherRoleIsKeptBesides();
    void idWhereTheTextStandsGivesWayToText();
    void idIsReplaced();
    // Announcements
    void equalValueIsSilent_data();
    void equalValueIsSilent();
    void differentValueIsAnnounced_data();
    void differentValueIsAnnounced();
    void equalTextIsSilent_data();
    void equalTextIsSilent();
    void bytesOfATextAreNotItsCharacters();
    void secondIdIsSilentWhenEqual();
    void valueThatQtTakesForEqual_isStoredAndAnnounced_data();
    void valueThatQtTakesForEqual_isStoredAndAnnounced();
    // Flags
    void rowsAreEnabledAndSelectableAtFirst();
    void flagsAreReplacedAndAnnouncedOnce();
    // Structure
    void constructorAppendsToItsParent();
    void rowNumbersFollowEveryChange();
    void knownChildIsTakenWithoutItsIndex();
    void childOfAnotherIsNotTaken();
    void indexOutOfRangeIsAnswered_data();
    void indexOutOfRangeIsAnswered();
    void unfitChildIsRefused();
    void unfitListIsRefusedWhole();
    void takenRowIsTheCallers();
    void deletedRowLeavesItsParent();
    void deletingARowDeletesItsSubtree();
    void veryDeepTreeIsDeleted();
    void veryDeepTreeOfAModelIsDeleted();
    void veryWideTreeIsDeleted();
};

void ZVTreeViewItemTest::nothingIsStoredAtFirst()
{
    const ZVTreeViewItem row;
    for (int role : {int(Qt::DisplayRole), int(Qt::EditRole), int(Qt::DecorationRole), IdRole}) {
        QVERIFY(!row.data(0, role).isValid());
        QVERIFY(!row.data(1, role).isValid());
    }
    QVERIFY(!row.data(-1, Qt::DisplayRole).isValid());
    QVERIFY(!row.data(0, -1).isValid());
    QVERIFY(!row.id(IdRole));
    QVERIFY(row.text().isNull());
    QVERIFY(!row.parent());
    QVERIFY(!row.model());
    QCOMPARE(row.row(), -1);
    QCOMPARE(row.childCount(), 0);
}

void ZVTreeViewItemTest::valuesAreKeptPerColumnAndRole()
{
    ZVTreeViewItem row;
    for (int column = 0; column < 4; ++column) {
        for (int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole), IdRole, 3394, -1})
            QVERIFY(row.setData(column, role, QStringLiteral("%1/%2").arg(column).arg(role)));
    }
    for (int column = 0; column < 4; ++column) {
        for (int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole), IdRole, 3394, -1})
            QCOMPARE(row.data(column, role),
                     QVariant(QStringLiteral("%1/%2").arg(column).arg(role)));
    }
    QVERIFY(!row.data(4, Qt::DisplayRole).isValid());
}

void ZVTreeViewItemTest::editAndDisplayRoleAreOneValue_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text of column 0") << 0 << QVariant(QStringLiteral("cup"));
    QTest::newRow("number of column 0") << 0 << QVariant(7);
    QTest::newRow("text of column 2") << 2 << QVariant(QStringLiteral("cup"));
}

void ZVTreeViewItemTest::editAndDisplayRoleAreOneValue()
{
    QFETCH(int, column);
    QFETCH(QVariant, value);
    ZVTreeViewItem row;
    row.setData(column, Qt::EditRole, value);
    QCOMPARE(row.data(column, Qt::DisplayRole), value);
    row.setData(column, Qt::DisplayRole, QVariant());
    QVERIFY(!row.data(column, Qt::EditRole).isValid());
}

void ZVTreeViewItemTest::invalidValueRemoves_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << int(Qt::DisplayRole) << QVariant(QStringLiteral("cup"));
    QTest::newRow("number as text") << int(Qt::EditRole) << QVariant(1);
    QTest::newRow("id") << IdRole << variantOf(5);
    QTest::newRow("foreign id") << IdRole << QVariant(5);
    QTest::newRow("other") << int(Qt::ToolTipRole) << QVariant(QStringLiteral("tip"));
}

void ZVTreeViewItemTest::invalidValueRemoves()
{
    QFETCH(int, role);
    QFETCH(QVariant, value);
    ZVTreeViewModel model;
    ZVTreeViewItem row(model.rootItem());
    row.setData(0, role, value);
    ModelSignalRecorder recorder(&model);
    QVERIFY(row.setData(0, role, QVariant()));
    QVERIFY(!row.data(0, role).isValid());
    QVERIFY(!row.id(role));
    QCOMPARE(recorder.take().size(), 1);
    QVERIFY(row.setData(0, role, QVariant()));
    QCOMPARE(recorder.take(), QStringList());
}

void ZVTreeViewItemTest::negativeColumnIsRefused()
{
    ZVTreeViewItem row;
    QVERIFY(!row.setData(-1, Qt::DisplayRole, 1));
    QVERIFY(!row.data(-1, Qt::DisplayRole).isValid());
}

void ZVTreeViewItemTest::anyTypeMayStandWhereTheTextStands()
{
    ZVTreeViewItem row;
    row.setText("cup");
    QVERIFY(row.setData(0, Qt::DisplayRole, 12));
    QCOMPARE(row.data(0, Qt::DisplayRole), QVariant(12));
    QVERIFY(row.text().isNull());
    row.setText("12");
    QCOMPARE(row.data(0, Qt::DisplayRole), QVariant(QStringLiteral("12")));
    QCOMPARE(row.data(0, Qt::DisplayRole).type(), QVariant::String);
}

void ZVTreeViewItemTest::emptyTextIsNotNone()
{
    ZVTreeViewModel model;
    ZVTreeViewItem row(model.rootItem());
    ModelSignalRecorder recorder(&model);
    row.setText("");
    QVERIFY(row.data(0, Qt::DisplayRole).isValid());
    QCOMPARE(row.data(0, Qt::DisplayRole), QVariant(QStringLiteral("")));
    QCOMPARE(recorder.take(), QStringList(QStringLiteral("dataChanged / 0:0 0:0 [0 2]")));
    row.setData(0, Qt::DisplayRole, QString());
    QCOMPARE(recorder.take(), QStringList());
    row.setData(0, Qt::DisplayRole, QVariant());
    QVERIFY(!row.data(0, Qt::DisplayRole).isValid());
    QCOMPARE(recorder.take().size(), 1);
}

void ZVTreeViewItemTest::textIsToldInUtf8_data()
{
    QTest::addColumn<std::string>("utf8");
    QTest::addColumn<QString>("text");
    QTest::newRow("ASCII") << std::string("Draw die 20") << QStringLiteral("Draw die 20");
    QTest::newRow("umlauts") << std::string("T\xc3\xbcr") << QStringLiteral(u"T\u00fcr");
    QTest::newRow("Japanese") << std::string("\xe9\x87\x91\xe5\x9e\x8b")
                              << QStringLiteral(u"\u91d1\u578b");
    QTest::newRow("emoji") << std::string("\xf0\x9f\x94\xa7") << QStringLiteral(u"\U0001F527");
    QTest::newRow("empty") << std::string() << QStringLiteral("");
    QTest::newRow("null character inside")
        << std::string("a\0b", 3) << QStringLiteral("a") + QChar(QChar::Null) + QLatin1Char('b');
    QTest::newRow("not UTF-8") << std::string("a\xff") << QStringLiteral(u"a\ufffd");
    QTest::newRow("cut in the middle") << std::string("a\xc3") << QStringLiteral(u"a\ufffd");
}

void ZVTreeViewItemTest::textIsToldInUtf8()
{
    QFETCH(std::string, utf8);
    QFETCH(QString, text);
    ZVTreeViewItem row;
    row.setText(utf8);
    QCOMPARE(row.text(), text);
    QVERIFY(!row.text().isNull());
    QCOMPARE(row.data(0, Qt::DisplayRole), QVariant(text));
}

void ZVTreeViewItemTest::idIsTypedUnderAnyRole_data()
{
    QTest::addColumn<int>("role");
    QTest::newRow("user role") << IdRole;
    QTest::newRow("tool tip role") << int(Qt::ToolTipRole);
    QTest::newRow("role 0x7fffffff") << 0x7fffffff;
}

void ZVTreeViewItemTest::idIsTypedUnderAnyRole()
{
    QFETCH(int, role);
    ZVTreeViewItem typed;
    typed.setId(role, idOf(5));
    ZVTreeViewItem generic;
    generic.setData(0, role, variantOf(5));
    for (const ZVTreeViewItem* row : {&typed, &generic}) {
        QVERIFY(row->id(role));
        QVERIFY(*row->id(role) == idOf(5));
        QVERIFY(row->data(0, role).value<IDCombiner>() == idOf(5));
        QVERIFY(!row->id(role - 1));
        QVERIFY(!row->data(1, role).isValid());
    }
}

void ZVTreeViewItemTest::foreignValueUnderTheIdRoleIsKeptAsItIs()
{
    ZVTreeViewItem row;
    row.setData(0, IdRole, QStringLiteral("foreign"));
    QVERIFY(!row.id(IdRole));
    QCOMPARE(row.data(0, IdRole), QVariant(QStringLiteral("foreign")));
    row.setId(IdRole, idOf(5));
    QVERIFY(*row.id(IdRole) == idOf(5));
    row.setData(0, IdRole, 7);
    QVERIFY(!row.id(IdRole));
    QCOMPARE(row.data(0, IdRole), QVariant(7));
}

void ZVTreeViewItemTest::idOfAnotherRoleIsKeptBesides()
{
    ZVTreeViewItem row;
    row.setId(IdRole, idOf(1));
    row.setId(IdRole + 1, idOf(2));
    QVERIFY(row.data(0, IdRole).value<IDCombiner>() == idOf(1));
    QVERIFY(row.data(0, IdRole + 1).value<IDCombiner>() == idOf(2));
    row.setData(1, IdRole, variantOf(3));
    QVERIFY(row.data(1, IdRole).value<IDCombiner>() == idOf(3));
    QVERIFY(row.data(0, IdRole).value<IDCombiner>() == idOf(1));
}

void ZVTreeViewItemTest::idWhereTheTextStandsGivesWayToText()
{
    for (int role : {int(Qt::DisplayRole), int(Qt::EditRole)}) {
        ZVTreeViewItem row;
        row.setId(role, idOf(1));
        QVERIFY(row.data(0, Qt::DisplayRole).value<IDCombiner>() == idOf(1));
        row.setText("cup");
        QCOMPARE(row.data(0, Qt::EditRole), QVariant(QStringLiteral("cup")));
        row.setData(0, Qt::DisplayRole, QVariant());
        QVERIFY(!row.data(0, Qt::DisplayRole).isValid());
    }
}

void ZVTreeViewItemTest::idIsReplaced()
{
    ZVTreeViewItem row;
    row.setId(IdRole, idOf(1));
    row.setId(IdRole, IDCombiner());
    QVERIFY(row.id(IdRole));
    QVERIFY(*row.id(IdRole) == IDCombiner());
    QVERIFY(row.data(0, IdRole).isValid());
}

void ZVTreeViewItemTest::equalValueIsSilent_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("second");
    const QIcon icon(QPixmap(4, 4));
    QTest::newRow("text") << int(Qt::DisplayRole) << QVariant(QStringLiteral("a"))
                          << QVariant(QStringLiteral("a"));
    QTest::newRow("number") << int(Qt::UserRole) << QVariant(1) << QVariant(1);
    QTest::newRow("icon and its copy")
        << int(Qt::DecorationRole) << QVariant(icon) << QVariant(QIcon(icon));
    QTest::newRow("id") << IdRole << variantOf(1) << variantOf(1);
    QTest::newRow("list") << int(Qt::UserRole) << QVariant(QVariantList{1, 2})
                          << QVariant(QVariantList{1, 2});
    QTest::newRow("nothing") << int(Qt::UserRole) << QVariant() << QVariant();
}

void ZVTreeViewItemTest::equalValueIsSilent()
{
    QFETCH(int, role);
    QFETCH(QVariant, first);
    QFETCH(QVariant, second);
    ZVTreeViewModel model;
    ZVTreeViewItem row(model.rootItem());
    row.setData(0, role, first);
    ModelSignalRecorder recorder(&model);
    QVERIFY(row.setData(0, role, second));
    QCOMPARE(recorder.take(), QStringList());
}

void ZVTreeViewItemTest::differentValueIsAnnounced_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("second");
    const QString one = QStringLiteral("1");
    QTest::newRow("1 and 1.0") << int(Qt::UserRole) << QVariant(1) << QVariant(1.0);
    QTest::newRow("1 and \"1\" as text") << int(Qt::DisplayRole) << QVariant(1) << QVariant(one);
    QTest::newRow("case") << int(Qt::DisplayRole) << QVariant(QStringLiteral("a"))
                          << QVariant(QStringLiteral("A"));
    QTest::newRow("null and empty")
        << int(Qt::UserRole) << QVariant(QString()) << QVariant(QStringLiteral(""));
    QTest::newRow("icons drawn alike") << int(Qt::DecorationRole) << QVariant(QIcon(QPixmap(4, 4)))
                                       << QVariant(QIcon(QPixmap(4, 4)));
    QTest::newRow("ids") << IdRole << variantOf(1) << variantOf(2);
    QTest::newRow("id and number") << IdRole << variantOf(1) << QVariant(1);
}

void ZVTreeViewItemTest::differentValueIsAnnounced()
{
    QFETCH(int, role);
    QFETCH(QVariant, first);
    QFETCH(QVariant, second);
    ZVTreeViewModel model;
    ZVTreeViewItem row(model.rootItem());
    row.setData(0, role, first);
    ModelSignalRecorder recorder(&model);
    row.setData(0, role, second);
    const QString roles = role == Qt::DisplayRole ? QStringLiteral("0 2") : QString::number(role);
    QCOMPARE(recorder.take(), QStringList(QStringLiteral("dataChanged / 0:0 0:0 [%1]").arg(roles)));
    QCOMPARE(row.data(0, role).userType(), second.userType());
}

void ZVTreeViewItemTest::equalTextIsSilent_data()
{
    textIsToldInUtf8_data();
}

void ZVTreeViewItemTest::equalTextIsSilent()
{
    QFETCH(std::string, utf8);
    ZVTreeViewModel model;
    ZVTreeViewItem row(model.rootItem());
    row.setText(utf8);
    ModelSignalRecorder recorder(&model);
    row.setText(utf8);
    QCOMPARE(recorder.take(), QStringList());
    row.setText(utf8 + "x");
    QCOMPARE(recorder.take(), QStringList(QStringLiteral("dataChanged / 0:0 0:0 [0 2]")));
    row.setText(utf8);
    QCOMPARE(recorder.take().size(), 1);
}

void ZVTreeViewItemTest::bytesOfATextAreNotItsCharacters()
{
    // Of any length: texts are compared four characters at a time.
    for (const std::string utf8 :
         {"\xc3\xbc", "\xc3\xbcr", "T\xc3\xbcr 20", "Draw die T\xc3\xbcr"}) {
        ZVTreeViewModel model;
        ZVTreeViewItem row(model.rootItem());
        row.setData(0, Qt::DisplayRole, QString::fromLatin1(utf8.c_str()));
        ModelSignalRecorder recorder(&model);
        row.setText(utf8);
        QCOMPARE(row.text(), QString::fromStdString(utf8));
        QCOMPARE(recorder.take().size(), 1);
    }
}

void ZVTreeViewItemTest::secondIdIsSilentWhenEqual()
{
    ZVTreeViewModel model;
    ZVTreeViewItem row(model.rootItem());
    row.setId(IdRole, idOf(1));
    row.setId(IdRole + 1, idOf(2));
    row.setData(0, IdRole, QVariant());
    ModelSignalRecorder recorder(&model);
    row.setId(IdRole + 1, idOf(2));
    QCOMPARE(recorder.take(), QStringList());
    QVERIFY(row.data(0, IdRole + 1).value<IDCombiner>() == idOf(2));
}

void ZVTreeViewItemTest::valueThatQtTakesForEqual_isStoredAndAnnounced_data()
{
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("second");
    const QString v = QStringLiteral("v");
    QTest::newRow("in a map") << QVariant(QVariantMap{{v, 1}})
                              << QVariant(QVariantMap{{v, QStringLiteral("1")}});
    QTest::newRow("doubles") << QVariant(1.0) << QVariant(1.0 + 1e-13);
    QTest::newRow("points") << QVariant(QPointF(1, 1)) << QVariant(QPointF(1, 1 + 1e-13));
    QTest::newRow("doubles in a list")
        << QVariant(QVariantList{1.0}) << QVariant(QVariantList{1.0 + 1e-13});
    QTest::newRow("colours named otherwise")
        << QVariant(QColor::fromHslF(.5, .5, .5)) << QVariant(QColor::fromHslF(.5, .5, .5001));
}

void ZVTreeViewItemTest::valueThatQtTakesForEqual_isStoredAndAnnounced()
{
    QFETCH(QVariant, first);
    QFETCH(QVariant, second);
    const auto bytesOf = [](const QVariant& value) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << value;
        return bytes;
    };
    QVERIFY(bytesOf(first) != bytesOf(second));
    ZVTreeViewModel model;
    ZVTreeViewItem row(model.rootItem());
    row.setData(0, Qt::UserRole, first);
    ModelSignalRecorder recorder(&model);
    row.setData(0, Qt::UserRole, second);
    QCOMPARE(bytesOf(row.data(0, Qt::UserRole)), bytesOf(second));
    QCOMPARE(recorder.take().size(), 1);
    model.setHeaderData(0, Qt::Horizontal, first, Qt::UserRole);
    model.setHeaderData(0, Qt::Horizontal, second, Qt::UserRole);
    QCOMPARE(bytesOf(model.headerData(0, Qt::Horizontal, Qt::UserRole)), bytesOf(second));
}

void ZVTreeViewItemTest::rowsAreEnabledAndSelectableAtFirst()
{
    const ZVTreeViewItem row;
    QCOMPARE(row.flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

void ZVTreeViewItemTest::flagsAreReplacedAndAnnouncedOnce()
{
    ZVTreeViewModel model;
    model.setColumnCount(3);
    ZVTreeViewItem row(model.rootItem());
    ModelSignalRecorder recorder(&model);
    const Qt::ItemFlags flags = Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
    row.setFlags(flags);
    QCOMPARE(row.flags(), flags);
    QCOMPARE(recorder.take().size(), 1);
    row.setFlags(flags);
    QCOMPARE(recorder.take(), QStringList());
}

void ZVTreeViewItemTest::constructorAppendsToItsParent()
{
    ZVTreeViewItem parent;
    ZVTreeViewItem first(&parent);
    ZVTreeViewItem second(&parent);
    QCOMPARE(parent.childCount(), 2);
    QCOMPARE(parent.child(0), &first);
    QCOMPARE(second.row(), 1);
    QCOMPARE(second.parent(), &parent);
}

void ZVTreeViewItemTest::rowNumbersFollowEveryChange()
{
    ZVTreeViewItem root;
    appendRows(&root, c_threeRows);
    QCOMPARE(textsOf(&root), QStringLiteral("a b c"));
    root.insertChild(0, newRow(QStringLiteral("d")));
    QCOMPARE(textsOf(&root), QStringLiteral("d a b c"));
    root.insertChild(2, newRow(QStringLiteral("e")));
    QCOMPARE(textsOf(&root), QStringLiteral("d a e b c"));
    ZVTreeViewItem* taken = root.takeChild(1);
    QCOMPARE(taken->row(), -1);
    QCOMPARE(textsOf(&root), QStringLiteral("d e b c"));
    root.insertChild(4, taken);
    QCOMPARE(textsOf(&root), QStringLiteral("d e b c a"));
    delete root.child(2);
    QCOMPARE(textsOf(&root), QStringLiteral("d e c a"));
    QVERIFY(root.deleteChild(0));
    appendRows(&root, "x y");
    QCOMPARE(textsOf(&root), QStringLiteral("e c a x y"));
}

void ZVTreeViewItemTest::knownChildIsTakenWithoutItsIndex()
{
    ZVTreeViewItem root;
    appendRows(&root, c_threeRows);
    const std::unique_ptr<ZVTreeViewItem> taken(root.child(1));
    QVERIFY(root.takeChild(taken.get()));
    QVERIFY(!taken->parent());
    QCOMPARE(taken->row(), -1);
    QCOMPARE(textsOf(&root), QStringLiteral("a c"));
}

void ZVTreeViewItemTest::childOfAnotherIsNotTaken()
{
    ZVTreeViewItem root;
    appendRows(&root, c_threeRows);
    appendRows(root.child(0), "x");
    QVERIFY(!root.takeChild(root.child(0)->child(0)));
    QVERIFY(!root.takeChild(&root));
    QVERIFY(!root.takeChild(nullptr));
    QCOMPARE(textsOf(&root), QStringLiteral("a(x) b c"));
}

void ZVTreeViewItemTest::indexOutOfRangeIsAnswered_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("behind the end") << 4;
    QTest::newRow("least") << INT_MIN;
    QTest::newRow("most") << INT_MAX;
}

void ZVTreeViewItemTest::indexOutOfRangeIsAnswered()
{
    QFETCH(int, index);
    ZVTreeViewItem root;
    const ZVTreeViewItem empty;
    appendRows(&root, c_threeRows);
    ZVTreeViewItem orphan;
    QVERIFY(!root.child(index));
    QVERIFY(!empty.child(index));
    QVERIFY(!root.takeChild(index));
    QVERIFY(!root.deleteChild(index));
    QVERIFY(!root.insertChild(index, &orphan));
    QVERIFY(!orphan.takeChild(0));
    QVERIFY(!orphan.deleteChild(0));
    QVERIFY(!root.takeChild(3));
    QVERIFY(!orphan.parent());
    QCOMPARE(textsOf(&root), QStringLiteral("a b c"));
}

void ZVTreeViewItemTest::unfitChildIsRefused()
{
    ZVTreeViewModel model;
    ZVTreeViewModel other;
    ZVTreeViewItem* root = model.rootItem();
    appendRows(root, "a b");
    appendRows(root->child(0), c_threeRows);
    ModelSignalRecorder recorder(&model);
    ZVTreeViewItem top;
    auto* below = new ZVTreeViewItem(new ZVTreeViewItem(&top));
    QVERIFY(!root->insertChild(0, nullptr));
    QVERIFY(!root->insertChild(0, root));
    QVERIFY(!root->insertChild(0, root->child(1)));
    QVERIFY(!root->insertChild(0, root->child(0)->child(0)));
    QVERIFY(!root->insertChild(0, other.rootItem()));
    QVERIFY(!top.insertChild(0, root));
    QVERIFY(!top.insertChild(0, &top));
    QVERIFY(!below->insertChild(0, &top));
    QVERIFY(!below->appendChildren({&top}));
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(textsOf(root), QStringLiteral("a(a b c) b"));
    QCOMPARE(below->childCount(), 0);
    QVERIFY(!top.parent());
}

void ZVTreeViewItemTest::unfitListIsRefusedWhole()
{
    ZVTreeViewModel model;
    ZVTreeViewItem* root = model.rootItem();
    appendRows(root, "a");
    ModelSignalRecorder recorder(&model);
    ZVTreeViewItem fit;
    QVERIFY(!root->appendChildren({&fit, nullptr}));
    QVERIFY(!root->appendChildren({&fit, &fit}));
    QVERIFY(!root->appendChildren({&fit, root->child(0)}));
    QVERIFY(!root->appendChildren({&fit, root}));
    QVERIFY(!fit.parent());
    QVERIFY(root->appendChildren({}));
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(textsOf(root), QStringLiteral("a"));
}

void ZVTreeViewItemTest::takenRowIsTheCallers()
{
    auto root = std::make_unique<ZVTreeViewItem>();
    appendRows(root.get(), c_threeRows);
    appendRows(root->child(1), "x");
    const std::unique_ptr<ZVTreeViewItem> taken(root->takeChild(1));
    root.reset();
    QCOMPARE(textsOf(taken.get()), QStringLiteral("x"));
    QVERIFY(!taken->parent());
}

void ZVTreeViewItemTest::deletedRowLeavesItsParent()
{
    ZVTreeViewModel model;
    ZVTreeViewItem* root = model.rootItem();
    appendRows(root, c_threeRows);
    ModelSignalRecorder recorder(&model);
    delete root->child(1);
    QCOMPARE(recorder.take(), QStringList(QStringLiteral("rowsRemoved / 1 1")));
    QCOMPARE(textsOf(root), QStringLiteral("a c"));
    QCOMPARE(textsOf(model), QStringLiteral("a c"));
}

void ZVTreeViewItemTest::deletingARowDeletesItsSubtree()
{
    CountedRow::alive = 0;
    auto* root = new CountedRow;
    for (int i = 0; i < 3; ++i) {
        auto* child = new CountedRow;
        root->appendChildren({child});
        child->appendChildren({new CountedRow, new CountedRow});
    }
    QCOMPARE(CountedRow::alive, 10);
    delete root->child(0)->child(1);
    QCOMPARE(CountedRow::alive, 9);
    QVERIFY(root->deleteChild(2));
    QCOMPARE(CountedRow::alive, 6);
    delete root;
    QCOMPARE(CountedRow::alive, 0);
}

namespace {

/** A chain of rows, built from its lower end. */
ZVTreeViewItem* newChain(int length)
{
    ZVTreeViewItem* top = new CountedRow;
    while (--length > 0) {
        auto* above = new CountedRow;
        above->insertChild(0, top);
        top = above;
    }
    return top;
}

} // namespace

void ZVTreeViewItemTest::veryDeepTreeIsDeleted()
{
    CountedRow::alive = 0;
    ZVTreeViewItem* top = newChain(200000);
    QCOMPARE(CountedRow::alive, 200000);
    delete top;
    QCOMPARE(CountedRow::alive, 0);
}

void ZVTreeViewItemTest::veryDeepTreeOfAModelIsDeleted()
{
    CountedRow::alive = 0;
    {
        ZVTreeViewModel model;
        model.rootItem()->appendChildren({newChain(200000), newChain(200000)});
        QVERIFY(model.rootItem()->deleteChild(0));
        QCOMPARE(CountedRow::alive, 200000);
    }
    QCOMPARE(CountedRow::alive, 0);
}

void ZVTreeViewItemTest::veryWideTreeIsDeleted()
{
    CountedRow::alive = 0;
    auto* root = new CountedRow;
    QVector<ZVTreeViewItem*> rows;
    for (int i = 0; i < 200000; ++i)
        rows.append(new CountedRow);
    QVERIFY(root->appendChildren(rows));
    QCOMPARE(rows.last()->row(), 199999);
    delete root;
    QCOMPARE(CountedRow::alive, 0);
}

ZORVANE_TEST(ZVTreeViewItemTest)
#include "ZVTreeViewItemTest.moc"
