#include "Workbench/DialogPanel/DialogRun.h"

#include "FileDialogs/FileDialog.h"
#include "Host/System/CommandLineParser.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Workbench/DialogPanel/DialogVariantRows.h"
#include "Workbench/DialogPanel/ExampleControls.h"
#include "Workbench/DialogPanel/ExampleFiles.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

#include <functional>
#include <map>

Q_DECLARE_METATYPE(Zorvane::Workbench::DialogShower)

namespace Zorvane::Workbench {

using Testing::DialogScript;
using Testing::ExpectedModals;
using Kind = FileDialogPurpose;
using Variant = DialogVariant;

namespace {

/** What a dialog of the system is asked for by a variant. */
struct Asked
{
    Kind kind;
    const char* fileName;
    const char* preselected;
    /** -1: no configuration. */
    int controls;
};

const std::map<Variant, Asked>& askedTable()
{
    // clang-format off
    static const std::map<Variant, Asked> s_table{
        {Variant::OpenOne,             {Kind::OpenFile,  "",          "",      -1}},
        {Variant::OpenPreselectedType, {Kind::OpenFile,  "",          "*.csv", -1}},
        {Variant::OpenPresetFile,      {Kind::OpenFile,  "notes.txt", "*.*",   -1}},
        {Variant::OpenSeveral,         {Kind::OpenFiles, "",          "",      -1}},
        {Variant::OpenPlaces,          {Kind::OpenFile,  "",          "",       0}},
        {Variant::OpenControls,        {Kind::OpenFile,  "",          "",       7}},
        {Variant::OpenSeveralControls, {Kind::OpenFiles, "",          "",       7}},
        {Variant::OpenPlaced,          {Kind::OpenFile,  "",          "",       1}},
        {Variant::PreviewOne,          {Kind::OpenFile,  "",          "",       1}},
        {Variant::PreviewSeveral,      {Kind::OpenFiles, "",          "",       1}},
        {Variant::Save,                {Kind::SaveFile,  "part.stl",  "*.csv", -1}},
        {Variant::SaveWithoutEnding,   {Kind::SaveFile,  "part",      "*.stl", -1}},
        {Variant::SavePreselectedType, {Kind::SaveFile,  "forces",    "*.csv", -1}},
        {Variant::SaveExisting,        {Kind::SaveFile,  "block.stl", "*.stl", -1}},
        {Variant::SaveInFolder,        {Kind::SaveFile,  "part.stl",  "",      -1}},
        {Variant::Nested,              {Kind::OpenFile,  "",          "",       1}},
        {Variant::Throwing,            {Kind::OpenFile,  "",          "",       1}},
    };
    // clang-format on
    return s_table;
}

bool isFolderVariant(Variant variant)
{
    return variant == Variant::Folder || variant == Variant::ProposedFolder;
}

/** Events without how many dialogs were open and where the dialog was. */
QStringList bare(const QStringList& events)
{
    QStringList names;
    for (const QString& event : events)
        names << event.section(QStringLiteral("] "), 1).section(QStringLiteral(" @ "), 0, 0);
    return names;
}

/** Qt's dialogs for saving give them so, those of the system don't. */
QStringList portable(const QStringList& paths)
{
    QStringList result;
    for (const QString& path : paths)
        result << QDir::fromNativeSeparators(path);
    return result;
}

void typeAndAccept(QFileDialog& dialog, const QString& name)
{
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
    static_cast<QDialog&>(dialog).accept();
}

/** The row of a file in the dialog's list; folders are read in the background. */
QModelIndex rowOf(const QFileDialog& dialog, const char* name)
{
    const auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
    return list->model()
        ->match(list->model()->index(0, 0, list->rootIndex()), Qt::DisplayRole, QLatin1String(name),
                1, Qt::MatchExactly)
        .value(0);
}

QCheckBox* checkBox(QFileDialog& dialog, const char* label)
{
    for (auto* box : dialog.findChildren<QCheckBox*>())
        if (box->text().remove(QLatin1Char('&')) == QLatin1String(label))
            return box;
    return nullptr;
}

QComboBox* comboBox(QFileDialog& dialog, const char* firstItem)
{
    for (auto* box : dialog.findChildren<QComboBox*>())
        if (box->itemText(0) == QLatin1String(firstItem))
            return box;
    return nullptr;
}

int valueOf(const DialogOutcome& outcome, int control)
{
    for (const DialogOutcome::Control& one : outcome.controls)
        if (one.id == control)
            return one.value;
    return -1;
}

} // namespace

/** Opens every variant of the panel, and looks whether it tells what came out of it. */
class DialogRunTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyVariantHasItsTexts();
    void systemIsAskedForWhatTheVariantSays_data();
    void systemIsAskedForWhatTheVariantSays();
    void whatTheSystemGivesComesOut_data();
    void whatTheSystemGivesComesOut();
    void everyVariantIsShownByQt_data();
    void everyVariantIsShownByQt();
    void whatIsChosenInQtsDialogComesOut_data();
    void whatIsChosenInQtsDialogComesOut();
    void severalFilesComeOut();
    void theTypeThatWasChosenIsTold();
    void controlsTellTheirEventsAndStates();
    void moreEnablesAndShowsControls();
    void selectionsAreTold();
    void theDialogMovesToTheCorner();
    void previewFollowsTheSelection();
    void aDialogInsideADialogCounts();
    void whatAHandlerThrowsComesOut();
    void namesWithoutEndingGetOne();
    void aFileThatExistsIsAskedAbout();
    void savingElsewhereIsRefused();
    void foldersAreTold();
    void placesAreOfferedIfTheyExist();
    void afterAFailureQtAsks();
    void theOptionIsGoneAfterwards();
    void theCurrentFolderStays();
    void theParentMayGoMeanwhile();
    void exampleFilesGoWithTheirOwner();

private:
    DialogOutcome run(Variant variant, DialogShower shower = DialogShower::Usual);
    /** By Qt's dialog, answered by code that closes it. */
    DialogOutcome runInQt(Variant variant, const std::function<void(QFileDialog&)>& answer);
    QString native(const char* name) const
    {
        return QDir::toNativeSeparators(m_files->file(QString::fromUtf8(name)));
    }

