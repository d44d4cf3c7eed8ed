#include "Workbench/Window/MainWindow.h"

#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Utilities/ReferenceIndicatorDelegate.h"
#include "Workbench/Edit/EngineeringSpinBox.h"
#include "Workbench/Edit/QuantityPanel.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Tree/FilterBar.h"
#include "Workbench/Window/MessageBar.h"
#include "Workbench/Window/ProblemsPanel.h"
#include "Workbench/Window/ReadingProgress.h"

#include <QtCore/QMimeData>
#include <QtGui/QAccessible>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QDropEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

#include <map>

namespace Zorvane::Workbench {

using Testing::objectId;

namespace {

bool isControl(const QWidget* widget)
{
    return widget->focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(widget) ||
           qobject_cast<const QAbstractItemView*>(widget) ||
           qobject_cast<const QProgressBar*>(widget);
}

/** Parts of Qt's own controls, which speak for them. */
bool isInnerPart(const QWidget* widget)
{
    return widget->objectName().startsWith(QLatin1String("qt_")) ||
           widget->inherits("QHeaderView") || widget->inherits("QLineEditIconButton") ||
           widget->inherits("QMenu") || widget->inherits("QToolBarExtension");
}

QString accessibleName(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/** By the mouse, there, or by the menu key, wherever the system then says. */
void askForMenu(QTreeView& tree, QContextMenuEvent::Reason reason, const QPoint& place)
{
    QWidget* const asked = reason == QContextMenuEvent::Mouse ? tree.viewport() : &tree;
    QContextMenuEvent event(reason, place, asked->mapToGlobal(place));
    QCoreApplication::sendEvent(asked, &event);
}

QRect currentRow(const QTreeView& tree)
{
    const QRect row = tree.visualRect(tree.currentIndex());
    return {tree.viewport()->mapToGlobal(row.topLeft()), row.size()};
}

} // namespace

class MainWindowTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyControlHasAName();
    void everyControlIsReachedByTab();
    void theTreeHasTheFocusFirst();
    void opensADesignAndSelectsItsFirstPart();
    void opensAMeshFile();
    void whatCannotBeOpenedIsToldAndTheRestOpens();
    void whatCannotBeOpenedIsToldEachTime();
    void whatWasWrongBeforeIsNotToldAgain();
    void aBrokenMeshIsListedWithItsReason();
    void missingFilesAreListed();
    void theStatusBarCounts();
    void theMeshFollowsItsFile();
    void objectsWithoutMeshSayWhy();
    void renamingRefusedIsToldUntilSomethingElseIsSelected();
    void savingWritesTheDesign();
    void savingOverAnotherProgramsChangeAsks();
    void reopeningAsksForUnsavedChanges_data();
    void reopeningAsksForUnsavedChanges();
    void closingAsksForUnsavedChanges_data();
    void closingAsksForUnsavedChanges();
    void reloadReadsWhatWasCancelled();
    void reloadTriesAgainWhatCouldNotBeOpened();
    void aRowHasAMenu();
    void theMenuKeyBringsTheCurrentRowIntoSight();
    void aReferenceLeadsToThePart();
    void aReferenceThatTheFilterHidesIsTold();
    void theLegendLeadsToThePart();
    void coloursAreTheSameEverywhere();
    void aMeasuredValueIsEdited();
    void closeAllForgetsEverything();
    void droppedFilesAreOpened();
    void movedFiles_areTakenAsCopies();
    void columnsFollowTheFontSize();
    void findFocusesTheFilter();
    void activatingAProblemSelectsItsObject();

private:
    void triggerText(const QString& text);
    void openDesign();
    /** The die's name, and by another program that of the design: told as a conflict. */
    void changeHereAndElsewhere();

