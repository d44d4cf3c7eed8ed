#include "Workbench/Commands/ViewCommands.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/MeshView/MeshView.h"

#include <QtWidgets/QApplication>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr double s_quarterTurn = 90;
constexpr int s_smallestFont = 6;
constexpr int s_largestFont = 24;

struct DirectionRow
{
    ZVMainActions::Actions id;
    ViewDirection direction;
};

// clang-format off
constexpr DirectionRow s_directions[] = {
    {ZVMainActions::ViewIsometricAndFitScene,        ViewDirection::Isometric},
    {ZVMainActions::ViewRotatedIsometricAndFitScene, ViewDirection::RotatedIsometric},
    {ZVMainActions::ViewFromPosXAndFitScene,         ViewDirection::Right},
    {ZVMainActions::ViewFromNegXAndFitScene,         ViewDirection::Left},
    {ZVMainActions::ViewFromPosYAndFitScene,         ViewDirection::Back},
    {ZVMainActions::ViewFromNegYAndFitScene,         ViewDirection::Front},
    {ZVMainActions::ViewFromPosZAndFitScene,         ViewDirection::Top},
    {ZVMainActions::ViewFromNegZAndFitScene,         ViewDirection::Bottom},
};
// clang-format on

void changeFontSize(int points)
{
    QFont font = QApplication::font();
    const int size = font.pointSize() > 0 ? font.pointSize() : 9;
    font.setPointSize(std::clamp(size + points, s_smallestFont, s_largestFont));
    QApplication::setFont(font);
}

} // namespace

void connectViewCommands(const WindowCommands& commands, MeshView& view)
{
    MeshView* const target = &view;
    for (const DirectionRow& row : s_directions)
        commands.on(row.id, target, [target, to = row.direction] { target->setDirection(to); });
    const auto nearest = [&](ZVMainActions::Actions id, ViewAxis axis) {
        commands.on(id, target, [target, axis] { target->setNearestAlong(axis); });
    };
    nearest(ZVMainActions::ViewFromXShortest, ViewAxis::X);
    nearest(ZVMainActions::ViewFromYShortest, ViewAxis::Y);
    nearest(ZVMainActions::ViewFromZShortest, ViewAxis::Z);
    commands.on(ZVMainActions::ViewFitToWindow, target, &MeshView::fit);
    commands.on(ZVMainActions::RotateViewAroundZ, target,
                [target] { target->roll(s_quarterTurn); });
    commands.on(ZVMainActions::RotateViewAroundNegZ, target,
                [target] { target->roll(-s_quarterTurn); });
    commands.on(ZVMainActions::ViewFlip, target, &MeshView::flip);
    commands.on(ZVMainActions::ViewLast, target, &MeshView::showLastView);
    commands.on(ZVMainActions::ToggleWhite3DViewBackground, target,
                [target] { target->setWhiteBackground(!target->hasWhiteBackground()); });
    commands.on(ZVMainActions::FontSizeIncrease, target, [] { changeFontSize(1); });
    commands.on(ZVMainActions::FontSizeDecrease, target, [] { changeFontSize(-1); });
    commands.on(WorkbenchActions::ZoomIn, target, &MeshView::zoomIn);
    commands.on(WorkbenchActions::ZoomOut, target, &MeshView::zoomOut);
}

} // namespace Zorvane::Workbench
