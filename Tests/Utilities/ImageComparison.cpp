#include "Tests/Utilities/ImageComparison.h"

#include <QtCore/QDir>

#include <algorithm>
#include <cstdlib>

namespace Zorvane::Testing {

namespace {

constexpr int s_strayDistance = 32;

struct PixelDistance
{
    int sum;
    int largest;
};

PixelDistance distanceOf(QRgb a, QRgb b)
{
    const int red = std::abs(qRed(a) - qRed(b));
    const int green = std::abs(qGreen(a) - qGreen(b));
    const int blue = std::abs(qBlue(a) - qBlue(b));
    return {red + green + blue, std::max({red, green, blue})};
}

} // namespace

QString ImageDifference::text() const
{
    return QStringLiteral("mean difference %1, stray pixels %2 %")
        .arg(mean, 0, 'f', 3)
        .arg(strayPixels * 100.0, 0, 'f', 3);
}

ImageDifference differenceOf(const QImage& actual, const QImage& wanted)
{
    if (actual.size() != wanted.size() || actual.isNull())
        return {};
    qint64 sum = 0;
    qint64 strayPixels = 0;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const PixelDistance distance = distanceOf(actual.pixel(x, y), wanted.pixel(x, y));
            sum += distance.sum;
            strayPixels += distance.largest > s_strayDistance ? 1 : 0;
        }
    }
    const double pixels = double(actual.width()) * actual.height();
    return {double(sum) / pixels / 3.0, double(strayPixels) / pixels};
}

bool isReferenceImage(const QImage& actual, const QString& name, QString& message)
{
    const QString folder = qEnvironmentVariable("ZORVANE_REFERENCE_IMAGES_TO");
    const QString file = QDir(folder).filePath(name + QStringLiteral(".png"));
    constexpr int smallest = 0; // of PNG files the quality is that of the compression
    if (!folder.isEmpty() && !actual.save(file, "PNG", smallest)) {
        message = QStringLiteral("%1 cannot be written to %2").arg(name, folder);
        return false;
    }
    const QImage wanted(QStringLiteral(":/ReferenceImages/%1.png").arg(name));
    const ImageDifference difference = differenceOf(actual, wanted);
    message = QStringLiteral("%1: %2").arg(name, difference.text());
    return difference.isTolerable();
}

} // namespace Zorvane::Testing