    std::shared_ptr<const ExampleFiles> m_files;
    QPointer<QWidget> m_parent;
    DialogScript m_script;
    const NativeFileDialogReplacement m_replacement{
        [this] { return std::make_unique<Testing::ScriptedDriver>(m_script); }};
};

void DialogRunTest::init()
{
    QSettings().clear();
    m_files = std::make_shared<ExampleFiles>();
    QVERIFY(m_files->areThere());
    delete m_parent;
    m_parent = new QWidget;
    m_script = DialogScript();
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

DialogOutcome DialogRunTest::run(Variant variant, DialogShower shower)
{
    return DialogRun(m_files, m_parent, [](const DialogOutcome&) {}).run(variant, shower);
}

DialogOutcome DialogRunTest::runInQt(Variant variant,
                                     const std::function<void(QFileDialog&)>& answer)
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("the dialog"), answer);
    return run(variant, DialogShower::Qt);
}

void DialogRunTest::everyVariantHasItsTexts()
{
    const std::vector<DialogRun::Variant> variants = DialogRun::variants();
    QCOMPARE(int(variants.size()), int(Variant::Throwing) + 1);
    QStringList titles;
    for (const DialogRun::Variant& variant : variants) {
        QVERIFY(!variant.explanation.isEmpty());
        titles << variant.title;
    }
    QVERIFY(!titles.contains(QString()));
    QCOMPARE(titles.removeDuplicates(), 0);
}

void DialogRunTest::systemIsAskedForWhatTheVariantSays_data()
{
    QTest::addColumn<Variant>("variant");
    for (const DialogRun::Variant& variant : DialogRun::variants())
        if (!isFolderVariant(variant.id))
            QTest::newRow(qPrintable(variant.title)) << variant.id;
}

