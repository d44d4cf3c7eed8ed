#include "Dialogs/FileConverterDialog.h"

#include "Dialogs/FileConverterConfigurationInterface.h"
#include "FileDialogs/FileDialogDriver.h"
#include "Files/LastPathProvider.h"
#include "Host/Widgets/ZVConverterDialog.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>
#include <new>
#include <stdexcept>

using namespace Zorvane;

namespace {

/** Keeps what choosers tell and ask, without a word to the settings. */
class ScriptedPaths : public LastPathProvider
{
public:
    QString getPathFromScope(const QString& scope) override
    {
        m_scopes.append(scope);
        return m_path;
    }
    void setPathToScope(const QString& path, const QString&) override { m_path = path; }

    const QStringList& scopes() const { return m_scopes; }
    void setPath(const QString& path) { m_path = path; }

private:
    QString m_path;
    QStringList m_scopes;
};

class ScriptedConversion : public FileConverterConfigurationInterface
{
public:
    using Operation =
        std::function<int(const FileName&, const FileName&, FileConverterLogInterface&)>;

    void getInputFileDialogSettings(QString& caption, QString& filter, QString& pathKey) override
    {
        caption = QStringLiteral("Choose a Mesh");
        filter = QStringLiteral("Meshes (*.stl)");
        pathKey = QStringLiteral("ConvertInput");
    }
    void getOutputDirectoryDialogSettings(QString& caption, QString& pathKey) override
    {
        caption = QStringLiteral("Choose a Folder");
        pathKey = QStringLiteral("ConvertOutput");
    }
    PathProvider* getPathProvider() override { return &paths; }
    int convert(const FileName& input, const FileName& output,
                FileConverterLogInterface& log) override
    {
        return operation(input, output, log);
    }

    ScriptedPaths paths;
    Operation operation = [](const FileName&, const FileName&, FileConverterLogInterface&) {
        return 0;
    };
};

/** Stands in for the system's dialog and gives one answer. */
class ScriptedChooser : public FileDialogDriver
{
public:
    ScriptedChooser(FileDialogRequest& seen, QStringList answer)
        : m_seen(seen)
        , m_answer(std::move(answer))
    {}

    FileDialogResult run(const FileDialogRequest& request) override
    {
        m_seen = request;
        return m_answer.isEmpty() ? FileDialogResult::cancelled()
                                  : FileDialogResult::accepted(m_answer);
    }

private:
    FileDialogRequest& m_seen;
    QStringList m_answer;
};

} // namespace

class FileConverterDialogTest : public Testing::TestCase
{
    Q_OBJECT

private:
    void chooseInput(const QString& file);
    void chooseOutput(const QString& folder);
    void chooseBoth();
    QString file() const { return m_folder.filePath(QStringLiteral("die.stl")); }
    QString folder() const { return m_folder.filePath(QStringLiteral("out")); }

    const QTemporaryDir m_folder;
    FileDialogRequest m_request;
    ScriptedConversion m_conversion;
    std::unique_ptr<QWidget> m_parent;
    std::unique_ptr<FileConverterDialog> m_dialog;
    ZVConverterDialog* m_window = nullptr;

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void windowIsSetUpAndHidden();
    void runShowsTheWindowWithoutBlocking();
    void windowGoesWithTheDialog();
    void parentMayGoFirst();
    void inputIsChosenAsConfigured();
    void outputIsChosenAsConfigured();
    void choosingClearsStatusAndLog();
    void cancelledChoiceEmptiesTheField();
    void lastPathsAreTheUsualProvider();
    void conversionGetsBothNames();
    void resultsBecomeStatuses_data();
    void resultsBecomeStatuses();
    void messagesComeInOrderWhileConverting();
    void messagesMayComeOutsideOfAConversion();
    void convertingClearsTheEarlierLog();
    void waitCursorLastsAsLongAsTheConversion();
    void exceptionsAreToldAndTheCursorComesBack_data();
    void exceptionsAreToldAndTheCursorComesBack();
    void conversionCannotBeStartedTwice();
    void windowDeletedByTheConversionIsSurvived();
    void dialogDeletedByTheConversionIsSurvived_data();
    void dialogDeletedByTheConversionIsSurvived();
};