    std::unique_ptr<Testing::OpenedDesign> m_files;
    std::unique_ptr<MainWindow> m_window;
};

void MainWindowTest::init()
{
    m_files = std::make_unique<Testing::OpenedDesign>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->activateWindow();
}

void MainWindowTest::cleanup()
{
    m_window.reset();
    m_files.reset();
    TestCase::cleanup();
}

void MainWindowTest::openDesign()
{
    m_window->open({m_files->folder.path()});
    QTRY_VERIFY(!m_window->loader().isBusy());
    m_window->tree().refreshNow();
}

void MainWindowTest::changeHereAndElsewhere()
{
    QCOMPARE(m_window->session().rename(objectId(21), QStringLiteral("Upper die")), QString());
    QJsonObject theirs = Testing::smallDesign();
    theirs[QLatin1String("name")] = QStringLiteral("Theirs");
    Testing::replaceFile(m_files->designFile(), Testing::toText(theirs));
    QTRY_VERIFY(m_window->session().hasConflict(objectId(1)));
    QTRY_VERIFY(!m_window->messageBar().text().isEmpty());
}

void MainWindowTest::triggerText(const QString& text)
{
    for (QAction* action : m_window->actions())
        if (action->text().remove(QLatin1Char('&')) == text)
            return action->trigger();
    QFAIL(qPrintable(QStringLiteral("no action ") + text));
}

void MainWindowTest::everyControlHasAName()
{
    openDesign();
    m_window->open({m_files->path(QStringLiteral("nowhere"))});
    int controls = 0;
    for (QWidget* widget : m_window->findChildren<QWidget*>()) {
        if (!isControl(widget) || isInnerPart(widget))
            continue;
        ++controls;
        QVERIFY2(!accessibleName(widget).isEmpty(), widget->metaObject()->className());
    }
    QVERIFY(controls >= 10);
}

void MainWindowTest::everyControlIsReachedByTab()
{
    openDesign();
    m_window->open({m_files->path(QStringLiteral("nowhere"))});
    QSet<QWidget*> reached;
    m_window->treeView().setFocus();
    QTRY_VERIFY(m_window->treeView().hasFocus());
    while (!reached.contains(QApplication::focusWidget())) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (QWidget* widget : m_window->findChildren<QWidget*>())
        if (widget->isVisible() && widget->isEnabled() && !isInnerPart(widget) &&
            (widget->focusPolicy() & Qt::TabFocus))
            QVERIFY2(reached.contains(widget), qPrintable(accessibleName(widget)));
    QVERIFY(reached.size() >= 7);
}

void MainWindowTest::theTreeHasTheFocusFirst()
{
    openDesign();
    QTRY_VERIFY(m_window->treeView().hasFocus());
}

void MainWindowTest::opensADesignAndSelectsItsFirstPart()
{
    openDesign();
    QVERIFY(m_window->tree().currentId() == IDCombiner(objectId(10)));
    QTRY_VERIFY(m_window->meshView().hasMesh());
    QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("Small")));
    QVERIFY(!m_window->problemsPanel().isVisible());
    QVERIFY(m_window->messageBar().text().isEmpty());
}

void MainWindowTest::opensAMeshFile()
{
    m_window->open({m_files->path(QStringLiteral("geometry/die.stl"))});
    QTRY_VERIFY(m_window->meshView().hasMesh());
    QCOMPARE(m_window->countsText(), QStringLiteral("1 object"));
}

void MainWindowTest::whatCannotBeOpenedIsToldAndTheRestOpens()
{
    const QString wrong = m_files->path(QStringLiteral("nowhere.dsg"));
    m_window->open({wrong, m_files->designFile()});
    QVERIFY(m_window->messageBar().text().contains(QDir::toNativeSeparators(wrong)));
    QVERIFY(m_window->problemsPanel().isVisible());
    QCOMPARE(m_window->session().designs().size(), std::size_t(1));
}

void MainWindowTest::whatCannotBeOpenedIsToldEachTime()
{
    const QString nowhere = m_files->path(QStringLiteral("nowhere.dsg"));
    const QString broken = m_files->path(QStringLiteral("broken.dsg"));
    Testing::writeFile(broken, "no design");
    for (const QString& wrong : {nowhere, broken, nowhere}) {
        for (int time = 0; time < 2; ++time) {
            m_window->open({wrong});
            QVERIFY(m_window->messageBar().text().contains(QDir::toNativeSeparators(wrong)));
        }
    }
}

