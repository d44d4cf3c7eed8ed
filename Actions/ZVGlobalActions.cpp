#include "Actions/ZVGlobalActions.h"

#include "Host/ApplicationWidgets/SvgIcon.h"

#include <QtGui/QIcon>
#include <QtWidgets/QAction>

namespace Zorvane {

ZVGlobalActions::ZVGlobalActions(QObject* parent)
    : GenericMainActions(parent)
{}

ZVGlobalActions::~ZVGlobalActions() = default;

ZVGlobalActions* ZVGlobalActions::instance()
{
    struct Table : ZVGlobalActions
    {
        Table()
            : ZVGlobalActions(nullptr)
        {
            initActions();
        }
    };
    static Table s_table;
    return &s_table;
}

void ZVGlobalActions::initActions()
{
    initDebugActions();
    mapReverse();
    m_actions[HelpContents] = createAction(
        tr("HelpContents"), createSvgIcon(QStringLiteral(":/Icons/Application/help_16.svg")),
        tr("Open Help File"), QKeySequence::HelpContents, this, QStringLiteral("HelpAction"));
    auto* const tickets = new QAction(this);
    tickets->setShortcut(QKeySequence(tr("F8"), QKeySequence::NativeText));
    m_actions[CustomerTicketSystem] = tickets;
}

void ZVGlobalActions::initDebugActions()
{
    auto* const debug = new QAction(this);
    m_actions[HelpContentsDebug] = debug;
    debug->setShortcut(QKeySequence(tr("Shift+F1"), QKeySequence::NativeText));
}

} // namespace Zorvane
