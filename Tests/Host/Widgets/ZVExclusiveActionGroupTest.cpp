#include "Host/Widgets/ZVExclusiveActionGroup.h"

#include "Tests/Support/TestCase.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAction>

using namespace Zorvane;

class ZVExclusiveActionGroupTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_group.reset(), TestCase::cleanup(); }

    void hasNoValueWhileNothingIsChecked();
    void hasTheValueOfTheCheckedAction();
    void takesOverAnActionThatIsChecked();
    void isSetByValue();
    void anUnknownValueChangesNothing();
    void setsAlsoADisabledAction();
    void findsActionsByValue();
    void tellsOfAnotherValue();
    void anActionAddedAgainHasTheNewValue();
    void anActionTakenOutHasNoValue();
    void anActionMayBeDeleted();

private:
    QAction* add(const QVariant& value)
    {
        auto* const action = new QAction(m_group.get());
        action->setCheckable(true);
        return m_group->addAction(action, value);
    }

    std::unique_ptr<ZVExclusiveActionGroup> m_group;
};

void ZVExclusiveActionGroupTest::init()
{
    m_group = std::make_unique<ZVExclusiveActionGroup>(nullptr);
}

void ZVExclusiveActionGroupTest::hasNoValueWhileNothingIsChecked()
{
    QVERIFY(!m_group->value().isValid());
    add(1);
    QVERIFY(!m_group->value().isValid());
    QVERIFY(m_group->isExclusive());
}

void ZVExclusiveActionGroupTest::hasTheValueOfTheCheckedAction()
{
    QAction* const first = add(1);
    QAction* const second = add(QStringLiteral("two"));
    first->trigger();
    QCOMPARE(m_group->value(), QVariant(1));
    second->trigger();
    QCOMPARE(m_group->value(), QVariant(QStringLiteral("two")));
    QVERIFY(!first->isChecked());
    QCOMPARE(m_group->value(first), QVariant(1));
}

void ZVExclusiveActionGroupTest::takesOverAnActionThatIsChecked()
{
    QAction action;
    action.setCheckable(true);
    action.setChecked(true);
    QCOMPARE(m_group->addAction(&action, 7), &action);
    QCOMPARE(m_group->value(), QVariant(7));
}

void ZVExclusiveActionGroupTest::isSetByValue()
{
    QAction* const zero = add(0);
    QAction* const one = add(1);
    m_group->setValue(1);
    QVERIFY(one->isChecked());
    m_group->setValue(0);
    QVERIFY(zero->isChecked() && !one->isChecked());
}

void ZVExclusiveActionGroupTest::anUnknownValueChangesNothing()
{
    add(1)->setChecked(true);
    m_group->setValue(2);
    m_group->setValue({});
    QCOMPARE(m_group->value(), QVariant(1));
}

void ZVExclusiveActionGroupTest::setsAlsoADisabledAction()
{
    add(1)->setEnabled(false);
    m_group->setValue(1);
    QCOMPARE(m_group->value(), QVariant(1));
}

void ZVExclusiveActionGroupTest::findsActionsByValue()
{
    QAction* const first = add(1);
    add(1);
    QCOMPARE(m_group->actionOf(1), first);
    QCOMPARE(m_group->actionOf(2), static_cast<QAction*>(nullptr));
}

void ZVExclusiveActionGroupTest::tellsOfAnotherValue()
{
    QAction* const one = add(1);
    add(2);
    const QSignalSpy spy(m_group.get(), &ZVExclusiveActionGroup::valueChanged);
    one->trigger();
    one->trigger();
    m_group->setValue(2);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy[0][0].value<QVariant>(), QVariant(1));
    QCOMPARE(spy[1][0].value<QVariant>(), QVariant(2));
}

void ZVExclusiveActionGroupTest::anActionAddedAgainHasTheNewValue()
{
    QAction* const action = add(1);
    m_group->addAction(action, 2);
    const QSignalSpy spy(m_group.get(), &ZVExclusiveActionGroup::valueChanged);
    action->trigger();
    QCOMPARE(m_group->value(), QVariant(2));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(m_group->actions().size(), 1);
}

void ZVExclusiveActionGroupTest::anActionTakenOutHasNoValue()
{
    QAction* const action = add(1);
    action->setChecked(true);
    m_group->removeAction(action);
    QVERIFY(!m_group->value().isValid());
    QVERIFY(!m_group->value(action).isValid());
    const QSignalSpy spy(m_group.get(), &ZVExclusiveActionGroup::valueChanged);
    action->setChecked(false);
    action->setChecked(true);
    QVERIFY(spy.isEmpty());
}

void ZVExclusiveActionGroupTest::anActionMayBeDeleted()
{
    QAction* const action = add(1);
    action->setChecked(true);
    delete action;
    QVERIFY(!m_group->value().isValid());
    QCOMPARE(m_group->actionOf(1), static_cast<QAction*>(nullptr));
}

ZORVANE_TEST(ZVExclusiveActionGroupTest)
#include "ZVExclusiveActionGroupTest.moc"
