#include "Workbench/Window/MainWindow.h"

#include "Files/LastPathProvider.h"
#include "Host/Widgets/ZVMessageBox.h"
#include "Workbench/Commands/DisplayToggles.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Commands/HistoryCommands.h"
#include "Workbench/Commands/ViewCommands.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Design/FileNames.h"
#include "Workbench/DialogPanel/DialogPanel.h"
#include "Workbench/Edit/QuantityPanel.h"
#include "Workbench/Edit/ReferenceMenu.h"
#include "Workbench/Help/HelpWindow.h"
#include "Workbench/Import/FileExchange.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Saving/DesignSaving.h"
#include "Workbench/Solver/SimulationProgress.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Stress/StressWindow.h"
#include "Workbench/Tree/FilterBar.h"
#include "Workbench/Undo/EditHistory.h"
#include "Workbench/Window/DetailsPanel.h"
#include "Workbench/Window/FactsReader.h"
#include "Workbench/Window/MeshPresenter.h"
#include "Workbench/Window/MessageBar.h"
#include "Workbench/Window/ProblemsPanel.h"
#include "Workbench/Window/ReadingProgress.h"
#include "Workbench/Window/RecentPaths.h"
#include "Workbench/Window/RowMenu.h"
#include "Workbench/Window/WindowLayout.h"
#include "Workbench/Window/WindowMenus.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtGui/QCloseEvent>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <utility>

// Resources of a static library must be asked for, outside of any namespace, unnamed ones too.
static void initializeResources()
{
    Q_INIT_RESOURCE(workbench);
}

namespace Zorvane::Workbench {

namespace {

const QString windowGeometryKey = QStringLiteral("Workbench/Geometry");
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

bool isOf(const Problem& problem, const QStringList& paths)
{
    return std::any_of(paths.begin(), paths.end(), [&problem](const QString& path) {
        const QFileInfo info(path);
        return FileNames::areSame(problem.file, QDir::cleanPath(info.absoluteFilePath())) ||
               FileNames::areSame(problem.file, info.canonicalFilePath());
    });
}

/**
 * What to say after opening: what is wrong with one of the paths themselves, also if it was wrong
 * before, or else the first thing that has come with them. Empty if all is well.
 */
QString complaint(const Problems& before, const Problems& now, const QStringList& paths)
{
    const auto isNew = [&before](const Problem& problem) {
        return std::find(before.begin(), before.end(), problem) == before.end();
    };
    auto found = std::find_if(now.begin(), now.end(),
                              [&paths](const Problem& problem) { return isOf(problem, paths); });
    if (found == now.end())
        found = std::find_if(now.begin(), now.end(), isNew);
    return found == now.end() ? QString() : found->text();
}

/** The first part of a window that shows pictures. */
DesignTree* makeTree(DesignSession& session, MeshLoader& loader, QObject* parent)
{
    initializeResources();
    return new DesignTree(session, loader, parent);
}

/** A source that is answered with a move deletes its file. */
void acceptAsCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_tree(makeTree(m_session, m_loader, this))
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
    fillStatusBar();
    connectActions();
    connectParts();
    connectFileCommands();
    connectSaving();
    showSession();
    // In the filter, letters would be no commands.
    m_treeView->setFocus();
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
    m_treeView->setAccessibleName(tr("Objects"));
    m_treeView->setFrameShape(QFrame::NoFrame);
    m_treeView->setAlternatingRowColors(true);
    m_tree->attach(m_treeView);
    m_layout = new WindowLayout({m_messageBar, m_filterBar, m_treeView, m_meshView, m_details,
                                 m_quantities, m_problemsPanel},
                                m_designView);
    setCentralWidget(m_designView);
    resizeAndDivide(m_layout->usualSize());
}

void MainWindow::resizeAndDivide(const QSize& size)
{
    resize(size);
    m_layout->divide(size);
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
    connectFileActions();
    const auto on = [this](auto id, auto operation) { m_commands->on(id, this, operation); };
    on(WorkbenchActions::Rename, &MainWindow::rename);
    on(WorkbenchActions::Remove, &MainWindow::removeCurrent);
    on(WorkbenchActions::Find, [this] { m_filterBar->focusText(); });
    on(WorkbenchActions::GoToReference, &MainWindow::goToReference);
    on(WorkbenchActions::ExpandAll, [this] { m_tree->expandAll(); });
    on(WorkbenchActions::CollapseAll, [this] { m_tree->collapseAll(); });
    on(ZVMainActions::ComputeSimulation, [this] {
        hideMessages();
        m_saving->start(currentDesign());
    });
    on(WorkbenchActions::StopSimulation, [this] { m_runner->stop(); });
    on(WorkbenchActions::ConvertMeshes, [this] { m_converter.run(); });
    on(WorkbenchActions::StressTree, [this] { showBeside(m_stress); });
    on(WorkbenchActions::FileDialogs, [this] { showBeside(m_dialogPanel); });
    on(WorkbenchActions::About, &MainWindow::about);
    on(WorkbenchActions::AboutQt, [] { QApplication::aboutQt(); });
    on(ZVGlobalActions::HelpContents, [this] { showBeside(m_help); });
    connectViewCommands(*m_commands, *m_meshView);
    new RowMenu(m_treeView,
                {(*m_commands)[WorkbenchActions::Rename], (*m_commands)[WorkbenchActions::Remove],
                 (*m_commands)[WorkbenchActions::GoToReference],
                 (*m_commands)[ZVMainActions::Export]});
    new HistoryCommands(*m_commands, *m_history);
    connect(m_history, &EditHistory::refused, m_messageBar, &MessageBar::say);
    auto* const menus = new WindowMenus(*m_commands);
    connect(menus, &WindowMenus::chosen, this, &MainWindow::open);
    connect(menus, &WindowMenus::notStored, this, [this] {
        m_messageBar->say(tr("The settings cannot be stored; those stored before are kept. The "
                             "disk may be full."));
    });
}

void MainWindow::connectFileActions()
{
    const auto on = [this](auto id, auto operation) { m_commands->on(id, this, operation); };
    on(ZVMainActions::Open, [this] { m_fileCommands->openFiles(); });
    on(WorkbenchActions::OpenFolder, [this] { m_fileCommands->openFolder(); });
    on(WorkbenchActions::Import, &MainWindow::importFiles);
    on(ZVMainActions::Export, &MainWindow::exportFiles);
    on(ZVMainActions::Save, [this] { saveDesignAtHand(&DesignSaving::save); });
    on(ZVMainActions::SaveAs, [this] { saveDesignAtHand(&DesignSaving::saveAs); });
    on(WorkbenchActions::SaveCopy, [this] { saveDesignAtHand(&DesignSaving::saveCopy); });
    on(ZVMainActions::ReOpen, &MainWindow::reopenDesign);
    on(WorkbenchActions::ReopenAll, &MainWindow::reload);
    on(ZVMainActions::Close, [this] { saveDesignAtHand(&DesignSaving::close); });
    on(WorkbenchActions::CloseAll, &MainWindow::closeAll);
    on(ZVMainActions::Exit, &MainWindow::close);
}

/** Saves it in one of the ways that there are, or closes it. */
void MainWindow::saveDesignAtHand(bool (DesignSaving::*operation)(GUIdentifier))
{
    hideMessages();
    (m_saving->*operation)(designAtHand());
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
    connect(m_quantities, &QuantityPanel::refused, m_messageBar, &MessageBar::say);
    connect(m_treeView, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() == TreeColumn::UsedBy)
            goToReference();
    });
    connect(&m_session, &DesignSession::conflictFound, this, &MainWindow::tellConflict);
    connect(m_exchange, &FileExchange::failed, m_messageBar, &MessageBar::say);
    connect(m_exchange, &FileExchange::done, this, &MainWindow::notify);
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
    const Problems before = m_session.problems();
    m_session.open(absolute);
    m_tree->refreshNow();
    selectSomething();
    const QString text = complaint(before, m_session.problems(), absolute);
    if (!text.isEmpty())
        m_messageBar->say(text);
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
    m_layout->fitProblems();
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
    connect(m_fileCommands, &FileCommands::done, this, &MainWindow::notify);
}

