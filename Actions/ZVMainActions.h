#pragma once

#include "Actions/GenericMainActions.h"

#include <QtCore/QPointer>
#include <QtCore/QString>

#include <vector>

QT_BEGIN_NAMESPACE
class QActionGroup;
QT_END_NAMESPACE

namespace Zorvane {

class ZVExclusiveActionGroup;
struct ZVMainActionRow;

/**
 * The main application's commands, one table for the process: texts, tool tips, icons, shortcuts
 * and what is enabled and checked at first. What a command does is up to those who connect to it.
 * The table stands in ZVMainActionTable.cpp.
 *
 * Some commands of different modes share a shortcut by design, such as the tools of an operation
 * and those of a hydroforming operation. A window installs those of its mode only
 * (`registerApplicationActions` with ids), or neither works.
 *
 * Not supported: switching the language of a table that exists; release it and create a new one.
 */
class ZORVANE_UITOOLS_EXPORT ZVMainActions : public GenericMainActions
{
    Q_OBJECT

public:
    /** Numbers are kept: those without an action hold the place of commands gone or to come. */
    enum Actions
    {
        Open = 0,
        OpenWithStandard,
        OpenReadOnly,
        ReOpen,
        New,
        NewWithStandard,
        NewMultiBlank,
        OpenTemplate,
        Save,
        SaveAs,
        SavePackage,
        StripTimeSteps,
        CleanAndSaveas,
        SaveToPDM,
        Print,
        Preferences,
        Standards,
        NewWindow,
        NewFormingWindow,
        NewTandrelWindow,
        Close,
        Exit,
        Clone,
        StartReporting,
        ClearTemplate,
        CloseCrop,
        Export,
        ExportForCorvashel_DISCONTINUED_DO_NOT_USE,
        ExportForBrakwell,
        ExportOffsetSurface,
        ExportImage,
        QuickExportImage,
        OpenFromVantrel,
        UpdateFromVantrel,
        ExportToVantrel,
        ExportToVantrelWithStandard,
        ImportFromVanTrel,
        ExportHemmingVanTrel,
        ExportProductVanTrel,
        ExportJoiningParametersVanTrel,
        ExportFixationVanTrel,
        ExportJoiningVanTrel,
        ExecuteScript,
        Undo,
        Redo,
        ComputeSimulation,
        LoadSimulation,
        WindowOneView,
        WindowTwoViewHorizontal,
        WindowTwoViewVertical,
        WindowFourView,
        WindowAutoBestFor2,
        SketchViewWindow,
        ShowSheetReference,
        ShowSheet,
        ShowMirroredSheet,
        ShowCurrentOpTools,
        ShowCurrentUpperOpTools,
        ShowCurrentLowerOpTools,
        ShowTandrelTools,
        ShowTandrelUpperTools,
        ShowTandrelLowerTools,
        ShowCurrentParts,
        ShowBlank,
        ShowPressBeds,
        ShowAllDrawbeadsOfAllOpsInclForce,
        ShowTube,
        ShowFormedTube,
        ShowHydroOpTools,
        ShowConnectors,
        ShowBothSymmetricSides,
        HidePrimarySymmetricSide,
        HideSecondarySymmetricSide,
        ViewFitToWindow,
        ViewFromPosXAndFitScene,
        ViewFromNegXAndFitScene,
        ViewFromPosYAndFitScene,
        ViewFromNegYAndFitScene,
        ViewFromPosZAndFitScene,
        ViewFromNegZAndFitScene,
        ViewIsometricAndFitScene,
        ViewRotatedIsometricAndFitScene,
        ViewFromXShortest,
        ViewFromYShortest,
        ViewFromZShortest,
        RotateViewAroundZ,
        RotateViewAroundNegZ,
        ViewFlip,
        ViewLast,
        ViewFollowSheet,
        ViewFitToFeature,
        ViewToggleSelectionOverview,
        SnapScreenshotOfPart,
        ToggleAutomaticScreenshotMode,
        GotoNextTimeStep,
        GotoPreviousTimeStep,
        GotoBeginOfSimulation,
        GotoEndOfSimulation,
        GotoEndOfPreviousOperation,
        GotoEndOfOperation,
        StartStopAnimation,
        Continuous,
        OutOfSpec,
        OutOfRange,
        Discrete,
        FontSizeIncrease,
        FontSizeDecrease,
        UseLightVersion,
        ToggleWhite3DViewBackground,
        ToggleEnableDisplayItemSpotlighting,
        ToggleShowRollAngle,
        ToggleLights,
        OpenPressGenerator,
        OpenPressConverter,
        OpenMaterialGenerator,
        OpenLubricationFileGenerator,
        OpenGuideLineEditor,
        OpenFromVanTrelWithStandard
    };
    Q_ENUM(Actions)

    /** Creates the table; does nothing while there is one. Release it before the process ends. */
    static void createInstance();
    /** Null before `createInstance` and after `releaseInstance`. */
    static ZVMainActions* getInstance();
    /** Deletes the table and all its actions, and with them every connection. */
    static void releaseInstance();

    /** Whether there is an action of this id and it is enabled. Only while the table exists. */
    static bool enabledState(Actions id);
    /** The same as `enabledState`. */
    static bool isEnabled(Actions id);
    /** The opposite of `isEnabled`: true also where there is no such action. */
    static bool isDisabled(Actions id);

    /** Disables the actions of these ids; ids without an action are passed over. */
    void disableActions(const std::vector<Actions>& ids);

    /**
     * Product coordinates (0), those of the operation or station (1), of the press line (2). Null
     * after the group was deleted, as the other one.
     */
    ZVExclusiveActionGroup* getViewReferenceCoordSysGroup();
    /** The current station or feature (0), its neighbours too (1), all (2). */
    ZVExclusiveActionGroup* getViewReferenceStationVisibilityGroup();

private:
    ZVMainActions();
    ~ZVMainActions() override;

    static ZVMainActions*& theInstancePtr();
    void initActions();
    void addToGroup(const ZVMainActionRow& row, QAction* action);

    static const ZVMainActionRow s_rows[];
    static const int s_rowCount;

    /** Values by name, for applications; this library puts none in. */
    QMap<QString, int> m_valuesByName;
    QPointer<ZVExclusiveActionGroup> m_coordinateSystems;
    QPointer<ZVExclusiveActionGroup> m_stationVisibilities;
    QActionGroup* m_windowLayouts = nullptr;
};

} // namespace Zorvane
