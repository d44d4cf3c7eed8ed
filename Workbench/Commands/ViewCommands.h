#pragma once

namespace Zorvane::Workbench {

class MeshView;
class WindowCommands;

/** Lets the commands of the View menu act on the mesh view, as long as there is one. */
void connectViewCommands(const WindowCommands& commands, MeshView& view);

} // namespace Zorvane::Workbench
