#pragma once

#include "Workbench/DialogPanel/DialogRecord.h"
#include "Workbench/DialogPanel/DialogWatch.h"
#include "Workbench/DialogPanel/EventRecorder.h"
#include "Workbench/DialogPanel/PanelPaths.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <memory>

namespace Zorvane {
class FileDialogConfiguration;
}

namespace Zorvane::Workbench {

class ExampleFiles;

enum class DialogVariant
{
    OpenOne,
    OpenPreselectedType,
    OpenPresetFile,
    OpenSeveral,
    OpenPlaces,
    OpenControls,
    OpenSeveralControls,
    OpenPlaced,
    PreviewOne,
    PreviewSeveral,
    Save,
    SaveWithoutEnding,
    SavePreselectedType,
    SaveExisting,
    SaveInFolder,
    Folder,
    ProposedFolder,
    Nested,
    Throwing
};

/**
 * Asks for files in one of the ways there are, over example files, and tells what came out. Shares
 * the example files; the parent, which owns the dialogs, may go meanwhile.
 */
class DialogRun
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DialogRun)

public:
    struct Variant
    {
        DialogVariant id;
        QString title;
        /** What to do, and what is to be expected. */
        QString explanation;
    };
    /** All of them, translated. */
    static std::vector<Variant> variants();
    static QString showerText(DialogShower shower);

    DialogRun(std::shared_ptr<const ExampleFiles> files, QWidget* parent,
              DialogRecord::Changed changed);

    /** Returns when the dialogs are closed. To be called once. */
    DialogOutcome run(DialogVariant variant, DialogShower shower);

private:
    struct Row;
    static const Row* findRow(DialogVariant variant);

    void openOne();
    void openPreselectedType();
    void openPresetFile();
    void openSeveral();
    void openPlaces();
    void openControls();
    void openSeveralControls();
    void openPlaced();
    void previewOne();
    void previewSeveral();
    void save();
    void saveWithoutEnding();
    void savePreselectedType();
    void saveExisting();
    void saveInFolder();
    void folder();
    void proposedFolder();
    void nested();
    void throwing();

    QString caption() const { return m_record.outcome.title; }
    void take(const QString& file);
    void openFrom(const QString& start, const QString& type);
    void openWith(FileDialogConfiguration& configuration, bool isMultiple,
                  EventRecorder::Toggled toggled);
    void openInner();
    void preview(bool isMultiple);
    void saveAs(const QString& name, const QString& type);
    QString folderPath(const char* name) const;

    const std::shared_ptr<const ExampleFiles> m_files;
    const QPointer<QWidget> m_parent;
    DialogRecord m_record;
    PanelPaths m_paths;
};

} // namespace Zorvane::Workbench
