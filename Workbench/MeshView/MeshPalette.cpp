#include "Workbench/MeshView/MeshPalette.h"

namespace Zorvane::Workbench {

MeshColours meshColours(bool dark)
{
    // clang-format off
    if (dark)
        return {QColor(0xa9, 0xb8, 0xc9), QColor(0xae, 0xa1, 0x8c), QColor(0x0e, 0x12, 0x17),
                QColor(0x3a, 0x41, 0x4b), QColor(0x1b, 0x1f, 0x25)};
    return {QColor(0x9f, 0xb2, 0xc6), QColor(0xb9, 0xad, 0x99), QColor(0x2b, 0x36, 0x42),
            QColor(0xf6, 0xf8, 0xfb), QColor(0xcf, 0xd8, 0xe2)};
    // clang-format on
}

MeshColours meshColours(bool dark, const QColor& outside)
{
    MeshColours colours = meshColours(dark);
    if (!outside.isValid())
        return colours;
    colours.outside = outside;
    const QColor hsl = outside.toHsl();
    colours.inside = QColor::fromHsl(hsl.hslHue(), hsl.hslSaturation() / 2, dark ? 140 : 175);
    return colours;
}

} // namespace Zorvane::Workbench
