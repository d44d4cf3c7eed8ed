#include "Workbench/Tour/OpenSteps.h"

#include "FileDialogs/FileDialogDriver.h"
#include "Files/LastPathProvider.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Preview/PreviewWindow.h"
#include "Workbench/Tour/DialogAnswers.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>

namespace Zorvane::Workbench {

namespace {

constexpr QSize s_openDialogSize(600, 600);

PreviewWindow* previewWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* preview = qobject_cast<PreviewWindow*>(widget))
            return preview;
    return nullptr;
}

void typeName(QFileDialog& dialog, const QString& name)
{
    if (auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        edit->setText(name);
}

bool makeFile(const QString& path)
{
    return writeWholeFile(path, "closed").isEmpty();
}

bool isClosedFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll() == "closed";
}

} // namespace

void OpenSteps::perform()
{
    openWithPreview();
    askForNames();
}

void OpenSteps::openWithPreview()
{
    m_report.beginStep(QStringLiteral("Files seen before they are opened"),
                       QStringLiteral("File > Open with the preview beside the dialog: a mesh, in "
                                      "light and dark colours, a table, a text, and a damaged "
                                      "file, which says what is wrong with it."));
    // Qt's dialog on every system: those of the system itself cannot be driven from here.
    const NativeFileDialogReplacement qtDialogs([] { return nullptr; });
    const QString folder = workFolder(QStringLiteral("drawn-cup"));
    const QString damaged = QDir(folder).filePath(QStringLiteral("geometry/damaged.stl"));
    m_report.expect(writeWholeFile(damaged, "solid cup\nfacet").isEmpty(),
                    QStringLiteral("the damaged file is made"));
    LastPathProvider::getInstance()->setPathToScope(
        QDir(folder).filePath(QStringLiteral("geometry/cup.stl")), FileCommands::scope());
    DialogAnswers answers;
    answers.add([this, &folder](QDialog& dialog) {
        if (auto* files = qobject_cast<QFileDialog*>(&dialog))
            lookAtFiles(*files, folder);
        dialog.reject();
    });
    m_window.fileCommands().openFiles();
    m_report.expect(answers.allGiven(), QStringLiteral("the dialog"));
    m_report.expect(QFile::remove(damaged), QStringLiteral("the damaged file is gone"));
}

void OpenSteps::lookAtFiles(QFileDialog& dialog, const QString& folder)
{
    PreviewWindow* preview = previewWindow();
    m_report.expect(preview != nullptr && preview->isVisible(),
                    QStringLiteral("the preview beside the dialog"));
    if (preview == nullptr)
        return;
    const auto look = [&](const QString& file, PreviewContent::Kind kind, const QString& name) {
        dialog.setDirectory(folder + QLatin1Char('/') + QFileInfo(file).path());
        dialog.selectNameFilter(dialog.nameFilters().last());
        dialog.resize(s_openDialogSize);
        // Once the folder is read, the name in the box selects its file.
        const QString wanted = QFileInfo(file).fileName();
        const bool isShown = m_driver.waitFor([&] {
            if (preview->pane().title() != wanted && !preview->isReading()) {
                typeName(dialog, QString());
                typeName(dialog, wanted);
            }
            return preview->pane().title() == wanted && preview->pane().shownKind() == kind;
        });
        m_report.expect(isShown, QStringLiteral("the preview of ") + wanted);
        m_report.addPicture(name, m_driver.pictureWith(dialog, preview));
    };
    using Kind = PreviewContent::Kind;
    const QString mesh = QStringLiteral("geometry/draw-die.stl");
    look(mesh, Kind::Picture, QStringLiteral("preview-mesh"));
    applyAppearance(*qApp, Appearance::Dark);
    m_driver.waitFor([preview] { return !preview->isReading(); });
    look(mesh, Kind::Picture, QStringLiteral("preview-mesh-dark"));
    look(QStringLiteral("results/draw.csv"), Kind::Table, QStringLiteral("preview-table-dark"));
    applyAppearance(*qApp, Appearance::Light);
    look(QStringLiteral("results/draw.csv"), Kind::Table, QStringLiteral("preview-table"));
    look(QStringLiteral("drawn-cup.dsg"), Kind::Text, QStringLiteral("preview-text"));
    look(QStringLiteral("geometry/damaged.stl"), Kind::Message, QStringLiteral("preview-damaged"));
}

void OpenSteps::askForNames()
{
    m_report.beginStep(QStringLiteral("Asked for names"),
                       QStringLiteral("Save As with a name whose ending makes it another design's, "
                                      "which is asked about; Save a Copy and Open Folder."));
    const NativeFileDialogReplacement qtDialogs([] { return nullptr; });
    const bool isNative = !QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QString taken = workFolder(QStringLiteral("drawn-cup/part.dsg"));
    m_report.expect(makeFile(taken), QStringLiteral("the other design"));
    const auto show = [this](QDialog& dialog, const char* name) {
        dialog.resize(dialog.size().boundedTo(s_openDialogSize));
        m_driver.settle();
        pictureInBoth(QString::fromLatin1(name), dialog);
    };
    DialogAnswers answers;
    answers.add([&show](QDialog& dialog) {
        if (auto* files = qobject_cast<QFileDialog*>(&dialog))
            typeName(*files, QStringLiteral("part"));
        show(dialog, "save-as");
        dialog.accept();
    });
    const auto leave = [&](const char* name) {
        answers.add([&show, name](QDialog& dialog) {
            show(dialog, name);
            dialog.reject();
        });
    };
    for (const char* name : {"save-as-replaces", "save-a-copy", "open-folder"})
        leave(name);
    FileCommands& commands = m_window.fileCommands();
    const GUIdentifier design = m_window.session().designs().front().id;
    m_report.expect(!commands.saveAs(design) && isClosedFile(taken),
                    QStringLiteral("nothing is replaced"));
    m_report.expect(!commands.saveCopy(design), QStringLiteral("no copy"));
    commands.openFolder();
    m_report.expect(answers.allGiven(), QStringLiteral("four questions"));
    m_report.expect(QFile::remove(taken), QStringLiteral("the other design is gone"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, !isNative);
}

} // namespace Zorvane::Workbench
