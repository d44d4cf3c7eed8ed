#pragma once

#include "Host/Identifiers/GUIdentifier.h"

#include <map>

namespace Zorvane::Workbench {

/**
 * Which object of a copy stands for which object of the design, and which design for the design
 * itself. Null for what the copy has been left without.
 */
using Successors = std::map<GUIdentifier, GUIdentifier>;

} // namespace Zorvane::Workbench
