#include "FileDialogs/ConfiguredFileDialog.h"

#include "FileDialogs/FileDialog.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace Zorvane;
using Testing::ExpectedModals;
using CustomItem = FileDialogConfiguration::CustomItem;

Q_DECLARE_METATYPE(std::function<void(QFileDialog&)>)

namespace {

const QString s_caption = QStringLiteral("Open mesh");
const QString s_filter = QStringLiteral("Meshes (*.stl *.obj);;Tables (*.csv)");
const QString s_scope = QStringLiteral("Import");

CustomItem checkBox(int id, const char* label, bool isChecked = false)
{
    CustomItem item;
    item.controlId = id;
    item.content = QString::fromLatin1(label);
    item.initialValue = isChecked;
    return item;
}

CustomItem comboBox(int id, const QStringList& texts, int index)
{
    CustomItem item;
    item.controlId = id;
    item.controlType = FileDialogConfiguration::ComboBox;
    item.content = texts;
    item.initialValue = index;
    return item;
}

template <typename Widget>
Widget* part(QFileDialog& dialog, const char* name)
{
    return dialog.findChild<Widget*>(QString::fromLatin1(name));
}

QLineEdit* nameEdit(QFileDialog& dialog)
{
    return part<QLineEdit>(dialog, "fileNameEdit");
}

QPushButton* openButton(QFileDialog& dialog)
{
    return part<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Open);
}

QPushButton* cancelButton(QFileDialog& dialog)
{
    return part<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Cancel);
}

template <typename Widget>
Widget* custom(QFileDialog& dialog, const char* text)
{
    for (auto* widget : dialog.findChildren<Widget*>()) {
        if (widget->text() == QLatin1String(text))
            return widget;
    }
    return nullptr;
}

QComboBox* customCombo(QFileDialog& dialog, const QString& firstItem)
{
    for (auto* box : dialog.findChildren<QComboBox*>()) {
        if (box->itemText(0) == firstItem)
            return box;
    }
    return nullptr;
}

QRect rectIn(QWidget* widget, QWidget& dialog)
{
    return QRect(widget->mapTo(&dialog, QPoint(0, 0)), widget->size());
}

void select(QFileDialog& dialog, const QStringList& names)
{
    auto* view = part<QListView>(dialog, "listView");
    view->selectionModel()->clearSelection();
    for (const QString& name : names) {
        const QModelIndexList found =
            view->model()->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole,
                                 name, 1, Qt::MatchExactly);
        QVERIFY2(!found.isEmpty(), qPrintable(name));
        view->selectionModel()->select(found.first(),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

/** Whether the dialog's list shows the file: folders are read in the background. */
bool shows(QFileDialog& dialog, const QString& name)
{
    auto* view = part<QListView>(dialog, "listView");
    return !view->model()
                ->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole, name, 1,
                        Qt::MatchExactly)
                .isEmpty();
}

} // namespace

class ConfiguredFileDialogTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void chosenFileIsReturned();
    void chosenFilesAreReturnedInOrder();
    void cancel_data();
    void cancel();
    void opensInTheFolderOfThePath();
    void presetFileIsSelectedAndTold();
    void deletedFolderOpensTheOneAbove();
    void filtersAreOffered();
    void selectedFilterGoesInAndOut();
    void emptyFilterShowsFilesWithoutADot();
    void oddNamesComeBackAsTheyAre_data();
    void oddNamesComeBackAsTheyAre();
    void captionIsShown();

    void controlsLieBelowTheList();
    void prominentControlsLieBesideTheButtons();
    void controlsHaveTheirInitialValues();
    void controlsTellWhatTheUserDoes();
    void controlStatesAreShown_data();
    void controlStatesAreShown();
    void handlerChangesControlStates();
    void unknownKindAddsNoControl();
    void withoutHandlerThereAreNoControls();
    void keyboardReachesEverything();
    void mnemonicsReachControls();

    void typeIsToldWhileOpening();
    void typeIsToldWhenItChanges();
    void selectionIsToldInTheOrderOfTheNames();
    void typedNameSelects();

    void opensWhereItWasLeft();
    void withoutStoredGeometryOpensByOffsetAndSize();
    void storedOnAScreenThatIsGone();
    void frameDoesNotGrow();
    void movedDialogIsRecordedBeforeItCloses();
    void handlerPlacesTheDialog();
    void dialogGeometryIsTheOuterOne();

    void placesAreOfferedForOneDialogOnly();
    void ownerIsBlocked();
    void windowWithoutParentStaysUsable();
    void ownerDestroyed();
    void ownerClosed();
    void secondDialogFromInsideTheFirst();

