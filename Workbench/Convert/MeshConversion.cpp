#include "Workbench/Convert/MeshConversion.h"

#include "Dialogs/FileConverterLogInterface.h"
#include "Files/CopyTexts.h"
#include "Host/FileHandling/StlContent.h"
#include "Workbench/Convert/BackgroundWork.h"
#include "Workbench/Design/NewFile.h"
#include "Workbench/Meshes/MeshFacts.h"
#include "Workbench/Meshes/MeshReader.h"
#include "Workbench/Meshes/MeshWriter.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QPointer>

#include <optional>

namespace Zorvane::Workbench {

namespace {

QString leafOf(const QString& file)
{
    return QFileInfo(file).fileName();
}

bool isStl(const QString& file)
{
    return QFileInfo(file).suffix().compare(QLatin1String("stl"), Qt::CaseInsensitive) == 0;
}

/** STL of the other format, or binary STL of anything else. */
StlFormat targetFormat(const QString& inputFile)
{
    return isStl(inputFile) && isBinaryStl(FileName(inputFile)) ? StlFormat::Ascii
                                                                : StlFormat::Binary;
}

/** STL made of STL is told apart by its format. */
QString targetStem(const QString& inputFile)
{
    const QString stem = QFileInfo(inputFile).completeBaseName();
    if (!isStl(inputFile))
        return stem;
    return targetFormat(inputFile) == StlFormat::Ascii ? stem + QLatin1String("-ascii")
                                                       : stem + QLatin1String("-binary");
}

QString count(std::size_t number)
{
    return QLocale().toString(qulonglong(number));
}

} // namespace

void MeshConversion::getInputFileDialogSettings(QString& caption, QString& filter, QString& pathKey)
{
    caption = tr("Choose a Mesh File");
    filter = tr("Meshes (%1)").arg(MeshReader::nameFilters().join(QLatin1Char(' ')));
    pathKey = QStringLiteral("ConvertInput");
}

void MeshConversion::getOutputDirectoryDialogSettings(QString& caption, QString& pathKey)
{
    caption = tr("Choose a Folder for the STL File");
    pathKey = QStringLiteral("ConvertOutput");
}

int MeshConversion::convert(const FileName& inputFile, const FileName& outputDirectory,
                            FileConverterLogInterface& log)
{
    const QPointer<MeshConversion> self(this);
    const QString file = inputFile.toQString();
    log.addMessage(
        tr("Reading %1 (%2)...")
            .arg(QDir::toNativeSeparators(file), sizeForDisplay(QFileInfo(file).size())));
    const std::shared_ptr<const MeshReading> reading = read(file);
    if (!self)
        return Cancelled;
    if (!reading) {
        log.addMessage(tr("Cancelled. Nothing was written."));
        return Cancelled;
    }
    if (!reading->mesh) {
        log.addMessage(reading->problem.text());
        return ConversionInputFailed;
    }
    log.addMessage(
        tr("%1 triangles over %2 points.")
            .arg(count(reading->mesh->triangles.size()), count(reading->mesh->points.size())));
    return write(reading, file, outputDirectory.toQString(), log);
}

std::shared_ptr<const MeshReading> MeshConversion::read(const QString& file) const
{
    const auto reading = std::make_shared<MeshReading>();
    const bool isDone = workInBackground(tr("Reading %1...").arg(leafOf(file)),
                                         [reading, file] { *reading = MeshReader::read(file); });
    return isDone ? reading : nullptr;
}

int MeshConversion::write(const std::shared_ptr<const MeshReading>& reading,
                          const QString& inputFile, const QString& folder,
                          FileConverterLogInterface& log) const
{
    const auto target =
        std::make_shared<NewFile>(folder, targetStem(inputFile), QStringLiteral(".stl"));
    if (target->path().isEmpty()) {
        log.addMessage(tr("No file can be written to %1: %2")
                           .arg(QDir::toNativeSeparators(folder), target->obstacle()));
        return ConversionOutputFailed;
    }
    const StlFormat format = targetFormat(inputFile);
    log.addMessage((format == StlFormat::Ascii ? tr("Writing %1 as ASCII STL...")
                                               : tr("Writing %1 as binary STL..."))
                       .arg(QDir::toNativeSeparators(target->path())));
    const auto problem = std::make_shared<std::optional<Problem>>();
    const auto work = [reading, target, format, problem] {
        *problem = writeStl(*reading->mesh, target->path(), format);
    };
    const QPointer<const MeshConversion> self(this);
    const bool isDone = workInBackground(tr("Writing %1...").arg(leafOf(target->path())), work);
    if (!self)
        return Cancelled;
    if (!isDone) {
        // The target takes the file away when the work that still goes on lets go of it.
        log.addMessage(tr("Cancelled. Nothing was written."));
        return Cancelled;
    }
    if (*problem) {
        log.addMessage((*problem)->text());
        return ConversionOutputFailed;
    }
    target->keep();
    log.addMessage(tr("Written: %1.").arg(sizeForDisplay(QFileInfo(target->path()).size())));
    return ConversionSucceeded;
}

} // namespace Zorvane::Workbench
