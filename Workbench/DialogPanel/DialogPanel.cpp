#include "Workbench/DialogPanel/DialogPanel.h"

#include "FileDialogs/FileDialog.h"
#include "Workbench/DialogPanel/ExampleFiles.h"
#include "Workbench/Screens/ScreenFit.h"

#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

namespace Zorvane::Workbench {

namespace {

constexpr int s_widthInDigits = 150;
constexpr int s_heightInDigits = 90;
constexpr int s_choiceInDigits = 52;
const QString s_gap = QStringLiteral("\n\n");

} // namespace

DialogPanel::DialogPanel(QWidget* parent)
    : QDialog(parent)
    , m_files(std::make_shared<ExampleFiles>())
{
    setWindowTitle(tr("File Dialogs"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(createChoice());
    layout->addWidget(createResults(), 1);
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    resize(fittedToScreen(*this, QSize(s_widthInDigits, s_heightInDigits) * digit));
    m_variants->setCurrentRow(0);
    m_variants->setFocus();
    if (!m_files->areThere())
        m_results->setPlainText(tr("The example files cannot be written."));
}

DialogPanel::~DialogPanel() = default;

QWidget* DialogPanel::createChoice()
{
    auto* const side = new QWidget(this);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    m_variants = new QListWidget(side);
    m_variants->setAccessibleName(tr("Variants"));
    m_variants->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* const title = new QLabel(tr("&Variants:"), side);
    title->setBuddy(m_variants);
    for (const DialogRun::Variant& variant : DialogRun::variants()) {
        auto* const item = new QListWidgetItem(variant.title, m_variants);
        item->setData(Qt::UserRole, int(variant.id));
        item->setToolTip(variant.explanation);
    }
    connect(m_variants, &QListWidget::currentRowChanged, this, &DialogPanel::explain);
    connect(m_variants, &QListWidget::doubleClicked, this, &DialogPanel::openChosen);
    m_shower = new QComboBox(side);
    m_shower->setAccessibleName(tr("Shown by"));
    for (const DialogShower shower :
         {DialogShower::Usual, DialogShower::Qt, DialogShower::Option, DialogShower::Failing})
        m_shower->addItem(DialogRun::showerText(shower), int(shower));
    m_explanation = new QLabel(side);
    m_explanation->setWordWrap(true);
    m_explanation->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // As high as the longest needs, so that nothing moves while one looks through them.
    m_explanation->setMinimumHeight(5 * fontMetrics().lineSpacing());
    auto* const open = new QPushButton(tr("&Open"), side);
    open->setDefault(true);
    connect(open, &QPushButton::clicked, this, &DialogPanel::openChosen);
    auto* const form = new QFormLayout;
    form->addRow(tr("&Shown by:"), m_shower);
    layout->addWidget(title);
    layout->addWidget(m_variants, 1);
    layout->addWidget(m_explanation);
    layout->addLayout(form);
    layout->addWidget(open);
    side->setFixedWidth(s_choiceInDigits * fontMetrics().horizontalAdvance(QLatin1Char('0')));
    return side;
}

QWidget* DialogPanel::createResults()
{
    auto* const side = new QWidget(this);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    m_results = new QPlainTextEdit(side);
    m_results->setAccessibleName(tr("Results"));
    m_results->setReadOnly(true);
    m_results->setTabChangesFocus(true);
    m_results->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_results->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_results->setPlaceholderText(tr("Open one of the variants: what came out stands here."));
    auto* const title = new QLabel(tr("&Results:"), side);
    title->setBuddy(m_results);
    m_count = new QLabel(side);
    auto* const copy = new QPushButton(tr("&Copy"), side);
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(resultText()); });
    auto* const clear = new QPushButton(tr("C&lear"), side);
    connect(clear, &QPushButton::clicked, this, &DialogPanel::clearResults);
    auto* const close = new QPushButton(tr("Close"), side);
    connect(close, &QPushButton::clicked, this, &DialogPanel::reject);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_count, 1);
    for (QPushButton* const button : {copy, clear, close}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    layout->addWidget(title);
    layout->addWidget(m_results, 1);
    layout->addLayout(buttons);
    clearResults();
    return side;
}

void DialogPanel::choose(DialogVariant variant, DialogShower shower)
{
    for (int row = 0; row < m_variants->count(); ++row)
        if (m_variants->item(row)->data(Qt::UserRole).toInt() == int(variant))
            m_variants->setCurrentRow(row);
    m_shower->setCurrentIndex(m_shower->findData(int(shower)));
}

DialogVariant DialogPanel::chosenVariant() const
{
    return DialogVariant(m_variants->currentItem()->data(Qt::UserRole).toInt());
}

void DialogPanel::explain()
{
    m_explanation->setText(m_variants->currentItem()->toolTip());
}

void DialogPanel::openChosen()
{
    if (m_isOpen || !m_files->areThere())
        return;
    m_isOpen = true;
    m_earlier = resultText().isEmpty() ? QString() : resultText() + s_gap;
    const QPointer<DialogPanel> self(this);
    // What closes the window's owner while the dialog is open takes this window, too.
    DialogRun run(m_files, this, [self](const DialogOutcome& outcome) {
        if (self)
            self->showOutcome(outcome);
    });
    run.run(chosenVariant(), DialogShower(m_shower->currentData().toInt()));
    if (self)
        m_isOpen = false;
}

void DialogPanel::showOutcome(const DialogOutcome& outcome)
{
    m_outcome = outcome;
    m_results->setPlainText(m_earlier + outcome.text());
    m_results->verticalScrollBar()->setValue(m_results->verticalScrollBar()->maximum());
    m_count->setText(tr("Dialogs open now: %1").arg(FileDialog::getOpenDialogsCount()));
}

QString DialogPanel::resultText() const
{
    return m_results->toPlainText();
}

void DialogPanel::clearResults()
{
    m_results->clear();
    m_count->setText(tr("Dialogs open now: %1").arg(FileDialog::getOpenDialogsCount()));
}

void DialogPanel::reject()
{
    if (!m_isOpen)
        QDialog::reject();
}

} // namespace Zorvane::Workbench