void MainWindowTest::whatWasWrongBeforeIsNotToldAgain()
{
    const QString broken = m_files->path(QStringLiteral("broken.dsg"));
    Testing::writeFile(broken, "no design");
    m_window->open({broken});
    QVERIFY(m_window->messageBar().text().contains(QDir::toNativeSeparators(broken)));
    m_window->open({m_files->path(QStringLiteral("geometry/die.stl"))});
    QCOMPARE(m_window->messageBar().text(), QString());
}

void MainWindowTest::aBrokenMeshIsListedWithItsReason()
{
    const QString file = m_files->path(QStringLiteral("geometry/die.stl"));
    Testing::writeFile(file, "no mesh");
    openDesign();
    const Problems& problems = m_window->problemsPanel().problems();
    QCOMPARE(problems.size(), std::size_t(1));
    QCOMPARE(problems[0].file, file);
    QVERIFY(!problems[0].reason.isEmpty());
    QVERIFY(!m_window->meshView().hasMesh());
    QVERIFY(m_window->meshView().accessibleDescription().contains(problems[0].reason));
    Testing::replaceFile(file, Testing::binaryStl(Testing::cube()));
    QTRY_VERIFY(m_window->meshView().hasMesh());
    QTRY_VERIFY(!m_window->problemsPanel().isVisible());
}

void MainWindowTest::missingFilesAreListed()
{
    openDesign();
    const QString file = m_files->path(QStringLiteral("steel.json"));
    QVERIFY(QFile::remove(file));
    QTRY_COMPARE(m_window->problemsPanel().problems().size(), std::size_t(1));
    QCOMPARE(m_window->problemsPanel().problems()[0].file, file);
}

void MainWindowTest::theStatusBarCounts()
{
    QCOMPARE(m_window->countsText(),
             QStringLiteral("0 objects").replace(0, 1, QLocale().toString(0)));
    openDesign();
    QCOMPARE(m_window->countsText(), QStringLiteral("1 design · 8 objects"));
    m_window->filterBar().setText(QStringLiteral("steel"));
    m_window->tree().refreshNow();
    QCOMPARE(m_window->countsText(), QStringLiteral("1 design · 2 of 8 objects shown"));
}

void MainWindowTest::theMeshFollowsItsFile()
{
    openDesign();
    QTRY_VERIFY(
        m_window->meshView().accessibleDescription().contains(QStringLiteral("10 × 10 × 10 mm")));
    Testing::replaceFile(m_files->path(QStringLiteral("geometry/die.stl")),
                         Testing::binaryStl(Testing::cube(25)));
    QTRY_VERIFY(
        m_window->meshView().accessibleDescription().contains(QStringLiteral("25 × 25 × 25 mm")));
}

void MainWindowTest::objectsWithoutMeshSayWhy()
{
    openDesign();
    m_window->tree().select(objectId(22));
    QVERIFY(m_window->meshView().accessibleDescription().contains(QStringLiteral("Punch")));
    m_window->treeView().setCurrentIndex({});
    QVERIFY(m_window->meshView().accessibleDescription().startsWith(QStringLiteral("Select")));
    m_window->tree().select(objectId(21));
    QTRY_VERIFY(m_window->meshView().hasMesh());
    QVERIFY(QFile::remove(m_files->path(QStringLiteral("geometry/die.stl"))));
    QTRY_VERIFY(!m_window->meshView().hasMesh());
    QVERIFY(m_window->meshView().accessibleDescription().contains(QStringLiteral("missing")));
}

void MainWindowTest::renamingRefusedIsToldUntilSomethingElseIsSelected()
{
    openDesign();
    m_window->tree().select(objectId(21));
    triggerText(QStringLiteral("Rename"));
    auto* editor = m_window->treeView().viewport()->findChild<QLineEdit*>();
    QVERIFY(editor != nullptr);
    editor->clear();
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!m_window->messageBar().text().isEmpty());
    m_window->tree().select(objectId(22));
    QVERIFY(m_window->messageBar().text().isEmpty());
}

void MainWindowTest::savingWritesTheDesign()
{
    openDesign();
    QCOMPARE(m_window->session().rename(objectId(21), QStringLiteral("Upper die")), QString());
    m_window->tree().refreshNow();
    QVERIFY(m_window->isWindowModified());
    triggerText(QStringLiteral("Save"));
    m_window->tree().refreshNow();
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(Testing::readFile(m_files->designFile()).contains("Upper die"));
}

