#pragma once

#include <QtCore/QVariant>

namespace Zorvane {

/**
 * True only where the two values cannot be distinguished, so that views need not hear of the second
 * one. Stricter than `QVariant`, which finds 1 and "1" or close numbers equal, in maps and points,
 * too: a type that is not known to compare exactly counts as different.
 */
bool isCertainlySame(const QVariant& left, const QVariant& right);

} // namespace Zorvane
