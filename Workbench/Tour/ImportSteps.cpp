#include "Workbench/Tour/ImportSteps.h"

#include "Files/CopyCollisionDialog.h"
#include "Workbench/Import/FileExchange.h"
#include "Workbench/Meshes/GeneratedMeshes.h"
#include "Workbench/Meshes/MeshWriter.h"
#include "Workbench/Tour/DialogAnswers.h"
#include "Workbench/Tour/TourCopier.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"
#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <memory>

namespace Zorvane::Workbench {

namespace {

constexpr qint64 s_largeFile = 48 * 1024 * 1024;

class TourChooser : public FileChooser
{
public:
    TourChooser(QStringList files, QString folder)
        : m_files(std::move(files))
        , m_folder(std::move(folder))
    {}

    QStringList files(QWidget*, const FileChoice&) override { return m_files; }
    QString folder(QWidget*, const FileChoice&) override { return m_folder; }
    QString fileToSave(QWidget*, const FileChoice&, const QString&) override { return {}; }
    QString fileToSaveBeside(QWidget*, const FileChoice&, const QString&) override { return {}; }

private:
    QStringList m_files;
    QString m_folder;
};

void choose(MainWindow& window, const QStringList& files, const QString& folder = {})
{
    window.fileExchange().setFileChooser(std::make_unique<TourChooser>(files, folder));
}

bool writeText(const QString& path, const QByteArray& text)
{
    return writeWholeFile(path, text).isEmpty();
}

bool makeLargeFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(s_largeFile);
}

void clickYes(QDialog& dialog)
{
    if (auto* box = qobject_cast<QMessageBox*>(&dialog))
        box->button(QMessageBox::Yes)->click();
}

} // namespace

void ImportSteps::perform()
{
    if (!tourCopiers({})) {
        m_report.beginStep(QStringLiteral("Import and export"),
                           QStringLiteral("The system's own dialogs ask here."));
        return;
    }
    m_report.expect(QDir().mkpath(workFolder(QStringLiteral("outside"))) &&
                        QDir().mkpath(workFolder(QStringLiteral("exported"))),
                    QStringLiteral("folders outside of the design"));
    importFiles();
    cancelAnImport();
    exportTheSelection();
}

void ImportSteps::importFiles()
{
    m_report.beginStep(QStringLiteral("Files imported"),
                       QStringLiteral("A mesh and a table from elsewhere: the question whether to "
                                      "copy them, the one about a name that is taken, and the "
                                      "tree with the new part and the new files."));
    const QString mesh = workFolder(QStringLiteral("outside/stiffener.stl"));
    const QString table = workFolder(QStringLiteral("outside/forces.csv"));
    const QString taken = workFolder(QStringLiteral("drawn-cup/forces.csv"));
    m_report.expect(!writeStl(blockMesh({120, 30, 8}), mesh, StlFormat::Binary) &&
                        writeText(table, "stroke;force\n0;0\n10;184\n") &&
                        writeText(taken, "stroke;force\n"),
                    QStringLiteral("the files are made"));
    const FileCopierReplacement copiers(tourCopiers({}));
    DialogAnswers answers;
    answers.add([this](QDialog& dialog) {
        pictureInBoth(QStringLiteral("import-question"), dialog);
        clickYes(dialog);
    });
    answers.add([this](QDialog& dialog) {
        pictureInBoth(QStringLiteral("import-collision"), dialog);
        if (auto* collision = qobject_cast<CopyCollisionDialog*>(&dialog))
            collision->button(CopyDecision::KeepBoth)->click();
    });
    choose(m_window, {mesh, table});
    m_window.importFiles();
    m_report.expect(answers.allGiven(), QStringLiteral("both questions"));
    m_report.expect(m_driver.waitUntilRead(), QStringLiteral("the new mesh is read"));
    const IDCombiner part = m_driver.find(ObjectKind::Part, QStringLiteral("stiffener"));
    m_report.expect(m_window.tree().currentId() == part, QStringLiteral("the new part selected"));
    m_report.expect(m_driver.cell(part, TreeColumn::State) == QStringLiteral("Modified"),
                    QStringLiteral("its state is Modified"));
    m_report.expect(m_driver.visibleNames().contains(QStringLiteral("Files (9)")),
                    QStringLiteral("the row Files (9)"));
    m_report.expect(QFile(taken).size() == 13, QStringLiteral("the file of the same name, whole"));
    picture(QStringLiteral("imported"));
    m_report.expect(m_window.session().save().empty(), QStringLiteral("the design is saved"));
}

void ImportSteps::cancelAnImport()
{
    m_report.beginStep(QStringLiteral("An import cancelled"),
                       QStringLiteral("A large file is being copied; Cancel leaves the design and "
                                      "its folder as they were."));
    const QString file = workFolder(QStringLiteral("outside/scan.stl"));
    const QString folder = workFolder(QStringLiteral("drawn-cup"));
    m_report.expect(makeLargeFile(file), QStringLiteral("the file is made"));
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    const QStringList before = QDir(folder).entryList(all);
    bool looked = false;
    const FileCopierReplacement copiers(tourCopiers([&](QDialog& dialog) {
        looked = true;
        pictureInBoth(QStringLiteral("import-progress"), dialog);
        dialog.findChild<QPushButton*>()->click();
    }));
    DialogAnswers answers;
    answers.add(&clickYes);
    choose(m_window, {file});
    m_window.importFiles();
    m_driver.settle();
    m_report.expect(looked && answers.allGiven(), QStringLiteral("the progress"));
    m_report.expect(QDir(folder).entryList(all) == before, QStringLiteral("the same files"));
    m_report.expect(!m_window.session().isModified(), QStringLiteral("nothing modified"));
    m_report.expect(m_window.messageBar().text().isEmpty(), QStringLiteral("nothing to tell"));
}

void ImportSteps::exportTheSelection()
{
    m_report.beginStep(QStringLiteral("The selection exported"),
                       QStringLiteral("The draw die's mesh is copied to another folder, as it "
                                      "is."));
    m_driver.select(ObjectKind::Tool, QStringLiteral("Draw die"));
    const FileCopierReplacement copiers(tourCopiers({}));
    const DialogAnswers answers;
    choose(m_window, {}, workFolder(QStringLiteral("exported")));
    m_window.exportFiles();
    const GUIdentifier die = m_window.tree().currentId().getCombinedPart();
    const QFileInfo source(m_window.session().geometryFile(die));
    const QFileInfo copy(QDir(workFolder(QStringLiteral("exported"))), source.fileName());
    m_report.expect(copy.exists() && copy.size() == source.size(), QStringLiteral("the copy"));
    m_report.expect(answers.allGiven(), QStringLiteral("no question"));
    picture(QStringLiteral("exported"));
}

} // namespace Zorvane::Workbench
