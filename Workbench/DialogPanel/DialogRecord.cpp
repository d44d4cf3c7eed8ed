#include "Workbench/DialogPanel/DialogRecord.h"

#include "FileDialogs/FileDialog.h"
#include "FileDialogs/FileDialogConfiguration.h"

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

/** Without the marks of keys. */
QString labelOf(const FileDialogConfiguration::CustomItem& item)
{
    QString label = item.groupLabel.isEmpty() ? item.content.toString() : item.groupLabel;
    return label.remove(QLatin1Char('&')).remove(QLatin1Char(':'));
}

} // namespace

void DialogRecord::note(const QString& event)
{
    const int open = FileDialog::getOpenDialogsCount();
    outcome.mostOpen = std::max(outcome.mostOpen, open);
    outcome.events << QStringLiteral("[%1] ").arg(open) + event;
    m_changed(outcome);
}

void DialogRecord::addControls(const FileDialogConfiguration& configuration)
{
    for (int index = 0; index < configuration.numberOfcustomControls(); ++index) {
        const FileDialogConfiguration::CustomItem& item = configuration.getCustomControl(index);
        const bool isCheckBox = item.controlType == FileDialogConfiguration::CheckBox;
        outcome.controls.push_back({item.controlId, labelOf(item),
                                    isCheckBox ? QStringList() : item.content.toStringList(),
                                    item.initialValue.toInt()});
    }
}

void DialogRecord::setControl(int id, int value)
{
    for (DialogOutcome::Control& control : outcome.controls)
        if (control.id == id)
            control.value = value;
}

void DialogRecord::finish()
{
    outcome.openAfterwards = FileDialog::getOpenDialogsCount();
    outcome.isFinished = true;
    m_changed(outcome);
}

QString quoted(const QStringList& texts)
{
    QStringList quotedTexts;
    for (const QString& text : texts)
        quotedTexts << QLatin1Char('"') + text + QLatin1Char('"');
    return quotedTexts.join(QStringLiteral(", "));
}

} // namespace Zorvane::Workbench
