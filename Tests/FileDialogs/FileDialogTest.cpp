#include "FileDialogs/FileDialog.h"

#include "Tests/FileDialogs/FacadeTestCase.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <stdexcept>

using namespace Zorvane;
using namespace Zorvane::Testing;

Q_DECLARE_METATYPE(std::function<void(PathProvider*)>)

namespace {

/** Notes the events of one type that a widget gets. */
class EventCounter : public QObject
{
public:
    EventCounter(QObject& watched, int type)
        : m_type(type)
    {
        watched.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

    int count = 0;

private:
    const int m_type;
};

} // namespace

class FileDialogTest : public FacadeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void openAsksTheDriver();
    void openTellsTheProvider();
    void openAtAFile();
    void openAtTheStartDirectory();
    void theShortFormTakesNoOwnerAndAllFiles();
    void openPreselectsAFilter();
    void openDoesNotWriteTheFilterBack();
    void openGivesNativeSeparators();
    void openSeveralGivesAllChosenInOrder();
    void openSeveralCancelledTellsTheProviderNothing();

    void namesComeThrough_data();
    void namesComeThrough();
    void cancel_givesNothingToTheProvider();

    void ownerIsTheParent();
    void ownerIsTheMainWindow();
    void aMainWindowThatIsNoWidgetIsNoOwner();
    void ownerIsBlockedUpToTheMainWindow();
    void mainWindowItselfStaysEnabled();
    void disabledWidgetsStayDisabled();
    void withoutMainWindowAllAreBlocked();
    void blockEndsWithAnException();
    void blockThatFailsHalfwayEnds_data();
    void blockThatFailsHalfwayEnds();
    void blockEndsWithTheOwner();
    void ownerThatGoesAtTheBlockCancels_data();
    void ownerThatGoesAtTheBlockCancels();
    void mainWindowIsTold();

    void counterCounts_data();
    void counterCounts();
    void counterCountsNestedDialogs();
    void anExceptionLeavesTheCounterAtZero();
};

void FileDialogTest::openAsksTheDriver()
{
    m_provider.places = {QStringLiteral("one"), QStringLiteral("two")};
    FileDialogConfiguration configuration;
    QWidget parent;
    m_script.answer({path(QStringLiteral("a.prt"))});
    QCOMPARE(FileDialog::getOpenFileName(s_caption, QString(), s_filter, &m_provider, s_scope,
                                         nullptr, QFileDialog::ReadOnly, &configuration, &parent),
             path(QStringLiteral("a.prt")));
    QCOMPARE(m_script.requests.size(), std::size_t(1));
    QVERIFY(m_script.requests.front().purpose == FileDialogPurpose::OpenFile);
    const FileDialogRequest& request = m_script.last();
    QCOMPARE(request.owner.data(), &parent);
    QCOMPARE(request.caption, s_caption);
    QVERIFY(!(request.purpose == FileDialogPurpose::OpenFiles));
    QCOMPARE(filterTypes(request.filter), QStringList({s_parts, s_tables}));
    QCOMPARE(Testing::filtersOf(request).patterns,
             QStringList({QStringLiteral("*.prt;*.dsg"), QStringLiteral("*.csv")}));
    QVERIFY(Testing::filtersOf(request).preselectedPattern.isNull());
    QCOMPARE(dialogStart(request.start).folder, QDir::toNativeSeparators(m_dir->path()));
    QCOMPARE(dialogStart(request.start).fileName, QString());
    QCOMPARE(request.places, m_provider.places);
    QCOMPARE(request.configuration, &configuration);
}

void FileDialogTest::openTellsTheProvider()
{
    m_script.answer({path(QStringLiteral("a.prt"))});
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QCOMPARE(
        m_provider.calls,
        QStringList({QStringLiteral("path of Design"), QStringLiteral("places of Design"),
                     QStringLiteral("set Design to '%1'").arg(path(QStringLiteral("a.prt")))}));
}

void FileDialogTest::openAtAFile()
{
    m_provider.path = path(QStringLiteral("a.prt"));
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QCOMPARE(dialogStart(m_script.last().start).folder, QDir::toNativeSeparators(m_dir->path()));
    QCOMPARE(dialogStart(m_script.last().start).fileName, QStringLiteral("a.prt"));
}

