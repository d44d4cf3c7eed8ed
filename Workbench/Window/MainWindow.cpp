#include "Workbench/Window/MainWindow.h"

#include "Files/LastPathProvider.h"
#include "Host/Widgets/ZVMessageBox.h"
#include "Workbench/Commands/DisplayToggles.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Commands/ViewCommands.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Edit/QuantityPanel.h"
#include "Workbench/Edit/ReferenceMenu.h"
#include "Workbench/Help/HelpWindow.h"
#include "Workbench/Import/FileExchange.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Meshes/MeshReader.h"
#include "Workbench/Saving/DesignSaving.h"
#include "Workbench/Solver/SimulationProgress.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Stress/StressWindow.h"
#include "Workbench/Undo/EditHistory.h"
#include "Workbench/Window/DetailsPanel.h"
#include "Workbench/Window/FactsReader.h"
#include "Workbench/Window/FilterBar.h"
#include "Workbench/Window/MeshPresenter.h"
#include "Workbench/Window/MessageBar.h"
#include "Workbench/Window/ProblemsPanel.h"
#include "Workbench/Window/ReadingProgress.h"
#include "Workbench/Window/RecentPaths.h"
#include "Workbench/Window/SampleDesigns.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtGui/QCloseEvent>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

// Resources of a static library must be asked for, outside of any namespace, unnamed ones too.
static void initializeResources()
{
    Q_INIT_RESOURCE(workbench);
}

namespace Zorvane::Workbench {

namespace {

const QString s_geometryKey = QStringLiteral("Workbench/Geometry");
const QString s_stateKey = QStringLiteral("Workbench/State");
const QString s_sidesKey = QStringLiteral("Workbench/Sides");
constexpr int s_noticeMilliseconds = 8000;
constexpr char s_mainWindowProperty[] = "MainWindow";

QStringList localPaths(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    return paths;
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_tree((initializeResources(), new DesignTree(m_session, m_loader, this)))
    , m_commands(new WindowCommands(*this))
    , m_history(new EditHistory(m_session, this))
    , m_factsReader(new FactsReader(m_session, m_loader, this))
    , m_designView(new BaseView(this))
    , m_fileCommands(new FileCommands(m_session, this))
    , m_runner(new SimulationRunner(this))
    , m_saving(new DesignSaving({m_session, *m_history, *m_fileCommands, *m_runner}, this))
    , m_exchange(new FileExchange(m_session, m_designView, this))
    , m_filterBar(new FilterBar(this))
    , m_treeView(new QTreeView(this))
    , m_meshView(new MeshView(this))
    , m_meshPresenter(new MeshPresenter(m_session, m_loader, m_tree->catalog(), *m_meshView, this))
    , m_details(new DetailsPanel(this))
    , m_quantities(new QuantityPanel(m_session, this))
    , m_references(new ReferenceMenu(m_tree->catalog(), this))
    , m_problemsPanel(new ProblemsPanel(this))
    , m_messageBar(new MessageBar(this))
    , m_progress(new ReadingProgress(m_loader, this))
    , m_counts(new QLabel(this))
    , m_toggles(new DisplayToggles(*m_commands, *m_filterBar, *m_tree, *m_meshView, this))
{
    // What the library's dialogs look for: whom to block, and where to open.
    qApp->setProperty(s_mainWindowProperty, QVariant::fromValue<QWidget*>(this));
    setWindowIcon(QIcon(QStringLiteral(":/workbench/application.svg")));
    setAcceptDrops(true);
    layOut();
    fillSubMenus();
    fillStatusBar();
    connectActions();
    connectParts();
    connectFileCommands();
    connectSaving();
    showSession();
}

MainWindow::~MainWindow()
{
    // May give toggles back, which takes the table of actions and everything that they act on.
    delete m_toggles;
    if (qApp->property(s_mainWindowProperty).value<QWidget*>() == this)
        qApp->setProperty(s_mainWindowProperty, QVariant());
}

void MainWindow::layOut()
{
    m_sides = new QSplitter(Qt::Horizontal, this);
    m_sides->addWidget(createTreeSide());
    m_sides->addWidget(createMeshSide());
    m_sides->setStretchFactor(0, 5);
    m_sides->setStretchFactor(1, 4);
    m_allAndProblems = new QSplitter(Qt::Vertical, this);
    m_allAndProblems->addWidget(m_sides);
    m_allAndProblems->addWidget(m_problemsPanel);
    m_allAndProblems->setStretchFactor(0, 1);
    m_allAndProblems->setStretchFactor(1, 0);
    m_problemsPanel->hide();
    for (QSplitter* splitter : {m_sides, m_meshAndDetails, m_allAndProblems})
        splitter->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(m_designView);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messageBar);
    layout->addWidget(m_allAndProblems, 1);
    setCentralWidget(m_designView);
    const double unit = digitWidth();
    const QSize available = QGuiApplication::primaryScreen()->availableSize();
    resizeAndDivide(QSize(int(170 * unit), int(102 * unit)).boundedTo(available));
}

void MainWindow::resizeAndDivide(const QSize& size)
{
    resize(size);
    m_sides->setSizes({size.width() * 69 / 100, size.width() * 31 / 100});
    m_meshAndDetails->setSizes({size.height() * 60 / 100, size.height() * 30 / 100});
}

/** All widths follow the font: they are told in digits of it. */
double MainWindow::digitWidth() const
{
    return fontMetrics().horizontalAdvance(QLatin1Char('0'));
}

QWidget* MainWindow::createTreeSide()
{
    m_treeView->setAccessibleName(tr("Objects"));
    m_treeView->setFrameShape(QFrame::NoFrame);
    m_treeView->setAlternatingRowColors(true);
    m_tree->attach(m_treeView);
    QHeaderView* header = m_treeView->header();
    header->setStretchLastSection(true);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const double widths[] = {30.5, 14.5, 7, 8.25, 19.75, 13, 9.25, 8};
    // Titles of other languages may need more.
    for (int column = 0; column < header->count(); ++column)
        header->resizeSection(
            column, std::max(int(widths[column] * digitWidth()), header->sectionSizeHint(column)));
    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_filterBar);
    layout->addWidget(m_treeView, 1);
    return side;
}

QWidget* MainWindow::createMeshSide()
{
    m_meshAndDetails = new QSplitter(Qt::Vertical, this);
    m_meshAndDetails->addWidget(m_meshView);
    auto* properties = new QWidget(this);
    auto* layout = new QVBoxLayout(properties);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_details, 1);
    layout->addWidget(m_quantities);
    m_meshAndDetails->addWidget(properties);
    m_meshAndDetails->setStretchFactor(0, 1);
    m_meshAndDetails->setStretchFactor(1, 0);
    return m_meshAndDetails;
}

