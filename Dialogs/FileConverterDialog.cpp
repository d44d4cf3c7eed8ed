#include "Dialogs/FileConverterDialog.h"

#include "Dialogs/FileConverterConfigurationInterface.h"
#include "FileDialogs/FileDialog.h"
#include "Host/FileHandling/FileName.h"
#include "Host/Translation/Translator.h"
#include "Host/Widgets/ZVConverterDialog.h"

#include <QtGui/QGuiApplication>

#include <exception>
#include <new>

namespace Zorvane {

namespace {

/** While it lives, the cursor waits and the window takes no commands. */
class Conversion
{
public:
    explicit Conversion(ZVConverterDialog* window)
        : m_window(window)
    {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        m_window->setConverting(true);
    }
    ~Conversion()
    {
        if (m_window)
            m_window->setConverting(false);
        QGuiApplication::restoreOverrideCursor();
    }

private:
    Q_DISABLE_COPY(Conversion)

    QPointer<ZVConverterDialog> m_window;
};

/** Leaves the window as before the conversion. */
constexpr int s_noResult = -1;

ZVConverterDialog::Status statusOf(int result)
{
    switch (result) {
    case FileConverterConfigurationInterface::ConversionSucceeded:
        return ZVConverterDialog::StatusSucceeded;
    case FileConverterConfigurationInterface::ConversionInputFailed:
        return ZVConverterDialog::StatusInputFailed;
    case FileConverterConfigurationInterface::ConversionOutputFailed:
        return ZVConverterDialog::StatusOutputFailed;
    default:
        return ZVConverterDialog::StatusIdle;
    }
}

} // namespace

FileConverterDialog::FileConverterDialog(FileConverterConfigurationInterface* configuration,
                                         const QString& title, const QString& description,
                                         QWidget* parent)
    : m_window(new ZVConverterDialog(parent))
    , m_configuration(configuration)
{
    m_window->setWindowTitle(title);
    m_window->setDescription(description);
    connect(m_window, &ZVConverterDialog::convertWasClicked, this, &FileConverterDialog::onConvert);
    connect(m_window, &ZVConverterDialog::inputWasClicked, this, &FileConverterDialog::onInputFile);
    connect(m_window, &ZVConverterDialog::outputWasClicked, this,
            &FileConverterDialog::onOutputDirectory);
}

FileConverterDialog::~FileConverterDialog()
{
    delete m_window;
}

void FileConverterDialog::run()
{
    if (!m_window)
        return;
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void FileConverterDialog::addMessage(const QString& message)
{
    if (m_window)
        m_window->addLogMessage(message);
}

void FileConverterDialog::resetLog()
{
    m_window->setStatus(ZVConverterDialog::StatusIdle);
    m_window->clearLog();
}

void FileConverterDialog::onInputFile()
{
    QString caption;
    QString filter;
    QString pathKey;
    m_configuration->getInputFileDialogSettings(caption, filter, pathKey);
    const QPointer<FileConverterDialog> self(this);
    const QString file = FileDialog::getOpenFileName(
        caption, filter, m_configuration->getPathProvider(), pathKey, nullptr, m_window);
    if (!self || !m_window)
        return;
    m_inputFileName = file;
    m_window->setInputFile(m_inputFileName);
    resetLog();
}

void FileConverterDialog::onOutputDirectory()
{
    QString caption;
    QString pathKey;
    m_configuration->getOutputDirectoryDialogSettings(caption, pathKey);
    const QPointer<FileConverterDialog> self(this);
    const QString directory = FileDialog::getExistingDirectoryName(
        caption, m_configuration->getPathProvider(), pathKey, m_outputDirectory);
    if (!self || !m_window)
        return;
    m_outputDirectory = directory;
    m_window->setOutputDirectory(m_outputDirectory);
    resetLog();
}

void FileConverterDialog::onConvert()
{
    const QPointer<FileConverterDialog> self(this);
    int result = 0;
    {
        const Conversion conversion(m_window);
        resetLog();
        result = convert();
    }
    // A conversion that shows windows of its own may delete this one meanwhile.
    if (self && m_window)
        m_window->setStatus(statusOf(result));
}

/** An exception must not get as far as the event loop, which would end the application. */
int FileConverterDialog::convert()
{
    const QPointer<FileConverterDialog> self(this);
    const auto report = [&self](const QString& message) {
        if (self)
            self->addMessage(message);
    };
    try {
        return m_configuration->convert(FileName(m_inputFileName.toStdString()),
                                        FileName(m_outputDirectory.toStdString()), *this);
    } catch (const std::bad_alloc&) {
        // Neither file is to blame.
        report(Translator::translate("Zorvane::FileConverterDialog",
                                     "There is not enough memory for the conversion."));
        return s_noResult;
    } catch (const std::exception& error) {
        report(Translator::translate("Zorvane::FileConverterDialog",
                                     "The conversion stopped with an error: %1")
                   .arg(QString::fromLocal8Bit(error.what())));
    } catch (...) {
        report(Translator::translate("Zorvane::FileConverterDialog",
                                     "The conversion stopped with an unknown error."));
    }
    return FileConverterConfigurationInterface::ConversionInputFailed;
}

} // namespace Zorvane
