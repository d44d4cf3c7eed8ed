#include "Workbench/DialogPanel/DialogRun.h"

#include "FileDialogs/FileDialog.h"
#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/PreviewFileDialog.h"
#include "FileDialogs/PreviewFileDialogConfiguration.h"
#include "Workbench/DialogPanel/ExampleControls.h"
#include "Workbench/DialogPanel/ExampleFiles.h"
#include "Workbench/DialogPanel/RecordedPreview.h"

#include <QtCore/QDir>
#include <QtCore/QScopeGuard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>

#include <exception>
#include <stdexcept>
#include <utility>

namespace Zorvane::Workbench {

namespace {

const QString s_scope = QStringLiteral("DialogPanel");
const QString panelGeometryKey = QStringLiteral("Workbench/DialogPanel");
const QString s_innerGeometryKey = QStringLiteral("Workbench/DialogPanel/Inner");
const QString s_previewKey = QStringLiteral("Workbench/DialogPanel/Preview");
const QString s_showPreviewKey = QStringLiteral("Workbench/DialogPanel/ShowPreview");
constexpr QRect s_corner(40, 40, 760, 560);

QString firstType()
{
    return ExampleFiles::saveFilter().section(QStringLiteral(";;"), 0, 0);
}

/** The second one does not exist, and is not to be offered. */
std::vector<QString> placesOf(const ExampleFiles& files)
{
    return {QDir::toNativeSeparators(files.file(QStringLiteral("more"))),
            QDir::toNativeSeparators(files.file(QStringLiteral("not there"))),
            QDir::toNativeSeparators(QDir::homePath())};
}

} // namespace

struct DialogRun::Row
{
    DialogVariant id;
    const char* title;
    const char* explanation;
    void (DialogRun::*run)();
};

const DialogRun::Row* DialogRun::findRow(DialogVariant variant)
{
    using V = DialogVariant;
    // clang-format off
    static const Row s_rows[] = {
        {V::OpenOne, QT_TR_NOOP("Open one file"), QT_TR_NOOP("One of four types filters the list. Enter a name with its path, or an unknown one: that is refused."), &DialogRun::openOne},
        {V::OpenPreselectedType, QT_TR_NOOP("Open one file: type preselected"), QT_TR_NOOP("The tables are preselected. Only Qt's dialogs tell the type that was chosen."), &DialogRun::openPreselectedType},
        {V::OpenPresetFile, QT_TR_NOOP("Open one file: file preset"), QT_TR_NOOP("\"notes.txt\" stands in the name box, and is selected in the list once all files are shown."), &DialogRun::openPresetFile},
        {V::OpenSeveral, QT_TR_NOOP("Open several files"), QT_TR_NOOP("Select several: they come out as the dialog gives them."), &DialogRun::openSeveral},
        {V::OpenPlaces, QT_TR_NOOP("Open with places"), QT_TR_NOOP("The folder \"more\" and the home folder are offered as places; one that does not exist is not."), &DialogRun::openPlaces},
        {V::OpenControls, QT_TR_NOOP("Open with controls"), QT_TR_NOOP("Check boxes and combo boxes, some with a label, two beside the buttons. \"More\" enables one and shows another."), &DialogRun::openControls},
        {V::OpenSeveralControls, QT_TR_NOOP("Open several files with controls"), QT_TR_NOOP("The selected files are told in the order of the name box."), &DialogRun::openSeveralControls},
        {V::OpenPlaced, QT_TR_NOOP("Open in its place"), QT_TR_NOOP("The check box moves the dialog to the upper left corner. Moved and resized by hand, it opens there again."), &DialogRun::openPlaced},
        {V::PreviewOne, QT_TR_NOOP("Open one file with preview"), QT_TR_NOOP("The preview stands beside the dialog, shows what is selected, and is switched by the check box."), &DialogRun::previewOne},
        {V::PreviewSeveral, QT_TR_NOOP("Open several files with preview"), QT_TR_NOOP("The preview shows the first one."), &DialogRun::previewSeveral},
        {V::Save, QT_TR_NOOP("Save"), QT_TR_NOOP("\"part.stl\" is proposed. The type that was last saved is preselected."), &DialogRun::save},
        {V::SaveWithoutEnding, QT_TR_NOOP("Save: name without ending"), QT_TR_NOOP("\"part\" is proposed and gets the ending of the first type, \".stl\"."), &DialogRun::saveWithoutEnding},
        {V::SavePreselectedType, QT_TR_NOOP("Save: type preselected"), QT_TR_NOOP("The tables are preselected; a name without ending gets \".csv\"."), &DialogRun::savePreselectedType},
        {V::SaveExisting, QT_TR_NOOP("Save: name of a file that exists"), QT_TR_NOOP("\"block.stl\" is proposed. The dialog asks whether to replace it; No leaves it open. Nothing is written."), &DialogRun::saveExisting},
        {V::SaveInFolder, QT_TR_NOOP("Save in one folder only"), QT_TR_NOOP("Save in another folder: a box says where it must be, and the dialog comes again."), &DialogRun::saveInFolder},
        {V::Folder, QT_TR_NOOP("Choose a folder"), QT_TR_NOOP("Always Qt's dialog."), &DialogRun::folder},
        {V::ProposedFolder, QT_TR_NOOP("Choose a folder: one proposed"), QT_TR_NOOP("The folder \"more\" is proposed."), &DialogRun::proposedFolder},
        {V::Nested, QT_TR_NOOP("A dialog from inside a dialog"), QT_TR_NOOP("The check box opens another dialog. Move both: each keeps a place of its own."), &DialogRun::nested},
        {V::Throwing, QT_TR_NOOP("A handler that fails"), QT_TR_NOOP("The check box throws an exception: the dialog closes, and it comes out of the call."), &DialogRun::throwing},
    };
    // clang-format on
    for (const Row& row : s_rows)
        if (row.id == variant)
            return &row;
    return nullptr;
}

std::vector<DialogRun::Variant> DialogRun::variants()
{
    std::vector<Variant> all;
    for (int id = 0; const Row* const row = findRow(DialogVariant(id)); ++id)
        all.push_back({row->id, tr(row->title), tr(row->explanation)});
    return all;
}

QString DialogRun::showerText(DialogShower shower)
{
    switch (shower) {
    case DialogShower::Usual:
        return tr("the system, as usual");
    case DialogShower::Qt:
        return tr("Qt, as on a system without dialogs");
    case DialogShower::Option:
        return tr("Qt, by the option alternativeFileDialog");
    case DialogShower::Failing:
        break;
    }
    return tr("Qt, after the system has failed");
}

DialogRun::DialogRun(std::shared_ptr<const ExampleFiles> files, QWidget* parent,
                     DialogRecord::Changed changed)
    : m_files(std::move(files))
    , m_parent(parent)
    , m_record(std::move(changed))
    , m_paths(m_record, QDir::toNativeSeparators(m_files->folder()), placesOf(*m_files))
{}

DialogOutcome DialogRun::run(DialogVariant variant, DialogShower shower)
{
    const Row& row = *findRow(variant);
    m_record.outcome.title = tr(row.title);
    m_record.outcome.shower = showerText(shower);
    // Dialogs of the system may make their folder the current one, which then can't be removed.
    const auto restore = qScopeGuard([before = QDir::currentPath()] { QDir::setCurrent(before); });
    try {
        const DialogWatch watch(shower, m_record);
        (this->*row.run)();
    } catch (const std::exception& exception) {
        m_record.outcome.exception = QString::fromUtf8(exception.what());
    }
    m_record.finish();
    return m_record.outcome;
}

void DialogRun::take(const QString& file)
{
    if (!file.isEmpty())
        m_record.outcome.files << file;
}

QString DialogRun::folderPath(const char* name) const
{
    return m_files->file(QString::fromLatin1(name));
}

void DialogRun::openFrom(const QString& start, const QString& type)
{
    QString selected = type;
    take(FileDialog::getOpenFileName(caption(), start, ExampleFiles::openFilter(), &m_paths,
                                     s_scope, &selected, QFileDialog::Options(), nullptr,
                                     m_parent));
    m_record.outcome.type = selected;
}

void DialogRun::openOne()
{
    take(FileDialog::getOpenFileName(caption(), ExampleFiles::openFilter(), &m_paths, s_scope,
                                     nullptr, m_parent));
}

void DialogRun::openPreselectedType()
{
    openFrom(QString(), ExampleFiles::tableType());
}

void DialogRun::openPresetFile()
{
    openFrom(folderPath("notes.txt"), ExampleFiles::openFilter().section(QStringLiteral(";;"), -1));
}

void DialogRun::openSeveral()
{
    m_record.outcome.files = FileDialog::getOpenFileNames(caption(), ExampleFiles::openFilter(),
                                                          &m_paths, s_scope, nullptr, m_parent);
}

void DialogRun::openPlaces()
{
    FileDialogConfiguration configuration(panelGeometryKey);
    openWith(configuration, false, {});
}

void DialogRun::openControls()
{
    FileDialogConfiguration configuration(panelGeometryKey);
    ExampleControls::addAll(configuration);
    openWith(configuration, false, &ExampleControls::follow);
}

void DialogRun::openSeveralControls()
{
    FileDialogConfiguration configuration(panelGeometryKey);
    ExampleControls::addAll(configuration);
    openWith(configuration, true, &ExampleControls::follow);
}

void DialogRun::openPlaced()
{
    FileDialogConfiguration configuration(panelGeometryKey);
    ExampleControls::addAct(configuration, tr("To the &corner"));
    openWith(configuration, false,
             [&configuration](bool checked, int, const FileDialogCallbackInterface& callbacks) {
                 if (!checked)
                     return;
                 configuration.storeFileDialogGeometry(s_corner);
                 callbacks.placeDialog(&configuration);
             });
}

void DialogRun::openWith(FileDialogConfiguration& configuration, bool isMultiple,
                         EventRecorder::Toggled toggled)
{
    EventRecorder handler(m_record, {}, std::move(toggled));
    handler.setFileDialogConfiguration(&configuration);
    configuration.setEventHandler(&handler);
    m_record.addControls(configuration);
    const QString filter = ExampleFiles::openFilter();
    if (isMultiple)
        m_record.outcome.files = FileDialog::getOpenFileNames(caption(), filter, &m_paths, s_scope,
                                                              &configuration, m_parent);
    else
        take(FileDialog::getOpenFileName(caption(), filter, &m_paths, s_scope, &configuration,
                                         m_parent));
}

void DialogRun::previewOne()
{
    preview(false);
}

void DialogRun::previewSeveral()
{
    preview(true);
}

void DialogRun::preview(bool isMultiple)
{
    const std::string title = caption().toStdString();
    const auto configuration = std::make_shared<PreviewFileDialogConfiguration>(
        s_previewKey.toStdString(), s_showPreviewKey.toStdString(), title, title,
        s_scope.toStdString(), std::list<ZvFileType>(), false);
    PreviewFileDialog dialog(std::make_shared<RecordedPreview>(m_parent, m_record), configuration,
                             m_parent);
    dialog.setFilter(ExampleFiles::openFilter());
    if (isMultiple)
        m_record.outcome.files = dialog.getOpenFileNames(&m_paths);
    else
        take(dialog.getOpenFileName(&m_paths));
}

void DialogRun::saveAs(const QString& name, const QString& type)
{
    take(FileDialog::getSaveFileName(caption(), ExampleFiles::saveFilter(), type, &m_paths, s_scope,
                                     name, m_parent));
    m_record.outcome.isEndingAdded = FileDialog::wasEndingAdded();
}

void DialogRun::save()
{
    saveAs(QStringLiteral("part.stl"), QString());
}

void DialogRun::saveWithoutEnding()
{
    saveAs(QStringLiteral("part"), firstType());
}

void DialogRun::savePreselectedType()
{
    saveAs(QStringLiteral("forces"), ExampleFiles::tableType());
}

void DialogRun::saveExisting()
{
    saveAs(QStringLiteral("block.stl"), firstType());
}

void DialogRun::saveInFolder()
{
    take(FileDialog::getSaveFileNameInDir(caption(), ExampleFiles::saveFilter(),
                                          folderPath("more/part.stl"), &m_paths, s_scope, QString(),
                                          QString()));
}

void DialogRun::folder()
{
    take(FileDialog::getExistingDirectoryName(caption(), &m_paths, s_scope));
}

void DialogRun::proposedFolder()
{
    take(FileDialog::getExistingDirectoryName(caption(), nullptr, s_scope, folderPath("more/")));
}

void DialogRun::nested()
{
    FileDialogConfiguration configuration(panelGeometryKey);
    ExampleControls::addAct(configuration, tr("Open &another dialog"));
    openWith(configuration, false, [this](bool checked, int, const FileDialogCallbackInterface&) {
        if (checked)
            openInner();
    });
}

void DialogRun::openInner()
{
    FileDialogConfiguration configuration(s_innerGeometryKey);
    EventRecorder handler(m_record, QStringLiteral("2: "));
    handler.setFileDialogConfiguration(&configuration);
    configuration.setEventHandler(&handler);
    // Qt's dialog over the outer one; the system's, which is no widget, over the panel.
    QWidget* const outer = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    const QString file = FileDialog::getOpenFileName(
        tr("Dialog inside a dialog"), ExampleFiles::openFilter(), &m_paths, s_scope, &configuration,
        outer ? outer : m_parent.data());
    m_record.note(QStringLiteral("2: -> %1").arg(quoted({file})));
}

void DialogRun::throwing()
{
    FileDialogConfiguration configuration(panelGeometryKey);
    ExampleControls::addAct(configuration, tr("&Fail"));
    openWith(configuration, false, [](bool, int, const FileDialogCallbackInterface&) {
        throw std::runtime_error("the handler has failed");
    });
}

} // namespace Zorvane::Workbench
