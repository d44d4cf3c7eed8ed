#include "Workbench/Tree/DesignTree.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/ShownTree.h"
#include "Workbench/Tree/DesignTreeDelegate.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>

namespace Zorvane::Workbench {

using Testing::objectId;

namespace {

/** The colours that a row is painted with. */
class PaintedRow : public DesignTreeDelegate
{
public:
    QPalette of(const QModelIndex& index, const QPalette& usual) const
    {
        QStyleOptionViewItem option;
        option.palette = usual;
        initStyleOption(&option, index);
        return option.palette;
    }
};

} // namespace

class DesignTreeTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void columnsTellWhatIsKnown();
    void textCutShort_isAToolTip();
    void state_isWholeInItsToolTip();
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
    void aChoiceComesBackWithItsRow();
    void aNewChoiceReplacesTheHiddenOne();
    void clickingWhatIsCurrentReplacesTheHiddenChoice();
    void goingToWhatIsCurrentReplacesTheHiddenChoice();
    void renamingWhatIsCurrentReplacesTheHiddenChoice();
    void comingToWhatWasCurrentReplacesTheHiddenChoice();
    void aChoiceThatComesBackOpensNothing();
    void aChoiceEndsWithWhatWasOpen();
    void aNameBeingTypedIsLeftAlone();
    void theFirstRowInSightStays();
    void expandAndCollapseAll();
    void namesOfWhatIsOpenedAreShownWhole();
    void selectingWhatIsNotShown();
    void missingFilesAreMarked();
    void unreadableFilesAreMarkedUntilTheyAreMended();

private:
    QModelIndex at(int number) const { return m_shown->tree.indexOf(objectId(number)); }
    QString text(int number, int column) const
    {
        return at(number).siblingAtColumn(column).data().toString();
    }
    /** Chooses the die and filters it away; what is current instead, an object with a name. */
    IDCombiner hideTheChoice();
    void clearFilter();
    /** Types over the current row's name. */
    void rename(int number, const QString& name);

    std::unique_ptr<Testing::ShownTree> m_shown;
};

void DesignTreeTest::init()
{
    m_shown = std::make_unique<Testing::ShownTree>();
}

void DesignTreeTest::cleanup()
{
    m_shown.reset();
    TestCase::cleanup();
}

IDCombiner DesignTreeTest::hideTheChoice()
{
    m_shown->tree.select(objectId(21));
    m_shown->tree.setFilterText(QStringLiteral("punch"));
    m_shown->tree.refreshNow();
    const IDCombiner current = m_shown->tree.currentId();
    if (current == IDCombiner() || current == IDCombiner(objectId(21)))
        qFatal("nothing stands in for the row that is hidden");
    return current;
}

void DesignTreeTest::clearFilter()
{
    m_shown->tree.setFilterText({});
    m_shown->tree.refreshNow();
}

void DesignTreeTest::rename(int number, const QString& name)
{
    QVERIFY(m_shown->tree.select(objectId(number)));
    QVERIFY(m_shown->tree.editCurrent());
    auto* editor = m_shown->view.viewport()->findChild<QLineEdit*>();
    QVERIFY(editor != nullptr);
    QVERIFY(!editor->accessibleName().isEmpty());
    editor->setText(name);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(m_shown->view.viewport()->findChild<QLineEdit*>() == nullptr);
    m_shown->tree.refreshNow();
}

