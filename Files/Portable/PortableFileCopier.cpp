#include "Files/FileCopier.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace Zorvane {

namespace {

class PortableFileCopier final : public FileCopier
{
public:
    QList<FileCopyUtility::FileCopyInfo> copy(QWidget*, const QStringList& sources,
                                              const QString& targetFolder) override
    {
        QList<FileCopyUtility::FileCopyInfo> records;
        for (const QString& source : sources) {
            const QString target = QDir(targetFolder).filePath(QFileInfo(source).fileName());
            const bool copied = QFile::copy(source, target);
            records.append({source, copied ? target : QString(),
                            copied ? FileCopyUtility::Copied : FileCopyUtility::NotCopied});
        }
        return records;
    }
};

} // namespace

std::unique_ptr<FileCopier> createPlatformFileCopier()
{
    return std::make_unique<PortableFileCopier>();
}

} // namespace Zorvane
