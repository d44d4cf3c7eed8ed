#include "Workbench/Tree/DesignTree.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

namespace Zorvane::Workbench {

using Testing::objectId;

class DesignTreeTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void columnsTellWhatIsKnown();
    void factsArriveAsMeshesAreRead();
    void refreshesAreGathered();
    void aThousandChangesInOneEventAreOneSynchronization();
    void aRefreshAtOnceTakesThePostedOneBack();
    void aNameEditedInPlaceChangesTheDesign();
    void aRefusedNameIsPutBack();
    void groupsAndMeshFilesAreNotEdited();
    void onlyNamesAreEdited();
    void countsFollowTheFilterOnRowsThatMove();
    void selectionAndExpansionSurviveAChange();
    void collapsedRowsStayCollapsedThroughAFilter();
    void aFilteringTextShowsWhatItFinds();
    void theFirstRowInSightStays();
    void expandAndCollapseAll();
    void namesOfWhatIsOpenedAreShownWhole();
    void selectingWhatIsNotShown();
    void missingFilesAreMarked();
    void unreadableFilesAreMarkedUntilTheyAreMended();

private:
    QModelIndex at(int number) const { return m_tree->indexOf(objectId(number)); }
    QString text(int number, int column) const
    {
        return at(number).siblingAtColumn(column).data().toString();
    }
    /** Types over the current row's name. */
    void rename(int number, const QString& name);

    std::unique_ptr<Testing::OpenedDesign> m_opened;
    std::unique_ptr<QTreeView> m_view;
    std::unique_ptr<DesignTree> m_tree;
};

void DesignTreeTest::init()
{
    m_opened = std::make_unique<Testing::OpenedDesign>();
    m_view = std::make_unique<QTreeView>();
    m_tree = std::make_unique<DesignTree>(m_opened->session, m_opened->loader);
    m_tree->attach(m_view.get());
    new QAbstractItemModelTester(
        m_view->model(), QAbstractItemModelTester::FailureReportingMode::Fatal, m_tree.get());
    m_view->resize(900, 700);
    m_view->show();
    m_tree->refreshNow();
}

void DesignTreeTest::cleanup()
{
    m_view.reset();
    m_tree.reset();
    m_opened.reset();
    TestCase::cleanup();
}

void DesignTreeTest::rename(int number, const QString& name)
{
    QVERIFY(m_tree->select(objectId(number)));
    QVERIFY(m_tree->editCurrent());
    auto* editor = m_view->viewport()->findChild<QLineEdit*>();
    QVERIFY(editor != nullptr);
    QVERIFY(!editor->accessibleName().isEmpty());
    editor->setText(name);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(m_view->viewport()->findChild<QLineEdit*>() == nullptr);
    m_tree->refreshNow();
}

