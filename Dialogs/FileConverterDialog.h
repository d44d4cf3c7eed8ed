#pragma once

#include "Dialogs/FileConverterLogInterface.h"
#include "UiToolsExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Zorvane {

class FileConverterConfigurationInterface;
class ZVConverterDialog;

/**
 * A window in which the user converts files, one after the other, as a configuration says. The
 * files and folders are chosen with `FileDialog`; each choice, a cancelled one too, takes the
 * place of the earlier one and clears status and log.
 *
 * The configuration is not owned and must outlive this object. The window belongs to its parent,
 * and is deleted with this object at the latest.
 *
 * While a conversion runs, the cursor waits and the window takes no commands. A conversion that
 * throws is reported in the log and counts as one whose input failed; one that runs out of memory
 * is reported too, and leaves the status idle. A conversion may delete this object, and must not
 * write to the log from then on.
 */
class ZORVANE_UITOOLS_EXPORT FileConverterDialog : public QObject, public FileConverterLogInterface
{
    Q_OBJECT

public:
    FileConverterDialog(FileConverterConfigurationInterface* configuration, const QString& title,
                        const QString& description, QWidget* parent);
    ~FileConverterDialog() override;

    /** Shows the window, in front of others, and returns at once. */
    void run();
    void addMessage(const QString& message) override;

private Q_SLOTS:
    void onConvert();
    void onInputFile();
    void onOutputDirectory();

private:
    Q_DISABLE_COPY(FileConverterDialog)

    void resetLog();
    int convert();

    // The parent of the window may delete it first.
    QPointer<ZVConverterDialog> m_window;
    FileConverterConfigurationInterface* m_configuration;
    QString m_inputFileName;
    QString m_outputDirectory;
};

} // namespace Zorvane
