#include "Host/DesignStatus/DesignInterface.h"

namespace Zorvane {

DesignInterface::~DesignInterface() = default;

} // namespace Zorvane