void FileConverterDialogTest::initTestCase()
{
    TestCase::initTestCase();
    // The folder is always chosen in Qt's own dialog, which the tests can drive.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(QDir().mkpath(folder()));
    QFile mesh(file());
    QVERIFY(mesh.open(QIODevice::WriteOnly));
}

void FileConverterDialogTest::init()
{
    m_conversion = ScriptedConversion();
    m_parent = std::make_unique<QWidget>();
    m_dialog =
        std::make_unique<FileConverterDialog>(&m_conversion, QStringLiteral("Convert Meshes"),
                                              QStringLiteral("Converts."), m_parent.get());
    m_window = m_parent->findChild<ZVConverterDialog*>();
    QVERIFY(m_window);
}

void FileConverterDialogTest::cleanup()
{
    m_dialog.reset();
    m_parent.reset();
    TestCase::cleanup();
}

void FileConverterDialogTest::chooseInput(const QString& file)
{
    const QStringList answer = file.isEmpty() ? QStringList() : QStringList(file);
    const NativeFileDialogReplacement chooser(
        [this, answer] { return std::make_unique<ScriptedChooser>(m_request, answer); });
    Q_EMIT m_window->inputWasClicked();
}

void FileConverterDialogTest::chooseOutput(const QString& folder)
{
    Testing::ExpectedModals modals;
    modals.expectDialog<QFileDialog>(
        QStringLiteral("Choose a Folder"), [folder](QFileDialog& chooser) {
            QCOMPARE(chooser.windowTitle(), QStringLiteral("Choose a Folder"));
            if (folder.isEmpty()) {
                chooser.reject();
                return;
            }
            chooser.setDirectory(folder);
            chooser.selectFile(folder);
            static_cast<QDialog&>(chooser).done(QDialog::Accepted);
        });
    Q_EMIT m_window->outputWasClicked();
}

void FileConverterDialogTest::chooseBoth()
{
    chooseInput(file());
    chooseOutput(folder());
}

void FileConverterDialogTest::windowIsSetUpAndHidden()
{
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Convert Meshes"));
    QCOMPARE(m_window->description(), QStringLiteral("Converts."));
    QCOMPARE(m_window->status(), ZVConverterDialog::StatusIdle);
    QVERIFY(!m_window->isVisible());
    QCOMPARE(m_window->parentWidget(), m_parent.get());
}

void FileConverterDialogTest::runShowsTheWindowWithoutBlocking()
{
    m_dialog->run();
    QVERIFY(m_window->isVisible());
    QVERIFY(!m_window->isModal());
    m_dialog->run();
    QVERIFY(m_window->isVisible());
}

void FileConverterDialogTest::windowGoesWithTheDialog()
{
    m_dialog.reset();
    QVERIFY(!m_parent->findChild<ZVConverterDialog*>());
}

void FileConverterDialogTest::parentMayGoFirst()
{
    m_parent.reset();
    m_dialog->run();
    m_dialog->addMessage(QStringLiteral("nobody reads this"));
    m_dialog.reset();
}

void FileConverterDialogTest::inputIsChosenAsConfigured()
{
    m_conversion.paths.setPath(m_folder.path());
    chooseInput(file());
    QCOMPARE(m_request.caption, QStringLiteral("Choose a Mesh"));
    QCOMPARE(QDir::toNativeSeparators(m_request.start), QDir::toNativeSeparators(m_folder.path()));
    QCOMPARE(m_request.owner.data(), m_window);
    QVERIFY(m_request.purpose == FileDialogPurpose::OpenFile);
    QVERIFY(m_conversion.paths.scopes().contains(QStringLiteral("ConvertInput")));
    QCOMPARE(m_window->inputFile(), QDir::toNativeSeparators(file()));
    QVERIFY(m_window->outputDirectory().isEmpty());
}

