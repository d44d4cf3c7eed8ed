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
/** The picture alone, no wider than high where there is room for a patch as well. */
QIcon squareIcon(const QIcon& picture);
/** Of the picture and the patch together, for a picture this large. */
QSize partIconSize(int pictureSize);

} // namespace Zorvane::Workbench
