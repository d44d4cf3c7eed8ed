#include "Host/Widgets/ZVConverterDialog.h"

#include "Host/Translation/Translator.h"

#include <QtCore/QDir>
#include <QtGui/QClipboard>
#include <QtGui/QCloseEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

namespace Zorvane {

namespace {

constexpr int s_usualWidth = 680;
constexpr int s_usualHeight = 420;
/** In milliseconds. Painting every message would take longer than most conversions. */
constexpr int s_repaintInterval = 50;

QString converterText(const char* source)
{
    return Translator::translate("Zorvane::ZVConverterDialog", source);
}

QLineEdit* createPathField(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setReadOnly(true);
    return field;
}

void showPath(QLineEdit& field, const QString& path)
{
    field.setText(QDir::toNativeSeparators(path));
    field.setToolTip(field.text());
    field.setCursorPosition(int(field.text().size()));
}

QStyle::StandardPixmap iconOf(ZVConverterDialog::Status status)
{
    return status == ZVConverterDialog::StatusSucceeded ? QStyle::SP_DialogApplyButton
                                                        : QStyle::SP_MessageBoxWarning;
}

} // namespace

ZVConverterDialog::ZVConverterDialog(QWidget* parent)
    : QDialog(parent)
    , m_description(new QLabel(this))
    , m_inputField(createPathField(this))
    , m_outputField(createPathField(this))
    , m_inputLabel(new QLabel(this))
    , m_outputLabel(new QLabel(this))
    , m_inputButton(new QPushButton(this))
    , m_outputButton(new QPushButton(this))
    , m_convertButton(new QPushButton(this))
    , m_copyButton(new QPushButton(this))
    , m_closeButton(new QPushButton(this))
    , m_statusIcon(new QLabel(this))
    , m_statusLabel(new QLabel(this))
    , m_log(new QPlainTextEdit(this))
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_description->setTextFormat(Qt::PlainText);
    m_description->setWordWrap(true);
    m_description->hide();
    m_statusLabel->setWordWrap(true);
    m_log->setReadOnly(true);
    // The cursor keys select in it, too.
    m_log->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_log->setTabChangesFocus(true);
    m_log->setMaximumBlockCount(longestLog);
    m_convertButton->setDefault(true);
    layOut();
    connectParts();
    retranslate();
    // "Convert" is off at first; Enter in a path's field would do nothing.
    m_inputButton->setFocus();
    resize(s_usualWidth, s_usualHeight);
}

ZVConverterDialog::~ZVConverterDialog() = default;

void ZVConverterDialog::layOut()
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_description);
    layout->addLayout(layOutPaths());
    layout->addLayout(layOutStatus());
    layout->addWidget(m_log, 1);
    layout->addLayout(layOutEnd());
}

QLayout* ZVConverterDialog::layOutPaths()
{
    auto* paths = new QGridLayout;
    paths->addWidget(m_inputLabel, 0, 0);
    paths->addWidget(m_inputField, 0, 1);
    paths->addWidget(m_inputButton, 0, 2);
    paths->addWidget(m_outputLabel, 1, 0);
    paths->addWidget(m_outputField, 1, 1);
    paths->addWidget(m_outputButton, 1, 2);
    m_inputLabel->setBuddy(m_inputField);
    m_outputLabel->setBuddy(m_outputField);
    return paths;
}

QLayout* ZVConverterDialog::layOutStatus()
{
    auto* line = new QHBoxLayout;
    line->addWidget(m_convertButton);
    line->addSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    line->addWidget(m_statusIcon);
    line->addWidget(m_statusLabel, 1);
    return line;
}

QLayout* ZVConverterDialog::layOutEnd()
{
    auto* line = new QHBoxLayout;
    line->addWidget(m_copyButton);
    line->addStretch(1);
    line->addWidget(m_closeButton);
    return line;
}

void ZVConverterDialog::connectParts()
{
    connect(m_inputButton, &QPushButton::clicked, this, &ZVConverterDialog::inputWasClicked);
    connect(m_outputButton, &QPushButton::clicked, this, &ZVConverterDialog::outputWasClicked);
    connect(m_convertButton, &QPushButton::clicked, this, &ZVConverterDialog::convertWasClicked);
    connect(m_copyButton, &QPushButton::clicked, this, &ZVConverterDialog::copyLog);
    connect(m_closeButton, &QPushButton::clicked, this, &ZVConverterDialog::close);
}