void FileConverterDialogTest::outputIsChosenAsConfigured()
{
    chooseOutput(folder());
    QCOMPARE(QDir::fromNativeSeparators(m_window->outputDirectory()), folder());
    QVERIFY(m_conversion.paths.scopes().contains(QStringLiteral("ConvertOutput")));
    QVERIFY(m_window->inputFile().isEmpty());
}

void FileConverterDialogTest::choosingClearsStatusAndLog()
{
    for (const bool isInput : {true, false}) {
        chooseBoth();
        Q_EMIT m_window->convertWasClicked();
        m_dialog->addMessage(QStringLiteral("earlier"));
        QCOMPARE(m_window->status(), ZVConverterDialog::StatusSucceeded);
        isInput ? chooseInput(file()) : chooseOutput(folder());
        QCOMPARE(m_window->status(), ZVConverterDialog::StatusIdle);
        QVERIFY(m_window->logText().isEmpty());
    }
}

void FileConverterDialogTest::cancelledChoiceEmptiesTheField()
{
    chooseBoth();
    chooseInput(QString());
    QVERIFY(m_window->inputFile().isEmpty());
    chooseOutput(QString());
    QVERIFY(m_window->outputDirectory().isEmpty());
}

void FileConverterDialogTest::lastPathsAreTheUsualProvider()
{
    QCOMPARE(m_conversion.FileConverterConfigurationInterface::getPathProvider(),
             static_cast<PathProvider*>(LastPathProvider::getInstance()));
}

void FileConverterDialogTest::conversionGetsBothNames()
{
    FileName input;
    FileName output;
    m_conversion.operation = [&](const FileName& from, const FileName& to, auto&) {
        input = from;
        output = to;
        return 0;
    };
    Q_EMIT m_window->convertWasClicked();
    QVERIFY(input.isEmpty());
    QVERIFY(output.isEmpty());
    chooseBoth();
    Q_EMIT m_window->convertWasClicked();
    QCOMPARE(input.toQString(), file());
    QCOMPARE(output.toQString(), folder());
}

void FileConverterDialogTest::resultsBecomeStatuses_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("status");
    QTest::newRow("0 succeeded") << 0 << 1;
    QTest::newRow("1 failed on the input") << 1 << 2;
    QTest::newRow("2 failed on the output") << 2 << 3;
    QTest::newRow("3 is idle") << 3 << 0;
    QTest::newRow("7 is idle") << 7 << 0;
    QTest::newRow("-1 is idle") << -1 << 0;
}

void FileConverterDialogTest::resultsBecomeStatuses()
{
    QFETCH(int, result);
    QFETCH(int, status);
    chooseBoth();
    m_conversion.operation = [result](auto&, auto&, auto&) { return result; };
    Q_EMIT m_window->convertWasClicked();
    QCOMPARE(int(m_window->status()), status);
}

void FileConverterDialogTest::messagesComeInOrderWhileConverting()
{
    chooseBoth();
    m_dialog->run();
    m_conversion.operation = [this](auto&, auto&, FileConverterLogInterface& log) {
        log.addMessage(QStringLiteral("reading"));
        [this] { QCOMPARE(m_window->logText(), QStringLiteral("reading")); }();
        log.addMessage(QStringLiteral("writing"));
        return 0;
    };
    Q_EMIT m_window->convertWasClicked();
    QCOMPARE(m_window->logText(), QStringLiteral("reading\nwriting"));
}

void FileConverterDialogTest::messagesMayComeOutsideOfAConversion()
{
    m_dialog->addMessage(QStringLiteral("hello"));
    QCOMPARE(m_window->logText(), QStringLiteral("hello"));
}

void FileConverterDialogTest::convertingClearsTheEarlierLog()
{
    chooseBoth();
    m_dialog->addMessage(QStringLiteral("earlier"));
    m_window->setStatus(ZVConverterDialog::StatusOutputFailed);
    auto during = ZVConverterDialog::StatusSucceeded;
    m_conversion.operation = [&](auto&, auto&, FileConverterLogInterface& log) {
        during = m_window->status();
        log.addMessage(QStringLiteral("now"));
        return 1;
    };
    Q_EMIT m_window->convertWasClicked();
    QCOMPARE(during, ZVConverterDialog::StatusIdle);
    QCOMPARE(m_window->logText(), QStringLiteral("now"));
}

