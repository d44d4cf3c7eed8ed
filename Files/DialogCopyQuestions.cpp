#include "Files/DialogCopyQuestions.h"

#include "Files/CopyCollisionDialog.h"
#include "Files/CopyTexts.h"
#include "Files/DialogCopyProgress.h"
#include "Host/Translation/Translator.h"
#include "Host/Widgets/ZVMessageBox.h"

#include <QtCore/QPointer>

namespace Zorvane {

namespace {

constexpr int s_mostLines = 5;

QString lineFor(const CopyFailure& failure)
{
    return leafForDisplay(failure.path) + QStringLiteral(": ") + failure.reason;
}

QString linesFor(const QList<CopyFailure>& failures, int most)
{
    QStringList lines;
    for (const CopyFailure& failure : failures.mid(0, most))
        lines.append(lineFor(failure));
    return lines.join(u'\n');
}

QString headlineFor(int count)
{
    return count == 1 ? Translator::translate("FileCopyUtility", "One file could not be copied.")
                      : Translator::translate("FileCopyUtility", "%n files could not be copied.",
                                              nullptr, count);
}

} // namespace

DialogCopyQuestions::DialogCopyQuestions(DialogCopyProgress& progress)
    : m_progress(progress)
{}

CopyAnswer DialogCopyQuestions::ask(const CopyCollision& collision)
{
    CopyAnswer answer{CopyDecision::Cancel, false};
    m_progress.pauseFor([&](QWidget* parent) {
        // The parent may go away while the dialog is open, and takes it along.
        const QPointer<CopyCollisionDialog> dialog = new CopyCollisionDialog(collision, parent);
        dialog->exec();
        if (dialog)
            answer = dialog->answer();
        delete dialog;
    });
    return answer;
}

void DialogCopyQuestions::tellFailures(const QList<CopyFailure>& failures)
{
    m_progress.pauseFor([&](QWidget* parent) {
        const QPointer<ZVMessageBox> box = new ZVMessageBox(
            QMessageBox::Warning, Translator::translate("FileCopyUtility", "Copy Files"),
            headlineFor(failures.size()), QMessageBox::Ok, parent);
        box->setTextFormat(Qt::PlainText);
        box->setInformativeText(linesFor(failures, s_mostLines));
        if (failures.size() > s_mostLines)
            box->setDetailedText(linesFor(failures, failures.size()));
        box->exec();
        delete box;
    });
}

} // namespace Zorvane
