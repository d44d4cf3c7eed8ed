#include "Files/FileCopier.h"
#include "Files/Windows/ComApartment.h"
#include "Files/Windows/ShellCopy.h"

namespace Zorvane {

namespace {

class ShellFileCopier final : public FileCopier
{
public:
    QList<FileCopyUtility::FileCopyInfo> copy(QWidget* owner, const QStringList& sources,
                                              const QString& targetFolder) override
    {
        QList<FileCopyUtility::FileCopyInfo> records;
        if (sources.isEmpty() || targetFolder.isEmpty())
            return records;
        const auto window = owner ? reinterpret_cast<HWND>(owner->winId()) : nullptr;
        const ComApartment apartment;
        const ShellFunctions shell;
        // A failure leaves the list empty, and that is what tells of it.
        if (SUCCEEDED(apartment.result()) && shell.sufficeForCopying())
            ShellCopy(shell, window).run(sources, targetFolder, records);
        return records;
    }
};

} // namespace

std::unique_ptr<FileCopier> createPlatformFileCopier()
{
    return std::make_unique<ShellFileCopier>();
}

} // namespace Zorvane
