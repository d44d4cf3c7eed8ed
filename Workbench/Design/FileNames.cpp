#include "Workbench/Design/FileNames.h"

#include "Files/FileNameRules.h"
#include "Host/FileHandling/FileUtilities.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStringList>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

/** ".XXXXXX" behind the name, until the file is complete. */
constexpr int s_roomForWriting = 7;

} // namespace

bool FileNames::isDesign(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("dsg"), Qt::CaseInsensitive) == 0;
}

QString FileNames::obstacle(const QString& name)
{
    switch (faultOfFileName(name)) {
    case FileNameFault::None:
        return {};
    case FileNameFault::Empty:
    case FileNameFault::Folder:
        return tr("is no name for a file");
    case FileNameFault::Letter:
        return tr("has letters in its name that the system does not allow there");
    case FileNameFault::Device:
        return tr("has a name that the system keeps for a device");
    case FileNameFault::End:
        return tr("has a dot or a blank at its end, which the system does not keep");
    case FileNameFault::Length:
        break;
    }
    return tr("has a longer name than the system takes");
}

QString FileNames::fitted(const QString& stem, const QString& ending)
{
    return fittedFileName(stem, ending, s_longestFileName - s_roomForWriting);
}

bool FileNames::areSame(const QString& left, const QString& right)
{
    return left == right || (left.compare(right, Qt::CaseInsensitive) == 0 &&
                             FileUtilities::isEquivalent(FileName(left), FileName(right)));
}

bool FileNames::arePossible(const QString& relativePath)
{
    const QStringList names = relativePath.split(QLatin1Char('/'));
    return std::all_of(names.begin(), names.end(), [](const QString& name) {
        return faultOfFileName(name) == FileNameFault::None;
    });
}

} // namespace Zorvane::Workbench
