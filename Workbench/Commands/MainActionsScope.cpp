#include "Workbench/Commands/MainActionsScope.h"

#include "Actions/ZVMainActions.h"

namespace Zorvane::Workbench {

namespace {

int s_holders = 0;

} // namespace

MainActionsScope::MainActionsScope()
{
    if (s_holders++ == 0)
        ZVMainActions::createInstance();
}

MainActionsScope::~MainActionsScope()
{
    if (--s_holders == 0)
        ZVMainActions::releaseInstance();
}

} // namespace Zorvane::Workbench