void DesignTreeTest::columnsTellWhatIsKnown()
{
    QCOMPARE(m_shown->tree.model().columnCount(), treeColumnTitles().size());
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

void DesignTreeTest::textCutShort_isAToolTip()
{
    QTreeView& view = m_shown->view;
    const auto toolTipOf = [&view](const QModelIndex& index) {
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.font = view.font();
        option.rect = view.visualRect(index);
        QHelpEvent event(QEvent::ToolTip, option.rect.center(),
                         view.viewport()->mapToGlobal(option.rect.center()));
        QToolTip::hideText();
        view.itemDelegate(index)->helpEvent(&event, &view, option, index);
        return QToolTip::text();
    };
    const QModelIndex kind = at(20).siblingAtColumn(TreeColumn::Kind);
    view.setColumnWidth(TreeColumn::Kind, 300);
    QCOMPARE(toolTipOf(kind), QString());
    view.setColumnWidth(TreeColumn::Kind, 30);
    QCOMPARE(toolTipOf(kind), QStringLiteral("Draw operation"));
    QToolTip::hideText();
}

void DesignTreeTest::state_isWholeInItsToolTip()
{
    m_shown->session.rename(objectId(21), QStringLiteral("Other"));
    m_shown->tree.refreshNow();
    const QModelIndex state = at(21).siblingAtColumn(TreeColumn::State);
    QCOMPARE(state.data(Qt::ToolTipRole).toString(), QStringLiteral("Modified"));
}

void DesignTreeTest::factsArriveAsMeshesAreRead()
{
    QCOMPARE(text(21, TreeColumn::Triangles), QString());
    m_shown->loader.request(m_shown->session.meshFiles());
    QTRY_COMPARE(text(21, TreeColumn::Triangles), QStringLiteral("12"));
    QCOMPARE(text(21, TreeColumn::Size), QStringLiteral("10 × 10 × 10"));
    QCOMPARE(text(21, TreeColumn::Surface),
             QStringLiteral("600").append(QLocale().decimalPoint()) + QLatin1Char('0'));
    QCOMPARE(text(21, TreeColumn::Watertight), QStringLiteral("Yes"));
    QCOMPARE(text(30, TreeColumn::Triangles), QString());
}

void DesignTreeTest::refreshesAreGathered()
{
    QSignalSpy refreshed(&m_shown->tree, &DesignTree::refreshed);
    QCOMPARE(m_shown->session.rename(objectId(21), QStringLiteral("A")), QString());
    QCOMPARE(m_shown->session.rename(objectId(22), QStringLiteral("B")), QString());
    m_shown->tree.setFilterText(QStringLiteral("a"));
    m_shown->tree.setFilterText({});
    QCOMPARE(refreshed.count(), 0);
    QTRY_COMPARE(text(22, TreeColumn::Name), QStringLiteral("B"));
    QCOMPARE(refreshed.count(), 1);
    m_shown->tree.refreshNow();
    QCOMPARE(refreshed.count(), 1);
}

void DesignTreeTest::aThousandChangesInOneEventAreOneSynchronization()
{
    QSignalSpy changed(&m_shown->session, &DesignSession::changed);
    QSignalSpy refreshed(&m_shown->tree, &DesignTree::refreshed);
    QSignalSpy published(&m_shown->tree.model(), &ZVTreeViewModel::published);
    QTimer::singleShot(0, &m_shown->tree, [this] {
        for (int change = 1; change <= 1000; ++change)
            m_shown->session.rename(objectId(21 + change % 2), QString::number(change));
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
    QSignalSpy refreshed(&m_shown->tree, &DesignTree::refreshed);
    m_shown->session.rename(objectId(21), QStringLiteral("A"));
    m_shown->tree.refreshNow();
    QCOMPARE(refreshed.count(), 1);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(refreshed.count(), 1);
}

void DesignTreeTest::aNameEditedInPlaceChangesTheDesign()
{
    rename(21, QStringLiteral("  Upper die "));
    QCOMPARE(m_shown->session.name(objectId(21)), QStringLiteral("Upper die"));
    QCOMPARE(text(21, TreeColumn::Name), QStringLiteral("Upper die"));
    QCOMPARE(text(21, TreeColumn::State), QStringLiteral("Modified"));
    rename(1, QStringLiteral("Tiny"));
    QCOMPARE(text(1, TreeColumn::Name), QStringLiteral("Tiny"));
}

void DesignTreeTest::aRefusedNameIsPutBack()
{
    QSignalSpy refused(&m_shown->tree, &DesignTree::renameRefused);
    rename(21, QStringLiteral("   "));
    QCOMPARE(refused.count(), 1);
    QVERIFY(!refused[0][1].toString().isEmpty());
    QCOMPARE(text(21, TreeColumn::Name), QStringLiteral("Die"));
    QVERIFY(!m_shown->session.isModified());
}

void DesignTreeTest::groupsAndMeshFilesAreNotEdited()
{
    const QString file = m_shown->path(QStringLiteral("many/cube.stl"));
    Testing::writeFile(file, Testing::binaryStl(Testing::cube()));
    m_shown->session.open({file});
    m_shown->tree.refreshNow();
    QVERIFY(at(21).flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(!at(20).parent().flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(m_shown->tree.select(m_shown->session.looseParts().front().id));
    QVERIFY(!m_shown->tree.editCurrent());
}

void DesignTreeTest::onlyNamesAreEdited()
{
    m_shown->view.setCurrentIndex(at(21).siblingAtColumn(TreeColumn::Kind));
    m_shown->view.edit(m_shown->view.currentIndex());
    QVERIFY(m_shown->view.viewport()->findChild<QLineEdit*>() == nullptr);
    QVERIFY(m_shown->tree.editCurrent());
    QVERIFY(m_shown->view.viewport()->findChild<QLineEdit*>() != nullptr);
}

void DesignTreeTest::countsFollowTheFilterOnRowsThatMove()
{
    m_shown->tree.setFilterText(QStringLiteral("card"));
    m_shown->tree.refreshNow();
    QCOMPARE(at(41).parent().data().toString(), QStringLiteral("Files (1)"));
    QCOMPARE(at(41).parent().row(), 0);
    m_shown->tree.setFilterText({});
    m_shown->tree.refreshNow();
    QCOMPARE(at(41).parent().data().toString(), QStringLiteral("Files (2)"));
    QCOMPARE(at(41).parent().row(), 3);
}

void DesignTreeTest::selectionAndExpansionSurviveAChange()
{
    QVERIFY(m_shown->tree.select(objectId(22)));
    m_shown->view.collapse(at(40).parent());
    QJsonObject design = Testing::smallDesign();
    QJsonArray operations = design[QLatin1String("operations")].toArray();
    operations.prepend(Testing::entry(25, QStringLiteral("Clean")));
    design[QLatin1String("operations")] = operations;
    Testing::replaceFile(m_shown->designFile(), Testing::toText(design));
    QTRY_VERIFY(at(25).isValid());
    QVERIFY(m_shown->tree.currentId() == IDCombiner(objectId(22)));
    QVERIFY(m_shown->view.selectionModel()->isSelected(at(22)));
    QVERIFY(!m_shown->view.isExpanded(at(40).parent()));
    QVERIFY(m_shown->view.isExpanded(at(20)));
}

void DesignTreeTest::collapsedRowsStayCollapsedThroughAFilter()
{
    m_shown->view.collapse(at(20));
    m_shown->tree.setFilterText(QStringLiteral("steel"));
    m_shown->tree.refreshNow();
    QVERIFY(!at(20).isValid());
    m_shown->tree.setFilterText({});
    m_shown->tree.refreshNow();
    QVERIFY(!m_shown->view.isExpanded(at(20)));
    QVERIFY(m_shown->view.isExpanded(at(40).parent()));
}

void DesignTreeTest::aFilteringTextShowsWhatItFinds()
{
    m_shown->tree.collapseAll();
    m_shown->tree.setFilterText(QStringLiteral("punch"));
    m_shown->tree.refreshNow();
    QVERIFY(m_shown->view.isExpanded(at(20)));
    m_shown->tree.setFilterText({});
    m_shown->tree.refreshNow();
    QVERIFY(!m_shown->view.isExpanded(at(1)));
}

void DesignTreeTest::aChoiceComesBackWithItsRow()
{
    QVERIFY(m_shown->tree.select(objectId(21)));
    for (const char* text : {"s", "st", "steel", "nothing like this", "steel"}) {
        m_shown->tree.setFilterText(QString::fromLatin1(text));
        m_shown->tree.refreshNow();
    }
    QVERIFY(m_shown->tree.currentId() != IDCombiner(objectId(21)));
    m_shown->tree.setFilterText({});
    m_shown->tree.refreshNow();
    QVERIFY(m_shown->tree.currentId() == IDCombiner(objectId(21)));
    QVERIFY(m_shown->view.selectionModel()->isSelected(at(21)));
}

void DesignTreeTest::aNewChoiceReplacesTheHiddenOne()
{
    QVERIFY(m_shown->tree.select(objectId(21)));
    m_shown->tree.setFilterText(QStringLiteral("steel"));
    m_shown->tree.refreshNow();
    QVERIFY(m_shown->tree.currentId() != IDCombiner(objectId(30)));
    QVERIFY(m_shown->tree.select(objectId(30)));
    m_shown->tree.setFilterText({});
    m_shown->tree.refreshNow();
    QVERIFY(m_shown->tree.currentId() == IDCombiner(objectId(30)));
}

void DesignTreeTest::clickingWhatIsCurrentReplacesTheHiddenChoice()
{
    const IDCombiner standIn = hideTheChoice();
    const QRect place = m_shown->view.visualRect(m_shown->view.currentIndex());
    QTest::mouseClick(m_shown->view.viewport(), Qt::LeftButton, {}, place.center());
    clearFilter();
    QVERIFY(m_shown->tree.currentId() == standIn);
}

void DesignTreeTest::goingToWhatIsCurrentReplacesTheHiddenChoice()
{
    const IDCombiner standIn = hideTheChoice();
    QVERIFY(m_shown->tree.select(standIn));
    clearFilter();
    QVERIFY(m_shown->tree.currentId() == standIn);
}

void DesignTreeTest::renamingWhatIsCurrentReplacesTheHiddenChoice()
{
    const IDCombiner standIn = hideTheChoice();
    const QModelIndex name = m_shown->view.currentIndex().siblingAtColumn(TreeColumn::Name);
    m_shown->view.model()->setData(name, QString(name.data().toString() + QLatin1String(" 2")));
    clearFilter();
    QVERIFY(m_shown->tree.currentId() == standIn);
}

void DesignTreeTest::comingToWhatWasCurrentReplacesTheHiddenChoice()
{
    const IDCombiner standIn = hideTheChoice();
    QTest::keyClick(&m_shown->view, Qt::Key_Up);
    QVERIFY(m_shown->tree.currentId() != standIn);
    QTest::keyClick(&m_shown->view, Qt::Key_Down);
    QVERIFY(m_shown->tree.currentId() == standIn);
    clearFilter();
    QVERIFY(m_shown->tree.currentId() == standIn);
}

void DesignTreeTest::aChoiceThatComesBackOpensNothing()
{
    QVERIFY(m_shown->tree.select(objectId(21)));
    m_shown->view.collapse(at(20));
    m_shown->tree.setFilterText(QStringLiteral("punch"));
    m_shown->tree.refreshNow();
    QVERIFY(m_shown->tree.currentId() != IDCombiner(objectId(21)));
    clearFilter();
    QVERIFY(m_shown->tree.currentId() == IDCombiner(objectId(21)));
    QVERIFY(!m_shown->view.isExpanded(at(20)));
}

void DesignTreeTest::aChoiceEndsWithWhatWasOpen()
{
    QVERIFY(m_shown->tree.select(objectId(21)));
    m_shown->session.close();
    m_shown->tree.refreshNow();
    QVERIFY(m_shown->tree.currentId() == IDCombiner());
    m_shown->session.open({m_shown->designFile()});
    m_shown->tree.refreshNow();
    QVERIFY(m_shown->tree.currentId() != IDCombiner(objectId(21)));
}

void DesignTreeTest::aNameBeingTypedIsLeftAlone()
{
    const IDCombiner standIn = hideTheChoice();
    const QString name = m_shown->session.name(standIn.getCombinedPart());
    QVERIFY(m_shown->tree.editCurrent());
    auto* const editor = m_shown->view.viewport()->findChild<QLineEdit*>();
    QVERIFY(editor != nullptr);
    editor->setText(QStringLiteral("half ty"));
    // Meanwhile the row chosen before comes back.
    clearFilter();
    QVERIFY(m_shown->tree.currentId() == standIn);
    QCOMPARE(m_shown->session.name(standIn.getCombinedPart()), name);
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(m_shown->view.viewport()->findChild<QLineEdit*>() == nullptr);
}

void DesignTreeTest::theFirstRowInSightStays()
{
    for (int number = 100; number < 200; ++number)
        Testing::writeFile(m_shown->path(QStringLiteral("many/p%1.stl").arg(number)),
                           Testing::binaryStl(Testing::cube()));
    m_shown->session.open({m_shown->path(QStringLiteral("many"))});
    m_shown->tree.refreshNow();
    m_shown->view.verticalScrollBar()->setValue(m_shown->view.verticalScrollBar()->maximum() / 2);
    const QString first = m_shown->view.indexAt({0, 0}).data().toString();
    const int top = m_shown->view.visualRect(m_shown->view.indexAt({0, 0})).top();
    QVERIFY(first.startsWith(QLatin1Char('p')));
    Testing::writeFile(m_shown->path(QStringLiteral("many/a.stl")),
                       Testing::binaryStl(Testing::cube()));
    QTRY_COMPARE(m_shown->session.looseParts().size(), std::size_t(101));
    m_shown->tree.refreshNow();
    QCOMPARE(m_shown->view.indexAt({0, 0}).data().toString(), first);
    QCOMPARE(m_shown->view.visualRect(m_shown->view.indexAt({0, 0})).top(), top);
}

void DesignTreeTest::expandAndCollapseAll()
{
    m_shown->tree.collapseAll();
    QVERIFY(!m_shown->view.isExpanded(at(1)));
    m_shown->tree.expandAll();
    QVERIFY(m_shown->view.isExpanded(at(1)));
    QVERIFY(m_shown->view.isExpanded(at(20)));
}

void DesignTreeTest::namesOfWhatIsOpenedAreShownWhole()
{
    const auto isWhole = [this](const QModelIndex& index) {
        return m_shown->view.visualRect(index).width() >=
               m_shown->view.sizeHintForIndex(index).width();
    };
    QVERIFY(isWhole(at(21)));
    QVERIFY(isWhole(at(20).siblingAtColumn(TreeColumn::Kind)));
    // As the user wants it, until something else is opened.
    const int narrow = m_shown->view.columnWidth(TreeColumn::Name) / 2;
    m_shown->view.setColumnWidth(TreeColumn::Name, narrow);
    QCOMPARE(m_shown->session.rename(objectId(21), QStringLiteral("Another die")), QString());
    m_shown->tree.refreshNow();
    QCOMPARE(m_shown->view.columnWidth(TreeColumn::Name), narrow);
    const QString file = m_shown->path(QStringLiteral("a mesh of a rather long name.stl"));
    Testing::writeFile(file, Testing::binaryStl(Testing::cube()));
    m_shown->session.open({file});
    m_shown->tree.refreshNow();
    const QModelIndex part = m_shown->tree.indexOf(m_shown->session.looseParts().front().id);
    QVERIFY(isWhole(part));
    QVERIFY(isWhole(at(21)));
    // However long a name is, there is room for other columns.
    m_shown->session.close();
    const QString longest = m_shown->path(QString(100, QLatin1Char('m')) + QStringLiteral(".stl"));
    Testing::writeFile(longest, Testing::binaryStl(Testing::cube()));
    m_shown->session.open({longest});
    m_shown->tree.refreshNow();
    QVERIFY(!isWhole(m_shown->tree.indexOf(m_shown->session.looseParts().front().id)));
}

void DesignTreeTest::selectingWhatIsNotShown()
{
    QVERIFY(!m_shown->tree.select(objectId(999)));
    QVERIFY(m_shown->tree.idAt({}) == IDCombiner());
    QVERIFY(!m_shown->tree.indexOf(objectId(999)).isValid());
    m_shown->view.setCurrentIndex({});
    QVERIFY(!m_shown->tree.editCurrent());
}

void DesignTreeTest::missingFilesAreMarked()
{
    QVERIFY(QFile::remove(m_shown->path(QStringLiteral("geometry/die.stl"))));
    QTRY_COMPARE(text(21, TreeColumn::State), QStringLiteral("File missing"));
    QVERIFY(at(21).data(s_statiRole).toInt() & ZVWidgetStatus::Missing);
    QCOMPARE(text(22, TreeColumn::State), QString());
    const QPalette plain = m_shown->view.palette();
    const QPalette marked = PaintedRow().of(at(21), plain);
    QVERIFY(marked.color(QPalette::Text) != plain.color(QPalette::Text));
    QVERIFY2(marked.color(QPalette::HighlightedText) == plain.color(QPalette::HighlightedText),
             "which can be read on any selection");
}

void DesignTreeTest::unreadableFilesAreMarkedUntilTheyAreMended()
{
    const QString path = m_shown->path(QStringLiteral("geometry/die.stl"));
    const QByteArray good = Testing::binaryStl(Testing::cube());
    Testing::writeFile(path, good.left(good.size() / 2));
    m_shown->loader.requestAnew(path);
    QTRY_VERIFY(at(21).data(s_statiRole).toInt() & ZVWidgetStatus::Error);
    Testing::writeFile(path, good);
    m_shown->loader.requestAnew(path);
    QTRY_VERIFY(!(at(21).data(s_statiRole).toInt() & ZVWidgetStatus::Error));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DesignTreeTest;
ZORVANE_TEST(DesignTreeTest)
#include "DesignTreeTest.moc"
