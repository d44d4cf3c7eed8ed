#include "Workbench/Edit/ReferenceMenu.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Tree/DesignCatalog.h"

#include <QtWidgets/QMenu>

namespace Zorvane::Workbench {

using Testing::objectId;

class ReferenceMenuTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void oneReferenceIsFollowedAtOnce();
    void severalAreOfferedInAMenu();
    void theMenuWorksByKeyboard();
    void namesAreNoMarksOfKeys();
    void objectsWithoutReferencesLeadNowhere();

private:
    std::unique_ptr<Testing::OpenedDesign> m_opened;
    std::unique_ptr<DesignCatalog> m_catalog;
    std::unique_ptr<ReferenceMenu> m_menu;
    IDCombiner m_chosen;
};

void ReferenceMenuTest::init()
{
    m_opened = std::make_unique<Testing::OpenedDesign>();
    m_catalog = std::make_unique<DesignCatalog>(m_opened->session, m_opened->loader);
    m_menu = std::make_unique<ReferenceMenu>(*m_catalog);
    m_chosen = {};
    connect(m_menu.get(), &ReferenceMenu::chosen, this,
            [this](const IDCombiner& id) { m_chosen = id; });
}

void ReferenceMenuTest::cleanup()
{
    m_menu.reset();
    m_catalog.reset();
    m_opened.reset();
    TestCase::cleanup();
}

void ReferenceMenuTest::oneReferenceIsFollowedAtOnce()
{
    QVERIFY(m_menu->leadsAnywhere(objectId(21)));
    m_menu->follow(objectId(21), nullptr, {});
    QVERIFY(m_chosen == IDCombiner(objectId(40)));
}

void ReferenceMenuTest::severalAreOfferedInAMenu()
{
    QMenu menu;
    m_menu->fill(menu, objectId(40));
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        texts << action->text();
        QVERIFY(!action->icon().isNull());
    }
    QCOMPARE(texts, QStringList({QStringLiteral("Blank (Blank)"), QStringLiteral("Cup (Part)"),
                                 QStringLiteral("Die (Die)")}));
    menu.actions()[1]->trigger();
    QVERIFY(m_chosen == IDCombiner(objectId(10)));
}

void ReferenceMenuTest::theMenuWorksByKeyboard()
{
    QWidget window;
    window.show();
    m_menu->follow(objectId(40), &window, window.mapToGlobal({10, 10}));
    auto* menu = window.findChild<QMenu*>();
    QVERIFY(menu != nullptr);
    QTRY_VERIFY(menu->isVisible());
    QVERIFY(menu->activeAction() == menu->actions().first());
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QVERIFY(m_chosen == IDCombiner(objectId(21)));
    QTRY_VERIFY(window.findChild<QMenu*>() == nullptr);
}

void ReferenceMenuTest::namesAreNoMarksOfKeys()
{
    m_opened->session.rename(objectId(10), QStringLiteral("Cup & lid"));
    QMenu menu;
    m_menu->fill(menu, objectId(40));
    QCOMPARE(menu.actions()[1]->text(), QStringLiteral("Cup && lid (Part)"));
}

void ReferenceMenuTest::objectsWithoutReferencesLeadNowhere()
{
    for (const int number : {20, 22, 99}) {
        QVERIFY(!m_menu->leadsAnywhere(objectId(number)));
        m_menu->follow(objectId(number), nullptr, {});
        QMenu menu;
        m_menu->fill(menu, objectId(number));
        QVERIFY(menu.isEmpty());
    }
    QVERIFY(m_chosen == IDCombiner());
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::ReferenceMenuTest;
ZORVANE_TEST(ReferenceMenuTest)
#include "ReferenceMenuTest.moc"