void DialogRunTest::systemIsAskedForWhatTheVariantSays()
{
    QFETCH(Variant, variant);
    const Asked& wanted = askedTable().at(variant);
    // Saved by a table last, which the scope remembers.
    run(Variant::SavePreselectedType);
    m_script.requests.clear();
    int controls = -1;
    int open = 0;
    m_script.whileOpen = [&](const FileDialogRequest& request) {
        open = FileDialog::getOpenDialogsCount();
        if (request.configuration)
            controls = request.configuration->numberOfcustomControls();
    };
    const DialogOutcome outcome = run(variant);
    QCOMPARE(int(m_script.requests.size()), 1);
    const FileDialogRequest& request = m_script.requests.front();
    QCOMPARE(int(request.purpose), int(wanted.kind));
    QCOMPARE(request.caption, outcome.title);
    QCOMPARE(dialogStart(request.start).fileName, QLatin1String(wanted.fileName));
    QCOMPARE(Testing::filtersOf(request).preselectedPattern, QLatin1String(wanted.preselected));
    QCOMPARE(controls, wanted.controls);
    QCOMPARE(open, 1);
    QVERIFY(outcome.files.isEmpty());
    QCOMPARE(outcome.mostOpen, 1);
    QCOMPARE(outcome.openAfterwards, 0);
    QVERIFY(outcome.text().contains(QStringLiteral("-> cancelled")));
}

void DialogRunTest::whatTheSystemGivesComesOut_data()
{
    systemIsAskedForWhatTheVariantSays_data();
}

void DialogRunTest::whatTheSystemGivesComesOut()
{
    QFETCH(Variant, variant);
    const QString file =
        variant == Variant::SaveInFolder ? native("more/block.stl") : native("block.stl");
    m_script.answer(QStringList(file));
    const DialogOutcome outcome = run(variant);
    QCOMPARE(outcome.files.size(), 1);
    QCOMPARE(QDir::fromNativeSeparators(outcome.files.first()), QDir::fromNativeSeparators(file));
    QVERIFY(outcome.exception.isEmpty());
    const QStringList told = bare(outcome.events).filter(QStringLiteral("setPathToScope"));
    QCOMPARE(told.size(), 1);
    QVERIFY(told.first().contains(QStringLiteral("block.stl\", \"DialogPanel\"")));
    QVERIFY(outcome.text().contains(outcome.files.first()));
}

void DialogRunTest::everyVariantIsShownByQt_data()
{
    QTest::addColumn<Variant>("variant");
    QTest::addColumn<DialogShower>("shower");
    for (const DialogRun::Variant& variant : DialogRun::variants())
        for (const DialogShower shower :
             {DialogShower::Qt, DialogShower::Option, DialogShower::Failing})
            QTest::newRow(
                qPrintable(variant.title + QStringLiteral(", by ") + DialogRun::showerText(shower)))
                << variant.id << shower;
}

void DialogRunTest::everyVariantIsShownByQt()
{
    QFETCH(Variant, variant);
    QFETCH(DialogShower, shower);
    QString title;
    int open = 0;
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("the dialog"), [&](QFileDialog& dialog) {
        title = dialog.windowTitle();
        open = FileDialog::getOpenDialogsCount();
        dialog.reject();
    });
    const DialogOutcome outcome = run(variant, shower);
    QVERIFY2(modals.allMet(), qPrintable(modals.failures().join(QLatin1Char('\n'))));
    QCOMPARE(title, outcome.title);
    QCOMPARE(open, 1);
    QVERIFY(m_script.requests.empty());
    QVERIFY(outcome.files.isEmpty());
    QVERIFY(outcome.isFinished);
    QCOMPARE(outcome.mostOpen, 1);
    QCOMPARE(outcome.openAfterwards, 0);
    QVERIFY(!outcome.events.filter(QStringLiteral("FileDialog(\"%1\")").arg(title)).isEmpty());
    QVERIFY(outcome.text().contains(DialogRun::showerText(shower)));
}