void MainWindow::fillSubMenus()
{
    QMenu& recent = m_commands->subMenu(CommandSubMenu::Recent);
    connect(&recent, &QMenu::aboutToShow, this, [this, &recent] { showRecent(recent); });
    QMenu& samples = m_commands->subMenu(CommandSubMenu::Samples);
    for (const SampleDesign& sample : sampleDesigns())
        connect(samples.addAction(sample.name), &QAction::triggered, this,
                [this, folder = sample.folder] { open({folder}); });
    samples.setEnabled(!samples.isEmpty());
    addModes(m_commands->subMenu(CommandSubMenu::Mode));
    addAppearances(m_commands->subMenu(CommandSubMenu::Appearance));
}

void MainWindow::showHistory()
{
    QUndoStack& stack = m_history->stack();
    const auto command = [](const QString& text, QString edit) {
        // A name's own "&" marks no key.
        return text.arg(edit.replace(QLatin1Char('&'), QLatin1String("&&")));
    };
    QAction* const undo = (*m_commands)[ZVMainActions::Undo];
    undo->setEnabled(stack.canUndo());
    undo->setText(stack.canUndo() ? command(tr("&Undo: %1"), stack.undoText()) : tr("&Undo"));
    QAction* const redo = (*m_commands)[ZVMainActions::Redo];
    redo->setEnabled(stack.canRedo());
    redo->setText(stack.canRedo() ? command(tr("Re&do: %1"), stack.redoText()) : tr("Re&do"));
}

void MainWindow::addModes(QMenu& menu)
{
    auto* group = new QActionGroup(this);
    const std::pair<WindowMode, QString> choices[] = {{WindowMode::Forming, tr("&Forming")},
                                                      {WindowMode::Tube, tr("&Tube")},
                                                      {WindowMode::Tandrel, tr("Tan&drel")}};
    for (const auto& [mode, text] : choices) {
        QAction* action = menu.addAction(text);
        action->setCheckable(true);
        action->setChecked(mode == m_commands->mode());
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, chosen = mode] { m_commands->setMode(chosen); });
    }
}

