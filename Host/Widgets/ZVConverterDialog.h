#pragma once

#include "Host/HostExport.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtWidgets/QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
QT_END_NAMESPACE

namespace Zorvane {

/**
 * A window that turns one file into others: the input file, the folder for the output, a button
 * that starts the conversion, how it went, and a log of it. It only shows and asks: code
 * that is connected to its signals chooses the paths, converts, and sets what the window shows.
 *
 * The paths are shown as the system writes them, with their ends in view, and can be copied. The
 * log can be selected, copied as a whole, and keeps to its end as messages come unless the user
 * has scrolled up; it drops its oldest lines beyond `longestLog`. "Convert" can be pressed when
 * both paths are there; Enter presses it, or the button that has the focus. The button that
 * chooses the input file has it at first. Escape closes the window.
 *
 * Not supported: more than one input file; typing a path; use outside of the GUI thread.
 */
class ZORVANE_HOST_EXPORT ZVConverterDialog : public QDialog
{
    Q_OBJECT

public:
    enum Status
    {
        /** Nothing has been converted since the paths were chosen. */
        StatusIdle = 0,
        StatusSucceeded = 1,
        /** The input is not what it should be. */
        StatusInputFailed = 2,
        /** The output could not be written. */
        StatusOutputFailed = 3
    };
    Q_ENUM(Status)

    /** In lines. */
    static constexpr int longestLog = 100000;

    explicit ZVConverterDialog(QWidget* parent = nullptr);
    ~ZVConverterDialog() override;

    /** What the window is for, in a sentence or two of plain text; none hides the line. */
    void setDescription(const QString& description);
    QString description() const;

    /** Shown only; no signal follows. */
    void setInputFile(const QString& file);
    QString inputFile() const { return m_inputFile; }
    void setOutputDirectory(const QString& directory);
    QString outputDirectory() const { return m_outputDirectory; }

    void setStatus(Status status);
    Status status() const { return m_status; }
    /** The status in words, as the user reads it. */
    QString statusText() const;

    /**
     * Adds a line, or several, of plain text to the log. While converting, the log is painted some
     * twenty times a second at most, and once at the end.
     */
    void addLogMessage(const QString& message);
    void clearLog();
    /** Everything in the log, a message a line. */
    QString logText() const;

    /**
     * While converting, nothing can be chosen or started and the window doesn't close, whatever
     * the user presses; what a conversion shows by itself, such as its progress, is not touched.
     */
    void setConverting(bool isConverting);
    bool isConverting() const { return m_isConverting; }

Q_SIGNALS:
    void convertWasClicked();
    void inputWasClicked();
    void outputWasClicked();

public Q_SLOTS:
    void reject() override;

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    QLayout* layOutPaths();
    QLayout* layOutStatus();
    QLayout* layOutEnd();
    void connectParts();
    void retranslate();
    void copyLog() const;
    void showState();

    QLabel* m_description;
    QLineEdit* m_inputField;
    QLineEdit* m_outputField;
    QLabel* m_inputLabel;
    QLabel* m_outputLabel;
    QPushButton* m_inputButton;
    QPushButton* m_outputButton;
    QPushButton* m_convertButton;
    QPushButton* m_copyButton;
    QPushButton* m_closeButton;
    QLabel* m_statusIcon;
    QLabel* m_statusLabel;
    QPlainTextEdit* m_log;

    QString m_inputFile;
    QString m_outputDirectory;
    Status m_status = StatusIdle;
    bool m_isConverting = false;
    /** Invalid before the first message of a conversion. */
    QElapsedTimer m_sinceRepaint;
    /** Disabling a button takes its focus, which is restored afterwards. */
    QPointer<QWidget> m_focusBefore;
};

} // namespace Zorvane