private:
    /** Opens the dialog and answers it; the dialog must be closed by the answer. */
    QString open(std::function<void(QFileDialog&)> answer);
    QStringList openSeveral(std::function<void(QFileDialog&)> answer);
    QString path(const QString& name) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<FileDialogConfiguration> m_configuration;
    std::unique_ptr<Testing::RecordingHandler> m_handler;
    Testing::ScriptedPathProvider m_provider;
    // Also where the system has a dialog.
    const NativeFileDialogReplacement m_noDriver{[] { return nullptr; }};
    QPointer<QWidget> m_owner;
};

void ConfiguredFileDialogTest::init()
{
    QSettings().clear();
    m_dir = std::make_unique<QTemporaryDir>();
    for (const char* name : {"a.stl", "b.stl", "c.obj", "d.csv", "plain"})
        QVERIFY(Testing::writeFile(path(QString::fromLatin1(name))));
    m_handler = std::make_unique<Testing::RecordingHandler>();
    m_configuration = std::make_unique<FileDialogConfiguration>(QStringLiteral("Key"));
    m_configuration->setEventHandler(m_handler.get());
    m_provider = Testing::ScriptedPathProvider();
    m_provider.path = m_dir->path();
    m_owner = nullptr;
}

QString ConfiguredFileDialogTest::path(const QString& name) const
{
    return QDir::toNativeSeparators(m_dir->filePath(name));
}

QString ConfiguredFileDialogTest::open(std::function<void(QFileDialog&)> answer)
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, std::move(answer));
    return FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope,
                                       m_configuration.get(), m_owner);
}

QStringList ConfiguredFileDialogTest::openSeveral(std::function<void(QFileDialog&)> answer)
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, std::move(answer));
    return FileDialog::getOpenFileNames(s_caption, s_filter, &m_provider, s_scope,
                                        m_configuration.get(), m_owner);
}

void ConfiguredFileDialogTest::chosenFileIsReturned()
{
    const QString chosen = open([](QFileDialog& dialog) {
        QTRY_VERIFY(shows(dialog, QStringLiteral("b.stl")));
        select(dialog, {QStringLiteral("b.stl")});
        QTest::mouseClick(openButton(dialog), Qt::LeftButton);
    });
    QCOMPARE(chosen, path(QStringLiteral("b.stl")));
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Import to '%1'").arg(chosen));
}

