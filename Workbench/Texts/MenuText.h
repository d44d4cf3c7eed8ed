#pragma once

#include <QtCore/QString>

namespace Zorvane::Workbench {

/**
 * A name or path as a menu shows it: an '&' in it marks no key, and the middle of a long one, which
 * would make the menu wider than the screen, is left out.
 */
QString menuText(const QString& name);

} // namespace Zorvane::Workbench
