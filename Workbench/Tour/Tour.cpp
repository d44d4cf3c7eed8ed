#include "Workbench/Tour/Tour.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Meshes/GeneratedMeshes.h"
#include "Workbench/Meshes/MeshWriter.h"
#include "Workbench/Stress/StressWindow.h"
#include "Workbench/Tour/BrokenInputs.h"
#include "Workbench/Tree/FilterBar.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"
#include "Workbench/Window/ProblemsPanel.h"
#include "Workbench/Window/ReadingProgress.h"
#include "Workbench/Window/SampleDesigns.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr QSize s_windowSize(1360, 820);
constexpr QSize s_stressWindowSize(1040, 720);
constexpr int s_manyFiles = 500;
constexpr int s_filesReadBeforeCancel = 25;
constexpr int s_manyTriangles = 100'000;
constexpr int s_redraws = 20;
constexpr int s_stressedRows = 10'000;
constexpr int s_stressSteps = 120;

QString text(const char* literal)
{
    return QString::fromUtf8(literal);
}

bool copyFolder(const QString& from, const QString& to)
{
    const QDir source(from);
    if (from.isEmpty() || !QDir().mkpath(to))
        return false;
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString target = QDir(to).filePath(source.relativeFilePath(files.next()));
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(files.filePath(), target))
            return false;
    }
    return true;
}

/** Changes a design file as another program would. */
bool rewriteDesign(const QString& path, const std::function<void(QJsonObject&)>& change)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QJsonObject design = QJsonDocument::fromJson(file.readAll()).object();
    file.close();
    change(design);
    QSaveFile target(path);
    return target.open(QIODevice::WriteOnly) && target.write(QJsonDocument(design).toJson()) > 0 &&
           target.commit();
}

/** The operation gets another name, and a pad besides its tools. */
void addPad(QJsonObject& design)
{
    const QString operationsKey = QStringLiteral("operations");
    const QString toolsKey = QStringLiteral("tools");
    QJsonArray operations = design[operationsKey].toArray();
    QJsonObject operation = operations[0].toObject();
    operation[QStringLiteral("name")] = QStringLiteral("OP10 Draw, second try");
    QJsonArray tools = operation[toolsKey].toArray();
    tools.prepend(
        QJsonObject{{QStringLiteral("id"), QStringLiteral("0c1de9c2-93f4-4f1e-8a56-5d3a6c4a7f10")},
                    {QStringLiteral("name"), QStringLiteral("Ejector pad")},
                    {QStringLiteral("kind"), QStringLiteral("pad")}});
    operation[toolsKey] = tools;
    operations[0] = operation;
    design[operationsKey] = operations;
}

} // namespace

Tour::Tour(MainWindow& window, const QString& folder)
    : m_window(window)
    , m_driver(window)
    , m_report(folder)
{}

QStringList Tour::perform(const QStringList& paths)
{
    // The same on every screen, and on none.
    m_window.resizeAndDivide(s_windowSize);
    m_window.show();
    openCup();
    lookAtTools();
    turnTheMesh();
    filterByText();
    filterByKind();
    renameInPlace();
    refuseAName();
    followAnotherProgram();
    missFile();
    openWithPreview();
    askForNames();
    importAndExport();
    saveAndCompute();
    openDoor();
    showReferences();
    showColours();
    measure();
    useCommands();
    openManyFiles();
    takeUpReading();
    keepTheScrollPosition();
    surviveBrokenInputs();
    redrawManyTriangles();
    stressATree();
    openDialogVariants();
    goDark();
    lookClosely();
    mirror();
    speakGerman();
    walkByTab();
    if (!paths.isEmpty())
        openPathsOfUser(paths);
    QStringList failures = m_report.failures();
    if (!m_report.write())
        failures << text("tour.md cannot be written");
    return failures;
}

