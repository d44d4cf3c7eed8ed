#include "TreeModel/StaticTreeItemByIdIconProvider.h"

#include "Tests/Support/TestCase.h"
#include "Tests/TreeModel/RecordingRow.h"

#include <QtGui/QPixmap>

#include <algorithm>
#include <memory>

using namespace Zorvane;
using namespace Zorvane::GenericTreeViewModelHandling;
using Testing::RecordedRows;

namespace {

const IDCombiner K = Identifier(11);
const IDCombiner L = Identifier(12);
const IDCombiner M = GUIdentifier(std::string("6f1b2c3d-0000-4000-8000-0123456789ab"));

std::vector<QIcon> makeIcons(int count)
{
    std::vector<QIcon> icons;
    for (int i = 0; i < count; ++i) {
        QPixmap pixmap(4, 4);
        pixmap.fill(QColor::fromHsv(i * 30, 255, 255));
        icons.emplace_back(pixmap);
    }
    return icons;
}

} // namespace

class StaticTreeItemByIdIconProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void wantsNoFlags();
    void writesColumnAndRoleOnce();
    void unknownIdsGetTheDefaultIcon();
    void nullDefaultIconIsWrittenAsNullIcon();
    void newListReplacesTheFormerIds();
    void idHasOneIconAtATime();
    void idListedTwiceHasTheIcon();
    void emptyListFreesTheIcon();
    void fewerIconsForgetIdsPastTheEnd();
    void noIconsForgetAllIds();
    void idsMayBeAssignedBeforeTheIcons();
    void indexWithoutIconGivesTheDefault();
    void settersAskForARefresh();
    void defaultIconAsksForNone();
    void refreshWritesEveryRowOnce();

private:
    /** Which icon each of K, L and M gets: its index, -1 for the default, -2 for a null one. */
    QVector<int> shownIcons();
    QVector<int> iconsIn(RecordedRows& rows) const;

    std::unique_ptr<StaticTreeItemByIdIconProvider> m_provider;
    std::vector<QIcon> m_icons;
    QIcon m_defaultIcon;
};

void StaticTreeItemByIdIconProviderTest::init()
{
    const auto icons = makeIcons(5);
    m_icons.assign(icons.begin(), icons.end() - 1);
    m_defaultIcon = icons.back();
    m_provider = std::make_unique<StaticTreeItemByIdIconProvider>(0, Qt::DecorationRole);
    m_provider->setIcons(m_icons);
    m_provider->setDefaultIcon(m_defaultIcon);
}

QVector<int> StaticTreeItemByIdIconProviderTest::shownIcons()
{
    RecordedRows rows({K, L, M});
    m_provider->addDataTo(rows.list());
    return iconsIn(rows);
}

QVector<int> StaticTreeItemByIdIconProviderTest::iconsIn(RecordedRows& rows) const
{
    QVector<int> shown;
    for (std::size_t row = 0; row < 3; ++row) {
        const auto icon = rows[row].data(0, Qt::DecorationRole).value<QIcon>();
        const auto sameIcon = [&icon](const QIcon& other) {
            return other.cacheKey() == icon.cacheKey();
        };
        const auto found = std::find_if(m_icons.begin(), m_icons.end(), sameIcon);
        if (icon.isNull())
            shown.append(-2);
        else
            shown.append(sameIcon(m_defaultIcon) ? -1 : int(found - m_icons.begin()));
    }
    return shown;
}

void StaticTreeItemByIdIconProviderTest::wantsNoFlags()
{
    QCOMPARE(m_provider->getItemFlags(), Qt::ItemFlags());
}

void StaticTreeItemByIdIconProviderTest::writesColumnAndRoleOnce()
{
    StaticTreeItemByIdIconProvider provider(2, Qt::UserRole);
    RecordedRows rows({K});
    provider.addDataTo(rows.list());
    QCOMPARE(rows[0].writes.size(), std::size_t(1));
    QCOMPARE(std::get<0>(rows[0].writes.front()), 2);
    QCOMPARE(std::get<1>(rows[0].writes.front()), int(Qt::UserRole));
    QCOMPARE(std::get<2>(rows[0].writes.front()).userType(), int(QMetaType::QIcon));
}

void StaticTreeItemByIdIconProviderTest::unknownIdsGetTheDefaultIcon()
{
    m_provider->setIdsForIcon({L}, 3);
    QCOMPARE(shownIcons(), (QVector<int>{-1, 3, -1}));
}

void StaticTreeItemByIdIconProviderTest::nullDefaultIconIsWrittenAsNullIcon()
{
    StaticTreeItemByIdIconProvider provider(0, Qt::DecorationRole);
    RecordedRows rows({K});
    provider.addDataTo(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(1));
    const QVariant written = rows[0].data(0, Qt::DecorationRole);
    QCOMPARE(written.userType(), int(QMetaType::QIcon));
    QVERIFY(written.value<QIcon>().isNull());
}

