#include "Workbench/Window/Appearance.h"

#include "Workbench/Writing/SettingsFile.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <array>

namespace Zorvane::Workbench {

namespace {

const QString s_key = QStringLiteral("Workbench/Appearance");

struct PaletteRow
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

// clang-format off
constexpr std::array<PaletteRow, 15> s_palette{{
    {QPalette::Window,          0xffeef1f4, 0xff2a2e34},
    {QPalette::WindowText,      0xff1d252d, 0xffe3e8ee},
    {QPalette::Base,            0xffffffff, 0xff1f2227},
    {QPalette::AlternateBase,   0xfff5f7f9, 0xff25292f},
    {QPalette::Text,            0xff1d252d, 0xffe3e8ee},
    {QPalette::PlaceholderText, 0xff66727e, 0xff9aa5b1},
    {QPalette::Button,          0xffe6eaee, 0xff353a42},
    {QPalette::ButtonText,      0xff1d252d, 0xffe3e8ee},
    {QPalette::BrightText,      0xffffffff, 0xffffffff},
    {QPalette::Highlight,       0xffc5dff5, 0xff2f5578},
    {QPalette::HighlightedText, 0xff10202f, 0xffffffff},
    {QPalette::ToolTipBase,     0xfffbfcfd, 0xff353a42},
    {QPalette::ToolTipText,     0xff1d252d, 0xffe3e8ee},
    {QPalette::Link,            0xff1a5f9e, 0xff7fb8ec},
    {QPalette::LinkVisited,     0xff6b4d9a, 0xffb9a0e0},
}};
// clang-format on

QPalette paletteFor(bool dark)
{
    const QColor button(dark ? 0xff353a42 : 0xffe6eaee);
    const QColor window(dark ? 0xff2a2e34 : 0xffeef1f4);
    QPalette palette(button, window);
    for (const PaletteRow& row : s_palette)
        palette.setColor(row.role, QColor(dark ? row.dark : row.light));
    const QColor disabled(dark ? 0xff7d8792 : 0xff87929d);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

} // namespace

void applyAppearance(QApplication& application, Appearance appearance)
{
    if (appearance == Appearance::System)
        application.setPalette(application.style()->standardPalette());
    else
        application.setPalette(paletteFor(appearance == Appearance::Dark));
}

Appearance storedAppearance()
{
    const int stored = QSettings().value(s_key, int(Appearance::System)).toInt();
    return stored == int(Appearance::Light)  ? Appearance::Light
           : stored == int(Appearance::Dark) ? Appearance::Dark
                                             : Appearance::System;
}

bool storeAppearance(Appearance appearance)
{
    return storeSetting(s_key, int(appearance));
}

} // namespace Zorvane::Workbench
