#include "Files/DialogCopyProgress.h"
#include "Files/DialogCopyQuestions.h"
#include "Files/FileCopier.h"
#include "Files/Portable/CopyEngine.h"

namespace Zorvane {

namespace {

class PortableFileCopier final : public FileCopier
{
public:
    QList<FileCopyUtility::FileCopyInfo> copy(QWidget* owner, const QStringList& sources,
                                              const QString& targetFolder) override
    {
        DialogCopyProgress progress(owner);
        DialogCopyQuestions questions(progress);
        return CopyEngine(questions, progress).run(sources, targetFolder);
    }
};

} // namespace

std::unique_ptr<FileCopier> createPlatformFileCopier()
{
    return std::make_unique<PortableFileCopier>();
}

} // namespace Zorvane