void MainWindow::addAppearances(QMenu& menu)
{
    auto* group = new QActionGroup(this);
    const std::pair<Appearance, QString> choices[] = {{Appearance::System, tr("&System")},
                                                      {Appearance::Light, tr("&Light")},
                                                      {Appearance::Dark, tr("&Dark")}};
    for (const auto& [appearance, text] : choices) {
        QAction* action = menu.addAction(text);
        action->setCheckable(true);
        action->setChecked(appearance == storedAppearance());
        group->addAction(action);
        connect(action, &QAction::triggered, this, [chosen = appearance] {
            storeAppearance(chosen);
            applyAppearance(*qApp, chosen);
        });
    }
}

void MainWindow::showRecent(QMenu& menu)
{
    menu.clear();
    for (const QString& path : RecentPaths::paths())
        connect(menu.addAction(QDir::toNativeSeparators(path)), &QAction::triggered, this,
                [this, path] { open({path}); });
    if (menu.isEmpty())
        menu.addAction(tr("Nothing opened yet"))->setEnabled(false);
    menu.addSeparator();
    connect(menu.addAction(tr("Clear")), &QAction::triggered, &RecentPaths::clear);
}

void MainWindow::fillStatusBar()
{
    m_counts->setContentsMargins(6, 0, 6, 0);
    statusBar()->addWidget(m_counts, 1);
    statusBar()->addPermanentWidget(m_progress);
    statusBar()->addPermanentWidget(new SimulationProgress(*m_runner, this));
    statusBar()->setSizeGripEnabled(false);
}

void MainWindow::connectActions()
{
    const auto on = [this](auto id, auto operation) { m_commands->on(id, this, operation); };
    on(ZVMainActions::Open, [this] { m_fileCommands->openFiles(); });
    on(ZVMainActions::Export, &MainWindow::exportFiles);
    on(ZVMainActions::Save, [this] {
        hideMessages();
        m_saving->save(designAtHand());
    });
    on(ZVMainActions::ComputeSimulation, [this] {
        hideMessages();
        m_saving->start(currentDesign());
    });
    on(WorkbenchActions::StopSimulation, [this] { m_runner->stop(); });
    on(ZVMainActions::SaveAs, [this] {
        hideMessages();
        m_saving->saveAs(designAtHand());
    });
    on(WorkbenchActions::SaveCopy, [this] {
        hideMessages();
        m_saving->saveCopy(designAtHand());
    });
    on(ZVMainActions::ReOpen, &MainWindow::reopenDesign);
    on(WorkbenchActions::ReopenAll, &MainWindow::reload);
    on(ZVMainActions::Close, [this] {
        hideMessages();
        m_saving->close(designAtHand());
    });
    on(WorkbenchActions::CloseAll, &MainWindow::closeAll);
    on(ZVMainActions::Exit, &MainWindow::close);
    on(WorkbenchActions::OpenFolder, [this] { m_fileCommands->openFolder(); });
    on(WorkbenchActions::Import, &MainWindow::importFiles);
    on(ZVMainActions::Undo, [this] { m_history->undo(); });
    on(ZVMainActions::Redo, [this] { m_history->redo(); });
    on(WorkbenchActions::Rename, &MainWindow::rename);
    on(WorkbenchActions::Remove, &MainWindow::removeCurrent);
    on(WorkbenchActions::Find, [this] { m_filterBar->focusText(); });
    on(WorkbenchActions::GoToReference, &MainWindow::goToReference);
    on(WorkbenchActions::ExpandAll, [this] { m_tree->expandAll(); });
    on(WorkbenchActions::CollapseAll, [this] { m_tree->collapseAll(); });
    on(WorkbenchActions::ConvertMeshes, [this] { m_converter.run(); });
    on(WorkbenchActions::StressTree, &MainWindow::showStress);
    on(WorkbenchActions::About, &MainWindow::about);
    on(WorkbenchActions::AboutQt, [] { QApplication::aboutQt(); });
    on(ZVGlobalActions::HelpContents, &MainWindow::showHelp);
    connectViewCommands(*m_commands, *m_meshView);
    showHistory();
    connect(&m_history->stack(), &QUndoStack::indexChanged, this, &MainWindow::showHistory);
}