void Tour::openCup()
{
    m_report.beginStep(text("The drawn cup"),
                       text("A design folder opened: the tree with groups and counts, facts read "
                            "from the meshes, and the part selected."));
    m_report.expect(copySample(text("drawn-cup")), text("the sample beside the program"));
    reopen({workFolder(text("drawn-cup"))});
    m_report.expect(m_driver.waitUntilRead(), text("all meshes are read"));
    const QStringList names = m_driver.visibleNames();
    for (const char* name : {"Drawn cup", "Parts (2)", "Flanged cup", "Operations (3)", "OP10 Draw",
                             "Draw die", "Materials (1)", "Files (7)"})
        m_report.expect(names.contains(text(name)), text("the row ") + text(name));
    const IDCombiner cup = m_driver.find(ObjectKind::Part, text("Flanged cup"));
    m_report.expect(m_window.tree().currentId() == cup, text("the part is selected"));
    for (const int column :
         {TreeColumn::Triangles, TreeColumn::Size, TreeColumn::Surface, TreeColumn::Watertight})
        m_report.expect(!m_driver.cell(cup, column).isEmpty(),
                        text("the part's fact ") + m_driver.cell(cup, column));
    QTreeView& view = m_window.treeView();
    const QModelIndex blank =
        m_window.tree().indexOf(m_driver.find(ObjectKind::Blank, text("Round blank 170 mm")));
    m_report.expect(view.visualRect(blank).width() >= view.sizeHintForIndex(blank).width(),
                    text("the longest name whole"));
    m_report.expect(m_window.meshView().hasMesh(), text("its mesh"));
    m_report.expect(m_window.countsText() == text("1 design · 14 objects"), m_window.countsText());
    m_report.expect(m_window.problemsPanel().problems().empty(), text("no problems"));
    picture(text("drawn-cup"));
}

void Tour::lookAtTools()
{
    m_report.beginStep(text("A tool"), text("The draw die selected: its mesh and its details."));
    m_report.expect(m_driver.select(ObjectKind::Tool, text("Draw die")), text("the die"));
    m_report.expect(m_driver.waitFor([this] { return m_window.meshView().hasMesh(); }),
                    text("the die's mesh"));
    picture(text("draw-die"));
}

void Tour::turnTheMesh()
{
    m_report.beginStep(text("Turned"), text("The same die turned with the arrow keys, zoomed in."));
    MeshView& view = m_window.meshView();
    const QImage before = view.grab().toImage();
    const double yaw = view.camera().yaw();
    view.setFocus();
    for (int press = 0; press < 8; ++press)
        m_driver.pressKey(&view, Qt::Key_Left);
    for (int press = 0; press < 3; ++press)
        m_driver.pressKey(&view, Qt::Key_Down);
    m_driver.pressKey(&view, Qt::Key_Plus);
    m_report.expect(view.camera().yaw() != yaw, text("another direction"));
    m_report.expect(view.grab().toImage() != before, text("another picture"));
    picture(text("turned"));
    view.setDirection(ViewDirection::Isometric);
}

void Tour::filterByText()
{
    m_report.beginStep(text("Filtered by a text"),
                       text("Only what has \"punch\" in its name, kind or file, with what holds "
                            "it; the status bar tells how much is shown."));
    m_window.filterBar().setText(text("punch"));
    m_driver.settle();
    const QStringList wanted{text("Drawn cup"), text("Operations (1)"), text("OP10 Draw"),
                             text("Punch"),     text("Files (1)"),      text("Punch")};
    m_report.expect(m_driver.visibleNames() == wanted, wanted.join(text(", ")));
    m_report.expect(m_window.countsText() == text("1 design · 3 of 14 objects shown"),
                    m_window.countsText());
    picture(text("filtered-by-text"));
    m_window.filterBar().setText({});
}

void Tour::filterByKind()
{
    m_report.beginStep(text("Filtered by kinds"), text("Files and materials hidden."));
    m_window.filterBar().setKindShown(ObjectKind::File, false);
    m_window.filterBar().setKindShown(ObjectKind::Material, false);
    m_driver.settle();
    const QStringList names = m_driver.visibleNames();
    m_report.expect(!names.contains(text("Files (7)")), text("no files"));
    m_report.expect(names.contains(text("Operations (3)")), text("operations and tools"));
    picture(text("filtered-by-kinds"));
    m_window.filterBar().showAllKinds();
    m_driver.settle();
    m_report.expect(m_driver.visibleNames().contains(text("Files (7)")),
                    text("the files again afterwards"));
}

void Tour::renameInPlace()
{
    m_report.beginStep(text("Renamed in place"),
                       text("The binder gets another name in the tree; the design is modified "
                            "until it is saved."));
    const IDCombiner binder = m_driver.find(ObjectKind::Tool, text("Binder"));
    m_driver.select(ObjectKind::Tool, text("Binder"));
    m_window.treeView().setFocus();
    m_report.expect(m_window.tree().editCurrent(), text("an editor in the row"));
    QWidget* editor = m_driver.nameEditor();
    m_report.expect(editor != nullptr, text("the editor"));
    if (editor == nullptr)
        return;
    m_driver.type(editor, text("Blank holder"));
    picture(text("editing-a-name"));
    m_driver.pressKey(editor, Qt::Key_Return);
    m_driver.settle();
    const GUIdentifier object = binder.getCombinedPart();
    m_report.expect(m_window.session().name(object) == text("Blank holder"),
                    text("the design has the new name"));
    m_report.expect(m_driver.cell(binder, TreeColumn::State) == text("Modified"),
                    text("the row's state is Modified"));
    m_report.expect(m_window.isWindowModified(), text("the window is modified"));
    picture(text("renamed"));
}

