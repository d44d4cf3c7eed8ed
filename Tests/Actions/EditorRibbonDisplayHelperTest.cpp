#include "Actions/EditorRibbonDisplayHelper.h"

#include "Actions/ZVMainActions.h"

#include "Tests/Support/TestCase.h"

#include <QtWidgets/QAction>

#include <array>
#include <memory>

using namespace Zorvane;

namespace {

constexpr std::array<ZVMainActions::Actions, 7> s_toggles{
    ZVMainActions::ShowBlank,
    ZVMainActions::ShowCurrentOpTools,
    ZVMainActions::ShowSheetReference,
    ZVMainActions::ShowMirroredSheet,
    ZVMainActions::ShowSheet,
    ZVMainActions::HidePrimarySymmetricSide,
    ZVMainActions::HideSecondarySymmetricSide};

} // namespace

class EditorRibbonDisplayHelperTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void changesNothingByItself();
    void showsOnlyTheGeometry();
    void showingOnlyTheGeometryTwiceTriggersOnce();
    void triggersNothingWhenAllAreOff();
    void triggersExactlyWhatIsOn();
    void givesBackEachToggle_data();
    void givesBackEachToggle();
    void givesBackWhatTheUserChangedMeanwhile();
    void leavesOtherTogglesAlone();
    void changesInTheOrderOfTheToggles();
    void aDisabledToggleIsTriggeredToo();
    void helpersNest();

private:
    QAction& toggle(int id) { return *(*ZVMainActions::getInstance())[id]; }
    std::unique_ptr<EditorRibbonDisplayHelper> createHelper()
    {
        return std::make_unique<EditorRibbonDisplayHelper>(*ZVMainActions::getInstance());
    }

    /** Every toggle triggered, in order. */
    QList<int> m_triggered;
};

void EditorRibbonDisplayHelperTest::init()
{
    ZVMainActions::createInstance();
    for (const auto id : s_toggles) {
        toggle(id).setEnabled(true);
        connect(&toggle(id), &QAction::triggered, this, [this, id] { m_triggered.append(id); });
    }
    m_triggered.clear();
}

void EditorRibbonDisplayHelperTest::cleanup()
{
    ZVMainActions::releaseInstance();
    TestCase::cleanup();
}

void EditorRibbonDisplayHelperTest::changesNothingByItself()
{
    toggle(ZVMainActions::ShowSheet).setChecked(true);
    createHelper().reset();
    QVERIFY(toggle(ZVMainActions::ShowSheet).isChecked());
    QVERIFY(m_triggered.isEmpty());
}

void EditorRibbonDisplayHelperTest::showsOnlyTheGeometry()
{
    for (const auto id : s_toggles)
        toggle(id).setChecked(true);
    const auto helper = createHelper();
    helper->showOnlyGeometry();
    for (const auto id : s_toggles)
        QVERIFY(!toggle(id).isChecked());
}

void EditorRibbonDisplayHelperTest::showingOnlyTheGeometryTwiceTriggersOnce()
{
    toggle(ZVMainActions::ShowBlank).setChecked(true);
    const auto helper = createHelper();
    helper->showOnlyGeometry();
    helper->showOnlyGeometry();
    QCOMPARE(m_triggered, (QList<int>{ZVMainActions::ShowBlank}));
}

void EditorRibbonDisplayHelperTest::triggersNothingWhenAllAreOff()
{
    const auto helper = createHelper();
    helper->showOnlyGeometry();
    QVERIFY(m_triggered.isEmpty());
}

void EditorRibbonDisplayHelperTest::triggersExactlyWhatIsOn()
{
    toggle(ZVMainActions::ShowSheet).setChecked(true);
    auto helper = createHelper();
    helper->showOnlyGeometry();
    QCOMPARE(m_triggered, (QList<int>{ZVMainActions::ShowSheet}));
    helper.reset();
    QCOMPARE(m_triggered, (QList<int>{ZVMainActions::ShowSheet, ZVMainActions::ShowSheet}));
    QVERIFY(toggle(ZVMainActions::ShowSheet).isChecked());
}

