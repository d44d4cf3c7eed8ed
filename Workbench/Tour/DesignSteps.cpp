#include "Workbench/Tour/DesignSteps.h"

#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Tree/FilterBar.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"
#include "Workbench/Window/ProblemsPanel.h"
#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtWidgets/QTreeView>

#include <functional>

namespace Zorvane::Workbench {

namespace {

/** Changes a design file as another program would. */
bool rewriteDesign(const QString& path, const std::function<void(QJsonObject&)>& change)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QJsonObject design = QJsonDocument::fromJson(file.readAll()).object();
    file.close();
    change(design);
    return writeWholeFile(path, QJsonDocument(design).toJson()).isEmpty();
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

void DesignSteps::perform()
{
    openCup();
    lookAtTools();
    turnTheMesh();
    filterByText();
    filterByKind();
    renameInPlace();
    refuseAName();
    followAnotherProgram();
    missFile();
}

void DesignSteps::openCup()
{
    m_report.beginStep(text("The drawn cup"),
                       text("A design folder opened: the tree with groups and counts, facts read "
                            "from the meshes, and the part selected."));
    m_report.expect(copySample(text("drawn-cup")), text("the sample beside the program"));
    reopen({workFolder(text("drawn-cup"))});
    m_report.expect(m_driver.waitUntilRead(), text("all meshes are read"));
    const QStringList names = m_driver.visibleNames();
    for (const char* name : {"Drawn cup", "Parts (2)", "Flanged cup", "Operations (1)", "OP10 Draw",
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

void DesignSteps::lookAtTools()
{
    m_report.beginStep(text("A tool"), text("The draw die selected: its mesh and its details."));
    m_report.expect(m_driver.select(ObjectKind::Tool, text("Draw die")), text("the die"));
    m_report.expect(m_driver.waitFor([this] { return m_window.meshView().hasMesh(); }),
                    text("the die's mesh"));
    picture(text("draw-die"));
}

void DesignSteps::turnTheMesh()
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

void DesignSteps::filterByText()
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

void DesignSteps::filterByKind()
{
    m_report.beginStep(text("Filtered by kinds"), text("Files and materials hidden."));
    m_window.filterBar().setKindShown(ObjectKind::File, false);
    m_window.filterBar().setKindShown(ObjectKind::Material, false);
    m_driver.settle();
    const QStringList names = m_driver.visibleNames();
    m_report.expect(!names.contains(text("Files (7)")), text("no files"));
    m_report.expect(names.contains(text("Operations (1)")), text("operations and tools"));
    picture(text("filtered-by-kinds"));
    m_window.filterBar().showAllKinds();
    m_driver.settle();
    m_report.expect(m_driver.visibleNames().contains(text("Files (7)")),
                    text("the files again afterwards"));
}

void DesignSteps::renameInPlace()
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

void DesignSteps::refuseAName()
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

void DesignSteps::followAnotherProgram()
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
    m_report.expect(names.contains(text("Blank holder")), text("the name given before"));
    m_report.expect(m_window.tree().currentId() == selected, text("the same tool selected"));
    m_report.expect(names.last() == text("Files (7)"), text("the files still collapsed"));
    picture(text("changed-by-another-program"));
}

void DesignSteps::missFile()
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

} // namespace Zorvane::Workbench
