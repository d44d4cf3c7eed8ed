#include "Actions/ZVMainActions.h"
#include "Tools/ActionCatalogue/ActionCatalogue.h"

#include <QtWidgets/QApplication>

#include <cstdio>

/** Prints the page, for Docs/Actions.md. */
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::fputs(Zorvane::Tools::actionCatalogue().toUtf8().constData(), stdout);
    Zorvane::ZVMainActions::releaseInstance();
    return 0;
}