void Tour::refuseAName()
{
    m_report.beginStep(text("A name refused"),
                       text("An empty name is refused with a reason, and the old one stays."));
    m_driver.select(ObjectKind::Tool, text("Punch"));
    m_window.treeView().setFocus();
    m_window.tree().editCurrent();
    if (QWidget* editor = m_driver.nameEditor()) {
        m_driver.pressKey(editor, Qt::Key_Delete);
        m_driver.pressKey(editor, Qt::Key_Return);
    }
    m_driver.settle();
    m_report.expect(!m_window.messageBar().text().isEmpty(), m_window.messageBar().text());
    m_report.expect(m_driver.visibleNames().contains(text("Punch")), text("the old name"));
    picture(text("name-refused"));
    m_report.expect(m_window.session().save().empty(), text("the earlier change is saved"));
}

void Tour::followAnotherProgram()
{
    m_report.beginStep(text("Another program changes the design"),
                       text("The operation gets another name and a pad above its tools. The tree "
                            "follows; what was selected and collapsed stays so."));
    m_driver.select(ObjectKind::Tool, text("Draw die"));
    const IDCombiner selected = m_window.tree().currentId();
    QTreeView& view = m_window.treeView();
    const QModelIndex files = view.currentIndex().parent().parent().siblingAtRow(3);
    view.collapse(m_window.tree().model().index(3, 0, files.parent()));
    const QString path = workFolder(text("drawn-cup/drawn-cup.dsg"));
    m_report.expect(rewriteDesign(path, &addPad), text("the file is written"));
    m_report.expect(m_driver.waitFor([this] {
        return m_driver.visibleNames().contains(text("OP10 Draw, second try"));
    }),
                    text("the operation's new name"));
    const QStringList names = m_driver.visibleNames();
    m_report.expect(names.contains(text("Ejector pad")), text("the new tool"));
    m_report.expect(names.contains(text("Operations (4)")), text("the new count"));
    m_report.expect(names.contains(text("Blank holder")), text("the name given before"));
    m_report.expect(m_window.tree().currentId() == selected, text("the same tool selected"));
    m_report.expect(names.last() == text("Files (7)"), text("the files still collapsed"));
    picture(text("changed-by-another-program"));
}

void Tour::missFile()
{
    m_report.beginStep(text("A file goes missing"),
                       text("The punch's mesh file is moved away: rows tell it, and the mesh view "
                            "says which file is wanted. It comes back by itself."));
    const QString file = workFolder(text("drawn-cup/geometry/punch.stl"));
    m_window.tree().expandAll();
    m_driver.select(ObjectKind::Tool, text("Punch"));
    const IDCombiner punch = m_window.tree().currentId();
    m_report.expect(QFile::rename(file, file + text(".away")), text("the file is moved away"));
    const auto state = [&] { return m_driver.cell(punch, TreeColumn::State); };
    m_report.expect(m_driver.waitFor([&] { return state() == text("File missing"); }),
                    text("the state File missing"));
    m_report.expect(!m_window.meshView().hasMesh(), text("no mesh"));
    m_report.expect(m_window.problemsPanel().problems().size() == 1, text("one problem"));
    picture(text("file-missing"));
    m_report.expect(QFile::rename(file + text(".away"), file), text("the file is back"));
    m_report.expect(
        m_driver.waitFor([&] { return state().isEmpty() && m_window.meshView().hasMesh(); }),
        text("its mesh again"));
}

void Tour::openDoor()
{
    m_report.beginStep(text("A door panel"),
                       text("A second sample: several operations with their tools."));
    m_report.expect(copySample(text("door-panel")), text("the sample beside the program"));
    reopen({workFolder(text("door-panel"))});
    m_report.expect(m_driver.waitUntilRead(), text("all meshes are read"));
    const QStringList names = m_driver.visibleNames();
    for (const char* name : {"Door panel", "OP20 Draw", "OP30 Trim", "OP40 Flange"})
        m_report.expect(names.contains(text(name)), text("the row ") + text(name));
    m_driver.select(ObjectKind::Part, text("Door panel"));
    m_report.expect(m_driver.waitFor([this] { return m_window.meshView().hasMesh(); }),
                    text("the panel's mesh"));
    picture(text("door-panel"));
}

