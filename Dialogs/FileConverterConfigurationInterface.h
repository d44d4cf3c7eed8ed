#pragma once

#include "Host/FileHandling/FileName.h"
#include "UiToolsExport.h"

#include <QtCore/QString>

namespace Zorvane {

class FileConverterLogInterface;
class PathProvider;

/** What a `FileConverterDialog` converts, and how. */
class ZORVANE_UITOOLS_EXPORT FileConverterConfigurationInterface
{
public:
    /** What `convert` returns. Any other number counts as nothing having happened. */
    enum ConversionResult
    {
        ConversionSucceeded = 0,
        /** The input is not what it should be. */
        ConversionInputFailed = 1,
        /** The output could not be written. */
        ConversionOutputFailed = 2
    };

    FileConverterConfigurationInterface();
    FileConverterConfigurationInterface(const FileConverterConfigurationInterface& other);
    FileConverterConfigurationInterface&
    operator=(const FileConverterConfigurationInterface& other);
    virtual ~FileConverterConfigurationInterface();

    /**
     * Fills in how the chooser of the input file looks: its caption, its file filter in Qt's
     * form, and the scope under which its folder is remembered.
     */
    virtual void getInputFileDialogSettings(QString& caption, QString& filter,
                                            QString& pathKey) = 0;
    /** The same for the chooser of the output folder. */
    virtual void getOutputDirectoryDialogSettings(QString& caption, QString& pathKey) = 0;
    /** Used by both choosers; not owned. This one is `LastPathProvider::getInstance()`. */
    virtual PathProvider* getPathProvider();
    /**
     * Converts the file, and writes what it has to say to the log. Either name may be empty.
     * Called in the GUI thread and expected to return when done; a conversion that takes long
     * shows its own progress, with a way to stop it. Returns a `ConversionResult`.
     */
    virtual int convert(const FileName& inputFile, const FileName& outputDirectory,
                        FileConverterLogInterface& log) = 0;
};

} // namespace Zorvane