void DialogRunTest::whatIsChosenInQtsDialogComesOut_data()
{
    QTest::addColumn<Variant>("variant");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    const QString block = QStringLiteral("block.stl");
    const QString umlaut = QString::fromUtf8("Größe 100 %.txt");
    QTest::newRow("one") << Variant::OpenOne << umlaut << umlaut;
    QTest::newRow("of a type") << Variant::OpenPreselectedType << QStringLiteral("press table.csv")
                               << QStringLiteral("press table.csv");
    QTest::newRow("without ending")
        << Variant::OpenPresetFile << QStringLiteral("no ending") << QStringLiteral("no ending");
    QTest::newRow("with places") << Variant::OpenPlaces << block << block;
    QTest::newRow("with controls") << Variant::OpenControls << block << block;
    QTest::newRow("in its place") << Variant::OpenPlaced << block << block;
    QTest::newRow("with preview") << Variant::PreviewOne << block << block;
    QTest::newRow("nested") << Variant::Nested << block << block;
    QTest::newRow("failing handler, not called") << Variant::Throwing << block << block;
    QTest::newRow("saved") << Variant::Save << QStringLiteral("other.txt")
                           << QStringLiteral("other.txt");
    QTest::newRow("saved in the folder")
        << Variant::SaveInFolder << QStringLiteral("x.stl") << QStringLiteral("more/x.stl");
}

void DialogRunTest::whatIsChosenInQtsDialogComesOut()
{
    QFETCH(Variant, variant);
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    const DialogOutcome outcome =
        runInQt(variant, [&typed](QFileDialog& dialog) { typeAndAccept(dialog, typed); });
    QCOMPARE(outcome.files.size(), 1);
    QCOMPARE(QDir::fromNativeSeparators(outcome.files.first()), m_files->file(expected));
    QVERIFY(!QFileInfo(m_files->file(QStringLiteral("more/x.stl"))).exists());
}

void DialogRunTest::severalFilesComeOut()
{
    for (const Variant variant :
         {Variant::OpenSeveral, Variant::OpenSeveralControls, Variant::PreviewSeveral}) {
        const DialogOutcome outcome = runInQt(variant, [](QFileDialog& dialog) {
            QTRY_VERIFY(rowOf(dialog, "block.stl").isValid() &&
                        rowOf(dialog, "plate.stl").isValid());
            typeAndAccept(dialog, QStringLiteral("\"plate.stl\" \"block.stl\""));
        });
        QStringList names;
        for (const QString& file : outcome.files)
            names << QFileInfo(file).fileName();
        // Their order is the dialog's business.
        names.sort();
        QCOMPARE(names, QStringList({QStringLiteral("block.stl"), QStringLiteral("plate.stl")}));
    }
}

void DialogRunTest::theTypeThatWasChosenIsTold()
{
    const DialogOutcome outcome = runInQt(Variant::OpenPreselectedType, [](QFileDialog& dialog) {
        QCOMPARE(dialog.selectedNameFilter(), ExampleFiles::tableType());
        dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->setCurrentIndex(0);
        typeAndAccept(dialog, QStringLiteral("block.stl"));
    });
    QVERIFY(outcome.type.has_value());
    QCOMPARE(*outcome.type, QStringLiteral("Mesh (*.stl *.obj)"));
    QVERIFY(outcome.text().contains(QStringLiteral("Type: Mesh (*.stl *.obj)")));
}

