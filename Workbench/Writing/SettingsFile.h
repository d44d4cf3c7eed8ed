#pragma once

#include <QtCore/QSettings>

namespace Zorvane::Workbench {

/**
 * A format of settings in which a full disk leaves the stored ones as they are, and `status` says
 * so; Qt's own formats end up empty then. A JSON file: texts, numbers, truth values and lists of
 * texts can be read and edited in it.
 */
QSettings::Format settingsFileFormat();

/** Stores one setting; false if the disk has not taken it. */
bool storeSetting(const QString& key, const QVariant& value);

} // namespace Zorvane::Workbench