void ConfiguredFileDialogTest::chosenFilesAreReturnedInOrder()
{
    const QStringList chosen = openSeveral([](QFileDialog& dialog) {
        nameEdit(dialog)->setText(QStringLiteral("\"c.obj\" \"a.stl\""));
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    QCOMPARE(chosen, QStringList({path(QStringLiteral("c.obj")), path(QStringLiteral("a.stl"))}));
}

void ConfiguredFileDialogTest::cancel_data()
{
    using Act = std::function<void(QFileDialog&)>;
    QTest::addColumn<Act>("act");
    QTest::newRow("escape") << Act(
        [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QTest::newRow("close button of the window") << Act([](QFileDialog& dialog) { dialog.close(); });
    QTest::newRow("cancel button") << Act(
        [](QFileDialog& dialog) { QTest::mouseClick(cancelButton(dialog), Qt::LeftButton); });
}

void ConfiguredFileDialogTest::cancel()
{
    QFETCH(std::function<void(QFileDialog&)>, act);
    QCOMPARE(open([&act](QFileDialog& dialog) {
                 QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
                 act(dialog);
             }),
             QString());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Import to ''"));
}

void ConfiguredFileDialogTest::opensInTheFolderOfThePath()
{
    m_provider.path = path(QStringLiteral("d.csv"));
    open([this](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), QDir(m_dir->path()).absolutePath());
        QCOMPARE(nameEdit(dialog)->text(), QStringLiteral("d.csv"));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::presetFileIsSelectedAndTold()
{
    m_provider.path = path(QStringLiteral("a.stl"));
    open([this](QFileDialog& dialog) {
        QTRY_VERIFY(m_handler->events.contains(QStringLiteral("selected ") +
                                               path(QStringLiteral("a.stl"))));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::deletedFolderOpensTheOneAbove()
{
    m_provider.path = path(QStringLiteral("gone/deeper/still"));
    open([this](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), QDir(m_dir->path()).absolutePath());
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::filtersAreOffered()
{
    open([](QFileDialog& dialog) {
        QCOMPARE(dialog.nameFilters(), s_filter.split(QStringLiteral(";;")));
        QTRY_VERIFY(shows(dialog, QStringLiteral("c.obj")));
        QTRY_VERIFY(!shows(dialog, QStringLiteral("d.csv")));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::selectedFilterGoesInAndOut()
{
    const QString meshes = QStringLiteral("Meshes (*.stl *.obj)");
    const QString tables = QStringLiteral("Tables (*.csv)");
    QString selected = tables;
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [&](QFileDialog& dialog) {
        QCOMPARE(dialog.selectedNameFilter(), tables);
        auto* types = part<QComboBox>(dialog, "fileTypeCombo");
        QTest::keyClick(types, Qt::Key_Up);
        QCOMPARE(dialog.selectedNameFilter(), meshes);
        nameEdit(dialog)->setText(QStringLiteral("a.stl"));
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    QCOMPARE(FileDialog::getOpenFileName(s_caption, QString(), s_filter, &m_provider, s_scope,
                                         &selected, QFileDialog::Options(), m_configuration.get(),
                                         nullptr),
             path(QStringLiteral("a.stl")));
    QCOMPARE(selected, meshes);
}

void ConfiguredFileDialogTest::emptyFilterShowsFilesWithoutADot()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [](QFileDialog& dialog) {
        QTRY_VERIFY(shows(dialog, QStringLiteral("plain")));
        dialog.reject();
    });
    FileDialog::getOpenFileName(s_caption, QString(), &m_provider, s_scope, m_configuration.get());
}

void ConfiguredFileDialogTest::oddNamesComeBackAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    const std::pair<const char*, QString> rows[] = {
        {"semicolons", QStringLiteral("a;b;;c.stl")},
        {"brackets", QStringLiteral("part (1) [new].stl")},
        {"several dots", QStringLiteral("tool.v1.2.final.stl")},
        {"single quote", QStringLiteral("it's.stl")},
        {"double quotes", QStringLiteral("12\" blank.stl")},
        {"blank at the end", QStringLiteral("part.stl ")},
        {"Japanese", QString::fromUtf8("金型.stl")},
        {"255 bytes", QString(251, QLatin1Char('n')) + QStringLiteral(".stl")},
    };
    const QTemporaryDir folder;
    for (const auto& [row, name] : rows) {
        // Windows has neither double quotes in names nor blanks at their ends.
        Testing::writeFile(folder.filePath(name));
        if (QDir(folder.path()).entryList(QDir::Files).contains(name))
            QTest::newRow(row) << name;
    }
}

void ConfiguredFileDialogTest::oddNamesComeBackAsTheyAre()
{
    QFETCH(QString, name);
    QVERIFY(Testing::writeFile(path(name)));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(s_caption, [&name](QFileDialog& dialog) {
        QTRY_VERIFY(shows(dialog, name));
        select(dialog, {name});
        QTest::mouseClick(openButton(dialog), Qt::LeftButton);
    });
    const QString chosen = FileDialog::getOpenFileName(s_caption, QString(), &m_provider, s_scope,
                                                       m_configuration.get());
    QCOMPARE(chosen, path(name));
    QCOMPARE(m_handler->events.last(), QStringLiteral("selected ") + path(name));
}

void ConfiguredFileDialogTest::captionIsShown()
{
    const QString caption = QString::fromUtf8("ファイルを開く");
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(caption, [&caption](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), caption);
        dialog.reject();
    });
    FileDialog::getOpenFileName(caption, s_filter, &m_provider, s_scope, m_configuration.get());
}

void ConfiguredFileDialogTest::controlsLieBelowTheList()
{
    m_configuration->addCustomControl(checkBox(1, "Preview"));
    CustomItem units = comboBox(2, {QStringLiteral("mm"), QStringLiteral("inch")}, 0);
    units.groupLabel = QStringLiteral("Units:");
    m_configuration->addCustomControl(units);
    open([](QFileDialog& dialog) {
        const QRect types = rectIn(part<QComboBox>(dialog, "fileTypeCombo"), dialog);
        const QRect preview = rectIn(custom<QCheckBox>(dialog, "Preview"), dialog);
        const QRect combo = rectIn(customCombo(dialog, QStringLiteral("mm")), dialog);
        const QRect label = rectIn(custom<QLabel>(dialog, "Units:"), dialog);
        QVERIFY(preview.top() > types.bottom());
        QVERIFY(combo.top() > preview.bottom());
        QVERIFY(label.right() < combo.left());
        QVERIFY(label.center().y() > preview.bottom());
        QCOMPARE(combo.left(), types.left());
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::prominentControlsLieBesideTheButtons()
{
    CustomItem item = checkBox(1, "Preview");
    item.prominent = true;
    m_configuration->addCustomControl(item);
    item = comboBox(2, {QStringLiteral("mm"), QStringLiteral("inch")}, 0);
    item.prominent = true;
    item.groupLabel = QStringLiteral("Units:");
    m_configuration->addCustomControl(item);
    open([](QFileDialog& dialog) {
        const QRect button = rectIn(openButton(dialog), dialog);
        for (QWidget* widget : {static_cast<QWidget*>(custom<QCheckBox>(dialog, "Preview")),
                                static_cast<QWidget*>(custom<QLabel>(dialog, "Units:")),
                                static_cast<QWidget*>(customCombo(dialog, QStringLiteral("mm")))}) {
            const QRect rect = rectIn(widget, dialog);
            QVERIFY(rect.right() < button.left());
            QVERIFY(rect.left() > rectIn(nameEdit(dialog), dialog).right());
        }
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::controlsHaveTheirInitialValues()
{
    m_configuration->addCustomControl(checkBox(1, "On", true));
    m_configuration->addCustomControl(checkBox(2, "Off", false));
    m_configuration->addCustomControl(
        comboBox(3, {QStringLiteral("mm"), QStringLiteral("inch")}, 1));
    open([](QFileDialog& dialog) {
        QVERIFY(custom<QCheckBox>(dialog, "On")->isChecked());
        QVERIFY(!custom<QCheckBox>(dialog, "Off")->isChecked());
        QCOMPARE(customCombo(dialog, QStringLiteral("mm"))->currentText(), QStringLiteral("inch"));
        QCOMPARE(customCombo(dialog, QStringLiteral("mm"))->count(), 2);
        dialog.reject();
    });
    QCOMPARE(m_handler->events, QStringList(QStringLiteral("type")));
}

void ConfiguredFileDialogTest::controlsTellWhatTheUserDoes()
{
    m_configuration->addCustomControl(checkBox(7, "Preview", true));
    m_configuration->addCustomControl(
        comboBox(9, {QStringLiteral("mm"), QStringLiteral("inch")}, 0));
    open([this](QFileDialog& dialog) {
        m_handler->events.clear();
        QTest::keyClick(custom<QCheckBox>(dialog, "Preview"), Qt::Key_Space);
        QTest::keyClick(customCombo(dialog, QStringLiteral("mm")), Qt::Key_Down);
        QTest::keyClick(custom<QCheckBox>(dialog, "Preview"), Qt::Key_Space);
        QCOMPARE(m_handler->events,
                 QStringList({QStringLiteral("toggled 7 0"), QStringLiteral("item 9 1"),
                              QStringLiteral("toggled 7 1")}));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::controlStatesAreShown_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isVisible");
    QTest::newRow("neither") << 0 << false << false;
    QTest::newRow("enabled only") << 1 << true << false;
    QTest::newRow("visible only") << 2 << false << true;
    QTest::newRow("both") << 3 << true << true;
}

void ConfiguredFileDialogTest::controlStatesAreShown()
{
    QFETCH(int, state);
    CustomItem item = checkBox(1, "Preview");
    item.groupLabel = QStringLiteral("View:");
    item.controlState = state;
    m_configuration->addCustomControl(item);
    open([](QFileDialog& dialog) {
        QFETCH(bool, isEnabled);
        QFETCH(bool, isVisible);
        QCOMPARE(custom<QCheckBox>(dialog, "Preview")->isEnabled(), isEnabled);
        QCOMPARE(custom<QCheckBox>(dialog, "Preview")->isVisible(), isVisible);
        QCOMPARE(custom<QLabel>(dialog, "View:")->isVisible(), isVisible);
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::handlerChangesControlStates()
{
    m_configuration->addCustomControl(checkBox(1, "Details", false));
    m_configuration->addCustomControl(comboBox(2, {QStringLiteral("mm")}, 0));
    m_handler->onToggle = [](bool checked, const FileDialogCallbackInterface& callbacks) {
        callbacks.setControlState(2, checked ? 3 : 0);
        callbacks.setControlState(202, checked ? 3 : 0);
        callbacks.setControlState(77, 0);
    };
    open([](QFileDialog& dialog) {
        auto* details = custom<QCheckBox>(dialog, "Details");
        auto* units = customCombo(dialog, QStringLiteral("mm"));
        details->click();
        QVERIFY(units->isEnabled() && units->isVisible());
        details->click();
        QVERIFY(!units->isEnabled() && !units->isVisible());
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::unknownKindAddsNoControl()
{
    CustomItem item = checkBox(1, "Unknown");
    item.controlType = 5;
    item.prominent = true;
    item.groupLabel = QStringLiteral("Of an unknown kind");
    m_configuration->addCustomControl(item);
    m_configuration->addCustomControl(checkBox(2, "Known"));
    open([](QFileDialog& dialog) {
        QVERIFY(!custom<QCheckBox>(dialog, "Unknown"));
        QVERIFY(custom<QLabel>(dialog, "Of an unknown kind")->isVisible());
        QVERIFY(custom<QCheckBox>(dialog, "Known")->isVisible());
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::withoutHandlerThereAreNoControls()
{
    m_configuration->addCustomControl(checkBox(1, "Preview"));
    m_configuration->setEventHandler(nullptr);
    open([](QFileDialog& dialog) {
        QVERIFY(!custom<QCheckBox>(dialog, "Preview"));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::keyboardReachesEverything()
{
    m_configuration->addCustomControl(checkBox(1, "First"));
    m_configuration->addCustomControl(comboBox(2, {QStringLiteral("mm")}, 0));
    CustomItem item = checkBox(3, "Third");
    item.prominent = true;
    m_configuration->addCustomControl(item);
    open([](QFileDialog& dialog) {
        QTRY_VERIFY(dialog.isActiveWindow());
        QTRY_COMPARE(dialog.focusWidget(), nameEdit(dialog));
        const QList<QWidget*> way{part<QComboBox>(dialog, "fileTypeCombo"),
                                  custom<QCheckBox>(dialog, "First"),
                                  customCombo(dialog, QStringLiteral("mm")),
                                  custom<QCheckBox>(dialog, "Third"), cancelButton(dialog)};
        for (QWidget* next : way) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QCOMPARE(dialog.focusWidget(), next);
        }
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
    });
}

void ConfiguredFileDialogTest::mnemonicsReachControls()
{
    m_configuration->addCustomControl(checkBox(1, "&Preview"));
    CustomItem item = comboBox(2, {QStringLiteral("mm")}, 0);
    item.groupLabel = QStringLiteral("&Units:");
    m_configuration->addCustomControl(item);
    open([](QFileDialog& dialog) {
        QTRY_VERIFY(dialog.isActiveWindow());
        QTest::keyClick(dialog.windowHandle(), Qt::Key_P, Qt::AltModifier);
        QTRY_VERIFY(custom<QCheckBox>(dialog, "&Preview")->isChecked());
        QTest::keyClick(dialog.windowHandle(), Qt::Key_U, Qt::AltModifier);
        QTRY_COMPARE(dialog.focusWidget(), customCombo(dialog, QStringLiteral("mm")));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::typeIsToldWhileOpening()
{
    open([this](QFileDialog& dialog) {
        QCOMPARE(m_handler->events, QStringList(QStringLiteral("type")));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::typeIsToldWhenItChanges()
{
    open([this](QFileDialog& dialog) {
        QTest::keyClick(part<QComboBox>(dialog, "fileTypeCombo"), Qt::Key_Down);
        QCOMPARE(m_handler->events.count(QStringLiteral("type")), 2);
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::selectionIsToldInTheOrderOfTheNames()
{
    openSeveral([this](QFileDialog& dialog) {
        QTRY_VERIFY(shows(dialog, QStringLiteral("a.stl")));
        QTRY_VERIFY(shows(dialog, QStringLiteral("c.obj")));
        nameEdit(dialog)->setText(QStringLiteral("\"c.obj\" \"a.stl\""));
        QTRY_COMPARE(m_handler->events.last(),
                     QStringLiteral("selected ") + path(QStringLiteral("c.obj")) +
                         QLatin1Char('|') + path(QStringLiteral("a.stl")));
        select(dialog, {});
        QCOMPARE(m_handler->events.last(), QStringLiteral("selected "));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::typedNameSelects()
{
    open([this](QFileDialog& dialog) {
        QTRY_VERIFY(shows(dialog, QStringLiteral("b.stl")));
        nameEdit(dialog)->setText(QStringLiteral("b.stl"));
        QTRY_COMPARE(m_handler->events.last(),
                     QStringLiteral("selected ") + path(QStringLiteral("b.stl")));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::opensWhereItWasLeft()
{
    const QRect stored(40, 50, 610, 500);
    m_configuration->storeFileDialogGeometry(stored);
    open([&stored](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), stored);
        dialog.move(90, 80);
        QTRY_COMPARE(dialog.frameGeometry().topLeft(), QPoint(90, 80));
        dialog.reject();
    });
    QRect left;
    QVERIFY(m_configuration->getFileDialogGeometry(left));
    QCOMPARE(left, QRect(90, 80, 610, 500));
}

void ConfiguredFileDialogTest::withoutStoredGeometryOpensByOffsetAndSize()
{
    m_configuration->setTopLeftOffset(QSize(30, 20));
    m_configuration->setDefaultDialogSize(QSize(640, 520));
    open([](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(30, 20, 640, 520));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::storedOnAScreenThatIsGone()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    m_configuration->storeFileDialogGeometry(QRect(5000, 4000, 600, 550));
    open([&screen](QFileDialog& dialog) {
        QTRY_VERIFY2(screen.contains(dialog.frameGeometry()), "the dialog stays out of sight");
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::frameDoesNotGrow()
{
    const QRect stored(40, 50, 610, 500);
    m_configuration->storeFileDialogGeometry(stored);
    for (int i = 0; i < 3; ++i) {
        open([&stored](QFileDialog& dialog) {
            QTRY_COMPARE(dialog.frameGeometry(), stored);
            dialog.reject();
        });
    }
    QRect left;
    QVERIFY(m_configuration->getFileDialogGeometry(left));
    QCOMPARE(left, stored);
}

void ConfiguredFileDialogTest::movedDialogIsRecordedBeforeItCloses()
{
    m_configuration->storeFileDialogGeometry(QRect(40, 50, 610, 500));
    open([this](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(40, 50, 610, 500));
        dialog.move(70, 60);
        QRect recorded;
        QTRY_VERIFY(m_configuration->getFileDialogGeometry(recorded) &&
                    recorded == QRect(70, 60, 610, 500));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::handlerPlacesTheDialog()
{
    FileDialogConfiguration other(QStringLiteral("Other"));
    other.storeFileDialogGeometry(QRect(11, 22, 633, 504));
    m_handler->onType = [&other](const FileDialogCallbackInterface& callbacks) {
        callbacks.placeDialog(&other);
    };
    open([](QFileDialog& dialog) {
        QTRY_COMPARE(dialog.frameGeometry(), QRect(11, 22, 633, 504));
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::dialogGeometryIsTheOuterOne()
{
    m_configuration->addCustomControl(checkBox(1, "Preview"));
    QRect told;
    m_handler->onToggle = [&told](bool, const FileDialogCallbackInterface& callbacks) {
        told = callbacks.getDialogGeometry();
    };
    open([&told](QFileDialog& dialog) {
        custom<QCheckBox>(dialog, "Preview")->click();
        QCOMPARE(told, dialog.frameGeometry());
        dialog.reject();
    });
    QVERIFY(told.isValid());
}

void ConfiguredFileDialogTest::placesAreOfferedForOneDialogOnly()
{
    QDir(m_dir->path()).mkdir(QStringLiteral("place"));
    const QUrl place = QUrl::fromLocalFile(m_dir->filePath(QStringLiteral("place")));
    const QList<QUrl> before = QFileDialog().sidebarUrls();
    m_provider.places = {path(QStringLiteral("place")), path(QStringLiteral("gone")), QString(),
                         path(QStringLiteral("place"))};
    open([&](QFileDialog& dialog) {
        QCOMPARE(dialog.sidebarUrls(), before + QList<QUrl>{place});
        dialog.reject();
    });
    QFileDialog later;
    later.setOption(QFileDialog::DontUseNativeDialog);
    QCOMPARE(later.sidebarUrls(), before);
}

void ConfiguredFileDialogTest::ownerIsBlocked()
{
    QWidget window;
    QWidget panel(&window);
    m_owner = &panel;
    open([&](QFileDialog& dialog) {
        QVERIFY(dialog.isEnabled());
        QCOMPARE(dialog.parentWidget(), &panel);
        QVERIFY(!panel.isEnabled());
        QVERIFY(!window.isEnabled());
        dialog.reject();
    });
    QVERIFY(panel.isEnabled());
    QVERIFY(window.isEnabled());
}

void ConfiguredFileDialogTest::windowWithoutParentStaysUsable()
{
    QWidget window;
    QPushButton preview(QStringLiteral("Turn"));
    window.show();
    preview.show();
    QVERIFY(QTest::qWaitForWindowExposed(&preview));
    m_owner = &window;
    int clicks = 0;
    connect(&preview, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    open([&](QFileDialog& dialog) {
        QTest::mouseClick(preview.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QTRY_COMPARE(clicks, 1);
        dialog.reject();
    });
}

void ConfiguredFileDialogTest::ownerDestroyed()
{
    m_owner = new QWidget;
    m_owner->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_owner));
    QCOMPARE(open([this](QFileDialog&) { delete m_owner; }), QString());
    QVERIFY(!m_owner);
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Import to ''"));
}

void ConfiguredFileDialogTest::ownerClosed()
{
    QWidget window;
    auto* panel = new QWidget(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    m_owner = panel;
    QCOMPARE(open([&window](QFileDialog&) { window.close(); }), QString());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    QVERIFY(window.isEnabled());
    QVERIFY(panel->isEnabled());
}

void ConfiguredFileDialogTest::secondDialogFromInsideTheFirst()
{
    FileDialogConfiguration second(QStringLiteral("Second"));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(QStringLiteral("first"), [&](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QCOMPARE(FileDialog::getOpenFileName(QStringLiteral("Second"), s_filter, &m_provider,
                                             s_scope, &second, &dialog),
                 path(QStringLiteral("a.stl")));
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
        QVERIFY(dialog.isEnabled());
        dialog.reject();
    });
    modals.expectDialog<QFileDialog>(QStringLiteral("second"), [](QFileDialog& dialog) {
        QCOMPARE(FileDialog::getOpenDialogsCount(), 2);
        nameEdit(dialog)->setText(QStringLiteral("a.stl"));
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    QCOMPARE(FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope,
                                         m_configuration.get()),
             QString());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

ZORVANE_TEST_MAIN(ConfiguredFileDialogTest)
#include "ConfiguredFileDialogTest.moc"