void MainWindowTest::savingOverAnotherProgramsChangeAsks()
{
    openDesign();
    changeHereAndElsewhere();
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("Another program"), QMessageBox::Cancel);
    triggerText(QStringLiteral("Save"));
    QVERIFY(Testing::readFile(m_files->designFile()).contains("Theirs"));
    modals.expectMessageBox(QStringLiteral("Another program"), QMessageBox::Save);
    triggerText(QStringLiteral("Save"));
    QVERIFY(modals.allMet());
    QVERIFY(Testing::readFile(m_files->designFile()).contains("Upper die"));
}

void MainWindowTest::reopeningAsksForUnsavedChanges_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("question");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isDropped");
    const QString one = QStringLiteral("Small has unsaved changes");
    const QString all = QStringLiteral("There are unsaved changes");
    for (const int answer : {QMessageBox::Discard, QMessageBox::Cancel}) {
        const bool isDropped = answer == QMessageBox::Discard;
        const char* const word = isDropped ? "discard" : "cancel";
        QTest::addRow("one, %s", word) << QStringLiteral("Reopen") << one << answer << isDropped;
        QTest::addRow("all, %s", word)
            << QStringLiteral("Reopen All") << all << answer << isDropped;
    }
}

void MainWindowTest::reopeningAsksForUnsavedChanges()
{
    QFETCH(QString, command);
    QFETCH(QString, question);
    QFETCH(int, answer);
    QFETCH(bool, isDropped);
    openDesign();
    changeHereAndElsewhere();
    Testing::ExpectedModals modals;
    modals.expectMessageBox(question, QMessageBox::StandardButton(answer));
    triggerText(command);
    QVERIFY(modals.allMet());
    QCOMPARE(m_window->session().isModified(), !isDropped);
    QCOMPARE(m_window->session().hasConflict(objectId(1)), !isDropped);
    // What is settled is no longer told.
    QCOMPARE(m_window->messageBar().text().isEmpty(), isDropped);
}

void MainWindowTest::closingAsksForUnsavedChanges_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<bool>("saved");
    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
}

void MainWindowTest::closingAsksForUnsavedChanges()
{
    QFETCH(int, answer);
    openDesign();
    QCOMPARE(m_window->session().rename(objectId(21), QStringLiteral("Upper die")), QString());
    Testing::ExpectedModals modals;
    modals.expectMessageBox(QStringLiteral("save the changes to \"small.dsg\""),
                            QMessageBox::StandardButton(answer));
    m_window->close();
    QVERIFY(modals.allMet());
    QTEST(!m_window->isVisible(), "closed");
    QTEST(Testing::readFile(m_files->designFile()).contains("Upper die"), "saved");
}

void MainWindowTest::reloadReadsWhatWasCancelled()
{
    m_window->open({m_files->folder.path()});
    m_window->readingProgress().findChild<QPushButton*>()->click();
    QTRY_VERIFY(!m_window->loader().isBusy());
    QVERIFY(!m_window->readingProgress().isVisible());
    triggerText(QStringLiteral("Reopen"));
    const QString file = m_files->path(QStringLiteral("geometry/die.stl"));
    QTRY_VERIFY(m_window->loader().facts(file));
}

void MainWindowTest::reloadTriesAgainWhatCouldNotBeOpened()
{
    // A folder without anything is not watched: nobody tells when a design appears in it.
    const QString folder = m_files->path(QStringLiteral("empty"));
    QVERIFY(QDir().mkpath(folder));
    m_window->open({folder});
    QVERIFY(m_window->session().designs().empty());
    Testing::writeFile(folder + QStringLiteral("/small.dsg"),
                       Testing::toText(Testing::smallDesign()));
    triggerText(QStringLiteral("Reopen All"));
    QCOMPARE(m_window->session().designs().size(), std::size_t(1));
    QVERIFY(m_window->session().problems().empty());
}