void DesignTreeTest::columnsTellWhatIsKnown()
{
    QCOMPARE(m_tree->model().columnCount(), treeColumnTitles().size());
    QCOMPARE(text(21, TreeColumn::Name), QStringLiteral("Die"));
    QCOMPARE(text(21, TreeColumn::Kind), QStringLiteral("Die"));
    QCOMPARE(text(21, TreeColumn::State), QString());
    QVERIFY(!at(21).data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(at(21).data(s_statiRole).toInt(), int(ZVWidgetStatus::Normal));
    QCOMPARE(at(21).data(Qt::ToolTipRole).toString(),
             QStringLiteral("Die\n") +
                 QDir::toNativeSeparators(QStringLiteral("geometry/die.stl")));
    QVERIFY(at(21).parent().parent().data(Qt::FontRole).value<QFont>().bold());
}

void DesignTreeTest::factsArriveAsMeshesAreRead()
{
    QCOMPARE(text(21, TreeColumn::Triangles), QString());
    m_opened->loader.request(m_opened->session.meshFiles());
    QTRY_COMPARE(text(21, TreeColumn::Triangles), QStringLiteral("12"));
    QCOMPARE(text(21, TreeColumn::Size), QStringLiteral("10 × 10 × 10"));
    QCOMPARE(text(21, TreeColumn::Surface),
             QStringLiteral("600").append(QLocale().decimalPoint()) + QLatin1Char('0'));
    QCOMPARE(text(21, TreeColumn::Watertight), QStringLiteral("Yes"));
    QCOMPARE(text(30, TreeColumn::Triangles), QString());
}

void DesignTreeTest::refreshesAreGathered()
{
    QSignalSpy refreshed(m_tree.get(), &DesignTree::refreshed);
    QCOMPARE(m_opened->session.rename(objectId(21), QStringLiteral("A")), QString());
    QCOMPARE(m_opened->session.rename(objectId(22), QStringLiteral("B")), QString());
    m_tree->setFilterText(QStringLiteral("a"));
    m_tree->setFilterText({});
    QCOMPARE(refreshed.count(), 0);
    QTRY_COMPARE(text(22, TreeColumn::Name), QStringLiteral("B"));
    QCOMPARE(refreshed.count(), 1);
    m_tree->refreshNow();
    QCOMPARE(refreshed.count(), 1);
}

void DesignTreeTest::aThousandChangesInOneEventAreOneSynchronization()
{
    QSignalSpy changed(&m_opened->session, &DesignSession::changed);
    QSignalSpy refreshed(m_tree.get(), &DesignTree::refreshed);
    QSignalSpy published(&m_tree->model(), &ZVTreeViewModel::published);
    QTimer::singleShot(0, m_tree.get(), [this] {
        for (int change = 1; change <= 1000; ++change)
            m_opened->session.rename(objectId(21 + change % 2), QString::number(change));
    });
    QTRY_COMPARE(text(21, TreeColumn::Name), QStringLiteral("1000"));
    QCOMPARE(text(22, TreeColumn::Name), QStringLiteral("999"));
    // Let whatever else may have been posted have its turn.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 1000);
    QCOMPARE(refreshed.count(), 1);
    QCOMPARE(published.count(), 1);
}

void DesignTreeTest::aRefreshAtOnceTakesThePostedOneBack()
{
    QSignalSpy refreshed(m_tree.get(), &DesignTree::refreshed);
    m_opened->session.rename(objectId(21), QStringLiteral("A"));
    m_tree->refreshNow();
    QCOMPARE(refreshed.count(), 1);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(refreshed.count(), 1);
}

void DesignTreeTest::aNameEditedInPlaceChangesTheDesign()
{
    rename(21, QStringLiteral("  Upper die "));
    QCOMPARE(m_opened->session.name(objectId(21)), QStringLiteral("Upper die"));
    QCOMPARE(text(21, TreeColumn::Name), QStringLiteral("Upper die"));
    QCOMPARE(text(21, TreeColumn::State), QStringLiteral("Modified"));
    rename(1, QStringLiteral("Tiny"));
    QCOMPARE(text(1, TreeColumn::Name), QStringLiteral("Tiny"));
}

void DesignTreeTest::aRefusedNameIsPutBack()
{
    QSignalSpy refused(m_tree.get(), &DesignTree::renameRefused);
    rename(21, QStringLiteral("   "));
    QCOMPARE(refused.count(), 1);
    QVERIFY(!refused[0][1].toString().isEmpty());
    QCOMPARE(text(21, TreeColumn::Name), QStringLiteral("Die"));
    QVERIFY(!m_opened->session.isModified());
}

void DesignTreeTest::groupsAndMeshFilesAreNotEdited()
{
    const QString file = m_opened->path(QStringLiteral("many/cube.stl"));
    Testing::writeFile(file, Testing::binaryStl(Testing::cube()));
    m_opened->session.open({file});
    m_tree->refreshNow();
    QVERIFY(at(21).flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(!at(20).parent().flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(m_tree->select(m_opened->session.looseParts().front().id));
    QVERIFY(!m_tree->editCurrent());
}

void DesignTreeTest::onlyNamesAreEdited()
{
    m_view->setCurrentIndex(at(21).siblingAtColumn(TreeColumn::Kind));
    m_view->edit(m_view->currentIndex());
    QVERIFY(m_view->viewport()->findChild<QLineEdit*>() == nullptr);
    QVERIFY(m_tree->editCurrent());
    QVERIFY(m_view->viewport()->findChild<QLineEdit*>() != nullptr);
}

void DesignTreeTest::countsFollowTheFilterOnRowsThatMove()
{
    m_tree->setFilterText(QStringLiteral("punch"));
    m_tree->refreshNow();
    QCOMPARE(at(20).parent().data().toString(), QStringLiteral("Operations (1)"));
    QCOMPARE(at(20).parent().row(), 0);
    m_tree->setFilterText({});
    m_tree->refreshNow();
    QCOMPARE(at(20).parent().data().toString(), QStringLiteral("Operations (2)"));
    QCOMPARE(at(20).parent().row(), 1);
}

void DesignTreeTest::selectionAndExpansionSurviveAChange()
{
    QVERIFY(m_tree->select(objectId(22)));
    m_view->collapse(at(40).parent());
    QJsonObject design = Testing::smallDesign();
    QJsonArray operations = design[QLatin1String("operations")].toArray();
    operations.prepend(Testing::entry(25, QStringLiteral("Clean")));
    design[QLatin1String("operations")] = operations;
    Testing::replaceFile(m_opened->designFile(), Testing::toText(design));
    QTRY_VERIFY(at(25).isValid());
    QVERIFY(m_tree->currentId() == IDCombiner(objectId(22)));
    QVERIFY(m_view->selectionModel()->isSelected(at(22)));
    QVERIFY(!m_view->isExpanded(at(40).parent()));
    QVERIFY(m_view->isExpanded(at(20)));
}

void DesignTreeTest::collapsedRowsStayCollapsedThroughAFilter()
{
    m_view->collapse(at(20));
    m_tree->setFilterText(QStringLiteral("steel"));
    m_tree->refreshNow();
    QVERIFY(!at(20).isValid());
    m_tree->setFilterText({});
    m_tree->refreshNow();
    QVERIFY(!m_view->isExpanded(at(20)));
    QVERIFY(m_view->isExpanded(at(40).parent()));
}

void DesignTreeTest::aFilteringTextShowsWhatItFinds()
{
    m_tree->collapseAll();
    m_tree->setFilterText(QStringLiteral("punch"));
    m_tree->refreshNow();
    QVERIFY(m_view->isExpanded(at(20)));
    m_tree->setFilterText({});
    m_tree->refreshNow();
    QVERIFY(!m_view->isExpanded(at(1)));
}

void DesignTreeTest::theFirstRowInSightStays()
{
    for (int number = 100; number < 200; ++number)
        Testing::writeFile(m_opened->path(QStringLiteral("many/p%1.stl").arg(number)),
                           Testing::binaryStl(Testing::cube()));
    m_opened->session.open({m_opened->path(QStringLiteral("many"))});
    m_tree->refreshNow();
    m_view->verticalScrollBar()->setValue(m_view->verticalScrollBar()->maximum() / 2);
    const QString first = m_view->indexAt({0, 0}).data().toString();
    const int top = m_view->visualRect(m_view->indexAt({0, 0})).top();
    QVERIFY(first.startsWith(QLatin1Char('p')));
    Testing::writeFile(m_opened->path(QStringLiteral("many/a.stl")),
                       Testing::binaryStl(Testing::cube()));
    QTRY_COMPARE(m_opened->session.looseParts().size(), std::size_t(101));
    m_tree->refreshNow();
    QCOMPARE(m_view->indexAt({0, 0}).data().toString(), first);
    QCOMPARE(m_view->visualRect(m_view->indexAt({0, 0})).top(), top);
}

void DesignTreeTest::expandAndCollapseAll()
{
    m_tree->collapseAll();
    QVERIFY(!m_view->isExpanded(at(1)));
    m_tree->expandAll();
    QVERIFY(m_view->isExpanded(at(1)));
    QVERIFY(m_view->isExpanded(at(20)));
}

void DesignTreeTest::namesOfWhatIsOpenedAreShownWhole()
{
    const auto isWhole = [this](const QModelIndex& index) {
        return m_view->visualRect(index).width() >= m_view->sizeHintForIndex(index).width();
    };
    QVERIFY(isWhole(at(21)));
    // As the user wants it, until something else is opened.
    const int narrow = m_view->columnWidth(TreeColumn::Name) / 2;
    m_view->setColumnWidth(TreeColumn::Name, narrow);
    QCOMPARE(m_opened->session.rename(objectId(21), QStringLiteral("Another die")), QString());
    m_tree->refreshNow();
    QCOMPARE(m_view->columnWidth(TreeColumn::Name), narrow);
    const QString file = m_opened->path(QStringLiteral("a mesh of a rather long name.stl"));
    Testing::writeFile(file, Testing::binaryStl(Testing::cube()));
    m_opened->session.open({file});
    m_tree->refreshNow();
    const QModelIndex part = m_tree->indexOf(m_opened->session.looseParts().front().id);
    QVERIFY(isWhole(part));
    QVERIFY(isWhole(at(21)));
    // However long a name is, there is room for other columns.
    m_opened->session.close();
    const QString longest = m_opened->path(QString(100, QLatin1Char('m')) + QStringLiteral(".stl"));
    Testing::writeFile(longest, Testing::binaryStl(Testing::cube()));
    m_opened->session.open({longest});
    m_tree->refreshNow();
    QVERIFY(!isWhole(m_tree->indexOf(m_opened->session.looseParts().front().id)));
}

void DesignTreeTest::selectingWhatIsNotShown()
{
    QVERIFY(!m_tree->select(objectId(999)));
    QVERIFY(m_tree->idAt({}) == IDCombiner());
    QVERIFY(!m_tree->indexOf(objectId(999)).isValid());
    m_view->setCurrentIndex({});
    QVERIFY(!m_tree->editCurrent());
}

void DesignTreeTest::missingFilesAreMarked()
{
    QVERIFY(QFile::remove(m_opened->path(QStringLiteral("geometry/die.stl"))));
    QTRY_COMPARE(text(21, TreeColumn::State), QStringLiteral("File missing"));
    QVERIFY(at(21).data(s_statiRole).toInt() & ZVWidgetStatus::Missing);
    QCOMPARE(text(22, TreeColumn::State), QString());
}

void DesignTreeTest::unreadableFilesAreMarkedUntilTheyAreMended()
{
    const QString path = m_opened->path(QStringLiteral("geometry/die.stl"));
    const QByteArray good = Testing::binaryStl(Testing::cube());
    Testing::writeFile(path, good.left(good.size() / 2));
    m_opened->loader.requestAnew(path);
    QTRY_VERIFY(at(21).data(s_statiRole).toInt() & ZVWidgetStatus::Error);
    Testing::writeFile(path, good);
    m_opened->loader.requestAnew(path);
    QTRY_VERIFY(!(at(21).data(s_statiRole).toInt() & ZVWidgetStatus::Error));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DesignTreeTest;
ZORVANE_TEST_MAIN(DesignTreeTest)
#include "DesignTreeTest.moc"
