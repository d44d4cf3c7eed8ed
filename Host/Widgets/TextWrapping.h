#pragma once

#include "Host/HostExport.h"

#include <QtCore/QString>
#include <QtGui/QFont>

namespace Zorvane {

/**
 * The text with line ends put in where a line of it would be wider than `width` pixels in the
 * font: after spaces and behind the marks between words, else between any two characters that a
 * reader sees as two. Nothing else is changed; without the line ends put in it is the text again.
 * A line holds at least one character, however narrow the width is. A width of 0 or less is none:
 * the text stays as it is.
 */
ZORVANE_HOST_EXPORT QString wrapTextToFitWidth(const QString& text, const QFont& font, int width);

} // namespace Zorvane
