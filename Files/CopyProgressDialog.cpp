#include "Files/CopyProgressDialog.h"

#include "Files/CopyTexts.h"
#include "Files/PathText.h"
#include "Host/Translation/ArgString.h"
#include "Host/Translation/Translator.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace Zorvane {

namespace {

constexpr int s_barSteps = 1000;
constexpr int s_width = 440;

QLabel* makeLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/** Bytes say how long it takes; many empty files have none. */
int barValue(const CopyProgressState& state)
{
    const double done = state.bytesTotal > 0 ? static_cast<double>(state.bytesDone)
                                             : static_cast<double>(state.filesDone);
    const double total = state.bytesTotal > 0 ? static_cast<double>(state.bytesTotal)
                                              : static_cast<double>(qMax(state.filesTotal, 1));
    return static_cast<int>(qBound(0.0, done / total, 1.0) * s_barSteps);
}

QString amountText(const CopyProgressState& state)
{
    if (state.stage == CopyProgressState::Stage::Checking)
        return ArgString(Translator::translate("CopyProgressDialog", "File %1 of %2"))
            .arg(qMin(state.filesDone + 1, state.filesTotal))
            .arg(state.filesTotal)
            .toQString();
    return ArgString(Translator::translate("CopyProgressDialog", "File %1 of %2, %3 of %4"))
        .arg(qMin(state.filesDone + 1, state.filesTotal))
        .arg(state.filesTotal)
        .arg(sizeForDisplay(state.bytesDone))
        .arg(sizeForDisplay(state.bytesTotal))
        .toQString();
}

QString speedText(const CopyProgressState& state, const CopyRate& rate)
{
    if (state.stage == CopyProgressState::Stage::Checking)
        return Translator::translate("CopyProgressDialog", "Looking at the files");
    const auto speed = rate.bytesPerSecond();
    const auto left = rate.secondsLeft(state.bytesTotal - state.bytesDone);
    if (!speed || !left)
        return Translator::translate("CopyProgressDialog", "Estimating the time left");
    return ArgString(Translator::translate("CopyProgressDialog", "%1 at %2 per second"))
        .arg(timeLeftForDisplay(*left))
        .arg(sizeForDisplay(static_cast<qint64>(*speed)))
        .toQString();
}

} // namespace

CopyProgressDialog::CopyProgressDialog(QWidget* parent)
    : QDialog(parent)
    , m_file(makeLabel(this))
    , m_bar(new QProgressBar(this))
    , m_amount(makeLabel(this))
    , m_speed(makeLabel(this))
    , m_cancel(new QPushButton(Translator::translate("CopyProgressDialog", "&Cancel"), this))
{
    setWindowTitle(Translator::translate("CopyProgressDialog", "Copying Files"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(true);
    setFixedWidth(s_width);

    m_bar->setRange(0, s_barSteps);
    m_bar->setAccessibleName(Translator::translate("CopyProgressDialog", "Progress of the copy"));
    m_file->setAccessibleName(Translator::translate("CopyProgressDialog", "File being copied"));
    m_cancel->setDefault(true);
    connect(m_cancel, &QPushButton::clicked, this, &CopyProgressDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_file);
    layout->addWidget(m_bar);
    layout->addWidget(m_amount);
    layout->addWidget(m_speed);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    layout->addLayout(buttons);
}

void CopyProgressDialog::showState(const CopyProgressState& state, const CopyRate& rate)
{
    m_bar->setValue(barValue(state));
    m_amount->setText(amountText(state));
    if (m_cancelled)
        return;
    const QString name = pathForDisplay(state.fileName);
    m_file->setText(m_file->fontMetrics().elidedText(name, Qt::ElideMiddle, m_bar->width()));
    m_file->setToolTip(name);
    m_speed->setText(speedText(state, rate));
}

void CopyProgressDialog::reject()
{
    m_cancelled = true;
    m_cancel->setEnabled(false);
    m_speed->setText(Translator::translate("CopyProgressDialog", "Cancelling"));
}

} // namespace Zorvane
