#include "Workbench/Commands/WorkbenchActions.h"

#include "Host/ApplicationWidgets/SvgIcon.h"

#include <QtGui/QIcon>
#include <QtWidgets/QAction>

namespace Zorvane::Workbench {

WorkbenchActions::WorkbenchActions(QObject* parent)
    : GenericMainActions(parent)
{
    initActions();
}

void WorkbenchActions::initActions()
{
    struct Row
    {
        Actions id;
        const char* objectName;
        const char* text;
        const char* toolTip;
        const char* shortcut;
        const char* icon;
    };
    // clang-format off
    static constexpr Row s_rows[] = {
        {OpenFolder,       "OpenFolderAction",       QT_TR_NOOP("Open &Folder…"),        QT_TR_NOOP("Open the designs of a folder"),                "Ctrl+Alt+O",       ":/workbench/open.svg"},
        {Import,           "ImportAction",           QT_TR_NOOP("&Import…"),             QT_TR_NOOP("Bring files into the selected design"),        "Ctrl+I",           ""},
        {SaveCopy,         "SaveCopyAction",         QT_TR_NOOP("Save a Cop&y…"),        QT_TR_NOOP("Write a copy beside the design"),              "",                 ""},
        {ReopenAll,        "ReopenAllAction",        QT_TR_NOOP("Reope&n All"),          QT_TR_NOOP("Read everything again"),                       "",                 ""},
        {CloseAll,         "CloseAllAction",         QT_TR_NOOP("Close A&ll"),           QT_TR_NOOP("Close all designs and meshes"),                "",                 ""},
        {Rename,           "RenameAction",           QT_TR_NOOP("Re&name"),              QT_TR_NOOP("Change the name of the selected object"),      "F2",               ""},
        {Remove,           "RemoveAction",           QT_TR_NOOP("Re&move from Design"),  QT_TR_NOOP("The file of the object stays"),                "Del",              ""},
        {Find,             "FindAction",             QT_TR_NOOP("&Find"),                QT_TR_NOOP("Filter the tree by words"),                    "Ctrl+F",           ""},
        {GoToReference,    "GoToReferenceAction",    QT_TR_NOOP("&Go to Reference"),     QT_TR_NOOP("Select an object that uses this one or is used by it"), "Ctrl+G",       ""},
        {ZoomIn,           "ZoomInAction",           QT_TR_NOOP("Zoom &In"),             "",                                                        "Ctrl++",           ""},
        {ZoomOut,          "ZoomOutAction",          QT_TR_NOOP("Zoom &Out"),            "",                                                        "Ctrl+-",           ""},
        {ExpandAll,        "ExpandAllAction",        QT_TR_NOOP("&Expand All"),          "",                                                        "Ctrl+Shift+Right", ""},
        {CollapseAll,      "CollapseAllAction",      QT_TR_NOOP("Co&llapse All"),        "",                                                        "Ctrl+Shift+Left",  ""},
        {ShowOnlyGeometry, "ShowOnlyGeometryAction", QT_TR_NOOP("Show &Only Geometry"),  QT_TR_NOOP("Hide blanks, tools and sheets for the time being"), "Ctrl+Shift+G", ""},
        {StopSimulation,   "StopSimulationAction",   QT_TR_NOOP("Sto&p Simulation"),     "",                                                        "",                 ""},
        {ConvertMeshes,    "ConvertMeshesAction",    QT_TR_NOOP("&Convert Meshes…"),     "",                                                        "",                 ""},
        {StressTree,       "StressTreeAction",       QT_TR_NOOP("&Stress a Tree…"),      "",                                                        "",                 ""},
        {FileDialogs,      "FileDialogsAction",      QT_TR_NOOP("&File Dialogs…"),       QT_TR_NOOP("Open each variant of the file dialogs"),       "",                 ""},
        {About,            "AboutAction",            QT_TR_NOOP("&About the Workbench"), "",                                                        "",                 ""},
        {AboutQt,          "AboutQtAction",          QT_TR_NOOP("About &Qt"),            "",                                                        "",                 ""},
    };
    // clang-format on
    for (const Row& row : s_rows)
        m_actions[row.id] = createAction(tr(row.text), createSvgIcon(QString::fromLatin1(row.icon)),
                                         *row.toolTip == '\0' ? QString() : tr(row.toolTip),
                                         QKeySequence(QString::fromLatin1(row.shortcut)), this,
                                         QString::fromLatin1(row.objectName));
    m_actions[ShowOnlyGeometry]->setCheckable(true);
    m_actions[About]->setMenuRole(QAction::AboutRole);
    m_actions[AboutQt]->setMenuRole(QAction::AboutQtRole);
}

} // namespace Zorvane::Workbench
