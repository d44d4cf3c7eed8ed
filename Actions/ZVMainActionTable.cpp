#include "Actions/ZVMainActionRow.h"
#include "Actions/ZVMainActions.h"

#include <QtGui/QKeySequence>

#include <iterator>

namespace Zorvane {

// The words of the table. Texts in QT_TR_NOOP belong to the context of the table's class.
namespace {

using Group = ZVMainActionRow::Group;
using Icon = ZVMainActionRow::Icon;
using Settings = ZVMainActionRow::Settings;
using Shortcut = ZVMainActionRow::Shortcut;

constexpr int s_noId = -1;
/** In place of a tool tip. */
constexpr const char* s_sameAsText = ZVMainActionRow::s_sameAsText;

constexpr Shortcut standard(QKeySequence::StandardKey key)
{
    return {Shortcut::Standard, key, nullptr};
}

constexpr Shortcut keys(const char* text)
{
    return {Shortcut::TranslatedKeys, 0, text};
}

/** No key, as Qt reads this text, which it takes its time for. */
constexpr Shortcut toBeDefined()
{
    return {Shortcut::TranslatedKeys, Qt::Key_unknown,
            QT_TRANSLATE_NOOP("Zorvane::ZVMainActions", "shortcut to be defined")};
}

constexpr Shortcut code(int key)
{
    return {Shortcut::KeyCode, key, nullptr};
}

constexpr Icon svg(const char* path)
{
    return {Icon::Svg, path};
}

constexpr Icon twoSize(const char* path)
{
    return {Icon::TwoSizeSvg, path};
}

constexpr Icon overview()
{
    return {Icon::Overview, nullptr};
}

constexpr Icon productCoordinates()
{
    return {Icon::ProductCoordinates, nullptr};
}

} // namespace

// clang-format off
const ZVMainActionRow ZVMainActions::s_rows[] = {
    {New,                                  "NewAction",                       QT_TR_NOOP("&New"),                              QT_TR_NOOP("New Design"),                    standard(QKeySequence::New),       svg(":/Icons/Shared/add_16.svg"),                    {}},
    {NewMultiBlank,                        "NewMultiBlankAction",             QT_TR_NOOP("New Multi Blank"),                   QT_TR_NOOP("New Multi Blank Design"),        {},                                svg(":/Icons/Shared/add_16.svg"),                    {}},
    {Open,                                 "OpenAction",                      QT_TR_NOOP("&Open..."),                          QT_TR_NOOP("Open File"),                     standard(QKeySequence::Open),      twoSize(":/Icons/Application/file_open"),            {}},
    {OpenWithStandard,                     "OpenWithStandardsAction",         QT_TR_NOOP("Open with Standards"),               s_sameAsText,                                {},                                {},                                                  {}},
    {OpenReadOnly,                         "OpenReadOnlyAction",              QT_TR_NOOP("Open Read-Only..."),                 QT_TR_NOOP("Open File Read-Only"),           {},                                twoSize(":/Icons/Application/file_open"),            {}},
    {ReOpen,                               "ReopenAction",                    QT_TR_NOOP("&Reopen"),                           QT_TR_NOOP("Reopen Current Design"),         keys(QT_TR_NOOP("Ctrl+Shift+O")),  twoSize(":/Icons/Application/file_reopen"),          {}},
    {OpenTemplate,                         "OpenTemplateAction",              QT_TR_NOOP("Open &Template..."),                 QT_TR_NOOP("Open Template"),                 keys(QT_TR_NOOP("Ctrl+T")),        svg(":/Icons/Application/open_template_16.svg"),     {}},
    {NewWithStandard,                      "NewWithStandardsAction",          QT_TR_NOOP("New with Standards"),                s_sameAsText,                                {},                                {},                                                  {}},
    {Save,                                 "SaveAction",                      QT_TR_NOOP("&Save"),                             QT_TR_NOOP("Save Design"),                   standard(QKeySequence::Save),      twoSize(":/Icons/Application/file_save"),            {}},
    {SaveAs,                               "SaveAsAction",                    QT_TR_NOOP("Save &As..."),                       QT_TR_NOOP("Save Design As..."),             keys(QT_TR_NOOP("Ctrl+Shift+S")),  svg(":/Icons/Application/file_save_as.svg"),         {}},
    {SavePackage,                          "SavePackageAction",               QT_TR_NOOP("Save Package"),                      QT_TR_NOOP("Save the design and create a zip archive together with all required .asm files."), {},                                {},                                                  {}},
    {CleanAndSaveas,                       "SaveAsNoCostAction",              QT_TR_NOOP("Save As (No Cost)..."),              s_sameAsText,                                {},                                svg(":/Icons/Application/file_save_as.svg"),         {}},
    {SaveToPDM,                            "SaveToPDMAction",                 QT_TR_NOOP("Save to PDM"),                       s_sameAsText,                                {},                                {},                                                  {}},
    {StripTimeSteps,                       "RemoveTimeStepsAction",           QT_TR_NOOP("Remove Time Steps from File..."),    s_sameAsText,                                {},                                {},                                                  {}},
    {Print,                                "PrintAction",                     QT_TR_NOOP("&Print..."),                         QT_TR_NOOP("Print Current"),                 standard(QKeySequence::Print),     twoSize(":/Icons/Application/file_print"),           {}},
    {Preferences,                          "PreferencesAction",               QT_TR_NOOP("&Preferences..."),                   QT_TR_NOOP("Preferences & Options"),         {},                                svg(":/Icons/Application/file_preferences_15.svg"),  Settings().textAsIconText()},
    {OpenPressGenerator,                   "OpenPressGeneratorAction",        QT_TR_NOOP("Open Press Generator..."),           QT_TR_NOOP("Open Press Generator"),          {},                                {},                                                  {}},
    {OpenPressConverter,                   "OpenPressConverterAction",        QT_TR_NOOP("Open Press Converter..."),           QT_TR_NOOP("Open Press Converter"),          {},                                {},                                                  {}},
    {OpenGuideLineEditor,                  "OpenGuidelineConverterAction",    QT_TR_NOOP("Open Guideline Converter..."),       QT_TR_NOOP("Open Guideline Converter"),      {},                                {},                                                  {}},
    {OpenMaterialGenerator,                "OpenMaterialGeneratorAction",     QT_TR_NOOP("Open Material Generator..."),        QT_TR_NOOP("Open Material Generator"),       {},                                {},                                                  {}},
    {OpenLubricationFileGenerator,         "OpenLubricationGeneratorAction",  QT_TR_NOOP("Open Lubrication File Generator..."), QT_TR_NOOP("Open Lubrication File Generator"), {},                                {},                                                  {}},
    {Standards,                            "StandardsAction",                 QT_TR_NOOP("&Standards..."),                     QT_TR_NOOP("Standards Editor"),              {},                                svg(":/Icons/Application/Titlebar/standards_16.svg"), Settings().textAsIconText()},
    {Close,                                "CloseAction",                     QT_TR_NOOP("&Close"),                            QT_TR_NOOP("Close Current Design"),          standard(QKeySequence::Close),     svg(":/Icons/Application/close.svg"),                {}},
    {NewWindow,                            "NewWindowAction",                 QT_TR_NOOP("New Window"),                        s_sameAsText,                                keys(QT_TR_NOOP("Ctrl+Shift+W")),  svg(":/Icons/Shared/add_16.svg"),                    {}},
    {NewFormingWindow,                     "NewFormingWindowAction",          QT_TR_NOOP("New Forming Window"),                s_sameAsText,                                {},                                svg(":/Icons/Shared/add_16.svg"),                    {}},
    {NewTandrelWindow,                     "NewTandrelWindowAction",          QT_TR_NOOP("New Tandrel Window"),                s_sameAsText,                                {},                                svg(":/Icons/Shared/add_16.svg"),                    {}},
    {Exit,                                 "ExitAction",                      QT_TR_NOOP("E&xit"),                             QT_TR_NOOP("Exit the Application"),          keys(QT_TR_NOOP("Alt+F4")),        svg(":/Icons/Application/file_exit_16.svg"),         {}},
    {Clone,                                "CloneAction",                     QT_TR_NOOP("Clone Design"),                      "",                                          keys(QT_TR_NOOP("Ctrl+D")),        {},                                                  {}},
    {StartReporting,                       "StartReportAction",               QT_TR_NOOP("Start Reporting..."),                "",                                          keys(QT_TR_NOOP("Ctrl+R")),        svg(":/Icons/Guideline/report_16.svg"),              {}},
    {ClearTemplate,                        "ClearTemplateAction",             QT_TR_NOOP("Clear Template"),                    "",                                          {},                                {},                                                  {}},
    {CloseCrop,                            "CloseCropAction",                 QT_TR_NOOP("Close Crop"),                        QT_TR_NOOP("Close the Crop View"),           keys(QT_TR_NOOP("Shift+K")),       {},                                                  {}},
    {ToggleShowRollAngle,                  "ToggleShowRollAngleAction",       QT_TR_NOOP("Toggle show roll angle"),            QT_TR_NOOP("Toggle Show Roll Angle"),        keys(QT_TR_NOOP("Shift+R")),       {},                                                  {}},
    {ToggleLights,                         "ToggleLightsAction",              QT_TR_NOOP("Toggle shading in 3d view"),         QT_TR_NOOP("Toggle Shading in 3d View"),     keys(QT_TR_NOOP("Alt+L")),         {},                                                  {}},
    {Export,                               "ExportAction",                    QT_TR_NOOP("&Export..."),                        QT_TR_NOOP("Show Export Dialog"),            keys(QT_TR_NOOP("Ctrl+E")),        svg(":/Icons/Application/file_export_16.svg"),       {}},
    {ExportImage,                          "ExportImageAction",               QT_TR_NOOP("&Export Image"),                     QT_TR_NOOP("Export the current 3D view to file"), {},                                {},                                                  {}},
    {QuickExportImage,                     "QuickExportImageAction",          QT_TR_NOOP("Quick Export Image"),                QT_TR_NOOP("Export the current 3D view to file"), keys(QT_TR_NOOP("Ctrl+Shift+P")),  {},                                                  {}},
    {ExportForBrakwell,                    "ExportForBWAction",               QT_TR_NOOP("Export for Gallivor..."),            QT_TR_NOOP("Export design as file for Gallivor"), {},                                svg(":/Icons/Application/file_export_16.svg"),       {}},
    {ExportOffsetSurface,                  "ExportOffsetSurfaceAction",       QT_TR_NOOP("Export &Offset Surface..."),         QT_TR_NOOP("Export current offset surface"), {},                                svg(":/Icons/Application/file_export_16.svg"),       {}},
    {OpenFromVantrel,                      "OpenFromVantrel",                 QT_TR_NOOP("Open from VanTrel..."),              s_sameAsText,                                {},                                svg(":/Icons/Application/vantrel_open_16.svg"),      {}},
    {UpdateFromVantrel,                    "UpdateFromVantrel",               QT_TR_NOOP("Update from VanTrel..."),            QT_TR_NOOP("Update From VanTrel..."),        {},                                svg(":/Icons/Application/vantrel_update_16.svg"),    {}},
    {ExportToVantrel,                      "ExportToVantrel",                 QT_TR_NOOP("Export to VanTrel..."),              s_sameAsText,                                {},                                svg(":/Icons/Application/vantrel_export_16.svg"),    Settings().needingStandards()},
    {ExecuteScript,                        "ExecuteScript",                   QT_TR_NOOP("Execute Script..."),                 s_sameAsText,                                {},                                {},                                                  {}},
    {ExportToVantrelWithStandard,          "ExportToVantrelWithStandard",     QT_TR_NOOP("Export to VanTrel with Standards"),  QT_TR_NOOP("Export to VanTrel Standards..."), {},                                {},                                                  {}},
    {ImportFromVanTrel,                    "ImportFromVanTrel",               QT_TR_NOOP("Import from VanTrel..."),            s_sameAsText,                                {},                                svg(":/Icons/Application/vantrel_open_16.svg"),      {}},
    {ExportHemmingVanTrel,                 "ExportHemmingVanTrel",            QT_TR_NOOP("Rollers, Roller Paths and Hemming Definition..."), QT_TR_NOOP("In this export only rollers, roller paths geometries and Hemming Definition are covered. The complete Hemming Process setup is not included."), toBeDefined(), {},                                                  {}},
    {ExportProductVanTrel,                 "ExportProductVanTrel",            QT_TR_NOOP("Product for Testing..."),            s_sameAsText,                                toBeDefined(), {},                                                  {}},
    {ExportJoiningParametersVanTrel,       "ExportJoiningParametersVanTrel",  QT_TR_NOOP("Joining Parameters..."),             s_sameAsText,                                toBeDefined(), {},                                                  {}},
    {ExportFixationVanTrel,                "ExportFixationVanTrel",           QT_TR_NOOP("Fixation..."),                       s_sameAsText,                                toBeDefined(), {},                                                  {}},
    {ExportJoiningVanTrel,                 "ExportJoiningVanTrel",            QT_TR_NOOP("Process Joining..."),                s_sameAsText,                                toBeDefined(), {},                                                  {}},
    {Undo,                                 "UndoAction",                      QT_TR_NOOP("&Undo"),                             QT_TR_NOOP("Undo Last Action"),              standard(QKeySequence::Undo),      svg(":/AppIcons/Titlebar/undo.svg"),                 Settings().disabled()},
    {Redo,                                 "RedoAction",                      QT_TR_NOOP("&Redo"),                             QT_TR_NOOP("Redo Last Action"),              standard(QKeySequence::Redo),      svg(":/AppIcons/Titlebar/redo.svg"),                 Settings().disabled()},
    {ComputeSimulation,                    "ComputeSimAction",                QT_TR_NOOP("Compute"),                           QT_TR_NOOP("Creates, computes and loads a simulation"), {},                                {},                                                  {}},
    {LoadSimulation,                       "LoadSimAction",                   QT_TR_NOOP("Load..."),                           QT_TR_NOOP("Loads a simulation from file"),  {},                                {},                                                  {}},
    {WindowOneView,                        "SingleViewAction",                QT_TR_NOOP("Single View"),                       "",                                          {},                                twoSize(":/Icons/Ribbon/window_one_view"),           Settings().checkable().in(Group::WindowLayouts)},
    {WindowTwoViewHorizontal,              "HorzViewAction",                  QT_TR_NOOP("Two Horizontal Views"),              "",                                          {},                                twoSize(":/Icons/Ribbon/window_two_view_horizontal"), Settings().checkable().in(Group::WindowLayouts)},
    {WindowTwoViewVertical,                "VertViewAction",                  QT_TR_NOOP("Two Vertical Views"),                "",                                          {},                                twoSize(":/Icons/Ribbon/window_two_view_vertical"),  Settings().checkable().in(Group::WindowLayouts)},
    {WindowFourView,                       "FourViewAction",                  QT_TR_NOOP("Four Views"),                        "",                                          {},                                twoSize(":/Icons/Ribbon/window_four_view"),          Settings().checkable().in(Group::WindowLayouts)},
    {WindowAutoBestFor2,                   "AutoFitViewAction",               QT_TR_NOOP("Auto Fit 2 Monitors"),               s_sameAsText,                                keys(QT_TR_NOOP("Alt+2")),         twoSize(":/Icons/Ribbon/window_auto_best_for_2"),    Settings().checkable()},
    {SketchViewWindow,                     "SketchViewAction",                QT_TR_NOOP("Sketch View"),                       "",                                          {},                                svg(":/Icons/Ribbon/sketch_view.svg"),               Settings().checkable().disabled()},
    {ShowSheetReference,                   "ShowSheetReferenceAction",        QT_TR_NOOP("Show sheet reference(s) for visible sheet(s) (Set to current time step with R)"), "",                                          {},                                svg(":/Icons/Ribbon/objects_sheet_reference.svg"),   Settings().checkable().disabled()},
    {ShowSheet,                            "ShowSheetAction",                 QT_TR_NOOP("Show Sheet"),                        s_sameAsText,                                keys(QT_TR_NOOP("S")),             svg(":/Icons/Ribbon/objects_sheet.svg"),             Settings().checkable().disabled()},
    {ShowMirroredSheet,                    "ShowMirroredSheetAction",         QT_TR_NOOP("Show Mirrored Sheet"),               "",                                          {},                                svg(":/Icons/Ribbon/objects_mirror_sheet.svg"),      Settings().checkable().disabled()},
    {ShowBothSymmetricSides,               "ShowBothSymmetricSidesAction",    QT_TR_NOOP("Show Geometry on both Symmetric Sides"), "",                                          {},                                twoSize(":/Icons/Ribbon/show_both_sides"),           Settings().checkable().disabled()},
    {HidePrimarySymmetricSide,             "HidePrimarySymmetricSideAction",  QT_TR_NOOP("Show Geometry only on secondary Symmetric Side"), "",                                          {},                                twoSize(":/Icons/Ribbon/show_right_side"),           Settings().checkable().disabled()},
    {HideSecondarySymmetricSide,           "HideSecondarySymmetricSideAction", QT_TR_NOOP("Show Geometry only on primary Symmetric Side"), "",                                          {},                                twoSize(":/Icons/Ribbon/show_left_side"),            Settings().checkable().disabled()},
    {ShowConnectors,                       "ShowConnectorsAction",            QT_TR_NOOP("Show Connectors"),                   "",                                          {},                                svg(":/Icons/Ribbon/show_connectors.svg"),           Settings().checkable().disabled()},
    {ShowCurrentOpTools,                   "ShowCurrentOpToolsAction",        QT_TR_NOOP("Show Tools of Current Operation"),   s_sameAsText,                                keys(QT_TR_NOOP("T")),             twoSize(":/Icons/Ribbon/objects_current_tools_all"), Settings().checkable().disabled()},
    {ShowCurrentUpperOpTools,              "ShowCurrentUpperOpTools",         QT_TR_NOOP("Show Upper Forming Tools of Current Operation"), "",                                          {},                                twoSize(":/Icons/Ribbon/objects_current_tools_upper"), Settings().checkable().disabled()},
    {ShowCurrentLowerOpTools,              "ShowCurrentLowerOpTools",         QT_TR_NOOP("Show Lower Forming Tools of Current Operation"), "",                                          {},                                twoSize(":/Icons/Ribbon/objects_current_tools_lower"), Settings().checkable().disabled()},
    {ShowTandrelTools,                     "ShowTandrelTools",                QT_TR_NOOP("Show Tools"),                        s_sameAsText,                                keys(QT_TR_NOOP("T")),             twoSize(":/Icons/Ribbon/objects_current_tools_all"), Settings().checkable().disabled()},
    {ShowTandrelUpperTools,                "ShowTandrelUpperTools",           QT_TR_NOOP("Show Upper Forming Tools"),          "",                                          {},                                twoSize(":/Icons/Ribbon/objects_current_tools_upper"), Settings().checkable().disabled()},
    {ShowTandrelLowerTools,                "ShowTandrelLowerTools",           QT_TR_NOOP("Show Lower Forming Tools"),          "",                                          {},                                twoSize(":/Icons/Ribbon/objects_current_tools_lower"), Settings().checkable().disabled()},
    {ShowCurrentParts,                     "ShowCurrentPartsAction",          QT_TR_NOOP("Show Current Parts"),                s_sameAsText,                                keys(QT_TR_NOOP("G")),             svg(":/Icons/Ribbon/geometry_display_part.svg"),     Settings().checkable().disabled()},
    {ShowBlank,                            "ShowBlankAction",                 QT_TR_NOOP("Show Blank"),                        "",                                          {},                                svg(":/Icons/Ribbon/objects_blank.svg"),             Settings().checkable().disabled()},
    {ShowPressBeds,                        "ShowPressBedsAction",             QT_TR_NOOP("Show Press Bed of Current Operation"), "",                                          {},                                svg(":/Icons/Ribbon/objects_press_beds.svg"),        Settings().checkable().disabled()},
    {ShowAllDrawbeadsOfAllOpsInclForce,    "ShowDrawbeadsOfAlOpsAction",      QT_TR_NOOP("Show Drawbeads of All Operations incl. Force"), "",                                          keys(QT_TR_NOOP("Ctrl+B")),        {},                                                  {}},
    {ShowTube,                             "ShowTubeAction",                  QT_TR_NOOP("Show Tube"),                         "",                                          {},                                svg(":/Icons/Ribbon/objects_tube.svg"),              Settings().checkable().disabled()},
    {ShowFormedTube,                       "ShowFormedTubeAction",            QT_TR_NOOP("Show Formed Tube"),                  s_sameAsText,                                keys(QT_TR_NOOP("S")),             svg(":/Icons/Ribbon/objects_formed_tube.svg"),       Settings().checkable().disabled()},
    {ShowHydroOpTools,                     "ShowCurrentHydroOpToolsAction",   QT_TR_NOOP("Show Tools of Current Operation"),   s_sameAsText,                                keys(QT_TR_NOOP("T")),             svg(":/Icons/Ribbon/objects_current_tools_all_hydro"), Settings().checkable().disabled()},
    {ViewFitToWindow,                      "FitToWindowAction",               QT_TR_NOOP("Fit to Window"),                     s_sameAsText,                                keys(QT_TR_NOOP("W")),             twoSize(":/Icons/Ribbon/view_fit_to_window"),        {}},
    {ViewFromPosXAndFitScene,              "ViewFrom+XAction",                QT_TR_NOOP("View all From +X"),                  s_sameAsText,                                keys(QT_TR_NOOP("X")),             twoSize(":/Icons/Ribbon/view_from_pos_x"),           {}},
    {ViewFromNegXAndFitScene,              "ViewFrom-XAction",                QT_TR_NOOP("View all From -X"),                  s_sameAsText,                                keys(QT_TR_NOOP("Shift+X")),       twoSize(":/Icons/Ribbon/view_from_neg_x"),           {}},
    {ViewFromPosYAndFitScene,              "ViewFrom+YAction",                QT_TR_NOOP("View all From +Y"),                  s_sameAsText,                                keys(QT_TR_NOOP("Y")),             twoSize(":/Icons/Ribbon/view_from_pos_y"),           {}},
    {ViewFromNegYAndFitScene,              "ViewFrom-YAction",                QT_TR_NOOP("View all From -Y"),                  s_sameAsText,                                keys(QT_TR_NOOP("Shift+Y")),       twoSize(":/Icons/Ribbon/view_from_neg_y"),           {}},
    {ViewFromPosZAndFitScene,              "ViewFrom+ZAction",                QT_TR_NOOP("View all From +Z"),                  s_sameAsText,                                keys(QT_TR_NOOP("Z")),             twoSize(":/Icons/Ribbon/view_from_pos_z"),           {}},
    {ViewFromNegZAndFitScene,              "ViewFrom-ZAction",                QT_TR_NOOP("View all From -Z"),                  s_sameAsText,                                keys(QT_TR_NOOP("Shift+Z")),       twoSize(":/Icons/Ribbon/view_from_neg_z"),           {}},
    {ViewIsometricAndFitScene,             "IsometricViewAction",             QT_TR_NOOP("Isometric View"),                    QT_TR_NOOP("Isometric View and Fit Scene"),  keys(QT_TR_NOOP("E")),             twoSize(":/Icons/Ribbon/view_isometric"),            {}},
    {ViewRotatedIsometricAndFitScene,      "RotatedIsometricViewAction",      QT_TR_NOOP("Isometric View (%1 Around Z)"),      QT_TR_NOOP("Isometric View (%1 Around Z) and Fit Scene"), keys(QT_TR_NOOP("Shift+E")),       twoSize(":/Icons/Ribbon/view_rotated_isometric"),    Settings().turnedBy(-90)},
    {ViewFromXShortest,                    "ViewFromXShortestAction",         QT_TR_NOOP("View From X (Short Path)"),          s_sameAsText,                                keys(QT_TR_NOOP("Alt+X")),         twoSize(":/Icons/Ribbon/view_from_x_short_path"),    {}},
    {ViewFromYShortest,                    "ViewFromYShortestAction",         QT_TR_NOOP("View From Y (Short Path)"),          s_sameAsText,                                keys(QT_TR_NOOP("Alt+Y")),         twoSize(":/Icons/Ribbon/view_from_y_short_path"),    {}},
    {ViewFromZShortest,                    "ViewFromZShortestAction",         QT_TR_NOOP("View From Z (Short Path)"),          s_sameAsText,                                keys(QT_TR_NOOP("Alt+Z")),         twoSize(":/Icons/Ribbon/view_from_z_short_path"),    {}},
    {RotateViewAroundZ,                    "Rotate+ZAction",                  QT_TR_NOOP("%1 Around Screen Z"),                QT_TR_NOOP("Rotate View Around Screen +Z"),  keys(QT_TR_NOOP("Shift+Right")),   svg(":/Icons/Ribbon/rotate_around_z_16.svg"),        Settings().turnedBy(90)},
    {RotateViewAroundNegZ,                 "Rotate-ZAction",                  QT_TR_NOOP("%1 Around Screen Z"),                QT_TR_NOOP("Rotate View Around Screen -Z"),  keys(QT_TR_NOOP("Shift+Left")),    svg(":/Icons/Ribbon/rotate_around_neg_z_16.svg"),    Settings().turnedBy(-90)},
    {ViewFlip,                             "ViewFlipAction",                  QT_TR_NOOP("Flip View"),                         QT_TR_NOOP("Flip the view"),                 keys(QT_TR_NOOP("Shift+V")),       svg(":/Icons/Ribbon/view_flip_16.svg"),              {}},
    {ViewLast,                             "ViewLastAction",                  QT_TR_NOOP("Last View"),                         QT_TR_NOOP("Restore the last view"),         keys(QT_TR_NOOP("Shift+L")),       svg(":/Icons/Ribbon/view_last_16.svg"),              {}},
    {ViewFitToFeature,                     "ZoomToFeatureAction",             QT_TR_NOOP("Zoom to Feature"),                   s_sameAsText,                                keys(QT_TR_NOOP("Alt+F")),         {},                                                  {}},
    {ViewToggleSelectionOverview,          "ToggleOverviewAction",            QT_TR_NOOP("Toggle Overview"),                   s_sameAsText,                                keys(QT_TR_NOOP("Shift+D")),       overview(),                                          Settings().checkable()},
    {SnapScreenshotOfPart,                 "MakeSnapshotAction",              QT_TR_NOOP("Make Snapshot for Preview"),         QT_TR_NOOP("A Screenshot was manually captured and saved for File Preview."), {},                                twoSize(":/Icons/Ribbon/take_screenshot"),           {}},
    {ToggleAutomaticScreenshotMode,        "AutoSnapshotAction",              QT_TR_NOOP("Automatic Snapshot for Preview"),    QT_TR_NOOP("Automatic Screenshot capturing is enabled. Manually captured ones will be overwritten."), {},                                twoSize(":/Icons/Ribbon/reset_screenshot_mode"),     Settings().checkable()},
    {GotoNextTimeStep,                     "NextTimeStepAction",              QT_TR_NOOP("Next Time Step"),                    "",                                          code(Qt::Key_Right),               {},                                                  {}},
    {GotoPreviousTimeStep,                 "PreviousTimeStepAction",          QT_TR_NOOP("Previous Time Step"),                "",                                          code(Qt::Key_Left),                {},                                                  {}},
    {GotoBeginOfSimulation,                "SimBeginAction",                  QT_TR_NOOP("Simulation Begin"),                  "",                                          code(Qt::Key_Home),                {},                                                  {}},
    {GotoEndOfSimulation,                  "SimEndAction",                    QT_TR_NOOP("Simulation End"),                    "",                                          code(Qt::Key_End),                 {},                                                  {}},
    {GotoEndOfPreviousOperation,           "EndPreviousOPAction",             QT_TR_NOOP("End of Previous Operation"),         "",                                          code(Qt::Key_PageUp),              {},                                                  {}},
    {GotoEndOfOperation,                   "EndOPAction",                     QT_TR_NOOP("End of Current/Next Operation"),     "",                                          code(Qt::Key_PageDown),            {},                                                  {}},
    {StartStopAnimation,                   "StartStopAnimationAction",        QT_TR_NOOP("Start/Stop Animation"),              "",                                          keys(QT_TR_NOOP("A")),             {},                                                  {}},
    {Continuous,                           "ContinousAction",                 QT_TR_NOOP("Continuous"),                        "",                                          keys(QT_TR_NOOP("K")),             {},                                                  {}},
    {OutOfSpec,                            "OutOfSpecAction",                 QT_TR_NOOP("Out of Spec"),                       "",                                          keys(QT_TR_NOOP("P")),             {},                                                  {}},
    {OutOfRange,                           "OutOfRangeAction",                QT_TR_NOOP("Out of Range"),                      "",                                          keys(QT_TR_NOOP("O")),             {},                                                  {}},
    {Discrete,                             "DiscreteAction",                  QT_TR_NOOP("Discrete"),                          "",                                          keys(QT_TR_NOOP("D")),             {},                                                  {}},
    {s_noId,                               "PressCoordinatesAction",          QT_TR_NOOP("Operation Coordinates"),             "",                                          {},                                twoSize(":/Icons/Ribbon/view_press_coords"),         Settings().checked().disabled().in(Group::CoordinateSystems, 1).onPitchedStations(QT_TR_NOOP("Non-Pitched Station Coordinates"))},
    {s_noId,                               "ProductCoordinatesAction",        QT_TR_NOOP("Product Coordinates"),               "",                                          {},                                productCoordinates(),                              Settings().checkable().disabled().in(Group::CoordinateSystems, 0)},
    {s_noId,                               "PresslineViewAction",             QT_TR_NOOP("Pressline View"),                    "",                                          {},                                twoSize(":/Icons/Ribbon/strip_view"),                Settings().checkable().disabled().in(Group::CoordinateSystems, 2).onPitchedStations(QT_TR_NOOP("Pitched Station Coordinates"))},
    {s_noId,                               "SinglePitchAction",               QT_TR_NOOP("Show Current Station/Feature"),      "",                                          {},                                twoSize(":/Icons/Tandrel/DevelopPart/part_single"),  Settings().checkable().disabled().in(Group::StationVisibilities, 0)},
    {s_noId,                               "ThreePitchAction",                QT_TR_NOOP("Show Current and Neighboring Stations/Features"), "",                                          {},                                twoSize(":/Icons/Tandrel/DevelopPart/part_three"),   Settings().checkable().disabled().in(Group::StationVisibilities, 1)},
    {s_noId,                               "AllPitchAction",                  QT_TR_NOOP("Show All Stations/Features"),        "",                                          {},                                twoSize(":/Icons/Tandrel/DevelopPart/part_all"),     Settings().checkable().disabled().in(Group::StationVisibilities, 2)},
    {ViewFollowSheet,                      "FollowSheetAction",               QT_TR_NOOP("Follow Sheet"),                      "",                                          {},                                twoSize(":/Icons/Ribbon/view_follow_sheet"),         Settings().checkable()},
    {FontSizeIncrease,                     "FontSizeIncreaseAction",          QT_TR_NOOP("Increase Font Size"),                "",                                          code(Qt::CTRL + Qt::SHIFT + '+'),  {},                                                  {}},
    {FontSizeDecrease,                     "FontSizeDecreaseAction",          QT_TR_NOOP("Decrease Font Size"),                "",                                          code(Qt::CTRL + Qt::SHIFT + '-'),  {},                                                  {}},
    {UseLightVersion,                      "UseLightVersionAction",           QT_TR_NOOP("Enable/Disable Lighter Version"),    "",                                          keys(QT_TR_NOOP("Shift+Ctrl+L")),  {},                                                  {}},
    {ToggleWhite3DViewBackground,          "ToggleWhite3DBackgroundAction",   QT_TR_NOOP("Toggle White 3D-View Background"),   "",                                          keys(QT_TR_NOOP("Shift+W")),       {},                                                  {}},
    {ToggleEnableDisplayItemSpotlighting,  "ToggleEnableDisplayItemSpotlightingAction", QT_TR_NOOP("Enable/disable display item spotlighting"), "",                                          keys(QT_TR_NOOP("*")),             {},                                                  {}},
};
// clang-format on

const int ZVMainActions::s_rowCount = int(std::size(s_rows));

} // namespace Zorvane