void DialogRunTest::controlsTellTheirEventsAndStates()
{
    const DialogOutcome outcome = runInQt(Variant::OpenControls, [](QFileDialog& dialog) {
        checkBox(dialog, "Include folders")->click();
        checkBox(dialog, "Keep units")->click();
        for (auto [first, index] : {std::pair("Millimetres", 2), std::pair("Upper", 1)}) {
            QComboBox* const box = comboBox(dialog, first);
            box->setFocus();
            while (box->currentIndex() != index)
                QTest::keyClick(box, Qt::Key_Down);
        }
        dialog.reject();
    });
    const QStringList events = bare(outcome.events);
    const QStringList wanted{
        QStringLiteral("onCheckBoxToggled(true, 1)"), QStringLiteral("onCheckBoxToggled(false, 2)"),
        QStringLiteral("onItemSelected(3, 2)"), QStringLiteral("onItemSelected(4, 1)")};
    QCOMPARE(events.count(QStringLiteral("onTypeChanged()")), 1);
    const int first = events.indexOf(wanted.first());
    QVERIFY(first > events.indexOf(QStringLiteral("onTypeChanged()")));
    QCOMPARE(events.mid(first, wanted.size()), wanted);
    QCOMPARE(valueOf(outcome, ExampleControls::Recursive), 1);
    QCOMPARE(valueOf(outcome, ExampleControls::KeepUnits), 0);
    QCOMPARE(valueOf(outcome, ExampleControls::Unit), 2);
    QCOMPARE(valueOf(outcome, ExampleControls::Side), 1);
    QCOMPARE(valueOf(outcome, ExampleControls::Hidden), 1);
    for (const char* line :
         {"1 Include folders: on", "2 Keep units: off", "3 Unit: Metres", "4 Side: Lower"})
        QVERIFY2(outcome.text().contains(QLatin1String(line)), line);
}

void DialogRunTest::moreEnablesAndShowsControls()
{
    runInQt(Variant::OpenControls, [](QFileDialog& dialog) {
        QCheckBox* const disabled = checkBox(dialog, "Disabled without More");
        QCheckBox* const hidden = checkBox(dialog, "Hidden without More");
        QVERIFY(disabled->isVisible() && !disabled->isEnabled() && !hidden->isVisible());
        checkBox(dialog, "More")->click();
        QVERIFY(disabled->isEnabled() && hidden->isVisible());
        checkBox(dialog, "More")->click();
        QVERIFY(disabled->isVisible() && !disabled->isEnabled() && !hidden->isVisible());
        dialog.reject();
    });
}

void DialogRunTest::selectionsAreTold()
{
    const DialogOutcome outcome = runInQt(Variant::OpenSeveralControls, [](QFileDialog& dialog) {
        QTRY_VERIFY(rowOf(dialog, "block.stl").isValid());
        dialog.findChild<QListView*>(QStringLiteral("listView"))
            ->selectionModel()
            ->select(rowOf(dialog, "block.stl"),
                     QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        dialog.reject();
    });
    QVERIFY2(bare(outcome.events)
                 .contains(QStringLiteral("onSelectionChanged(\"%1\")").arg(native("block.stl"))),
             qPrintable(outcome.text()));
}

void DialogRunTest::theDialogMovesToTheCorner()
{
    runInQt(Variant::OpenPlaced, [](QFileDialog& dialog) {
        dialog.move(150, 20);
        checkBox(dialog, "To the corner")->click();
        QTRY_COMPARE(dialog.frameGeometry().topLeft(), QPoint(40, 40));
        dialog.reject();
    });
}

void DialogRunTest::previewFollowsTheSelection()
{
    const DialogOutcome outcome = runInQt(Variant::PreviewOne, [this](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(QStringLiteral("block.stl"));
        checkBox(dialog, "Preview")->click();
        checkBox(dialog, "Preview")->click();
        typeAndAccept(dialog, native("block.stl"));
    });
    const QStringList events = bare(outcome.events);
    QCOMPARE(events.first(), QStringLiteral("initialize(-1)"));
    QCOMPARE(events.at(1), QStringLiteral("setVisible(true)"));
    QVERIFY(!events.filter(QStringLiteral("moveTo(")).isEmpty());
    QCOMPARE(events.count(QStringLiteral("setVisible(true)")), 2);
    QCOMPARE(events.count(QStringLiteral("setVisible(false)")), 2);
    QCOMPARE(events.last(), QStringLiteral("setVisible(false)"));
    QCOMPARE(outcome.files, QStringList(native("block.stl")));
}

void DialogRunTest::aDialogInsideADialogCounts()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("outer"), [this](QFileDialog& dialog) {
        checkBox(dialog, "Open another dialog")->click();
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        typeAndAccept(dialog, native("notes.txt"));
    });
    modals.expectDialog<QFileDialog>(QStringLiteral("inner"), [](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 2);
        typeAndAccept(dialog, QStringLiteral("block.stl"));
    });
    const DialogOutcome outcome = run(Variant::Nested, DialogShower::Qt);
    QVERIFY2(modals.allMet(), qPrintable(modals.failures().join(QLatin1Char('\n'))));
    QCOMPARE(outcome.files, QStringList(native("notes.txt")));
    QVERIFY(outcome.events.contains(QStringLiteral("[1] 2: -> \"%1\"").arg(native("block.stl"))));
    QVERIFY(!outcome.events.filter(QStringLiteral("[2] 2: onTypeChanged()")).isEmpty());
    QCOMPARE(outcome.mostOpen, 2);
    QCOMPARE(outcome.openAfterwards, 0);
}