void FileDialogTest::openAtTheStartDirectory()
{
    m_provider.path = QStringLiteral("elsewhere");
    FileDialog::getOpenFileName(s_caption, path(QStringLiteral("new.prt")), s_filter, &m_provider,
                                s_scope, nullptr, QFileDialog::Options(), nullptr, nullptr);
    QCOMPARE(dialogStart(m_script.last().start).folder, QDir::toNativeSeparators(m_dir->path()));
    QCOMPARE(dialogStart(m_script.last().start).fileName, QStringLiteral("new.prt"));
    QCOMPARE(m_provider.calls.first(), QStringLiteral("places of Design"));
}

void FileDialogTest::theShortFormTakesNoOwnerAndAllFiles()
{
    FileDialog::getOpenFileName(s_caption, QString(), &m_provider, s_scope);
    const FileDialogRequest& request = m_script.last();
    QVERIFY(!request.owner);
    QVERIFY(!request.configuration);
    QCOMPARE(filterTypes(request.filter), QStringList(QStringLiteral("All Files (*.*)")));
    QCOMPARE(Testing::filtersOf(request).patterns, QStringList(QStringLiteral("*.*")));
}

void FileDialogTest::openPreselectsAFilter()
{
    QString selected = s_tables;
    FileDialog::getOpenFileName(s_caption, QString(), s_filter, &m_provider, s_scope, &selected,
                                QFileDialog::Options(), nullptr, nullptr);
    QCOMPARE(Testing::filtersOf(m_script.last()).preselectedPattern, QStringLiteral("*.csv"));
}

void FileDialogTest::openDoesNotWriteTheFilterBack()
{
    QString selected = QStringLiteral("none of them");
    m_script.answer({path(QStringLiteral("a.prt"))});
    FileDialog::getOpenFileName(s_caption, QString(), s_filter, &m_provider, s_scope, &selected,
                                QFileDialog::Options(), nullptr, nullptr);
    QCOMPARE(selected, QStringLiteral("none of them"));
}

void FileDialogTest::openGivesNativeSeparators()
{
    m_script.answer({QStringLiteral("C:/parts/a.prt")});
    const QString expected = QDir::toNativeSeparators(QStringLiteral("C:/parts/a.prt"));
    QCOMPARE(FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope), expected);
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Design to '%1'").arg(expected));
}

void FileDialogTest::openSeveralGivesAllChosenInOrder()
{
    FileDialogConfiguration configuration;
    QWidget parent;
    const QStringList chosen{QStringLiteral("C:/b.prt"), QStringLiteral("C:\\a.prt")};
    m_script.answer(chosen);
    QCOMPARE(FileDialog::getOpenFileNames(s_caption, s_filter, &m_provider, s_scope, &configuration,
                                          &parent),
             chosen);
    QVERIFY((m_script.last().purpose == FileDialogPurpose::OpenFiles));
    QCOMPARE(m_script.last().configuration, &configuration);
    QCOMPARE(m_script.last().owner.data(), &parent);
    QCOMPARE(m_provider.calls.last(),
             QStringLiteral("set Design to '%1'").arg(QDir::toNativeSeparators(chosen.first())));
}

void FileDialogTest::openSeveralCancelledTellsTheProviderNothing()
{
    QCOMPARE(FileDialog::getOpenFileNames(s_caption, s_filter, &m_provider, s_scope),
             QStringList());
    QCOMPARE(m_provider.calls.last(), QStringLiteral("places of Design"));
}

void FileDialogTest::namesComeThrough_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quotes") << QStringLiteral("12\" blank's.prt");
    QTest::newRow("semicolons") << QStringLiteral("a;b;;c.prt");
    QTest::newRow("brackets") << QStringLiteral("part (1) [new].prt");
    QTest::newRow("several dots") << QStringLiteral("tool.v1.2.final.prt");
    QTest::newRow("blanks at the end") << QStringLiteral("part.prt  ");
    QTest::newRow("percent") << QStringLiteral("100%1.prt");
    QTest::newRow("Japanese") << QString::fromUtf8("金型.prt");
    QTest::newRow("255 bytes") << QString(251, QLatin1Char('n')) + QStringLiteral(".prt");
}

void FileDialogTest::namesComeThrough()
{
    QFETCH(QString, name);
    m_provider.path = path(name);
    m_script.answer({path(name)});
    QCOMPARE(FileDialog::getOpenFileName(name, s_filter, &m_provider, s_scope), path(name));
    QCOMPARE(m_script.last().caption, name);
    QCOMPARE(dialogStart(m_script.last().start).fileName, name);
    QCOMPARE(m_provider.calls.last(),
             QStringLiteral("set Design to '") + path(name) + QLatin1Char('\''));
}

