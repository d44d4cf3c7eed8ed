#pragma once

#include "Host/FileHandling/FileName.h"
#include "Host/HostExport.h"

namespace Zorvane {

/**
 * Whether the file holds binary STL: the number of triangles in its head fits its
 * size to the byte; some programs start binary files with "solid" too. False for a file that
 * cannot be read.
 */
ZORVANE_HOST_EXPORT bool isBinaryStl(const FileName& file);

} // namespace Zorvane
