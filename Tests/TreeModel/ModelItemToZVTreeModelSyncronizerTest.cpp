#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"
#include "Host/Widgets/ZVTreeViewModel.h"
#include "Tests/Support/ModelMirror.h"
#include "Tests/Support/ModelSignalRecorder.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <stdexcept>
#include <utility>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;

namespace {

constexpr int IdRole = 3394;

IDCombiner idOf(char letter)
{
    return Identifier(std::uint64_t(letter));
}

using Items = std::vector<std::shared_ptr<ModelItem>>;

/** "K", or "K:text" for a name other than the letter. */
std::shared_ptr<ModelItem> item(const std::string& text, const Items& children = {})
{
    const std::string name = text.size() > 2 ? text.substr(2) : text;
    auto made = std::make_shared<ModelItem>(idOf(text[0]), name);
    made->setChildren(children);
    return made;
}

Items numbered(int count)
{
    Items items;
    for (int i = 0; i < count; ++i)
        items.push_back(std::make_shared<ModelItem>(Identifier(std::uint64_t(i)), "row"));
    return items;
}

std::shared_ptr<ModelRoot> rootOf(const Items& items)
{
    auto root = std::make_shared<ModelRoot>();
    root->addTopLevelItems(items);
    return root;
}

class RecordingProvider : public ZVTreeItemDataProviderInterface
{
public:
    Qt::ItemFlags getItemFlags() override { return flags; }
    void addDataTo(const RowList& rows) override { added << letters(rows); }
    void updateDataOf(const RowList& rows) override { updated << letters(rows); }
    void registerUpdateCallback(std::function<void()> callback) override
    {
        hasCallback = bool(callback);
    }

    static QString letters(const RowList& rows)
    {
        QString text;
        for (const auto& [id, row] : rows) {
            text += QChar(ushort(id.getIdentifier().getValue()));
            // The row handed over is the one that carries the id.
            if (row->data(0, IdRole).value<IDCombiner>() != id)
                text += QLatin1Char('!');
        }
        return text;
    }

    Qt::ItemFlags flags;
    QStringList added;
    QStringList updated;
    bool hasCallback = false;
};

/** The tree in one line: "K(L M) N". */
QString told(const ZVTreeViewItem* parent)
{
    QStringList rows;
    for (int i = 0; i < parent->childCount(); ++i) {
        const ZVTreeViewItem* row = parent->child(i);
        const QString below = told(row);
        rows << row->text() +
                    (below.isEmpty() ? below : QLatin1Char('(') + below + QLatin1Char(')'));
    }
    return rows.join(QLatin1Char(' '));
}

class Scene
{
public:
    explicit Scene(const Items& items = {}, int idRole = IdRole)
        : syncronizer(idRole)
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , mirror(&model)
        , signalLines(&model)
    {
        syncronizer.setDataProvider(provider);
        if (!items.empty())
            show(items);
        provider->added.clear();
        signalLines.take();
    }

    void show(const Items& items)
    {
        syncronizer.syncronizeViewModel(&model, rootOf(items));
        QCOMPARE(mirror.difference(), QString());
        QCOMPARE(mirror.resets(), 0);
    }
    ZVTreeViewItem* row(int index) const { return model.rootItem()->child(index); }
    QString told() const { return ::told(model.rootItem()); }
    const ZVTreeViewItem* rowOf(const ModelItem& item) const
    {
        for (int i = 0; i < model.rowCount(); ++i) {
            if (*row(i)->id(IdRole) == item.getId())
                return row(i);
        }
        return nullptr;
    }
    void checkIds(const Items& items) const
    {
        QCOMPARE(model.rowCount(), int(items.size()));
        QCOMPARE(model.rootItem()->childCount(), int(items.size()));
        for (int i = 0; i < model.rowCount(); ++i)
            QVERIFY(*row(i)->id(IdRole) == items[std::size_t(i)]->getId());
    }

    std::shared_ptr<RecordingProvider> provider = std::make_shared<RecordingProvider>();
    ModelItemToZVTreeModelSyncronizer syncronizer;
    ZVTreeViewModel model;
    QAbstractItemModelTester tester;
    Testing::ModelMirror mirror;
    Testing::ModelSignalRecorder signalLines;
};

} // namespace

class ModelItemToZVTreeModelSyncronizerTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void createsRowsWithTextIdAndFlags();
    void everyRowIsEditableWhateverTheProviderSays();
    void defaultRoleIs3394();
    void anotherRoleIsUsedWhenGiven();
    void movedRowKeepsItsTextRowInPlaceGetsTheNew();
    void emptyModelDeletesEveryRow();
    void duplicatedIdKeepsTheFirstRowAndAddsAnother();
    void oneNewNameChangesOneTextOnly();
    void rowWhoseItemBecameALeafLosesItsChildren();
    void movedRowWhoseItemBecameALeafLosesItsChildren();
    void rowWithoutIdIsNeverMatched();
    void unreadableIdCountsAsTheDefaultId();
    void convertibleIdIsConverted();
    void aClassOfItsOwnIsAskedForItsData();
    void addDataToGetsTheNewRowsSortedById();
    void updateAlsoWritesEveryRow();
    void updateViewModelItemsRefreshesAndChangesNothing();
    void noCallbackIsRegisteredWithTheProvider();
    void severalViewsInTurn();
    void sameModelAnnouncesNothing();
    void announcesNoMoreThanWhatChanged_data();
    void announcesNoMoreThanWhatChanged();
    void manyChangesTakeFewAnnouncements_data();
    void manyChangesTakeFewAnnouncements();
    void viewsKnowAllRowsBeforeTheProviderWrites();
    void aProviderThatThrowsLeavesNothingBehind();
    void slotsMayUseTheSynchronizerAgain();
    void selectionExpansionAndCurrentRowSurvive();
};

void ModelItemToZVTreeModelSyncronizerTest::createsRowsWithTextIdAndFlags()
{
    Scene scene;
    scene.provider->flags = Qt::ItemIsUserCheckable;
    scene.show({item("K:Käfer", {item("L")}), item("M")});
    QCOMPARE(scene.told(), QStringLiteral("Käfer(L) M"));
    ZVTreeViewItem* row = scene.row(0);
    QCOMPARE(row->data(0, Qt::DisplayRole), QVariant(QStringLiteral("Käfer")));
    QCOMPARE(row->data(0, IdRole).typeName(), "Zorvane::IDCombiner");
    QVERIFY(row->data(0, IdRole).value<IDCombiner>() == idOf('K'));
    QCOMPARE(row->flags(), Qt::ItemIsUserCheckable | ZVTreeViewItem().flags() | Qt::ItemIsEditable);
    QCOMPARE(row->child(0)->flags(), row->flags());
}

void ModelItemToZVTreeModelSyncronizerTest::everyRowIsEditableWhateverTheProviderSays()
{
    Scene scene({item("K")});
    QVERIFY(scene.row(0)->flags().testFlag(Qt::ItemIsEditable));
}

void ModelItemToZVTreeModelSyncronizerTest::defaultRoleIs3394()
{
    Scene scene;
    ModelItemToZVTreeModelSyncronizer syncronizer;
    syncronizer.setDataProvider(scene.provider);
    syncronizer.syncronizeViewModel(&scene.model, rootOf({item("K")}));
    QVERIFY(scene.row(0)->data(0, 3394).value<IDCombiner>() == idOf('K'));
}

void ModelItemToZVTreeModelSyncronizerTest::anotherRoleIsUsedWhenGiven()
{
    Scene scene({item("K")}, Qt::UserRole);
    QVERIFY(scene.row(0)->data(0, Qt::UserRole).value<IDCombiner>() == idOf('K'));
    QVERIFY(!scene.row(0)->data(0, 3394).isValid());
    const ZVTreeViewItem* row = scene.row(0);
    scene.show({item("K:new")});
    QCOMPARE(scene.row(0), row);
}

void ModelItemToZVTreeModelSyncronizerTest::movedRowKeepsItsTextRowInPlaceGetsTheNew()
{
    Scene scene({item("K"), item("L"), item("M")});
    const ZVTreeViewItem* first = scene.row(0);
    const ZVTreeViewItem* third = scene.row(2);
    scene.show({item("M:moved"), item("K:kept")});
    QCOMPARE(scene.told(), QStringLiteral("M kept"));
    QCOMPARE(scene.row(0), third);
    QCOMPARE(scene.row(1), first);
    QCOMPARE(scene.provider->added, QStringList{QString()});
}

void ModelItemToZVTreeModelSyncronizerTest::emptyModelDeletesEveryRow()
{
    Scene scene({item("K", {item("L")}), item("M")});
    scene.show({});
    QCOMPARE(scene.told(), QString());
    QCOMPARE(scene.signalLines.take(), QStringList{QStringLiteral("rowsRemoved / 0 1")});
}

