#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>

namespace Zorvane {

/** Takes the messages of a conversion. */
class ZORVANE_UITOOLS_EXPORT FileConverterLogInterface
{
public:
    FileConverterLogInterface();
    FileConverterLogInterface(const FileConverterLogInterface& other);
    FileConverterLogInterface& operator=(const FileConverterLogInterface& other);
    virtual ~FileConverterLogInterface();

    /** Plain text for the user to read; shown below the earlier messages, at once. */
    virtual void addMessage(const QString& message) = 0;
};

} // namespace Zorvane