void MainWindowTest::aRowHasAMenu()
{
    openDesign();
    QTreeView& tree = m_window->treeView();
    m_window->tree().select(objectId(21));
    askForMenu(tree, QContextMenuEvent::Mouse, tree.visualRect(tree.currentIndex()).center());
    const QPointer<QMenu> menu = tree.findChild<QMenu*>();
    QVERIFY(menu && menu->isVisible());
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts << action->text().remove(QLatin1Char('&'));
    QCOMPARE(texts, (QStringList{QStringLiteral("Rename"), QStringLiteral("Remove from Design"),
                                 QStringLiteral("Go to Reference"), QStringLiteral("Export...")}));
    QVERIFY(menu->actions().first()->isEnabled());
    QVERIFY2(!menu->actions().at(1)->isEnabled(), "tools stay with their operation");
    menu->close();
    QTRY_VERIFY(!menu);
    tree.collapseAll();
    const QRect onlyRow = tree.visualRect(tree.model()->index(0, 0));
    askForMenu(tree, QContextMenuEvent::Mouse, onlyRow.bottomLeft() + QPoint(5, 5));
    QVERIFY2(!tree.findChild<QMenu*>(), "no row there");
}

void MainWindowTest::theMenuKeyBringsTheCurrentRowIntoSight()
{
    openDesign();
    QTreeView& tree = m_window->treeView();
    m_window->tree().expandAll();
    tree.setMaximumHeight(tree.header()->height() + 3 * currentRow(tree).height());
    m_window->tree().select(objectId(30));
    QTRY_VERIFY(tree.verticalScrollBar()->maximum() > 0);
    tree.scrollToTop();
    const QRect viewport(tree.viewport()->mapToGlobal({}), tree.viewport()->size());
    QVERIFY(!viewport.intersects(currentRow(tree)));
    askForMenu(tree, QContextMenuEvent::Keyboard, tree.rect().center());
    const QPointer<QMenu> menu = tree.findChild<QMenu*>();
    QVERIFY(menu && menu->isVisible());
    QVERIFY(viewport.contains(currentRow(tree).center()));
    // Below the row, or where the screen has room for it.
    QVERIFY(menu->geometry().adjusted(-2, -2, 2, 2).intersects(currentRow(tree)));
    menu->close();
    tree.setCurrentIndex({});
    askForMenu(tree, QContextMenuEvent::Keyboard, tree.rect().center());
    QTRY_VERIFY2(!tree.findChild<QMenu*>(), "no row at all");
}

void MainWindowTest::aReferenceLeadsToThePart()
{
    openDesign();
    QVERIFY(m_window->tree().select(objectId(30)));
    // Of the two, the blank and the card, the blank is named first.
    const CatalogEntry* steel = m_window->tree().catalog().find(objectId(30));
    QVERIFY(steel->links.front() == IDCombiner(objectId(2)));
    QVERIFY(m_window->tree().select(objectId(21)));
    triggerText(QStringLiteral("Go to Reference"));
    QVERIFY(m_window->tree().currentId() == IDCombiner(objectId(40)));
    QVERIFY(m_window->tree().select(objectId(20)));
    for (const QAction* action : m_window->actions())
        if (action->text().remove(QLatin1Char('&')) == QStringLiteral("Go to Reference"))
            QVERIFY(!action->isEnabled());
}

void MainWindowTest::aReferenceThatTheFilterHidesIsTold()
{
    openDesign();
    m_window->filterBar().setKindShown(ObjectKind::File, false);
    m_window->tree().refreshNow();
    QVERIFY(m_window->tree().select(objectId(21)));
    triggerText(QStringLiteral("Go to Reference"));
    QVERIFY(m_window->tree().currentId() == IDCombiner(objectId(21)));
    QVERIFY(m_window->messageBar().text().contains(QStringLiteral("Die mesh")));
}

void MainWindowTest::theLegendLeadsToThePart()
{
    openDesign();
    QVERIFY(m_window->tree().select(objectId(21)));
    const MeshLegend& legend = m_window->meshView().legend();
    QCOMPARE(legend.entries().size(), std::size_t(3));
    QVERIFY(legend.entries()[2].isShown);
    Q_EMIT m_window->meshView().objectChosen(objectId(10));
    QVERIFY(m_window->tree().currentId() == IDCombiner(objectId(10)));
    QVERIFY(legend.entries()[1].isShown);
    QVERIFY(!legend.entries()[2].isShown);
}

