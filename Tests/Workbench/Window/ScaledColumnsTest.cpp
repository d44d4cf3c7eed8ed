#include "Workbench/Window/ScaledColumns.h"

#include "Tests/Support/TestCase.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeView>

#include <memory>

namespace Zorvane::Workbench {

class ScaledColumnsTest : public Testing::TestCase
{
    Q_OBJECT

private:
    void setFontSize(int points);
    /** In digits. */
    double width(int column) const
    {
        return double(m_view->columnWidth(column)) /
               m_view->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    }

    QStandardItemModel m_model{1, 3};
    std::unique_ptr<QTreeView> m_view;

private Q_SLOTS:
    void init();
    void cleanup();
    void growWithTheFont();
    void shrinkWithTheFont();
    void keepWhatTheUserMadeOfThem();
    void theLastTakesWhatIsLeft();
};

void ScaledColumnsTest::init()
{
    m_view = std::make_unique<QTreeView>();
    m_view->setModel(&m_model);
    setFontSize(10);
    m_view->header()->setStretchLastSection(false);
    m_view->setColumnWidth(0, 200);
    m_view->setColumnWidth(1, 100);
    m_view->setColumnWidth(2, 150);
    m_view->resize(1200, 300);
    m_view->show();
    new ScaledColumns(m_view.get());
}

void ScaledColumnsTest::cleanup()
{
    m_view.reset();
    TestCase::cleanup();
}

void ScaledColumnsTest::setFontSize(int points)
{
    QFont font = m_view->font();
    font.setPointSize(points);
    m_view->setFont(font);
}

void ScaledColumnsTest::growWithTheFont()
{
    const double before[] = {width(0), width(1), width(2)};
    setFontSize(25);
    for (int column = 0; column < 3; ++column)
        QVERIFY(qAbs(width(column) - before[column]) < 0.1);
    QVERIFY(m_view->columnWidth(0) > 300);
}

void ScaledColumnsTest::shrinkWithTheFont()
{
    setFontSize(25);
    const double before = width(0);
    setFontSize(10);
    QVERIFY(qAbs(width(0) - before) < 0.2);
    QVERIFY(m_view->columnWidth(0) < 250);
}

void ScaledColumnsTest::keepWhatTheUserMadeOfThem()
{
    m_view->setColumnWidth(1, 180);
    const double before = width(1);
    setFontSize(20);
    QVERIFY(qAbs(width(1) - before) < 0.1);
}

void ScaledColumnsTest::theLastTakesWhatIsLeft()
{
    m_view->header()->setStretchLastSection(true);
    setFontSize(20);
    const int others = m_view->columnWidth(0) + m_view->columnWidth(1);
    QCOMPARE(m_view->columnWidth(2), m_view->viewport()->width() - others);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::ScaledColumnsTest;
ZORVANE_TEST(ScaledColumnsTest)
#include "ScaledColumnsTest.moc"
