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
    int textWidth() const
    {
        const QAbstractItemView& view = *m_view;
        return view.sizeHintForColumn(1);
    }
    int lastWidth() const { return m_view->columnWidth(1); }
    /** The first column takes that much more than the view has without the last. */
    void narrow(int pixels);

    QStandardItemModel m_model;
    std::unique_ptr<QTreeView> m_view;
    LastColumn* m_column = nullptr;

private Q_SLOTS:
    void init();
    void cleanup();
    void takesWhatIsLeft();
    void isNeverLessThanItsTexts();
    void takesWhatIsLeftAgain();
    void followsItsTexts();
    void longTextsAreCut();
    void followsTheView();
    void followsRowsThatAreExpanded();
    void isTheOneThatTheUserPutLast();
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
    m_column = new LastColumn(m_view.get());
}

void LastColumnTest::cleanup()
{
    m_view.reset();
    TestCase::cleanup();
}

void LastColumnTest::narrow(int pixels)
{
    m_view->setColumnWidth(0, m_view->viewport()->width() - textWidth() + pixels);
}

void LastColumnTest::takesWhatIsLeft()
{
    m_view->setColumnWidth(0, 100);
    QCOMPARE(lastWidth(), m_view->viewport()->width() - 100);
    narrow(0);
    QCOMPARE(lastWidth(), textWidth());
}

void LastColumnTest::isNeverLessThanItsTexts()
{
    narrow(1);
    QCOMPARE(lastWidth(), textWidth());
    narrow(textWidth());
    QCOMPARE(lastWidth(), textWidth());
}

void LastColumnTest::takesWhatIsLeftAgain()
{
    narrow(20);
    narrow(-20);
    QCOMPARE(lastWidth(), textWidth() + 20);
}

void LastColumnTest::followsItsTexts()
{
    narrow(0);
    m_model.item(0, 1)->setText(QStringLiteral("File missing, Modified"));
    m_column->fit();
    QCOMPARE(lastWidth(), textWidth());
}

void LastColumnTest::longTextsAreCut()
{
    m_model.item(0, 1)->setText(QString(200, QLatin1Char('m')));
    m_column->fit();
    QVERIFY(lastWidth() < textWidth());
}

void LastColumnTest::followsTheView()
{
    narrow(0);
    m_view->resize(500, 300);
    QTRY_COMPARE(lastWidth(), textWidth());
    m_view->resize(700, 300);
    QTRY_COMPARE(lastWidth(), m_view->viewport()->width() - m_view->columnWidth(0));
    QVERIFY(lastWidth() > textWidth());
}

void LastColumnTest::followsRowsThatAreExpanded()
{
    m_model.item(0, 0)->appendRow({new QStandardItem(QStringLiteral("child")),
                                   new QStandardItem(QStringLiteral("File missing, Modified"))});
    narrow(50);
    const int before = lastWidth();
    m_view->expand(m_model.index(0, 0));
    QTRY_VERIFY(lastWidth() > before);
    QCOMPARE(lastWidth(), textWidth());
}

void LastColumnTest::isTheOneThatTheUserPutLast()
{
    m_view->header()->moveSection(1, 0);
    const int narrow = textWidth() / 2;
    m_view->setColumnWidth(1, narrow);
    QCOMPARE(lastWidth(), narrow);
    QCOMPARE(m_view->columnWidth(0), m_view->viewport()->width() - narrow);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::LastColumnTest;
ZORVANE_TEST(LastColumnTest)
#include "LastColumnTest.moc"
