#pragma once

#include <QtCore/QString>

namespace Zorvane::Tools {

/** The page "Docs/Actions.md": every action of the suite's tables, as they are at run time. */
QString actionCatalogue();

} // namespace Zorvane::Tools
