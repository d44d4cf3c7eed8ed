#pragma once

#include "Workbench/Tour/TourReport.h"
#include "Workbench/Tour/WindowDriver.h"

#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

QT_BEGIN_NAMESPACE
class QFileDialog;
class QWidget;
QT_END_NAMESPACE

namespace Zorvane {
class ZVConverterDialog;
}

namespace Zorvane::Workbench {

class DialogPanel;
class MainWindow;

/**
 * Shows what the Workbench can do without a person, on copies in a temporary folder, and checks
 * that each step shows what it should. Leaves pictures and "tour.md".
 */
class Tour
{
public:
    Tour(MainWindow& window, const QString& folder);

    /** Also opens what the user named, if anything. Returns what was not shown, in words. */
    QStringList perform(const QStringList& paths);

private:
    void openCup();
    void lookAtTools();
    void turnTheMesh();
    void filterByText();
    void filterByKind();
    void renameInPlace();
    void refuseAName();
    void followAnotherProgram();
    void missFile();
    void openWithPreview();
    void lookAtFiles(QFileDialog& dialog, const QString& folder);
    void askForNames();
    void importAndExport();
    void importFiles();
    void cancelAnImport();
    void exportTheSelection();
    void saveAndCompute();
    void askBeforeSaving();
    void runASimulation();
    void undoAndRedo();
    void convertAMesh();
    void chooseAndConvert(ZVConverterDialog& window, const QString& file);
    void cancelAConversion(ZVConverterDialog& window);
    void askAboutChangesOfOthers();
    void callAnUndefinedAction();
    void openDoor();
    void useCommands();
    void useShortcuts();
    void showOnlyGeometry();
    void showMenus();
    void readHelp();
    void showReferences();
    void showColours();
    void measure();
    void openManyFiles();
    void lookAndCancel();
    void takeUpReading();
    void keepTheScrollPosition();
    void surviveBrokenInputs();
    void redrawManyTriangles();
    void stressATree();
    void openDialogVariants();
    void openAllVariants(DialogPanel& panel);
    void lookAtControls(QDialog& dialog, const QString& suffix);
    void openNestedDialogs(DialogPanel& panel);
    void goDark();
    void lookClosely();
    void mirror();
    void speakGerman();
    void walkByTab();
    void openPathsOfUser(const QStringList& paths);

    bool copySample(const QString& name);
    QString workFolder(const QString& name) const { return m_work.filePath(name); }
    void reopen(const QStringList& paths);
    void picture(const QString& name);
    /** Over the window, in light and in dark colours. */
    void pictureInBoth(const QString& name, QWidget& dialog, QWidget* beside = nullptr);

    MainWindow& m_window;
    WindowDriver m_driver;
    TourReport m_report;
    QTemporaryDir m_work;
};

} // namespace Zorvane::Workbench