void MainWindow::connectSaving()
{
    connect(m_saving, &DesignSaving::failed, m_messageBar, &MessageBar::say);
    connect(m_saving, &DesignSaving::done, this, &MainWindow::notify);
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
    const QString question =
        designId.isNull()
            ? tr("There are unsaved changes. Save them before everything is read again?")
            : tr("%1 has unsaved changes. Save them before it is read again?")
                  .arg(m_session.name(designId));
    const auto answer = ZVMessageBox::question(
        this, tr("Unsaved Changes"), question,
        ZVMessageBox::Save | ZVMessageBox::Discard | ZVMessageBox::Cancel, ZVMessageBox::Save);
    if (answer == ZVMessageBox::Save)
        return designId.isNull() ? m_saving->saveAll() : m_saving->save(designId);
    return answer == ZVMessageBox::Discard;
}

void MainWindow::reload()
{
    if (!mayDropChanges())
        return;
    // What they told of is settled.
    hideMessages();
    m_session.reload();
    m_factsReader->readAgain();
}

void MainWindow::reopenDesign()
{
    const GUIdentifier design = designAtHand();
    if (design.isNull() || !mayDropChanges(design))
        return;
    hideMessages();
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

void MainWindow::notify(const QString& text)
{
    statusBar()->showMessage(text, s_noticeMilliseconds);
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
        notify(tr("%1 was removed; its file stays.").arg(name));
}

template <typename Window>
void MainWindow::showBeside(QPointer<Window>& window)
{
    if (!window)
        window = new Window(this);
    window->show();
    window->raise();
    window->activateWindow();
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
    restoreGeometry(settings.value(windowGeometryKey).toByteArray());
    restoreState(settings.value(s_stateKey).toByteArray());
    m_layout->restoreState(settings.value(s_sidesKey).toByteArray());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_saving->mayClose()) {
        event->ignore();
        return;
    }
    if (m_keepsLayout) {
        QSettings settings;
        settings.setValue(windowGeometryKey, saveGeometry());
        settings.setValue(s_stateKey, saveState());
        settings.setValue(s_sidesKey, m_layout->saveState());
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localPaths(*event->mimeData()).isEmpty())
        acceptAsCopy(*event);
}

void MainWindow::dropEvent(QDropEvent* event)
{
    acceptAsCopy(*event);
    open(localPaths(*event->mimeData()));
}

} // namespace Zorvane::Workbench
