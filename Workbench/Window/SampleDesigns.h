#pragma once

#include <QtCore/QString>

#include <vector>

namespace Zorvane::Workbench {

/** A design that comes with the program. */
struct SampleDesign
{
    /** Translated. */
    QString name;
    /** Absolute path of its folder. */
    QString folder;
};

/** Those found beside the program: as it lies in a build folder, and as it is installed. */
std::vector<SampleDesign> sampleDesigns();
/** Empty when it is not there. `folderName` is such as "drawn-cup". */
QString sampleFolder(const QString& folderName);

} // namespace Zorvane::Workbench
