#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>

namespace Zorvane::Testing {

/** How far two pictures of one size are apart; versions of Qt differ in the last bit of an edge. */
struct ImageDifference
{
    /** The mean over all pixels and channels, 0 to 255. */
    double mean = 255.0;
    /** The share of pixels that differ by more than an eighth of the scale in any channel. */
    double strayPixels = 1.0;

    bool isTolerable() const { return mean <= 0.5 && strayPixels <= 0.005; }
    QString text() const;
};

/** Pictures of different sizes are as far apart as can be. */
ImageDifference differenceOf(const QImage& actual, const QImage& wanted);

/**
 * Whether a picture is the one kept in the test's resources under this name; `message` tells how
 * it is not. With the environment variable ZORVANE_REFERENCE_IMAGES_TO set to a folder the picture
 * is written there as well, to be looked at and kept.
 */
bool isReferenceImage(const QImage& actual, const QString& name, QString& message);

} // namespace Zorvane::Testing
