#include "Workbench/Tour/ConversionSteps.h"

#include "FileDialogs/FileDialogDriver.h"
#include "Host/Widgets/ZVConverterDialog.h"
#include "Workbench/Convert/BackgroundWork.h"
#include "Workbench/Tour/DialogAnswers.h"
#include "Workbench/Window/MainWindow.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSemaphore>
#include <QtCore/QThreadPool>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>

#include <memory>
#include <utility>

namespace Zorvane::Workbench {

namespace {

/** Chooses one file, as a person would in the system's dialog. */
class TourFileDialog : public FileDialogDriver
{
public:
    explicit TourFileDialog(QString file)
        : m_file(std::move(file))
    {}

    FileDialogResult run(const FileDialogRequest&) override
    {
        return FileDialogResult::accepted({m_file});
    }

private:
    QString m_file;
};

/** While it lives, no work begins in the background, however fast the machine is. */
class HeldBackWork
{
public:
    HeldBackWork()
    {
        // Work is begun in the order it comes, so what comes later waits for these.
        for (int i = 0; i < m_count; ++i)
            m_threads.start([gate = m_gate] { gate->acquire(); });
    }
    ~HeldBackWork() { m_gate->release(m_count); }

private:
    Q_DISABLE_COPY(HeldBackWork)

    QThreadPool& m_threads = backgroundThreads();
    int m_count = m_threads.maxThreadCount();
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
};

} // namespace

void ConversionSteps::perform()
{
    convertAMesh();
}

void ConversionSteps::convertAMesh()
{
    m_report.beginStep(QStringLiteral("A mesh converted"),
                       QStringLiteral("The cup's ASCII STL file as binary, with what the converter "
                                      "had to say, a conversion that is cancelled, and a file "
                                      "that is no mesh."));
    QAction* convert = commandNamed(QStringLiteral("Convert"));
    m_report.expect(convert != nullptr, QStringLiteral("the command Convert"));
    if (convert == nullptr)
        return;
    convert->trigger();
    auto* window = m_window.findChild<ZVConverterDialog*>();
    const QString folder = workFolder(QStringLiteral("converted"));
    m_report.expect(window && QDir().mkpath(folder), QStringLiteral("the converter's window"));
    DialogAnswers answers;
    answers.add([folder](QDialog& dialog) {
        if (auto* chooser = qobject_cast<QFileDialog*>(&dialog))
            chooser->selectFile(folder);
        dialog.accept();
    });
    chooseAndConvert(*window, workFolder(QStringLiteral("drawn-cup/geometry/cup.stl")));
    m_report.expect(answers.allGiven(), QStringLiteral("the question for the folder"));
    m_report.expect(window->status() == ZVConverterDialog::StatusSucceeded &&
                        QFile::exists(QDir(folder).filePath(QStringLiteral("cup-binary.stl"))),
                    QStringLiteral("the binary file"));
    m_driver.settle();
    pictureInBoth(QStringLiteral("converted"), *window);
    cancelAConversion(*window);
    const NativeFileDialogReplacement chooser([this] {
        return std::make_unique<TourFileDialog>(
            workFolder(QStringLiteral("drawn-cup/drawn-cup.dsg")));
    });
    Q_EMIT window->inputWasClicked();
    Q_EMIT window->convertWasClicked();
    m_report.expect(window->status() == ZVConverterDialog::StatusInputFailed,
                    QStringLiteral("a design is no mesh"));
    m_driver.settle();
    pictureInBoth(QStringLiteral("not-converted"), *window);
    window->close();
}

void ConversionSteps::chooseAndConvert(ZVConverterDialog& window, const QString& file)
{
    const NativeFileDialogReplacement chooser(
        [file] { return std::make_unique<TourFileDialog>(file); });
    // Nobody is there to answer a dialog of the system.
    const bool isNative = !QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Q_EMIT window.inputWasClicked();
    Q_EMIT window.outputWasClicked();
    Q_EMIT window.convertWasClicked();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, !isNative);
}

void ConversionSteps::cancelAConversion(ZVConverterDialog& window)
{
    DialogAnswers answers;
    answers.add([this, &window](QDialog& dialog) {
        pictureInBoth(QStringLiteral("converting"), dialog, &window);
        dialog.reject();
    });
    // Its name is in the title of the progress.
    window.activateWindow();
    m_driver.waitFor([&window] { return window.isActiveWindow(); });
    {
        const HeldBackWork held;
        Q_EMIT window.convertWasClicked();
    }
    m_report.expect(answers.allGiven(), QStringLiteral("the progress with Cancel"));
    m_report.expect(
        window.logText().trimmed().endsWith(QStringLiteral("Cancelled. Nothing was written.")),
        QStringLiteral("the log's last line"));
}

} // namespace Zorvane::Workbench
