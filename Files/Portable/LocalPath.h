#pragma once

#include <QtCore/QString>

#include <string>

namespace Zorvane {

/**
 * The bytes that the file system knows a path by: as Qt encodes it in this locale, except that
 * names with escaped bytes (see PathText.h) are taken literally.
 */
std::string localPathBytes(const QString& path);

/** The full path, without detours such as "a/../b" unless that would lead to another file. */
std::string fullPathBytes(const std::string& path);

} // namespace Zorvane