void ModelItemToZVTreeModelSyncronizerTest::duplicatedIdKeepsTheFirstRowAndAddsAnother()
{
    Scene scene({item("K")});
    const ZVTreeViewItem* row = scene.row(0);
    scene.show({item("K:one"), item("K:two")});
    QCOMPARE(scene.told(), QStringLiteral("one two"));
    QCOMPARE(scene.row(0), row);
    QCOMPARE(scene.provider->added, QStringList{QStringLiteral("K")});
}

void ModelItemToZVTreeModelSyncronizerTest::oneNewNameChangesOneTextOnly()
{
    Scene scene({item("K", {item("L"), item("M")})});
    const ZVTreeViewItem* leaf = scene.row(0)->child(1);
    scene.show({item("K", {item("L"), item("M:renamed")})});
    QCOMPARE(scene.row(0)->child(1), leaf);
    QCOMPARE(scene.told(), QStringLiteral("K(L renamed)"));
    QCOMPARE(scene.signalLines.take(), QStringList{QStringLiteral("dataChanged K 1:0 1:0 [0 2]")});
}

void ModelItemToZVTreeModelSyncronizerTest::rowWhoseItemBecameALeafLosesItsChildren()
{
    Scene scene({item("K", {item("L"), item("M")})});
    scene.show({item("K")});
    QCOMPARE(scene.told(), QStringLiteral("K"));
}

void ModelItemToZVTreeModelSyncronizerTest::movedRowWhoseItemBecameALeafLosesItsChildren()
{
    Scene scene({item("N"), item("K", {item("L"), item("M")})});
    scene.show({item("K"), item("N")});
    QCOMPARE(scene.told(), QStringLiteral("K N"));
}

void ModelItemToZVTreeModelSyncronizerTest::rowWithoutIdIsNeverMatched()
{
    Scene scene({item("K")});
    auto* foreign = new ZVTreeViewItem(scene.model.rootItem());
    foreign->setText("no id");
    scene.syncronizer.updateViewModelItems(&scene.model);
    QCOMPARE(scene.provider->updated, QStringList{QStringLiteral("K")});
    scene.show({item("K"), item("L")});
    QCOMPARE(scene.told(), QStringLiteral("K L"));
}

void ModelItemToZVTreeModelSyncronizerTest::unreadableIdCountsAsTheDefaultId()
{
    Scene scene;
    auto* row = new ZVTreeViewItem(scene.model.rootItem());
    row->setData(0, IdRole, QStringLiteral("no id"));
    scene.show({item("K")});
    QVERIFY(scene.row(0) != row);
    row = new ZVTreeViewItem(scene.model.rootItem());
    row->setData(0, IdRole, QStringLiteral("no id"));
    const auto nameless = std::make_shared<ModelItem>(IDCombiner(), "nameless");
    scene.show({item("K"), nameless});
    QCOMPARE(scene.row(1), row);
    QCOMPARE(row->text(), QStringLiteral("nameless"));
}

void ModelItemToZVTreeModelSyncronizerTest::convertibleIdIsConverted()
{
    QMetaType::registerConverter<qulonglong, IDCombiner>(
        [](qulonglong value) { return IDCombiner(Identifier(value)); });
    Scene scene;
    auto* row = new ZVTreeViewItem(scene.model.rootItem());
    row->setData(0, IdRole, qulonglong('K'));
    scene.show({item("K:matched")});
    QCOMPARE(scene.row(0), row);
    QCOMPARE(scene.told(), QStringLiteral("matched"));
}

void ModelItemToZVTreeModelSyncronizerTest::aClassOfItsOwnIsAskedForItsData()
{
    class OwnRow : public ZVTreeViewItem
    {
    public:
        using ZVTreeViewItem::ZVTreeViewItem;
        QVariant data(int column, int role) const override
        {
            return role == IdRole ? QVariant::fromValue(idOf('K'))
                                  : ZVTreeViewItem::data(column, role);
        }
        bool setData(int column, int role, const QVariant& value) override
        {
            written += value.toString();
            return ZVTreeViewItem::setData(column, role, value);
        }
        QString written;
    };
    Scene scene;
    auto* row = new OwnRow(scene.model.rootItem());
    row->setId(IdRole, idOf('L'));
    row->written.clear();
    scene.show({item("K:own")});
    QCOMPARE(scene.row(0), row);
    QCOMPARE(row->written, QStringLiteral("own"));
}

