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

#include <utility>

namespace Zorvane {

namespace {

constexpr int s_usualWidth = 680;
constexpr int s_usualHeight = 420;

QLineEdit* createPathField(const QString& name, QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setReadOnly(true);
    field->setAccessibleName(name);
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
    , m_inputField(
          createPathField(Translator::translate("Zorvane::ZVConverterDialog", "Input file"), this))
    , m_outputField(createPathField(
          Translator::translate("Zorvane::ZVConverterDialog", "Output folder"), this))
    , m_inputButton(new QPushButton(
          Translator::translate("Zorvane::ZVConverterDialog", "Choose &File..."), this))
    , m_outputButton(new QPushButton(
          Translator::translate("Zorvane::ZVConverterDialog", "Choose F&older..."), this))
    , m_convertButton(
          new QPushButton(Translator::translate("Zorvane::ZVConverterDialog", "&Convert"), this))
    , m_copyButton(
          new QPushButton(Translator::translate("Zorvane::ZVConverterDialog", "Copy &Log"), this))
    , m_closeButton(
          new QPushButton(Translator::translate("Zorvane::ZVConverterDialog", "Close"), this))
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
    m_log->setAccessibleName(Translator::translate("Zorvane::ZVConverterDialog", "Log"));
    m_convertButton->setDefault(true);
    layOut();
    connectParts();
    showState();
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
    int row = 0;
    for (const auto& [field, button] :
         {std::pair(m_inputField, m_inputButton), std::pair(m_outputField, m_outputButton)}) {
        auto* label = new QLabel(field->accessibleName(), this);
        label->setBuddy(field);
        paths->addWidget(label, row, 0);
        paths->addWidget(field, row, 1);
        paths->addWidget(button, row, 2);
        ++row;
    }
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
        return Translator::translate("Zorvane::ZVConverterDialog", "Converting...");
    switch (m_status) {
    case StatusSucceeded:
        return Translator::translate("Zorvane::ZVConverterDialog", "The file was converted.");
    case StatusInputFailed:
        return Translator::translate("Zorvane::ZVConverterDialog",
                                     "The input file could not be converted.");
    case StatusOutputFailed:
        return Translator::translate("Zorvane::ZVConverterDialog",
                                     "The output could not be written.");
    case StatusIdle:
        break;
    }
    if (m_inputFile.isEmpty())
        return Translator::translate("Zorvane::ZVConverterDialog", "Choose the file to convert.");
    if (m_outputDirectory.isEmpty())
        return Translator::translate("Zorvane::ZVConverterDialog",
                                     "Choose the folder for the output.");
    return Translator::translate("Zorvane::ZVConverterDialog", "Ready to convert.");
}

void ZVConverterDialog::addLogMessage(const QString& message)
{
    m_log->appendPlainText(message);
    m_copyButton->setEnabled(true);
    // A conversion in the GUI thread lets nothing else paint it.
    if (m_isConverting)
        m_log->repaint();
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
    if (isConverting)
        repaint();
    else if (m_focusBefore)
        m_focusBefore->setFocus();
}

/** What can be pressed, and the line that tells how it went. */
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

void ZVConverterDialog::closeEvent(QCloseEvent* event)
{
    if (m_isConverting)
        event->ignore();
    else
        QDialog::closeEvent(event);
}

} // namespace Zorvane
