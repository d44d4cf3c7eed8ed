#include "Workbench/Window/LastColumn.h"

#include "Tests/Support/TestCase.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeView>

#include <memory>

namespace Zorvane::Workbench {

/** Over two columns, a fixed one and the last, which has a text. */
class LastColumnTest : public Testing::TestCase
{
    Q_OBJECT

private:
    int titleWidth() const { return m_view->header()->sectionSizeHint(1); }
    int lastWidth() const { return m_view->columnWidth(1); }
    /** The first column takes that much more than the view has without the last. */
    void narrow(int pixels);

    QStandardItemModel m_model;
    std::unique_ptr<QTreeView> m_view;

private Q_SLOTS:
    void init();
    void cleanup();
    void roomLeft_isTaken();
    void width_isNeverLessThanTheTitle();
    void longText_staysInSightElided();
    void otherWidthOfView_isFollowed();
    void columnPutLastByUser_takesTheRoom();
};

void LastColumnTest::init()
{
    m_model.clear();
    m_model.setHorizontalHeaderLabels({QStringLiteral("A"), QStringLiteral("B")});
    m_model.appendRow({new QStandardItem(QStringLiteral("name")),
                       new QStandardItem(QStringLiteral("File missing"))});
    m_view = std::make_unique<QTreeView>();
    m_view->setModel(&m_model);
    m_view->resize(600, 300);
    m_view->show();
    new LastColumn(m_view.get());
}

void LastColumnTest::cleanup()
{
    m_view.reset();
    TestCase::cleanup();
}

void LastColumnTest::narrow(int pixels)
{
    m_view->setColumnWidth(0, m_view->viewport()->width() - titleWidth() + pixels);
}

void LastColumnTest::roomLeft_isTaken()
{
    m_view->setColumnWidth(0, 100);
    QCOMPARE(lastWidth(), m_view->viewport()->width() - 100);
    narrow(20);
    narrow(-20);
    QCOMPARE(lastWidth(), titleWidth() + 20);
}

void LastColumnTest::width_isNeverLessThanTheTitle()
{
    narrow(1);
    QCOMPARE(lastWidth(), titleWidth());
    narrow(titleWidth());
    QCOMPARE(lastWidth(), titleWidth());
}

void LastColumnTest::longText_staysInSightElided()
{
    narrow(-10);
    m_model.item(0, 1)->setText(QString(200, QLatin1Char('m')));
    QCOMPARE(m_view->visualRect(m_model.index(0, 1)).right(), m_view->viewport()->rect().right());
    QCOMPARE(m_view->textElideMode(), Qt::ElideRight);
}

void LastColumnTest::otherWidthOfView_isFollowed()
{
    narrow(0);
    m_view->resize(500, 300);
    QTRY_COMPARE(lastWidth(), titleWidth());
    m_view->resize(700, 300);
    QTRY_COMPARE(lastWidth(), m_view->viewport()->width() - m_view->columnWidth(0));
    QVERIFY(lastWidth() > titleWidth());
}

void LastColumnTest::columnPutLastByUser_takesTheRoom()
{
    m_view->header()->moveSection(1, 0);
    m_view->setColumnWidth(1, 40);
    QCOMPARE(m_view->columnWidth(0), m_view->viewport()->width() - 40);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::LastColumnTest;
ZORVANE_TEST(LastColumnTest)
#include "LastColumnTest.moc"
