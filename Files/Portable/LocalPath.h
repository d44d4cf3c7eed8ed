#pragma once

#include <QtCore/QString>

#include <string>

namespace Zorvane {

/**
 * The bytes that the file system knows a path by: as Qt encodes it in this locale, except that
 * names with escaped bytes (see PathText.h) are taken literally.
 */
std::string localPathBytes(const QString& path);

} // namespace Zorvane