void DialogRunTest::whatAHandlerThrowsComesOut()
{
    const DialogOutcome outcome = runInQt(Variant::Throwing, [](QFileDialog& dialog) {
        checkBox(dialog, "Fail")->click();
        QTRY_VERIFY(!dialog.isVisible());
    });
    QCOMPARE(outcome.exception, QStringLiteral("the handler has failed"));
    QVERIFY(outcome.files.isEmpty());
    QCOMPARE(outcome.openAfterwards, 0);
    QVERIFY(m_parent->isEnabled());
    QVERIFY(outcome.text().contains(outcome.exception));
}

void DialogRunTest::namesWithoutEndingGetOne()
{
    const auto accept = [](QFileDialog& dialog) { static_cast<QDialog&>(dialog).accept(); };
    const DialogOutcome whole = runInQt(Variant::SaveExisting, [](QFileDialog& dialog) {
        typeAndAccept(dialog, QStringLiteral("whole.x"));
    });
    QCOMPARE(portable(whole.files), QStringList(m_files->file(QStringLiteral("whole.x"))));
    QVERIFY(!whole.isEndingAdded);
    const DialogOutcome mesh = runInQt(Variant::SaveWithoutEnding, accept);
    QCOMPARE(portable(mesh.files), QStringList(m_files->file(QStringLiteral("part.stl"))));
    QVERIFY(mesh.isEndingAdded);
    QVERIFY(mesh.text().contains(QStringLiteral("The ending was added.")));
    const DialogOutcome table = runInQt(Variant::SavePreselectedType, accept);
    QCOMPARE(portable(table.files), QStringList(m_files->file(QStringLiteral("forces.csv"))));
}

void DialogRunTest::aFileThatExistsIsAskedAbout()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("the dialog"), [](QFileDialog& dialog) {
        static_cast<QDialog&>(dialog).accept();
        QVERIFY(dialog.isVisible());
        dialog.reject();
    });
    modals.expectMessageBox(QStringLiteral("block.stl already exists"), QMessageBox::No);
    QVERIFY(run(Variant::SaveExisting, DialogShower::Qt).files.isEmpty());
    QVERIFY2(modals.allMet(), qPrintable(modals.failures().join(QLatin1Char('\n'))));
}

void DialogRunTest::savingElsewhereIsRefused()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("the dialog"), [this](QFileDialog& dialog) {
        typeAndAccept(dialog, m_files->file(QStringLiteral("elsewhere.stl")));
    });
    modals.expectMessageBox(QStringLiteral("can only be saved at"), QMessageBox::Ok);
    modals.expectDialog<QFileDialog>(QStringLiteral("it again"), [](QFileDialog& dialog) {
        static_cast<QDialog&>(dialog).accept();
    });
    const DialogOutcome outcome = run(Variant::SaveInFolder, DialogShower::Qt);
    QVERIFY2(modals.allMet(), qPrintable(modals.failures().join(QLatin1Char('\n'))));
    QCOMPARE(outcome.files, QStringList(m_files->file(QStringLiteral("more/part.stl"))));
    QCOMPARE(outcome.events.filter(QStringLiteral("Dialog(")).size(), 2);
    QCOMPARE(outcome.events.filter(QStringLiteral("MessageBox(")).size(), 1);
    QVERIFY(outcome.events.filter(QStringLiteral("MessageBox("))
                .first()
                .startsWith(QStringLiteral("[1] ")));
}