void FileDialogTest::cancel_givesNothingToTheProvider()
{
    m_script.results.push_back(FileDialogResult::cancelled());
    QCOMPARE(FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope), QString());
    QCOMPARE(m_provider.calls.last(), QStringLiteral("set Design to ''"));
}

void FileDialogTest::ownerIsTheParent()
{
    QWidget window;
    const MainWindowProperty property(&window);
    QWidget parent;
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &parent);
    QCOMPARE(m_script.last().owner.data(), &parent);
}

void FileDialogTest::ownerIsTheMainWindow()
{
    QWidget window;
    const MainWindowProperty property(&window);
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QCOMPARE(m_script.last().owner.data(), &window);
}

void FileDialogTest::aMainWindowThatIsNoWidgetIsNoOwner()
{
    const MainWindowProperty property(QVariant(QStringLiteral("no widget")));
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QVERIFY(!m_script.last().owner);
}

void FileDialogTest::ownerIsBlockedUpToTheMainWindow()
{
    QWidget window;
    QWidget editor(&window);
    QWidget panel(&editor);
    QWidget field(&panel);
    QWidget beside(&window);
    const MainWindowProperty property(&window);
    m_script.whileOpen = [&](const FileDialogRequest&) {
        QVERIFY(!panel.isEnabled());
        QVERIFY(!editor.isEnabled());
        QVERIFY(window.isEnabled());
        QVERIFY(beside.isEnabled());
        // Only by its parent.
        QVERIFY(!field.testAttribute(Qt::WA_ForceDisabled));
    };
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &panel);
    for (QWidget* widget : {&window, &editor, &panel, &field, &beside})
        QVERIFY(widget->isEnabled());
    for (QWidget* widget : {&editor, &panel})
        QVERIFY(!widget->testAttribute(Qt::WA_ForceDisabled));
}

void FileDialogTest::mainWindowItselfStaysEnabled()
{
    QWidget window;
    const MainWindowProperty property(&window);
    m_script.whileOpen = [&](const FileDialogRequest&) { QVERIFY(window.isEnabled()); };
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QCOMPARE(m_script.requests.size(), std::size_t(1));
}

void FileDialogTest::disabledWidgetsStayDisabled()
{
    QWidget window;
    QWidget editor(&window);
    QWidget panel(&editor);
    const MainWindowProperty property(&window);
    panel.setEnabled(false);
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &panel);
    QVERIFY(!panel.isEnabled());
    QVERIFY(editor.isEnabled());
}

void FileDialogTest::withoutMainWindowAllAreBlocked()
{
    QWidget window;
    QWidget panel(&window);
    m_script.whileOpen = [&](const FileDialogRequest&) {
        QVERIFY(!window.isEnabled());
        QVERIFY(!panel.isEnabled());
    };
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &panel);
    QVERIFY(window.isEnabled());
    QVERIFY(panel.isEnabled());
}

void FileDialogTest::blockEndsWithAnException()
{
    QWidget window;
    QWidget panel(&window);
    m_script.whileOpen = [](const FileDialogRequest&) {
        throw std::runtime_error("the driver gives up");
    };
    QVERIFY_EXCEPTION_THROWN(
        FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &panel),
        std::runtime_error);
    QVERIFY(window.isEnabled());
    QVERIFY(panel.isEnabled());
}

void FileDialogTest::blockThatFailsHalfwayEnds_data()
{
    QTest::addColumn<QEvent::Type>("failing");
    QTest::newRow("the main window, told of the dialog") << QEvent::ApplicationDeactivate;
    QTest::newRow("a widget, as it is disabled") << QEvent::EnabledChange;
}

void FileDialogTest::blockThatFailsHalfwayEnds()
{
    struct Failing : QWidget
    {
        QEvent::Type failing = QEvent::None;

        bool event(QEvent* event) override
        {
            if (event->type() != failing)
                return QWidget::event(event);
            failing = QEvent::None;
            throw std::runtime_error("the window gives up");
        }
    };
    QFETCH(QEvent::Type, failing);
    Failing window;
    window.failing = failing;
    QWidget panel(&window);
    // Only what lies below the main window is disabled.
    const MainWindowProperty property(failing == QEvent::EnabledChange ? nullptr : &window);
    QVERIFY_EXCEPTION_THROWN(
        FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &panel),
        std::runtime_error);
    QVERIFY(window.isEnabled());
    QVERIFY(panel.isEnabled());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void FileDialogTest::blockEndsWithTheOwner()
{
    QWidget window;
    QWidget editor(&window);
    auto* panel = new QWidget(&editor);
    const MainWindowProperty property(&window);
    m_script.whileOpen = [panel](const FileDialogRequest&) { delete panel; };
    QCOMPARE(FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, panel),
             QString());
    QVERIFY(editor.isEnabled());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void FileDialogTest::ownerThatGoesAtTheBlockCancels_data()
{
    QTest::addColumn<QEvent::Type>("event");
    QTest::newRow("the main window, told of the dialog") << QEvent::ApplicationDeactivate;
    QTest::newRow("a widget on the way, as it is disabled") << QEvent::EnabledChange;
}

