#include "Files/FileCopyService.h"

#include "Files/CopyCheck.h"
#include "Files/DialogCopyProgress.h"
#include "Files/PathText.h"
#include "Host/Translation/Translator.h"
#include "Host/Widgets/ZVMessageBox.h"

#include <QtCore/QPointer>

namespace Zorvane {

namespace {

constexpr Qt::WindowFlags s_questionFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                            Qt::WindowCloseButtonHint | Qt::FramelessWindowHint;

bool userWantsCopy(QWidget* parent, const QString& title, const QString& text)
{
    // The parent may go away while the box is open, and takes it along.
    const QPointer<ZVMessageBox> box =
        new ZVMessageBox(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                         parent, s_questionFlags);
    box->setTextFormat(Qt::PlainText); // names of files may look like mark-up
    box->setButtonText(QMessageBox::Yes, Translator::translate("FileCopyUtility", "Copy"));
    box->setButtonText(QMessageBox::No, Translator::translate("FileCopyUtility", "Don't Copy"));
    box->setDefaultButton(QMessageBox::Yes);
    const int answer = box->exec();
    delete box;
    return answer == QMessageBox::Yes;
}

/** Where a file lies in the target folder already, or the check was cancelled. */
bool mayNotBeAsked(QWidget* parent, const QStringList& sourceFiles, const QString& targetFolder)
{
    constexpr int bits = FileCopyUtility::AlreadyInTarget | FileCopyUtility::NoTargetFolder;
    DialogCopyProgress progress(parent);
    const std::optional<int> code = checkCopy(sourceFiles, targetFolder, progress);
    return !code || (*code & bits) == bits;
}

} // namespace

QList<FileCopyUtility::FileCopyInfo>
FileCopyService::copyFilesToDirectory(QWidget* parent, const QString& title, const QString& text,
                                      const QStringList& sourceFiles, const QString& targetFolder,
                                      int& result)
{
    const QPointer<QWidget> owner(parent);
    if (mayNotBeAsked(owner, sourceFiles, targetFolder) || !userWantsCopy(owner, title, text))
        return {};
    return FileCopyUtility(owner, sourceFiles, targetFolder).copyFiles(result);
}

bool FileCopyService::copyFilesToDirectory(QWidget* parent, const QString& title,
                                           const QString& text, const QStringList& sourceFiles,
                                           const QString& targetFolder, QStringList& copiedFiles)
{
    int code = 0;
    const auto records = copyFilesToDirectory(parent, title, text, sourceFiles, targetFolder, code);
    copiedFiles.clear();
    for (const FileCopyUtility::FileCopyInfo& record : records) {
        if (record.status != FileCopyUtility::NotCopied)
            copiedFiles.append(record.target);
    }
    return code == 0;
}

bool FileCopyService::copyFilesToDirectory(QWidget* parent, const QString& title,
                                           const QString& text,
                                           const std::list<FileName>& sourceFiles,
                                           const FileName& targetFolder,
                                           std::list<FileName>& copiedFiles)
{
    QStringList copied;
    const bool success = copyFilesToDirectory(parent, title, text, toStringList(sourceFiles),
                                              pathFromBytes(targetFolder.toNativeString()), copied);
    copiedFiles.clear();
    for (const QString& file : qAsConst(copied))
        copiedFiles.emplace_back(pathToBytes(file));
    return success;
}

QStringList FileCopyService::toStringList(const std::list<FileName>& files)
{
    QStringList texts;
    for (const FileName& file : files)
        texts.append(pathFromBytes(file.toNativeString()));
    return texts;
}

} // namespace Zorvane