void ModelItemToZVTreeModelSyncronizerTest::addDataToGetsTheNewRowsSortedById()
{
    Scene scene({item("M")});
    scene.show({item("Z", {item("C"), item("X", {item("A")})}), item("M"), item("B")});
    QCOMPARE(scene.provider->added, QStringList{QStringLiteral("ABCXZ")});
}

void ModelItemToZVTreeModelSyncronizerTest::updateAlsoWritesEveryRow()
{
    Scene scene({item("M", {item("D")})});
    const Items items{item("Z"), item("M", {item("D")})};
    scene.syncronizer.syncronizeAndUpdateViewModel(&scene.model, rootOf(items));
    QCOMPARE(scene.provider->added, QStringList{QStringLiteral("DMZ")});
    QVERIFY(scene.provider->updated.isEmpty());
}

void ModelItemToZVTreeModelSyncronizerTest::updateViewModelItemsRefreshesAndChangesNothing()
{
    Scene scene({item("M", {item("D", {item("A")})}), item("B")});
    scene.syncronizer.updateViewModelItems(&scene.model);
    QCOMPARE(scene.provider->updated, QStringList{QStringLiteral("ABDM")});
    QVERIFY(scene.provider->added.isEmpty());
    QVERIFY(scene.signalLines.take().isEmpty());
}

void ModelItemToZVTreeModelSyncronizerTest::noCallbackIsRegisteredWithTheProvider()
{
    Scene scene({item("K")});
    QVERIFY(!scene.provider->hasCallback);
}

void ModelItemToZVTreeModelSyncronizerTest::severalViewsInTurn()
{
    Scene scene({item("K")});
    ZVTreeViewModel second;
    scene.syncronizer.syncronizeViewModel(&second, rootOf({item("L")}));
    scene.show({item("K"), item("M")});
    QCOMPARE(told(second.rootItem()), QStringLiteral("L"));
    QCOMPARE(scene.told(), QStringLiteral("K M"));
}

void ModelItemToZVTreeModelSyncronizerTest::sameModelAnnouncesNothing()
{
    Scene scene({item("K", {item("L")}), item("M")});
    const Items items{item("K", {item("L")}), item("M")};
    scene.syncronizer.syncronizeAndUpdateViewModel(&scene.model, rootOf(items));
    QVERIFY(scene.signalLines.take().isEmpty());
}

void ModelItemToZVTreeModelSyncronizerTest::announcesNoMoreThanWhatChanged_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const char* before, const char* after,
                        const QStringList& expected) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(after)
                            << expected;
    };
    row("first rows", "", "KLM", {QStringLiteral("rowsInserted / 0 2")});
    row("rows behind", "K", "KLM", {QStringLiteral("rowsInserted / 1 2")});
    row("row in the middle", "KM", "KLM", {QStringLiteral("rowsInserted / 1 1")});
    row("row gone", "KLM", "KM", {QStringLiteral("rowsRemoved / 1 1")});
    row("row replaced", "KLM", "KXM",
        {QStringLiteral("rowsRemoved / 1 1"), QStringLiteral("rowsInserted / 1 1")});
    row("rows exchanged", "KLM", "MLK", {QStringLiteral("layoutChanged")});
    row("first row to the end", "KLMN", "LMNK", {QStringLiteral("layoutChanged")});
}

void ModelItemToZVTreeModelSyncronizerTest::announcesNoMoreThanWhatChanged()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QStringList, expected);
    const auto items = [](const QString& letters) {
        Items made;
        for (const QChar letter : letters)
            made.push_back(item(std::string(1, letter.toLatin1())));
        return made;
    };
    Scene scene(items(before));
    scene.show(items(after));
    QCOMPARE(scene.signalLines.take(), expected);
}

void ModelItemToZVTreeModelSyncronizerTest::manyChangesTakeFewAnnouncements_data()
{
    QTest::addColumn<int>("keepEvery");
    QTest::addColumn<bool>("reversed");
    QTest::addColumn<bool>("fromFull");
    QTest::newRow("every tenth row goes") << 10 << false << true;
    QTest::newRow("every tenth row comes") << 10 << false << false;
    QTest::newRow("every tenth row goes, all turn round") << 10 << true << true;
    QTest::newRow("all rows turn round") << 0 << true << true;
}