void Tour::openManyFiles()
{
    m_report.beginStep(text("500 mesh files"),
                       text("A folder of 500 STL files: the tree is there at once, the facts "
                            "arrive as they are read, with progress and a cancel button."));
    const QString folder = workFolder(text("many"));
    m_report.expect(QDir().mkpath(folder) && writeManyMeshes(folder, s_manyFiles),
                    text("the files are made"));
    bool looked = false;
    QObject context;
    QObject::connect(&m_window.loader(), &MeshLoader::progress, &context, [&](int done, int total) {
        // Right here: the next turn of the event loop may read all the rest.
        if (!looked && total == s_manyFiles && done >= s_filesReadBeforeCancel) {
            looked = true;
            lookAndCancel();
        }
    });
    reopen({folder});
    const QStringList names = m_driver.visibleNames();
    m_report.expect(names.contains(text("Mesh files (500)")), text("the row Mesh files (500)"));
    m_report.expect(names.size() == s_manyFiles + 1, text("all rows before the facts"));
    m_report.expect(m_driver.waitFor([&] { return looked; }), text("facts arriving"));
}

void Tour::lookAndCancel()
{
    m_window.tree().refreshNow();
    m_report.expect(m_window.readingProgress().isVisible(), text("progress while reading"));
    m_report.expect(m_window.loader().isBusy(), text("more files to read"));
    m_report.addPicture(text("500-files-being-read"), m_window.grab().toImage());
    m_window.readingProgress().findChild<QPushButton*>()->click();
}

void Tour::takeUpReading()
{
    m_report.beginStep(text("Reading cancelled, and taken up again"),
                       text("Cancel has stopped the reading; Reopen All reads what is wanting."));
    m_report.expect(m_driver.waitUntilRead(), text("the reading has stopped"));
    m_report.expect(!m_window.readingProgress().isVisible(), text("no progress any more"));
    const IDCombiner last = m_window.session().looseParts().back().id;
    m_report.expect(m_driver.cell(last, TreeColumn::Triangles).isEmpty(),
                    text("the last file without facts"));
    m_window.reload();
    m_report.expect(m_driver.waitUntilRead(), text("the rest is read"));
    m_report.expect(!m_driver.cell(last, TreeColumn::Triangles).isEmpty(),
                    text("the last file with facts"));
    m_window.treeView().scrollToTop();
    picture(text("500-files-read"));
}

void Tour::keepTheScrollPosition()
{
    m_report.beginStep(text("A file appears above what is in sight"),
                       text("Scrolled to the middle, a new file in the folder: the rows in sight "
                            "stay where they are."));
    QScrollBar* bar = m_window.treeView().verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    const QString first = m_driver.firstNameInSight();
    const QString file = workFolder(text("many/a-new-file.stl"));
    m_report.expect(!writeStl(blockMesh({90, 60, 30}), file, StlFormat::Binary),
                    text("the file is written"));
    m_report.expect(m_driver.waitFor([this] {
        return m_driver.visibleNames().contains(text("Mesh files (501)"));
    }),
                    text("the row Mesh files (501)"));
    m_driver.waitUntilRead();
    m_report.expect(m_driver.firstNameInSight() == first, text("the same first row in sight"));
    picture(text("scroll-position-kept"));
}

void Tour::surviveBrokenInputs()
{
    m_report.beginStep(text("Broken inputs"),
                       text("Broken meshes and designs, references that lead outside or in a "
                            "circle: each problem with file and reason, the rest usable."));
    const QString folder = workFolder(text("broken"));
    const QStringList paths = QDir().mkpath(folder) ? writeBrokenInputs(folder) : QStringList();
    m_report.expect(!paths.isEmpty(), text("the inputs are made"));
    reopen(paths);
    m_report.expect(m_driver.waitUntilRead(), text("everything is read"));
    const Problems& problems = m_window.problemsPanel().problems();
    for (const char* name :
         {"truncated.stl", "shopping-list.stl", "sparse.stl", "cut.dsg", "references.dsg"}) {
        const auto found = std::find_if(problems.begin(), problems.end(), [&](const Problem& p) {
            return QFileInfo(p.file).fileName() == text(name) && !p.reason.isEmpty();
        });
        m_report.expect(found != problems.end(), found == problems.end()
                                                     ? text(name)
                                                     : text(name) + text(": ") + found->reason);
    }
    m_driver.select(ObjectKind::Part, text("Good block"));
    m_report.expect(m_driver.waitFor([this] { return m_window.meshView().hasMesh(); }),
                    text("the good mesh"));
    m_report.expect(m_window.problemsPanel().isVisible(), text("the list of problems"));
    picture(text("broken-inputs"));
}

