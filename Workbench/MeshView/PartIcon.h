#pragma once

#include <QtCore/QSize>
#include <QtGui/QColor>
#include <QtGui/QIcon>

namespace Zorvane::Workbench {

/** Patches in front of names are this large, in logical pixels. */
QSize colourPatchSize();
/** A patch of the colour alone, drawn anew for each scale. */
QIcon colourIcon(const QColor& colour);
/** The picture with a patch of the colour behind it; as wide as `partIconSize`. */
QIcon partIcon(const QIcon& picture, const QColor& colour);
/** Of the picture and the patch together, for a picture this large. */
QSize partIconSize(int pictureSize);

} // namespace Zorvane::Workbench
