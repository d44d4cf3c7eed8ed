#pragma once

#include "Dialogs/FileConverterConfigurationInterface.h"

#include <QtCore/QObject>

#include <memory>

namespace Zorvane::Workbench {

struct MeshReading;

/**
 * Converts mesh files to STL: binary STL to ASCII and ASCII to binary, OBJ and PLY to binary.
 * Files that are there are never replaced; the log tells the name that was free. Reading and
 * writing go on in the background, and can be cancelled without leaving anything behind.
 *
 * Goes with the log that it writes to, at the latest; one that goes while it converts is cancelled.
 */
class MeshConversion : public QObject, public FileConverterConfigurationInterface
{
    Q_OBJECT

public:
    /** What `convert` returns when the user cancelled. */
    static constexpr int Cancelled = 3;

    void getInputFileDialogSettings(QString& caption, QString& filter, QString& pathKey) override;
    void getOutputDirectoryDialogSettings(QString& caption, QString& pathKey) override;
    int convert(const FileName& inputFile, const FileName& outputDirectory,
                FileConverterLogInterface& log) override;

private:
    /** Null when cancelled. */
    std::shared_ptr<const MeshReading> read(const QString& file) const;
    int write(const std::shared_ptr<const MeshReading>& reading, const QString& inputFile,
              const QString& folder, FileConverterLogInterface& log) const;
};

} // namespace Zorvane::Workbench