void DialogRunTest::foldersAreTold()
{
    for (const Variant variant : {Variant::Folder, Variant::ProposedFolder}) {
        QString proposed;
        const DialogOutcome outcome = runInQt(variant, [&proposed](QFileDialog& dialog) {
            proposed = dialog.directory().absolutePath();
            static_cast<QDialog&>(dialog).accept();
        });
        const bool isMore = variant == Variant::ProposedFolder;
        QCOMPARE(QDir(proposed),
                 QDir(isMore ? m_files->file(QStringLiteral("more")) : m_files->folder()));
        QCOMPARE(outcome.files.size(), 1);
        QCOMPARE(QDir(outcome.files.first()), QDir(proposed));
        QCOMPARE(outcome.type.has_value(), false);
    }
}

void DialogRunTest::placesAreOfferedIfTheyExist()
{
    QList<QUrl> places;
    runInQt(Variant::OpenPlaces, [&places](QFileDialog& dialog) {
        places = dialog.sidebarUrls();
        dialog.reject();
    });
    QVERIFY(places.contains(QUrl::fromLocalFile(m_files->file(QStringLiteral("more")))));
    QVERIFY(!places.contains(QUrl::fromLocalFile(m_files->file(QStringLiteral("not there")))));
}

void DialogRunTest::afterAFailureQtAsks()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("the dialog"), [this](QFileDialog& dialog) {
        typeAndAccept(dialog, native("block.stl"));
    });
    const DialogOutcome outcome = run(Variant::OpenControls, DialogShower::Failing);
    QCOMPARE(outcome.files, QStringList(native("block.stl")));
    const QStringList events = bare(outcome.events);
    QVERIFY(events.at(0).startsWith(QStringLiteral("open(\"Open with controls\"")));
    QCOMPARE(events.at(1), QStringLiteral("open -> failed 0xffffffff"));
    QVERIFY(events.at(2).startsWith(QStringLiteral("Zorvane::QtFileDialog(")));
}

void DialogRunTest::theOptionIsGoneAfterwards()
{
    const QString option = QStringLiteral("alternativeFileDialog");
    QVERIFY(!CommandLineParser::instance()->optionWasSpecified(option));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("the dialog"), [&option](QFileDialog& dialog) {
        QVERIFY(CommandLineParser::instance()->optionWasSpecified(option));
        dialog.reject();
    });
    run(Variant::OpenOne, DialogShower::Option);
    QVERIFY(!CommandLineParser::instance()->optionWasSpecified(option));
    run(Variant::OpenOne);
    QCOMPARE(int(m_script.requests.size()), 1);
}

void DialogRunTest::theCurrentFolderStays()
{
    const QString before = QDir::currentPath();
    m_script.whileOpen = [this](const FileDialogRequest&) {
        QVERIFY(QDir::setCurrent(m_files->file(QStringLiteral("more"))));
    };
    run(Variant::OpenOne);
    QCOMPARE(QDir::currentPath(), before);
}

void DialogRunTest::theParentMayGoMeanwhile()
{
    m_script.whileOpen = [this](const FileDialogRequest&) { delete m_parent; };
    QVERIFY(run(Variant::PreviewOne).files.isEmpty());
    QVERIFY(!m_parent);
}

void DialogRunTest::exampleFilesGoWithTheirOwner()
{
    const QString folder = m_files->folder();
    QCOMPARE(QDir(folder).entryList(QDir::Files).size(), 6);
    m_files.reset();
    QVERIFY(!QFileInfo::exists(folder));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DialogRunTest;
ZORVANE_TEST(DialogRunTest)
#include "DialogRunTest.moc"