void MainWindow::connectParts()
{
    connect(m_filterBar, &FilterBar::textChanged, m_tree, &DesignTree::setFilterText);
    connect(m_filterBar, &FilterBar::kindToggled, m_tree, &DesignTree::setKindShown);
    connect(m_tree, &DesignTree::currentChanged, this, &MainWindow::showCurrent);
    connect(m_tree, &DesignTree::refreshed, this, &MainWindow::showSession);
    connect(m_tree, &DesignTree::renameRefused, this,
            [this](const QString&, const QString& reason) {
                m_messageBar->say(reason);
                m_tellsRefusal = true;
            });
    connect(m_tree, &DesignTree::currentChanged, this, [this] {
        if (std::exchange(m_tellsRefusal, false))
            m_messageBar->hide();
    });
    connect(m_meshView, &MeshView::objectChosen, this, &MainWindow::goTo);
    connect(m_references, &ReferenceMenu::chosen, this, &MainWindow::goTo);
    connect(m_quantities, &QuantityPanel::edited, this, &MainWindow::setQuantity);
    connect(m_treeView, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() == TreeColumn::UsedBy)
            goToReference();
    });
    connect(&m_session, &DesignSession::conflictFound, this, &MainWindow::tellConflict);
    connect(m_exchange, &FileExchange::failed, m_messageBar, &MessageBar::say);
    connect(m_exchange, &FileExchange::done, this,
            [this](const QString& text) { statusBar()->showMessage(text, s_noticeMilliseconds); });
    connect(m_exchange, &FileExchange::imported, this, [this](const GUIdentifier& object) {
        m_tree->refreshNow();
        m_tree->select(object);
    });
    connect(m_progress, &ReadingProgress::cancelled, m_factsReader, &FactsReader::cancel);
    connect(m_problemsPanel, &ProblemsPanel::activated, this, [this](const Problem& problem) {
        if (const std::optional<IDCombiner> id = m_tree->catalog().findByFile(problem.file))
            m_tree->select(*id);
    });
}

void MainWindow::open(const QStringList& paths)
{
    hideMessages();
    QStringList absolute;
    for (const QString& path : paths) {
        absolute << QFileInfo(path).absoluteFilePath();
        RecentPaths::add(path);
        // However it was opened: dialogs start there next.
        LastPathProvider::getInstance()->setPathToScope(absolute.last(), FileCommands::scope());
    }
    const std::size_t before = m_session.problems().size();
    m_session.open(absolute);
    m_tree->refreshNow();
    selectSomething();
    const Problems problems = m_session.problems();
    if (problems.size() > before)
        m_messageBar->say(problems.back().text());
}

void MainWindow::selectSomething()
{
    if (m_tree->currentId() != IDCombiner())
        return;
    for (const Design& design : m_session.designs())
        if (!design.parts.empty() && m_tree->select(design.parts.front().id))
            return;
    if (!m_session.looseParts().empty())
        m_tree->select(m_session.looseParts().front().id);
}

void MainWindow::showCurrent()
{
    m_meshPresenter->show(m_tree->currentId());
    m_details->show(m_tree->catalog(), m_tree->currentId());
    const GUIdentifier object = m_tree->currentId().getCombinedPart();
    (*m_commands)[WorkbenchActions::Rename]->setEnabled(m_session.canRename(object));
    (*m_commands)[WorkbenchActions::Remove]->setEnabled(m_session.canTake(object));
    (*m_commands)[ZVMainActions::Export]->setEnabled(m_exchange->canExport(object));
    (*m_commands)[WorkbenchActions::GoToReference]->setEnabled(
        m_references->leadsAnywhere(m_tree->currentId()));
    m_quantities->show(object);
    const GUIdentifier design = designAtHand();
    (*m_commands)[ZVMainActions::Save]->setEnabled(m_session.isDesignModified(design));
    (*m_commands)[ZVMainActions::Close]->setEnabled(m_session.canClose(design));
    for (QAction* const action :
         {(*m_commands)[ZVMainActions::SaveAs], (*m_commands)[WorkbenchActions::SaveCopy],
          (*m_commands)[ZVMainActions::ReOpen]})
        action->setEnabled(!design.isNull());
}

void MainWindow::showSession()
{
    m_counts->setText(countsText());
    showProblems();
    showCurrent();
    const std::vector<Design>& designs = m_session.designs();
    const QString subject =
        designs.size() == 1 && m_session.looseParts().empty() ? designs.front().name : QString();
    const QString program = tr("Zorvane Workbench");
    setWindowTitle(subject.isEmpty() ? program : tr("%1[*] – %2").arg(subject, program));
    setWindowModified(!subject.isEmpty() && m_session.isModified());
    const bool something = !designs.empty() || !m_session.looseParts().empty();
    (*m_commands)[WorkbenchActions::Import]->setEnabled(!designs.empty());
    const bool anything = something || !m_session.problems().empty();
    (*m_commands)[WorkbenchActions::ReopenAll]->setEnabled(anything);
    (*m_commands)[WorkbenchActions::CloseAll]->setEnabled(anything);
    m_toggles->setEnabled(something);
}