void ModelItemToZVTreeModelSyncronizerTest::manyChangesTakeFewAnnouncements()
{
    QFETCH(int, keepEvery);
    QFETCH(bool, reversed);
    QFETCH(bool, fromFull);
    const Items full = numbered(5000);
    Items part;
    for (std::size_t i = 0; i < full.size(); ++i) {
        if (keepEvery == 0 || i % std::size_t(keepEvery) != 5)
            part.push_back(full[i]);
    }
    if (reversed)
        std::reverse(part.begin(), part.end());
    Scene scene(fromFull ? full : part);
    const Items& wanted = fromFull ? part : full;
    scene.show(wanted);
    QVERIFY(scene.signalLines.lines().size() <= 3);
    scene.checkIds(wanted);
}

void ModelItemToZVTreeModelSyncronizerTest::viewsKnowAllRowsBeforeTheProviderWrites()
{
    class Provider : public RecordingProvider
    {
    public:
        explicit Provider(const ZVTreeViewModel& shown)
            : model(shown)
        {}
        void addDataTo(const RowList& rows) override
        {
            for (const auto& entry : rows)
                allShown = allShown && model.indexFromItem(entry.second).isValid();
        }
        const ZVTreeViewModel& model;
        bool allShown = true;
    };
    Scene scene({item("K")});
    const auto provider = std::make_shared<Provider>(scene.model);
    scene.syncronizer.setDataProvider(provider);
    scene.show({item("Z", {item("Y")}), item("K", {item("L")})});
    QVERIFY(provider->allShown);
}

void ModelItemToZVTreeModelSyncronizerTest::aProviderThatThrowsLeavesNothingBehind()
{
    class Provider : public RecordingProvider
    {
    public:
        void addDataTo(const RowList&) override { throw std::runtime_error("no data"); }
    };
    Scene scene;
    const auto provider = std::make_shared<Provider>();
    scene.syncronizer.setDataProvider(provider);
    const auto root = rootOf({item("K"), item("L")});
    QVERIFY_EXCEPTION_THROWN(scene.syncronizer.syncronizeViewModel(&scene.model, root),
                             std::runtime_error);
    QCOMPARE(scene.told(), QStringLiteral("K L"));
    QVERIFY(scene.model.rootItem()->deleteChild(0));
    scene.syncronizer.updateViewModelItems(&scene.model);
    QCOMPARE(provider->updated, QStringList{QStringLiteral("L")});
}

void ModelItemToZVTreeModelSyncronizerTest::slotsMayUseTheSynchronizerAgain()
{
    Scene scene({item("K")});
    connect(&scene.model, &QAbstractItemModel::rowsInserted, this,
            [&scene] { scene.syncronizer.updateViewModelItems(&scene.model); });
    scene.show({item("K"), item("L"), item("M")});
    QCOMPARE(scene.provider->updated, QStringList{QStringLiteral("KLM")});
    QCOMPARE(scene.provider->added, QStringList{QStringLiteral("LM")});
}

void ModelItemToZVTreeModelSyncronizerTest::selectionExpansionAndCurrentRowSurvive()
{
    Scene scene({item("K", {item("L")}), item("M"), item("N", {item("O")})});
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&scene.model);
    sorted.sort(0, Qt::DescendingOrder);
    QTreeView view;
    QTreeView sortedView;
    view.setModel(&scene.model);
    sortedView.setModel(&sorted);
    const QPersistentModelIndex k = scene.model.index(0, 0);
    const QPersistentModelIndex m = scene.model.index(1, 0);
    view.setExpanded(k, true);
    view.setCurrentIndex(m);
    sortedView.setExpanded(sorted.mapFromSource(k), true);
    sortedView.setCurrentIndex(sorted.mapFromSource(m));

    scene.show({item("P"), item("M"), item("Q"), item("K", {item("L"), item("R")})});

    QVERIFY(view.isExpanded(k));
    QVERIFY(view.currentIndex() == m);
    QVERIFY(view.selectionModel()->isSelected(m));
    QVERIFY(sortedView.isExpanded(sorted.mapFromSource(k)));
    QVERIFY(sortedView.currentIndex() == sorted.mapFromSource(m));
    QVERIFY(sortedView.selectionModel()->isSelected(sorted.mapFromSource(m)));
}

ZORVANE_TEST(ModelItemToZVTreeModelSyncronizerTest)
#include "ModelItemToZVTreeModelSyncronizerTest.moc"
