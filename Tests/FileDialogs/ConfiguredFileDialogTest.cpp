#include "FileDialogs/QtFileDialog.h"

#include "Tests/FileDialogs/ConfiguredDialogTestCase.h"
#include "Tests/Support/PlatformFacts.h"

#include <QtCore/QTimer>
#include <QtCore/QUrl>

#include <stdexcept>

using namespace Zorvane;
using namespace Zorvane::Testing;

Q_DECLARE_METATYPE(std::function<void(QFileDialog&)>)

namespace {

/** Gives a part of Qt's dialogs another name as soon as it has its own. */
class PartRenamer : public QObject
{
public:
    explicit PartRenamer(const QString& part)
        : m_part(part)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::ChildAdded) {
            QObject* const child = static_cast<QChildEvent*>(event)->child();
            connect(child, &QObject::objectNameChanged, this, [this, child](const QString& name) {
                if (name == m_part)
                    child->setObjectName(QStringLiteral("renamed"));
            });
        }
        return false;
    }

private:
    const QString m_part;
};

} // namespace

class ConfiguredFileDialogTest : public ConfiguredDialogTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void chosenFileIsReturned();
    void chosenFilesAreReturnedInOrder();
    void cancelGivesNothingAndIsTold_data();
    void cancelGivesNothingAndIsTold();
    void opensInTheFolderOfThePath();
    void presetFileIsSelectedAndTold();
    void deletedFolderOpensTheOneAbove();
    void filtersAreOffered();
    void selectedFilterGoesInAndOut();
    void emptyFilterShowsFilesWithoutADot();
    void oddNamesComeBackAsTheyAre_data();
    void oddNamesComeBackAsTheyAre();
    void captionIsShown();
    void typeIsToldWhileOpening();
    void typeIsToldWhenItChanges();
    void selectionIsToldInTheOrderOfTheNames();
    void typedNameSelects();
    void handlerThatThrowsEndsTheDialog_data();
    void handlerThatThrowsEndsTheDialog();
    void placesAreOfferedForOneDialogOnly();
    void dialogWithoutAPartHasNoControls_data();
    void dialogWithoutAPartHasNoControls();
};

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

void ConfiguredFileDialogTest::cancelGivesNothingAndIsTold_data()
{
    using Act = std::function<void(QFileDialog&)>;
    QTest::addColumn<Act>("act");
    QTest::newRow("escape") << Act(
        [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QTest::newRow("close button of the window") << Act([](QFileDialog& dialog) { dialog.close(); });
    QTest::newRow("cancel button") << Act(
        [](QFileDialog& dialog) { QTest::mouseClick(cancelButton(dialog), Qt::LeftButton); });
}

void ConfiguredFileDialogTest::cancelGivesNothingAndIsTold()
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
        QCOMPARE(dialog.nameFilters(), meshFilter.split(QStringLiteral(";;")));
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
    modals.expectDialog<QFileDialog>(meshCaption, [&](QFileDialog& dialog) {
        QCOMPARE(dialog.selectedNameFilter(), tables);
        auto* types = part<QComboBox>(dialog, "fileTypeCombo");
        QTest::keyClick(types, Qt::Key_Up);
        QCOMPARE(dialog.selectedNameFilter(), meshes);
        nameEdit(dialog)->setText(QStringLiteral("a.stl"));
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    });
    QCOMPARE(FileDialog::getOpenFileName(meshCaption, QString(), meshFilter, &m_provider, meshScope,
                                         &selected, QFileDialog::Options(), m_configuration.get(),
                                         nullptr),
             path(QStringLiteral("a.stl")));
    QCOMPARE(selected, meshes);
}

void ConfiguredFileDialogTest::emptyFilterShowsFilesWithoutADot()
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, [](QFileDialog& dialog) {
        QTRY_VERIFY(shows(dialog, QStringLiteral("plain")));
        dialog.reject();
    });
    FileDialog::getOpenFileName(meshCaption, QString(), &m_provider, meshScope,
                                m_configuration.get());
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
        writeFile(folder.filePath(name));
        if (QDir(folder.path()).entryList(QDir::Files).contains(name))
            QTest::newRow(row) << name;
    }
}

void ConfiguredFileDialogTest::oddNamesComeBackAsTheyAre()
{
    QFETCH(QString, name);
    if (!Testing::mayBeFileName(name))
        QSKIP("no file can have such a name on this platform");
    QVERIFY(writeFile(path(name)));
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, [&name](QFileDialog& dialog) {
        QTRY_VERIFY(shows(dialog, name));
        select(dialog, {name});
        QTest::mouseClick(openButton(dialog), Qt::LeftButton);
    });
    const QString chosen = FileDialog::getOpenFileName(meshCaption, QString(), &m_provider,
                                                       meshScope, m_configuration.get());
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
    FileDialog::getOpenFileName(caption, meshFilter, &m_provider, meshScope, m_configuration.get());
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

void ConfiguredFileDialogTest::handlerThatThrowsEndsTheDialog_data()
{
    QTest::addColumn<bool>("isWhileOpening");
    QTest::newRow("while the dialog opens") << true;
    QTest::newRow("at an event of the user's") << false;
}

void ConfiguredFileDialogTest::handlerThatThrowsEndsTheDialog()
{
    QFETCH(bool, isWhileOpening);
    QWidget owner;
    m_handler->onType = [&](const FileDialogCallbackInterface&) {
        const bool isFirst = m_handler->events.count(QStringLiteral("type")) == 1;
        if (isFirst == isWhileOpening)
            throw std::runtime_error("the handler gives up");
    };
    ExpectedModals modals;
    modals.tolerate<QFileDialog>();
    QTimer pressesDown;
    connect(&pressesDown, &QTimer::timeout, this, [] {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            QTest::keyClick(part<QComboBox>(*dialog, "fileTypeCombo"), Qt::Key_Down);
    });
    pressesDown.start(0);
    QVERIFY_EXCEPTION_THROWN(FileDialog::getOpenFileName(meshCaption, meshFilter, &m_provider,
                                                         meshScope, m_configuration.get(), &owner),
                             std::runtime_error);
    QVERIFY(owner.isEnabled());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
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

void ConfiguredFileDialogTest::dialogWithoutAPartHasNoControls_data()
{
    QTest::addColumn<QString>("part");
    for (const char* part : {"listView", "fileNameEdit", "fileTypeCombo", "buttonBox"})
        QTest::newRow(part) << QString::fromLatin1(part);
}

void ConfiguredFileDialogTest::dialogWithoutAPartHasNoControls()
{
    QFETCH(QString, part);
    m_configuration->addCustomControl(checkBox(1, "Repair"));
    expectWarning(QStringLiteral("Qt's file dialog is built otherwise"));
    const PartRenamer renamer(part);
    QString type = QStringLiteral("Tables (*.csv)");
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, [this](QFileDialog& dialog) {
        QVERIFY(!custom<QCheckBox>(dialog, "Repair"));
        dialog.selectFile(path(QStringLiteral("d.csv")));
        static_cast<QDialog&>(dialog).accept();
    });
    const QString chosen =
        FileDialog::getOpenFileName(meshCaption, m_dir->path(), meshFilter, &m_provider, meshScope,
                                    &type, {}, m_configuration.get(), m_owner);
    QCOMPARE(chosen, path(QStringLiteral("d.csv")));
    QCOMPARE(type, QStringLiteral("Tables (*.csv)"));
    QCOMPARE(m_handler->events, QStringList());
}

ZORVANE_TEST(ConfiguredFileDialogTest)
#include "ConfiguredFileDialogTest.moc"