QString MainWindow::countsText() const
{
    const int total = m_tree->catalog().objectCount();
    const int designs = int(m_session.designs().size());
    QString objects = total == 1 ? tr("1 object") : tr("%n objects", nullptr, total);
    if (m_tree->isFiltered())
        objects = tr("%1 of %2 shown").arg(m_tree->pipeline().shownCount()).arg(objects);
    if (designs == 0)
        return objects;
    return designs == 1 ? tr("1 design · %1").arg(objects)
                        : tr("%n designs · %1", nullptr, designs).arg(objects);
}

void MainWindow::showProblems()
{
    Problems problems = m_session.problems();
    for (const Design& design : m_session.designs())
        for (const FileReference& file : design.files)
            if (file.state == FileState::Missing)
                problems.push_back(
                    {file.file, {}, tr("is missing; %1 refers to it").arg(design.name)});
    for (const QString& file : m_session.meshFiles())
        if (const std::optional<Problem> problem = m_loader.problem(file))
            problems.push_back(*problem);
    m_problemsPanel->show(problems);
    fitProblemsPanel();
}

void MainWindow::fitProblemsPanel()
{
    const int now = m_allAndProblems->sizes().last();
    const bool appears = m_problemsPanel->isHidden();
    m_problemsPanel->setVisible(!m_problemsPanel->problems().empty());
    // Once the user has moved the splitter, it stays.
    if (m_problemsPanel->isHidden() || (!appears && now != m_fittedProblemsHeight))
        return;
    const int height = m_problemsPanel->sizeHint().height();
    m_allAndProblems->setSizes({m_allAndProblems->height() - height, height});
    m_fittedProblemsHeight = m_allAndProblems->sizes().last();
}

void MainWindow::connectFileCommands()
{
    connect(m_fileCommands, &FileCommands::chosen, this, &MainWindow::open);
    connect(m_fileCommands, &FileCommands::savedAs, this, [this](const QString& file) {
        RecentPaths::add(file);
        m_tree->refreshNow();
        selectSomething();
    });
    connect(m_fileCommands, &FileCommands::failed, m_messageBar, &MessageBar::say);
    connect(m_fileCommands, &FileCommands::done, this,
            [this](const QString& text) { statusBar()->showMessage(text, s_noticeMilliseconds); });
}

void MainWindow::connectSaving()
{
    connect(m_saving, &DesignSaving::failed, m_messageBar, &MessageBar::say);
    connect(m_saving, &DesignSaving::done, this,
            [this](const QString& text) { statusBar()->showMessage(text, s_noticeMilliseconds); });
    const auto showRun = [this] {
        (*m_commands)[ZVMainActions::ComputeSimulation]->setEnabled(!m_runner->isRunning() &&
                                                                    !m_session.designs().empty());
        (*m_commands)[WorkbenchActions::StopSimulation]->setEnabled(m_runner->isRunning());
    };
    connect(m_runner, &SimulationRunner::progressed, this, showRun);
    connect(m_runner, &SimulationRunner::finished, this, showRun);
    connect(m_runner, &SimulationRunner::failed, this, showRun);
    connect(m_runner, &SimulationRunner::stopped, this, showRun);
    connect(&m_session, &DesignSession::changed, this, showRun);
    showRun();
}

/** That of what is selected, else the first; null without designs. */
GUIdentifier MainWindow::currentDesign() const
{
    return m_exchange->targetFor(m_tree->currentId().getCombinedPart());
}

/** That of what is selected, else the only one; null where that leaves it open which. */
GUIdentifier MainWindow::designAtHand() const
{
    // Rows above groups stand for no object themselves.
    for (QModelIndex row = m_treeView->currentIndex(); row.isValid(); row = row.parent())
        if (const Design* design = m_session.findDesign(m_tree->idAt(row).getCombinedPart()))
            return design->id;
    return m_session.designs().size() == 1 ? m_session.designs().front().id : GUIdentifier();
}

