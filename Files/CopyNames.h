#pragma once

#include "UiToolsExport.h"

#include <QtCore/QtGlobal>

#include <cstddef>
#include <functional>
#include <string>

namespace Zorvane {

/** Names that copies get. All of them are leaf names in bytes; limits are in bytes. */
using NameIsTaken = std::function<bool(const std::string& name)>;

/**
 * The first of "stem (number).ending", "stem (number + 1).ending", ... that is not taken; `number`
 * becomes the one that it has, so that the next search need not begin anew. The stem loses as many
 * characters, whole ones, as the limit demands, and spaces and dots at its new end. An ending that
 * leaves no room for a stem counts as part of it; ".profile" has no ending.
 * A limit below 32 bytes counts as 32.
 */
ZORVANE_UITOOLS_EXPORT std::string keepBothName(const std::string& leaf, std::size_t mostBytes,
                                                const NameIsTaken& isTaken, unsigned& number);

/** Names that are alike here may mean one file where the case of letters doesn't count. */
ZORVANE_UITOOLS_EXPORT std::string foldedName(const std::string& leaf);

} // namespace Zorvane
