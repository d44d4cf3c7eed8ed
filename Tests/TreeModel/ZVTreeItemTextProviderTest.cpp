#include "TreeModel/ZVTreeItemTextProvider.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/RecordingRow.h"

#include <string>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::RecordedRows;
using Testing::RecordingRow;

namespace {

/** Texts made of a word and the id's value. */
class WordSource : public ZVTextProviderInterface
{
public:
    explicit WordSource(std::string newWord)
        : word(std::move(newWord))
    {}

    std::string getText(const IDCombiner& id) override
    {
        return word + std::to_string(id.getIdentifier().getValue());
    }
    void registerTextChangedCallback(std::function<void()> callback) override
    {
        textChanged = std::move(callback);
    }

    std::string word;
    std::function<void()> textChanged;
};

} // namespace

class ZVTreeItemTextProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wantsNoFlags();
    void withoutSourceWritesNothing();
    void writesTheTextOfEachRow();
    void textsAreUtf8();
    void changeOfTextsAsksForARefresh();
    void settingASourceAsksForNone();
    void sourceMayBeTakenAway();
    void replacedSourceIsNotAskedAnyMore();
    void newSourceIsHeardToo();
    void sourceMayOutliveTheProvider();
    void copyIsNotToldByTheSource();
};

void ZVTreeItemTextProviderTest::wantsNoFlags()
{
    QCOMPARE(ZVTreeItemTextProvider(0, 0).getItemFlags(), Qt::ItemFlags());
}

void ZVTreeItemTextProviderTest::withoutSourceWritesNothing()
{
    RecordedRows rows({Identifier(1), Identifier(2)});
    ZVTreeItemTextProvider provider(1, Qt::DisplayRole);
    provider.addDataTo(rows.list());
    provider.updateDataOf(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

void ZVTreeItemTextProviderTest::writesTheTextOfEachRow()
{
    RecordedRows rows({Identifier(1), Identifier(2)});
    ZVTreeItemTextProvider provider(3, Qt::ToolTipRole);
    provider.setTextProvider(std::make_shared<WordSource>("part "));
    provider.addDataTo(rows.list());
    const std::vector<RecordingRow::Write> expected{
        {3, Qt::ToolTipRole, QVariant(QStringLiteral("part 2"))}};
    QVERIFY(rows[1].writes == expected);
    QCOMPARE(rows.writtenRows(), (QVector<int>{0, 1}));
    QCOMPARE(rows[0].data(3, Qt::ToolTipRole), QVariant(QStringLiteral("part 1")));
}

void ZVTreeItemTextProviderTest::textsAreUtf8()
{
    RecordedRows rows({Identifier(1)});
    ZVTreeItemTextProvider provider(0, Qt::DisplayRole);
    provider.setTextProvider(std::make_shared<WordSource>("Blechhalter Ø"));
    provider.addDataTo(rows.list());
    QCOMPARE(rows[0].data(0, Qt::DisplayRole).toString(), QString::fromUtf8("Blechhalter Ø1"));
}

void ZVTreeItemTextProviderTest::changeOfTextsAsksForARefresh()
{
    const auto source = std::make_shared<WordSource>("a");
    RecordedRows rows({Identifier(1)});
    int calls = 0;
    ZVTreeItemTextProvider provider(0, Qt::DisplayRole);
    provider.registerUpdateCallback([&calls] { ++calls; });
    provider.setTextProvider(source);
    source->word = "b";
    source->textChanged();
    QCOMPARE(calls, 1);
    provider.updateDataOf(rows.list());
    QCOMPARE(rows[0].data(0, Qt::DisplayRole).toString(), QStringLiteral("b1"));
    provider.updateDataOf(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(1));
}

void ZVTreeItemTextProviderTest::settingASourceAsksForNone()
{
    RecordedRows rows({Identifier(1)});
    int calls = 0;
    ZVTreeItemTextProvider provider(0, Qt::DisplayRole);
    provider.registerUpdateCallback([&calls] { ++calls; });
    provider.setTextProvider(std::make_shared<WordSource>("a"));
    provider.updateDataOf(rows.list());
    QCOMPARE(calls, 0);
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

void ZVTreeItemTextProviderTest::sourceMayBeTakenAway()
{
    RecordedRows rows({Identifier(1)});
    ZVTreeItemTextProvider provider(0, Qt::DisplayRole);
    provider.setTextProvider(std::make_shared<WordSource>("a"));
    provider.setTextProvider(nullptr);
    provider.addDataTo(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

void ZVTreeItemTextProviderTest::replacedSourceIsNotAskedAnyMore()
{
    const auto former = std::make_shared<WordSource>("former ");
    RecordedRows rows({Identifier(1)});
    ZVTreeItemTextProvider provider(0, Qt::DisplayRole);
    provider.setTextProvider(former);
    provider.setTextProvider(std::make_shared<WordSource>("new "));
    QCOMPARE(former.use_count(), 1L);
    provider.addDataTo(rows.list());
    QCOMPARE(rows[0].data(0, Qt::DisplayRole).toString(), QStringLiteral("new 1"));
}

void ZVTreeItemTextProviderTest::newSourceIsHeardToo()
{
    const auto source = std::make_shared<WordSource>("new ");
    RecordedRows rows({Identifier(1)});
    int calls = 0;
    ZVTreeItemTextProvider provider(0, Qt::DisplayRole);
    provider.registerUpdateCallback([&calls] { ++calls; });
    provider.setTextProvider(std::make_shared<WordSource>("former "));
    provider.setTextProvider(source);
    source->textChanged();
    QCOMPARE(calls, 1);
    provider.updateDataOf(rows.list());
    QCOMPARE(rows[0].data(0, Qt::DisplayRole).toString(), QStringLiteral("new 1"));
}

void ZVTreeItemTextProviderTest::sourceMayOutliveTheProvider()
{
    const auto source = std::make_shared<WordSource>("a");
    int calls = 0;
    {
        ZVTreeItemTextProvider provider(0, Qt::DisplayRole);
        provider.registerUpdateCallback([&calls] { ++calls; });
        provider.setTextProvider(source);
    }
    source->textChanged();
    QCOMPARE(calls, 0);
}

void ZVTreeItemTextProviderTest::copyIsNotToldByTheSource()
{
    const auto source = std::make_shared<WordSource>("a");
    RecordedRows rows({Identifier(1)});
    ZVTreeItemTextProvider copy(0, Qt::DisplayRole);
    {
        ZVTreeItemTextProvider original(0, Qt::DisplayRole);
        original.setTextProvider(source);
        copy = original;
    }
    source->textChanged();
    copy.updateDataOf(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
    copy.addDataTo(rows.list());
    QCOMPARE(rows[0].data(0, Qt::DisplayRole).toString(), QStringLiteral("a1"));
}

ZORVANE_TEST(ZVTreeItemTextProviderTest)
#include "ZVTreeItemTextProviderTest.moc"