void MainWindowTest::coloursAreTheSameEverywhere()
{
    openDesign();
    const QModelIndex mesh =
        m_window->tree().indexOf(objectId(40)).siblingAtColumn(TreeColumn::UsedBy);
    const int objects[] = {2, 10, 21};
    for (int place = 0; place < 3; ++place) {
        QVERIFY(m_window->tree().select(objectId(objects[place])));
        const QColor colour = m_window->tree().catalog().find(objectId(objects[place]))->colour;
        QVERIFY(colour.isValid());
        QCOMPARE(m_window->meshView().colour(), colour);
        QCOMPARE(m_window->meshView().legend().entries()[std::size_t(place)].colour, colour);
        QCOMPARE(mesh.data(ReferenceIndicatorDelegate::FirstColorRole + place).toInt(),
                 PartColours::colorId(colour));
    }
    // A mesh that several share has no colour of its own.
    QVERIFY(m_window->tree().select(objectId(40)));
    QVERIFY(!m_window->meshView().colour().isValid());
}

void MainWindowTest::aMeasuredValueIsEdited()
{
    openDesign();
    QVERIFY(m_window->tree().select(objectId(2)));
    m_window->quantityPanel().spinBox(Quantity::Thickness).stepBy(-1);
    QCOMPARE(*m_window->session().quantity(objectId(2), Quantity::Thickness), 1.24);
    m_window->tree().refreshNow();
    QVERIFY(m_window->isWindowModified());
    QCOMPARE(m_window->tree().catalog().find(objectId(2))->particulars[0].second,
             quantityText(Quantity::Thickness, 1.24));
    QVERIFY(m_window->session().save().empty());
}

void MainWindowTest::closeAllForgetsEverything()
{
    openDesign();
    triggerText(QStringLiteral("Close All"));
    m_window->tree().refreshNow();
    QCOMPARE(m_window->tree().model().rowCount(), 0);
    QVERIFY(!m_window->meshView().hasMesh());
    QVERIFY(m_window->session().designs().empty());
}

void MainWindowTest::droppedFilesAreOpened()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_files->designFile())});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &drop);
    QCOMPARE(m_window->session().designs().size(), std::size_t(1));
}

void MainWindowTest::movedFiles_areTakenAsCopies()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_files->designFile())});
    const Qt::DropActions offered = Qt::MoveAction | Qt::CopyAction;
    QDragEnterEvent enter({10, 10}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    enter.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop({10, 10}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(m_window.get(), &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
}

void MainWindowTest::columnsFollowTheFontSize()
{
    openDesign();
    const auto views = m_window->findChildren<QTreeView*>();
    QVERIFY(views.contains(&m_window->treeView()));
    std::map<QTreeView*, int> before;
    for (QTreeView* const view : views)
        before[view] = view->columnWidth(0);
    QFont large = m_window->font();
    large.setPointSizeF(2 * large.pointSizeF());
    m_window->setFont(large);
    for (QTreeView* const view : views)
        QVERIFY2(view->columnWidth(0) > 3 * before[view] / 2, qPrintable(view->accessibleName()));
}

void MainWindowTest::findFocusesTheFilter()
{
    m_window->treeView().setFocus();
    triggerText(QStringLiteral("Find"));
    QTRY_VERIFY(m_window->filterBar().findChild<QLineEdit*>()->hasFocus());
}

void MainWindowTest::activatingAProblemSelectsItsObject()
{
    openDesign();
    QVERIFY(QFile::remove(m_files->path(QStringLiteral("steel.json"))));
    QTRY_COMPARE(m_window->problemsPanel().problems().size(), std::size_t(1));
    Q_EMIT m_window->findChild<ProblemsPanel*>()->activated(
        m_window->problemsPanel().problems()[0]);
    QVERIFY(m_window->tree().currentId() == IDCombiner(objectId(30)));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::MainWindowTest;
ZORVANE_TEST(MainWindowTest)
#include "MainWindowTest.moc"