void Tour::redrawManyTriangles()
{
    m_report.beginStep(text("100,000 triangles"), text("A large mesh, turned."));
    const QString file = workFolder(text("rippled-sheet.stl"));
    m_report.expect(!writeStl(rippledSheet(s_manyTriangles), file, StlFormat::Binary),
                    text("the file is made"));
    reopen({file});
    m_report.expect(m_driver.waitUntilRead() && m_window.meshView().hasMesh(), text("its mesh"));
    QElapsedTimer timer;
    timer.start();
    for (int redraw = 0; redraw < s_redraws; ++redraw) {
        m_window.meshView().turn(4, redraw % 2 ? 1 : -1);
        m_window.meshView().grab();
    }
    m_report.addNote(QStringLiteral("one redraw took %1 ms on this machine")
                         .arg(double(timer.elapsed()) / s_redraws, 0, 'f', 1));
    m_window.meshView().fit();
    picture(text("100000-triangles"));
}

void Tour::stressATree()
{
    m_report.beginStep(text("A tree under stress"),
                       text("A tree of 10,000 rows, refreshed over and over with edits at random "
                            "places: few announcements, and every row keeps its place."));
    m_window.commands()[WorkbenchActions::StressTree]->trigger();
    auto* stress = m_window.findChild<StressWindow*>();
    m_report.expect(stress && stress->isVisible(), text("the window of the menu Tools"));
    if (!stress)
        return;
    stress->resize(s_stressWindowSize);
    m_driver.settle();
    stress->fill(StressShape::Deep, s_stressedRows);
    for (int step = 0; step < s_stressSteps; ++step) {
        stress->step();
        m_driver.settle();
    }
    const PlaceKept& kept = stress->lastKept();
    m_report.expect(kept.selection.expected > 0 && kept.expansion.expected > 0,
                    QStringLiteral("%1 selected and %2 expanded rows")
                        .arg(kept.selection.expected)
                        .arg(kept.expansion.expected));
    m_report.expect(stress->totals().lost == 0,
                    QStringLiteral("no place lost in %1 refreshes").arg(stress->totals().steps));
    m_report.addNote(QStringLiteral("the last refresh took %1 ms on this machine")
                         .arg(stress->lastFacts().milliseconds, 0, 'f', 2));
    // Whole groups have moved meanwhile, and the rows in sight with theirs.
    stress->view().scrollTo(stress->view().currentIndex(), QAbstractItemView::PositionAtCenter);
    m_report.addPicture(text("a-tree-under-stress"), stress->grab().toImage());
    delete stress;
    m_window.activateWindow();
    m_report.expect(m_driver.waitFor([this] { return m_window.isActiveWindow(); }),
                    text("the main window again"));
}

void Tour::goDark()
{
    m_report.beginStep(text("Dark"), text("The same in dark colours, seen from a corner."));
    reopen({workFolder(text("door-panel"))});
    m_driver.waitUntilRead();
    m_driver.select(ObjectKind::Tool, text("Draw punch"));
    m_driver.waitFor([this] { return m_window.meshView().hasMesh(); });
    m_window.meshView().setDirection(ViewDirection::Isometric);
    applyAppearance(*qApp, Appearance::Dark);
    m_driver.settle();
    const QImage dark = m_driver.picture();
    m_report.expect(qGray(dark.pixel(dark.width() / 2, dark.height() - 4)) < 90,
                    text("dark colours"));
    picture(text("dark"));
    applyAppearance(*qApp, Appearance::Light);
}

void Tour::walkByTab()
{
    m_report.beginStep(text("By keyboard"),
                       text("The Tab key leads to every control, and each has a name."));
    m_driver.settle();
    const QStringList stops = m_driver.tabStops();
    m_report.expect(stops.size() >= 4, text("at least four stops"));
    m_report.expect(!stops.contains(QString()), stops.join(text(", ")));
    m_window.treeView().setFocus();
}

void Tour::openPathsOfUser(const QStringList& paths)
{
    m_report.beginStep(text("What was named"), paths.join(text(", ")));
    reopen(paths);
    m_report.expect(m_driver.waitUntilRead(), text("all meshes are read"));
    picture(text("what-was-named"));
}

bool Tour::copySample(const QString& name)
{
    return copyFolder(sampleFolder(name), workFolder(name));
}

void Tour::reopen(const QStringList& paths)
{
    m_window.loader().cancel();
    m_window.session().close();
    m_driver.settle();
    m_window.open(paths);
}

void Tour::picture(const QString& name)
{
    m_report.addPicture(name, m_driver.picture());
}

} // namespace Zorvane::Workbench