void StaticTreeItemByIdIconProviderTest::newListReplacesTheFormerIds()
{
    m_provider->setIdsForIcon({K, L}, 1);
    QCOMPARE(shownIcons(), (QVector<int>{1, 1, -1}));
    m_provider->setIdsForIcon({L}, 1);
    QCOMPARE(shownIcons(), (QVector<int>{-1, 1, -1}));
}

void StaticTreeItemByIdIconProviderTest::idHasOneIconAtATime()
{
    m_provider->setIdsForIcon({K, M}, 1);
    m_provider->setIdsForIcon({K}, 2);
    QCOMPARE(shownIcons(), (QVector<int>{2, -1, 1}));
    m_provider->setIdsForIcon({M}, 1);
    QCOMPARE(shownIcons(), (QVector<int>{2, -1, 1}));
}

void StaticTreeItemByIdIconProviderTest::idListedTwiceHasTheIcon()
{
    m_provider->setIdsForIcon({K, K, L}, 0);
    QCOMPARE(shownIcons(), (QVector<int>{0, 0, -1}));
}

void StaticTreeItemByIdIconProviderTest::emptyListFreesTheIcon()
{
    m_provider->setIdsForIcon({K, L}, 1);
    m_provider->setIdsForIcon({M}, 2);
    m_provider->setIdsForIcon({}, 1);
    QCOMPARE(shownIcons(), (QVector<int>{-1, -1, 2}));
}

void StaticTreeItemByIdIconProviderTest::fewerIconsForgetIdsPastTheEnd()
{
    m_provider->setIdsForIcon({K}, 1);
    m_provider->setIdsForIcon({L}, 2);
    m_provider->setIdsForIcon({M}, 3);
    const std::vector<QIcon> all = m_icons;
    m_provider->setIcons({all[0], all[1]});
    QCOMPARE(shownIcons(), (QVector<int>{1, -1, -1}));
    m_provider->setIcons(all);
    QCOMPARE(shownIcons(), (QVector<int>{1, -1, -1}));
}

void StaticTreeItemByIdIconProviderTest::noIconsForgetAllIds()
{
    m_provider->setIdsForIcon({K, L, M}, 0);
    m_provider->setIcons({});
    m_provider->setIcons(m_icons);
    QCOMPARE(shownIcons(), (QVector<int>{-1, -1, -1}));
}

void StaticTreeItemByIdIconProviderTest::idsMayBeAssignedBeforeTheIcons()
{
    m_provider = std::make_unique<StaticTreeItemByIdIconProvider>(0, Qt::DecorationRole);
    m_provider->setIdsForIcon({K}, 2);
    QCOMPARE(shownIcons(), (QVector<int>{-2, -2, -2}));
    m_provider->setIcons(m_icons);
    QCOMPARE(shownIcons(), (QVector<int>{2, -2, -2}));
}

void StaticTreeItemByIdIconProviderTest::indexWithoutIconGivesTheDefault()
{
    m_provider->setIdsForIcon({K}, m_icons.size());
    m_provider->setIdsForIcon({L}, ~std::uint64_t(0));
    QCOMPARE(shownIcons(), (QVector<int>{-1, -1, -1}));
}

void StaticTreeItemByIdIconProviderTest::settersAskForARefresh()
{
    // The callback refreshes at once, so it must find the change made already.
    RecordedRows rows({K, L, M});
    int calls = 0;
    m_provider->registerUpdateCallback([&] {
        ++calls;
        m_provider->updateDataOf(rows.list());
    });
    m_provider->setIdsForIcon({K}, 3);
    QCOMPARE(calls, 1);
    QCOMPARE(iconsIn(rows), (QVector<int>{3, -1, -1}));
    m_provider->setIcons({m_icons.front()});
    QCOMPARE(calls, 2);
    QCOMPARE(iconsIn(rows), (QVector<int>{-1, -1, -1}));
}

void StaticTreeItemByIdIconProviderTest::defaultIconAsksForNone()
{
    StaticTreeItemByIdIconProvider provider(0, Qt::DecorationRole);
    RecordedRows rows({K});
    int calls = 0;
    provider.registerUpdateCallback([&calls] { ++calls; });
    provider.setDefaultIcon(m_defaultIcon);
    provider.updateDataOf(rows.list());
    QCOMPARE(calls, 0);
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

void StaticTreeItemByIdIconProviderTest::refreshWritesEveryRowOnce()
{
    RecordedRows rows({K, L, M});
    m_provider->setIdsForIcon({K}, 0);
    m_provider->updateDataOf(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(3));
    QCOMPARE(rows.writtenRows(), (QVector<int>{0, 1, 2}));
    m_provider->updateDataOf(rows.list());
    QCOMPARE(rows.takeWriteCount(), std::size_t(0));
}

ZORVANE_TEST(StaticTreeItemByIdIconProviderTest)
#include "StaticTreeItemByIdIconProviderTest.moc"
