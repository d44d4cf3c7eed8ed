#include "Workbench/Tour/ReadingSteps.h"

#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Meshes/GeneratedMeshes.h"
#include "Workbench/Meshes/MeshWriter.h"
#include "Workbench/Tour/BrokenInputs.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/ProblemsPanel.h"
#include "Workbench/Window/ReadingProgress.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr int s_manyFiles = 500;
constexpr int s_filesReadBeforeCancel = 25;
constexpr int s_manyTriangles = 100'000;
constexpr int s_redraws = 20;

} // namespace

void ReadingSteps::perform()
{
    openManyFiles();
    takeUpReading();
    keepTheScrollPosition();
    surviveBrokenInputs();
    redrawManyTriangles();
}

void ReadingSteps::openManyFiles()
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

void ReadingSteps::lookAndCancel()
{
    m_window.tree().refreshNow();
    m_report.expect(m_window.readingProgress().isVisible(), text("progress while reading"));
    m_report.expect(m_window.loader().isBusy(), text("more files to read"));
    m_report.addPicture(text("500-files-being-read"), m_window.grab().toImage());
    m_window.readingProgress().findChild<QPushButton*>()->click();
}

void ReadingSteps::takeUpReading()
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

void ReadingSteps::keepTheScrollPosition()
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

void ReadingSteps::surviveBrokenInputs()
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

void ReadingSteps::redrawManyTriangles()
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

} // namespace Zorvane::Workbench
