#include "Files/DialogCopyQuestions.h"

#include "Files/CopyCollisionDialog.h"
#include "Files/CopyTexts.h"
#include "Files/DialogCopyProgress.h"
#include "Host/Translation/ArgString.h"
#include "Host/Translation/Translator.h"
#include "Host/Widgets/ZVMessageBox.h"

#include <QtCore/QPointer>

namespace Zorvane {

namespace {

constexpr int s_mostLines = 5;
// Laying out the text of many thousands of lines would block the window for seconds.
constexpr int s_mostDetails = 500;

QString title()
{
    return Translator::translate("FileCopyUtility", "Copy Files");
}

QStringList linesFor(const QList<CopyRemark>& remarks)
{
    QStringList paths;
    for (const CopyRemark& remark : remarks.mid(0, s_mostDetails))
        paths.append(remark.path);
    QStringList lines = distinctNamesForDisplay(paths);
    for (int i = 0; i < lines.size(); ++i)
        lines[i] += QStringLiteral(": ") + remarks[i].reason;
    return lines;
}

QString headlineFor(int failures)
{
    if (failures == 0)
        return Translator::translate("FileCopyUtility",
                                     "The files were copied, but there is something to know.");
    return failures == 1 ? Translator::translate("FileCopyUtility", "One file could not be copied.")
                         : Translator::translate("FileCopyUtility", "%n files could not be copied.",
                                                 nullptr, failures);
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

bool DialogCopyQuestions::copyInSpiteOfSpace(qint64 bytesNeeded, qint64 bytesFree)
{
    const QString text =
        ArgString(Translator::translate("FileCopyUtility",
                                        "The files need %1, but the target folder's disk has only "
                                        "%2 free. Copy as many as fit?"))
            .arg(sizeForDisplay(bytesNeeded))
            .arg(sizeForDisplay(bytesFree))
            .toQString();
    int answer = QMessageBox::No;
    m_progress.pauseFor([&](QWidget* parent) {
        const QPointer<ZVMessageBox> box = new ZVMessageBox(
            QMessageBox::Question, title(), text, QMessageBox::Yes | QMessageBox::No, parent);
        box->setTextFormat(Qt::PlainText);
        box->setButtonText(QMessageBox::Yes, Translator::translate("FileCopyUtility", "Copy"));
        box->setButtonText(QMessageBox::No, Translator::translate("FileCopyUtility", "Don't Copy"));
        box->setDefaultButton(QMessageBox::No);
        answer = box->exec();
        delete box;
    });
    return answer == QMessageBox::Yes;
}

void DialogCopyQuestions::report(const QList<CopyRemark>& failures,
                                 const QList<CopyRemark>& remarks)
{
    const QList<CopyRemark> all = failures + remarks;
    QStringList lines = linesFor(all);
    if (all.size() > lines.size())
        lines.append(Translator::translate("FileCopyUtility", "And %n more.", nullptr,
                                           all.size() - lines.size()));
    m_progress.pauseFor([&](QWidget* parent) {
        const QPointer<ZVMessageBox> box = new ZVMessageBox(
            QMessageBox::Warning, title(), headlineFor(failures.size()), QMessageBox::Ok, parent);
        box->setTextFormat(Qt::PlainText);
        box->setInformativeText(lines.mid(0, s_mostLines).join(u'\n'));
        if (lines.size() > s_mostLines)
            box->setDetailedText(lines.join(u'\n'));
        box->exec();
        delete box;
    });
}

} // namespace Zorvane