/** Of one design, or of all for the null id. */
bool MainWindow::mayDropChanges(const GUIdentifier& designId)
{
    if (!(designId.isNull() ? m_session.isModified() : m_session.isDesignModified(designId)))
        return true;
    const auto answer = ZVMessageBox::question(
        this, tr("Unsaved Changes"), tr("Save the changes of the design?"),
        ZVMessageBox::Save | ZVMessageBox::Discard | ZVMessageBox::Cancel, ZVMessageBox::Save);
    if (answer == ZVMessageBox::Save)
        return designId.isNull() ? m_saving->saveAll() : m_saving->save(designId);
    return answer == ZVMessageBox::Discard;
}

void MainWindow::reload()
{
    if (!mayDropChanges())
        return;
    m_session.reload();
    m_factsReader->readAgain();
}

void MainWindow::reopenDesign()
{
    const GUIdentifier design = designAtHand();
    if (design.isNull() || !mayDropChanges(design))
        return;
    m_session.revert(design);
    m_factsReader->readAgain();
}

void MainWindow::closeAll()
{
    if (!m_saving->mayClose())
        return;
    hideMessages();
    m_loader.cancel();
    m_session.close();
}

void MainWindow::hideMessages()
{
    m_messageBar->hide();
    statusBar()->clearMessage();
}

void MainWindow::importFiles()
{
    hideMessages();
    m_exchange->importFiles(m_exchange->targetFor(m_tree->currentId().getCombinedPart()));
}

void MainWindow::exportFiles()
{
    hideMessages();
    m_exchange->exportFiles(m_tree->currentId().getCombinedPart());
}

void MainWindow::rename()
{
    m_treeView->setFocus();
    m_tree->editCurrent();
}

void MainWindow::goToReference()
{
    const QModelIndex current = m_treeView->currentIndex();
    const QRect cell = m_treeView->visualRect(current.siblingAtColumn(TreeColumn::UsedBy));
    m_references->follow(m_tree->currentId(), this,
                         m_treeView->viewport()->mapToGlobal(cell.bottomLeft()));
}

void MainWindow::goTo(const IDCombiner& id)
{
    m_messageBar->hide();
    m_tree->refreshNow();
    if (!m_tree->select(id))
        m_messageBar->say(tr("%1 is not shown, because the filter leaves it out.")
                              .arg(m_session.name(id.getCombinedPart())));
    else
        m_treeView->setFocus();
}

void MainWindow::setQuantity(const GUIdentifier& object, Quantity quantity, double value)
{
    const QString refusal = m_session.setQuantity(object, quantity, value);
    if (!refusal.isEmpty())
        m_messageBar->say(refusal);
}

void MainWindow::removeCurrent()
{
    const GUIdentifier object = m_tree->currentId().getCombinedPart();
    const QString name = m_session.name(object);
    if (!m_session.take(object, {object}).isEmpty())
        statusBar()->showMessage(tr("%1 was removed; its file stays.").arg(name),
                                 s_noticeMilliseconds);
}

void MainWindow::showStress()
{
    if (m_stress)
        m_stress->raise();
    else
        m_stress = new StressWindow(this);
    m_stress->show();
    m_stress->activateWindow();
}

void MainWindow::showHelp()
{
    if (!m_help)
        m_help = new HelpWindow(this);
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

void MainWindow::about()
{
    QMessageBox::about(this, tr("About the Workbench"),
                       tr("<p><b>Zorvane Workbench</b> %1</p><p>Looks at sheet-metal forming "
                          "designs: parts, tools, materials and the files behind them.</p>")
                           .arg(QApplication::applicationVersion()));
}

void MainWindow::tellConflict(const GUIdentifier& designId)
{
    m_messageBar->say(tr("Another program has changed the file of %1, which has unsaved changes "
                         "here. Save replaces its version, Reopen drops yours.")
                          .arg(m_session.name(designId)));
}

void MainWindow::keepLayout()
{
    m_keepsLayout = true;
    const QSettings settings;
    restoreGeometry(settings.value(s_geometryKey).toByteArray());
    restoreState(settings.value(s_stateKey).toByteArray());
    m_sides->restoreState(settings.value(s_sidesKey).toByteArray());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_saving->mayClose()) {
        event->ignore();
        return;
    }
    if (m_keepsLayout) {
        QSettings settings;
        settings.setValue(s_geometryKey, saveGeometry());
        settings.setValue(s_stateKey, saveState());
        settings.setValue(s_sidesKey, m_sides->saveState());
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localPaths(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    open(localPaths(*event->mimeData()));
    event->acceptProposedAction();
}

} // namespace Zorvane::Workbench