void ZVConverterDialog::retranslate()
{
    m_inputLabel->setText(converterText(QT_TR_NOOP("Input file")));
    m_outputLabel->setText(converterText(QT_TR_NOOP("Output folder")));
    m_inputField->setAccessibleName(m_inputLabel->text());
    m_outputField->setAccessibleName(m_outputLabel->text());
    m_inputButton->setText(converterText(QT_TR_NOOP("Choose &File...")));
    m_outputButton->setText(converterText(QT_TR_NOOP("Choose F&older...")));
    m_convertButton->setText(converterText(QT_TR_NOOP("&Convert")));
    m_copyButton->setText(converterText(QT_TR_NOOP("Copy &Log")));
    m_closeButton->setText(converterText(QT_TR_NOOP("Close")));
    m_log->setAccessibleName(converterText(QT_TR_NOOP("Log")));
    showState();
}

void ZVConverterDialog::setDescription(const QString& description)
{
    m_description->setText(description);
    m_description->setVisible(!description.isEmpty());
}

QString ZVConverterDialog::description() const
{
    return m_description->text();
}

void ZVConverterDialog::setInputFile(const QString& file)
{
    m_inputFile = file;
    showPath(*m_inputField, file);
    showState();
}

void ZVConverterDialog::setOutputDirectory(const QString& directory)
{
    m_outputDirectory = directory;
    showPath(*m_outputField, directory);
    showState();
}

void ZVConverterDialog::setStatus(Status status)
{
    m_status = status;
    showState();
}

QString ZVConverterDialog::statusText() const
{
    if (m_isConverting)
        return converterText(QT_TR_NOOP("Converting..."));
    switch (m_status) {
    case StatusSucceeded:
        return converterText(QT_TR_NOOP("The file was converted."));
    case StatusInputFailed:
        return converterText(QT_TR_NOOP("The input file could not be converted."));
    case StatusOutputFailed:
        return converterText(QT_TR_NOOP("The output could not be written."));
    case StatusIdle:
        break;
    }
    if (m_inputFile.isEmpty())
        return converterText(QT_TR_NOOP("Choose the file to convert."));
    if (m_outputDirectory.isEmpty())
        return converterText(QT_TR_NOOP("Choose the folder for the output."));
    return converterText(QT_TR_NOOP("Ready to convert."));
}

void ZVConverterDialog::addLogMessage(const QString& message)
{
    m_log->appendPlainText(message);
    m_copyButton->setEnabled(true);
    // A conversion in the GUI thread lets nothing else paint the log.
    if (m_isConverting &&
        (!m_sinceRepaint.isValid() || m_sinceRepaint.hasExpired(s_repaintInterval))) {
        m_log->repaint();
        m_sinceRepaint.start();
    }
}

void ZVConverterDialog::clearLog()
{
    m_log->clear();
    m_copyButton->setEnabled(false);
}

QString ZVConverterDialog::logText() const
{
    return m_log->toPlainText();
}

void ZVConverterDialog::copyLog() const
{
    QGuiApplication::clipboard()->setText(logText());
}

void ZVConverterDialog::setConverting(bool isConverting)
{
    if (isConverting)
        m_focusBefore = focusWidget();
    m_isConverting = isConverting;
    showState();
    m_sinceRepaint.invalidate();
    if (isConverting) {
        repaint();
        return;
    }
    m_log->repaint();
    if (m_focusBefore)
        m_focusBefore->setFocus();
}

/** What can be pressed, and the line that says how it went. */
void ZVConverterDialog::showState()
{
    m_inputButton->setEnabled(!m_isConverting);
    m_outputButton->setEnabled(!m_isConverting);
    m_closeButton->setEnabled(!m_isConverting);
    m_convertButton->setEnabled(!m_isConverting && !m_inputFile.isEmpty() &&
                                !m_outputDirectory.isEmpty());
    m_copyButton->setEnabled(!m_log->document()->isEmpty());
    const bool tellsResult = m_status != StatusIdle && !m_isConverting;
    m_statusIcon->setVisible(tellsResult);
    if (tellsResult) {
        const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
        m_statusIcon->setPixmap(style()->standardIcon(iconOf(m_status)).pixmap(size));
    }
    m_statusLabel->setText(statusText());
}

void ZVConverterDialog::reject()
{
    if (!m_isConverting)
        QDialog::reject();
}

void ZVConverterDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ZVConverterDialog::closeEvent(QCloseEvent* event)
{
    if (m_isConverting)
        event->ignore();
    else
        QDialog::closeEvent(event);
}

} // namespace Zorvane