void FileConverterDialogTest::waitCursorLastsAsLongAsTheConversion()
{
    chooseBoth();
    Qt::CursorShape during = Qt::ArrowCursor;
    m_conversion.operation = [&during](auto&, auto&, auto&) {
        if (QApplication::overrideCursor())
            during = QApplication::overrideCursor()->shape();
        return 0;
    };
    Q_EMIT m_window->convertWasClicked();
    QCOMPARE(during, Qt::WaitCursor);
    QVERIFY(!QApplication::overrideCursor());
}

void FileConverterDialogTest::exceptionsAreToldAndTheCursorComesBack_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("status");
    QTest::newRow("runtime error")
        << 0 << QStringLiteral("The conversion stopped with an error: disk on fire")
        << int(ZVConverterDialog::StatusInputFailed);
    QTest::newRow("no memory is not a bad file")
        << 1 << QStringLiteral("There is not enough memory for the conversion.")
        << int(ZVConverterDialog::StatusIdle);
    QTest::newRow("anything else")
        << 2 << QStringLiteral("The conversion stopped with an unknown error.")
        << int(ZVConverterDialog::StatusInputFailed);
}

void FileConverterDialogTest::exceptionsAreToldAndTheCursorComesBack()
{
    QFETCH(int, kind);
    QFETCH(QString, message);
    QFETCH(int, status);
    chooseBoth();
    m_conversion.operation = [kind](auto&, auto&, FileConverterLogInterface& log) -> int {
        log.addMessage(QStringLiteral("reading"));
        if (kind == 0)
            throw std::runtime_error("disk on fire");
        if (kind == 1)
            throw std::bad_alloc();
        throw kind;
    };
    Q_EMIT m_window->convertWasClicked();
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(!m_window->isConverting());
    QCOMPARE(int(m_window->status()), status);
    QVERIFY(m_window->logText().startsWith(QStringLiteral("reading\n") + message));
}

void FileConverterDialogTest::conversionCannotBeStartedTwice()
{
    chooseBoth();
    m_dialog->run();
    int count = 0;
    m_conversion.operation = [&](auto&, auto&, auto&) {
        ++count;
        for (QPushButton* button : m_window->findChildren<QPushButton*>())
            QTest::mouseClick(button, Qt::LeftButton);
        QTest::keyClick(m_window, Qt::Key_Return);
        QTest::keyClick(m_window, Qt::Key_Escape);
        return 0;
    };
    Q_EMIT m_window->convertWasClicked();
    QCOMPARE(count, 1);
    QVERIFY(m_window->isVisible());
}

void FileConverterDialogTest::windowDeletedByTheConversionIsSurvived()
{
    chooseBoth();
    m_conversion.operation = [this](auto&, auto&, FileConverterLogInterface& log) {
        m_parent.reset();
        log.addMessage(QStringLiteral("nobody reads this"));
        return 0;
    };
    Q_EMIT m_window->convertWasClicked();
    QVERIFY(!QApplication::overrideCursor());
}

void FileConverterDialogTest::dialogDeletedByTheConversionIsSurvived_data()
{
    QTest::addColumn<bool>("throws");
    QTest::newRow("it ends") << false;
    QTest::newRow("it throws") << true;
}

void FileConverterDialogTest::dialogDeletedByTheConversionIsSurvived()
{
    QFETCH(bool, throws);
    chooseBoth();
    m_conversion.operation = [this, throws](auto&, auto&, auto&) {
        m_dialog.reset();
        if (throws)
            throw std::runtime_error("nobody reads this");
        return 0;
    };
    Q_EMIT m_window->convertWasClicked();
    QVERIFY(!QApplication::overrideCursor());
}

ZORVANE_TEST(FileConverterDialogTest)
#include "FileConverterDialogTest.moc"
