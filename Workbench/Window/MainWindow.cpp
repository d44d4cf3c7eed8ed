#include "Workbench/Window/MainWindow.h"

#include "Files/LastPathProvider.h"
#include "Host/Widgets/ZVMessageBox.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Edit/QuantityPanel.h"
#include "Workbench/Edit/ReferenceMenu.h"
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
#include "Workbench/Window/WindowActions.h"

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
    , m_actions(new WindowActions(this))
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
{
    // What the library's dialogs look for: whom to block, and where to open.
    qApp->setProperty(s_mainWindowProperty, QVariant::fromValue<QWidget*>(this));
    setWindowIcon(QIcon(QStringLiteral(":/workbench/application.svg")));
    setAcceptDrops(true);
    layOut();
    fillMenus();
    fillToolBar();
    fillStatusBar();
    connectActions();
    connectViewActions();
    connectParts();
    connectFileCommands();
    connectSaving();
    showSession();
}

MainWindow::~MainWindow()
{
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
    m_sides->setSizes({size.width() * 68 / 100, size.width() * 32 / 100});
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
    const double widths[] = {30.5, 14.75, 7, 8.75, 20.5, 13, 9.25, 8.5};
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

void MainWindow::fillMenus()
{
    fillFileMenu();
    fillEditMenu();
    fillViewMenu();
    m_actions->addTo(*menuBar()->addMenu(tr("&Tools")),
                     {WindowActions::StartSimulation, WindowActions::StopSimulation,
                      WindowActions::ConvertMeshes, WindowActions::StressTree});
    m_actions->addTo(*menuBar()->addMenu(tr("&Help")),
                     {WindowActions::About, WindowActions::AboutQt});
}

void MainWindow::fillFileMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    m_actions->addTo(*file, {WindowActions::OpenFolder, WindowActions::OpenFiles});
    QMenu* recent = file->addMenu(tr("Open Re&cent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { showRecent(*recent); });
    QMenu* samples = file->addMenu(tr("Open Sa&mple"));
    for (const SampleDesign& sample : sampleDesigns())
        connect(samples->addAction(sample.name), &QAction::triggered, this,
                [this, folder = sample.folder] { open({folder}); });
    samples->setEnabled(!samples->isEmpty());
    file->addSeparator();
    m_actions->addTo(*file, {WindowActions::Import, WindowActions::Export});
    file->addSeparator();
    m_actions->addTo(*file, {WindowActions::Save, WindowActions::SaveAs, WindowActions::SaveCopy});
    file->addSeparator();
    m_actions->addTo(*file, {WindowActions::Reload, WindowActions::CloseAll});
    file->addSeparator();
    m_actions->addTo(*file, {WindowActions::Quit});
}

void MainWindow::fillEditMenu()
{
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    m_actions->addTo(*edit, {WindowActions::Undo, WindowActions::Redo});
    edit->addSeparator();
    m_actions->addTo(*edit, {WindowActions::Rename, WindowActions::Remove, WindowActions::Find,
                             WindowActions::GoToReference});
    showHistory();
    connect(&m_history->stack(), &QUndoStack::indexChanged, this, &MainWindow::showHistory);
}

void MainWindow::showHistory()
{
    QUndoStack& stack = m_history->stack();
    const auto command = [](const QString& text, QString edit) {
        // A name's own "&" marks no key.
        return text.arg(edit.replace(QLatin1Char('&'), QLatin1String("&&")));
    };
    (*m_actions)[WindowActions::Undo]->setEnabled(stack.canUndo());
    (*m_actions)[WindowActions::Undo]->setText(
        stack.canUndo() ? command(tr("&Undo: %1"), stack.undoText()) : tr("&Undo"));
    (*m_actions)[WindowActions::Redo]->setEnabled(stack.canRedo());
    (*m_actions)[WindowActions::Redo]->setText(
        stack.canRedo() ? command(tr("Re&do: %1"), stack.redoText()) : tr("Re&do"));
}

void MainWindow::fillViewMenu()
{
    QMenu* view = menuBar()->addMenu(tr("&View"));
    m_actions->addTo(*view, {WindowActions::Fit, WindowActions::ZoomIn, WindowActions::ZoomOut});
    view->addSeparator();
    m_actions->addTo(*view,
                     {WindowActions::ViewIsometric, WindowActions::ViewTop,
                      WindowActions::ViewBottom, WindowActions::ViewFront, WindowActions::ViewBack,
                      WindowActions::ViewLeft, WindowActions::ViewRight});
    view->addSeparator();
    m_actions->addTo(*view, {WindowActions::ExpandAll, WindowActions::CollapseAll});
    view->addSeparator();
    addAppearances(*view->addMenu(tr("&Appearance")));
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

void MainWindow::fillToolBar()
{
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setIconSize(QSize(18, 18));
    bar->setMovable(false);
    m_actions->addTo(*bar, {WindowActions::OpenFolder, WindowActions::Save, WindowActions::Reload});
    bar->addSeparator();
    m_actions->addTo(*bar,
                     {WindowActions::Fit, WindowActions::ViewIsometric, WindowActions::ViewTop,
                      WindowActions::ViewFront, WindowActions::ViewRight});
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
    const auto on = [this](WindowActions::Id id, auto operation) {
        connect((*m_actions)[id], &QAction::triggered, this, operation);
    };
    on(WindowActions::OpenFiles, [this] { m_fileCommands->openFiles(); });
    on(WindowActions::OpenFolder, [this] { m_fileCommands->openFolder(); });
    on(WindowActions::Import, &MainWindow::importFiles);
    on(WindowActions::Export, &MainWindow::exportFiles);
    on(WindowActions::Save, [this] {
        hideMessages();
        m_saving->saveAll();
    });
    on(WindowActions::StartSimulation, [this] {
        hideMessages();
        m_saving->start(currentDesign());
    });
    on(WindowActions::StopSimulation, [this] { m_runner->stop(); });
    on(WindowActions::SaveAs, [this] { m_fileCommands->saveAs(currentDesign()); });
    on(WindowActions::SaveCopy, [this] { m_fileCommands->saveCopy(currentDesign()); });
    on(WindowActions::Reload, &MainWindow::reload);
    on(WindowActions::CloseAll, &MainWindow::closeAll);
    on(WindowActions::Quit, &MainWindow::close);
    on(WindowActions::Undo, [this] { m_history->undo(); });
    on(WindowActions::Redo, [this] { m_history->redo(); });
    on(WindowActions::Rename, &MainWindow::rename);
    on(WindowActions::Remove, &MainWindow::removeCurrent);
    on(WindowActions::Find, [this] { m_filterBar->focusText(); });
    on(WindowActions::GoToReference, &MainWindow::goToReference);
    on(WindowActions::ExpandAll, [this] { m_tree->expandAll(); });
    on(WindowActions::CollapseAll, [this] { m_tree->collapseAll(); });
    on(WindowActions::ConvertMeshes, [this] { m_converter.run(); });
    on(WindowActions::StressTree, &MainWindow::showStress);
    on(WindowActions::About, &MainWindow::about);
    on(WindowActions::AboutQt, [] { QApplication::aboutQt(); });
}

void MainWindow::connectViewActions()
{
    const auto on = [this](WindowActions::Id id, auto operation) {
        connect((*m_actions)[id], &QAction::triggered, m_meshView, operation);
    };
    const auto direction = [&](WindowActions::Id id, ViewDirection from) {
        on(id, [this, from] { m_meshView->setDirection(from); });
    };
    on(WindowActions::Fit, &MeshView::fit);
    on(WindowActions::ZoomIn, &MeshView::zoomIn);
    on(WindowActions::ZoomOut, &MeshView::zoomOut);
    direction(WindowActions::ViewIsometric, ViewDirection::Isometric);
    direction(WindowActions::ViewTop, ViewDirection::Top);
    direction(WindowActions::ViewBottom, ViewDirection::Bottom);
    direction(WindowActions::ViewFront, ViewDirection::Front);
    direction(WindowActions::ViewBack, ViewDirection::Back);
    direction(WindowActions::ViewLeft, ViewDirection::Left);
    direction(WindowActions::ViewRight, ViewDirection::Right);
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
    (*m_actions)[WindowActions::Rename]->setEnabled(m_session.canRename(object));
    (*m_actions)[WindowActions::Remove]->setEnabled(m_session.canTake(object));
    (*m_actions)[WindowActions::Export]->setEnabled(m_exchange->canExport(object));
    (*m_actions)[WindowActions::GoToReference]->setEnabled(
        m_references->leadsAnywhere(m_tree->currentId()));
    m_quantities->show(object);
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
    (*m_actions)[WindowActions::Save]->setEnabled(m_session.isModified());
    const bool something = !designs.empty() || !m_session.looseParts().empty();
    for (const WindowActions::Id id :
         {WindowActions::Import, WindowActions::SaveAs, WindowActions::SaveCopy})
        (*m_actions)[id]->setEnabled(!designs.empty());
    const bool anything = something || !m_session.problems().empty();
    (*m_actions)[WindowActions::Reload]->setEnabled(anything);
    (*m_actions)[WindowActions::CloseAll]->setEnabled(anything);
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
        (*m_actions)[WindowActions::StartSimulation]->setEnabled(!m_runner->isRunning() &&
                                                                 !m_session.designs().empty());
        (*m_actions)[WindowActions::StopSimulation]->setEnabled(m_runner->isRunning());
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

bool MainWindow::mayDropChanges()
{
    if (!m_session.isModified())
        return true;
    const auto answer = ZVMessageBox::question(
        this, tr("Unsaved Changes"), tr("Save the changes of the design?"),
        ZVMessageBox::Save | ZVMessageBox::Discard | ZVMessageBox::Cancel, ZVMessageBox::Save);
    if (answer == ZVMessageBox::Save)
        return m_saving->saveAll();
    return answer == ZVMessageBox::Discard;
}

void MainWindow::reload()
{
    if (!mayDropChanges())
        return;
    m_session.reload();
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
                         "here. Save replaces its version, Reload drops yours.")
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