void EditorRibbonDisplayHelperTest::givesBackEachToggle_data()
{
    QTest::addColumn<int>("states");
    for (int states = 0; states < 1 << s_toggles.size(); ++states)
        QTest::newRow(qPrintable(QString::number(states, 2).rightJustified(7, QLatin1Char('0'))))
            << states;
}

void EditorRibbonDisplayHelperTest::givesBackEachToggle()
{
    QFETCH(int, states);
    const auto wanted = [states](std::size_t i) { return (states >> i & 1) != 0; };
    QList<int> expected;
    for (std::size_t i = 0; i < s_toggles.size(); ++i) {
        toggle(s_toggles[i]).setChecked(wanted(i));
        if (wanted(i))
            expected.append(s_toggles[i]);
    }
    auto helper = createHelper();
    helper->showOnlyGeometry();
    QCOMPARE(m_triggered, expected);
    helper.reset();
    QCOMPARE(m_triggered, expected + expected);
    for (std::size_t i = 0; i < s_toggles.size(); ++i)
        QCOMPARE(toggle(s_toggles[i]).isChecked(), wanted(i));
}

void EditorRibbonDisplayHelperTest::givesBackWhatTheUserChangedMeanwhile()
{
    toggle(ZVMainActions::ShowBlank).setChecked(true);
    {
        const auto helper = createHelper();
        toggle(ZVMainActions::ShowBlank).trigger();
        toggle(ZVMainActions::ShowMirroredSheet).trigger();
        m_triggered.clear();
    }
    QCOMPARE(m_triggered, (QList<int>{ZVMainActions::ShowBlank, ZVMainActions::ShowMirroredSheet}));
    QVERIFY(toggle(ZVMainActions::ShowBlank).isChecked());
    QVERIFY(!toggle(ZVMainActions::ShowMirroredSheet).isChecked());
}

void EditorRibbonDisplayHelperTest::leavesOtherTogglesAlone()
{
    QAction& parts = toggle(ZVMainActions::ShowCurrentParts);
    parts.setEnabled(true);
    parts.setChecked(true);
    auto helper = createHelper();
    helper->showOnlyGeometry();
    QVERIFY(parts.isChecked());
    parts.trigger();
    helper.reset();
    QVERIFY(!parts.isChecked());
}

void EditorRibbonDisplayHelperTest::changesInTheOrderOfTheToggles()
{
    for (const auto id : s_toggles)
        toggle(id).setChecked(true);
    const auto helper = createHelper();
    helper->showOnlyGeometry();
    QList<int> expected;
    for (const auto id : s_toggles)
        expected.append(id);
    QCOMPARE(m_triggered, expected);
}

void EditorRibbonDisplayHelperTest::aDisabledToggleIsTriggeredToo()
{
    QAction& blank = toggle(ZVMainActions::ShowBlank);
    blank.setChecked(true);
    blank.setEnabled(false);
    const auto helper = createHelper();
    helper->showOnlyGeometry();
    QVERIFY(!blank.isChecked());
    QCOMPARE(m_triggered, (QList<int>{ZVMainActions::ShowBlank}));
}

void EditorRibbonDisplayHelperTest::helpersNest()
{
    toggle(ZVMainActions::ShowSheet).setChecked(true);
    {
        const auto outer = createHelper();
        outer->showOnlyGeometry();
        toggle(ZVMainActions::ShowBlank).trigger();
        {
            const auto inner = createHelper();
            inner->showOnlyGeometry();
            QVERIFY(!toggle(ZVMainActions::ShowBlank).isChecked());
        }
        QVERIFY(toggle(ZVMainActions::ShowBlank).isChecked());
        QVERIFY(!toggle(ZVMainActions::ShowSheet).isChecked());
    }
    QVERIFY(!toggle(ZVMainActions::ShowBlank).isChecked());
    QVERIFY(toggle(ZVMainActions::ShowSheet).isChecked());
}

ZORVANE_TEST(EditorRibbonDisplayHelperTest)
#include "EditorRibbonDisplayHelperTest.moc"
