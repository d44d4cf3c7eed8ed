#include "Workbench/Window/WindowActions.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QIcon>
#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolBar>

namespace Zorvane::Workbench {

namespace {

struct ActionRow
{
    WindowActions::Id id;
    const char* text;
    const char* shortcut;
    const char* icon;
};

// clang-format off
constexpr ActionRow s_actions[] = {
    {WindowActions::OpenFiles,     QT_TR_NOOP("&Open Files…"),         "Ctrl+O",       ""},
    {WindowActions::OpenFolder,    QT_TR_NOOP("Open &Folder…"),        "Ctrl+Shift+O", "open"},
    {WindowActions::Import,        QT_TR_NOOP("&Import…"),             "Ctrl+I",       ""},
    {WindowActions::Export,        QT_TR_NOOP("&Export…"),             "Ctrl+E",       ""},
    {WindowActions::Save,          QT_TR_NOOP("&Save"),                "Ctrl+S",       "save"},
    {WindowActions::SaveAs,        QT_TR_NOOP("Save &As…"),            "Ctrl+Shift+S", ""},
    {WindowActions::SaveCopy,      QT_TR_NOOP("Save a Cop&y…"),        "",             ""},
    {WindowActions::Reload,        QT_TR_NOOP("&Reload"),              "F5",           "reload"},
    {WindowActions::CloseAll,      QT_TR_NOOP("&Close All"),           "Ctrl+W",       ""},
    {WindowActions::Quit,          QT_TR_NOOP("&Quit"),                "Ctrl+Q",       ""},
    {WindowActions::Undo,          QT_TR_NOOP("&Undo"),                "Ctrl+Z",       ""},
    {WindowActions::Redo,          QT_TR_NOOP("Re&do"),                "Ctrl+Y",       ""},
    {WindowActions::Rename,        QT_TR_NOOP("&Rename"),              "F2",           ""},
    {WindowActions::Remove,        QT_TR_NOOP("Re&move from Design"),  "Del",          ""},
    {WindowActions::Find,          QT_TR_NOOP("&Find"),                "Ctrl+F",       ""},
    {WindowActions::GoToReference, QT_TR_NOOP("&Go to Reference"),     "Ctrl+G",       ""},
    {WindowActions::Fit,           QT_TR_NOOP("&Fit"),                 "Ctrl+0",       "fit"},
    {WindowActions::ZoomIn,        QT_TR_NOOP("Zoom &In"),             "Ctrl++",       ""},
    {WindowActions::ZoomOut,       QT_TR_NOOP("Zoom &Out"),            "Ctrl+-",       ""},
    {WindowActions::ViewIsometric, QT_TR_NOOP("From a &Corner"),       "Ctrl+1",       "view-isometric"},
    {WindowActions::ViewTop,       QT_TR_NOOP("From the &Top"),        "Ctrl+2",       "view-top"},
    {WindowActions::ViewBottom,    QT_TR_NOOP("From &Below"),          "Ctrl+3",       ""},
    {WindowActions::ViewFront,     QT_TR_NOOP("From the F&ront"),      "Ctrl+4",       "view-front"},
    {WindowActions::ViewBack,      QT_TR_NOOP("From Be&hind"),         "Ctrl+5",       ""},
    {WindowActions::ViewLeft,      QT_TR_NOOP("From the &Left"),       "Ctrl+6",       ""},
    {WindowActions::ViewRight,     QT_TR_NOOP("From the Ri&ght"),      "Ctrl+7",       "view-right"},
    {WindowActions::ExpandAll,     QT_TR_NOOP("&Expand All"),          "Ctrl+Shift++", ""},
    {WindowActions::CollapseAll,   QT_TR_NOOP("Co&llapse All"),        "Ctrl+Shift+-", ""},
    {WindowActions::ConvertMeshes, QT_TR_NOOP("&Convert Meshes…"),     "",             ""},
    {WindowActions::StartSimulation, QT_TR_NOOP("Start S&imulation"),  "",             ""},
    {WindowActions::StopSimulation, QT_TR_NOOP("Sto&p Simulation"),    "",             ""},
    {WindowActions::StressTree,    QT_TR_NOOP("&Stress a Tree…"),      "",             ""},
    {WindowActions::About,         QT_TR_NOOP("&About the Workbench"), "",             ""},
    {WindowActions::AboutQt,       QT_TR_NOOP("About &Qt"),            "",             ""},
};
// clang-format on

/** The table belongs to no class: its texts are listed under the namespace. */
QString tableText(const char* text)
{
    return QCoreApplication::translate("Zorvane::Workbench", text);
}

} // namespace

WindowActions::WindowActions(QObject* parent)
    : QObject(parent)
{
    for (const ActionRow& row : s_actions) {
        auto* action = new QAction(tableText(row.text), this);
        action->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut)));
        if (*row.icon != '\0')
            action->setIcon(
                QIcon(QStringLiteral(":/workbench/%1.svg").arg(QLatin1String(row.icon))));
        m_actions[row.id] = action;
    }
    m_actions[Quit]->setMenuRole(QAction::QuitRole);
    m_actions[About]->setMenuRole(QAction::AboutRole);
    m_actions[AboutQt]->setMenuRole(QAction::AboutQtRole);
}

void WindowActions::addTo(QMenu& menu, std::initializer_list<Id> ids) const
{
    for (const Id id : ids)
        menu.addAction(m_actions.at(id));
}

void WindowActions::addTo(QToolBar& toolBar, std::initializer_list<Id> ids) const
{
    for (const Id id : ids)
        toolBar.addAction(m_actions.at(id));
}

} // namespace Zorvane::Workbench