void FileDialogTest::ownerThatGoesAtTheBlockCancels()
{
    struct Tidying : QWidget
    {
        using QWidget::QWidget;

        QEvent::Type at = QEvent::None;
        QPointer<QWidget> doomed;

        bool event(QEvent* event) override
        {
            if (event->type() == at)
                delete doomed;
            return QWidget::event(event);
        }
    };
    QFETCH(QEvent::Type, event);
    Tidying window;
    Tidying editor(&window);
    const QPointer<QWidget> panel = new QWidget(&editor);
    const MainWindowProperty property(&window);
    for (Tidying* widget : {&window, &editor}) {
        widget->at = event;
        widget->doomed = panel;
    }
    m_script.answer({path(QStringLiteral("a.prt"))});
    QCOMPARE(FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, panel),
             QString());
    QVERIFY(!panel);
    QVERIFY(m_script.requests.empty());
    QVERIFY(editor.isEnabled());
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void FileDialogTest::mainWindowIsTold()
{
    QWidget window;
    QWidget editor(&window);
    const MainWindowProperty property(&window);
    EventCounter deactivations(window, 122);
    EventCounter others(editor, 122);
    m_script.whileOpen = [&](const FileDialogRequest&) { QCOMPARE(deactivations.count, 1); };
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope, nullptr, &editor);
    QCOMPARE(deactivations.count, 1);
    QCOMPARE(others.count, 0);
}

void FileDialogTest::counterCounts_data()
{
    using Ask = std::function<void(PathProvider*)>;
    QTest::addColumn<Ask>("ask");
    const auto row = [](const char* name, Ask ask) { QTest::newRow(name) << std::move(ask); };
    row("open", [](PathProvider* provider) {
        FileDialog::getOpenFileName(s_caption, s_filter, provider, s_scope);
    });
    row("open, long form", [](PathProvider* provider) {
        FileDialog::getOpenFileName(s_caption, QString(), s_filter, provider, s_scope, nullptr,
                                    QFileDialog::Options(), nullptr, nullptr);
    });
    row("open several", [](PathProvider* provider) {
        FileDialog::getOpenFileNames(s_caption, s_filter, provider, s_scope);
    });
    row("save", [](PathProvider* provider) {
        FileDialog::getSaveFileName(s_caption, s_filter, provider, s_scope, QString());
    });
    row("save in a folder", [](PathProvider* provider) {
        FileDialog::getSaveFileNameInDir(s_caption, s_filter, QString(), provider, s_scope,
                                         QString(), QString());
    });
}

void FileDialogTest::counterCounts()
{
    QFETCH(std::function<void(PathProvider*)>, ask);
    int counted = 0;
    m_script.whileOpen = [&counted](const FileDialogRequest&) {
        counted = FileDialog::getOpenDialogsCount();
    };
    ask(&m_provider);
    QCOMPARE(counted, 1);
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void FileDialogTest::counterCountsNestedDialogs()
{
    int counted = 0;
    m_script.whileOpen = [&](const FileDialogRequest&) {
        m_script.whileOpen = [&counted](const FileDialogRequest&) {
            counted = FileDialog::getOpenDialogsCount();
        };
        FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, s_scope, QString());
        QCOMPARE(FileDialog::getOpenDialogsCount(), 1);
    };
    FileDialog::getOpenFileName(s_caption, s_filter, &m_provider, s_scope);
    QCOMPARE(counted, 2);
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

void FileDialogTest::anExceptionLeavesTheCounterAtZero()
{
    m_script.whileOpen = [](const FileDialogRequest&) {
        throw std::runtime_error("the driver gives up");
    };
    QVERIFY_EXCEPTION_THROWN(
        FileDialog::getSaveFileName(s_caption, s_filter, &m_provider, s_scope, QString()),
        std::runtime_error);
    QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
}

ZORVANE_TEST(FileDialogTest)
#include "FileDialogTest.moc"
