#include "Host/Widgets/ZVConverterDialog.h"

#include "Tests/Support/CapitalTexts.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtGui/QClipboard>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

using namespace Zorvane;

namespace {

QPushButton* button(const ZVConverterDialog& window, const char* text)
{
    for (QPushButton* found : window.findChildren<QPushButton*>())
        if (found->text() == QLatin1String(text))
            return found;
    return nullptr;
}

QPlainTextEdit* log(const ZVConverterDialog& window)
{
    return window.findChild<QPlainTextEdit*>();
}

void choosePaths(ZVConverterDialog& window)
{
    window.setInputFile(QStringLiteral("meshes/die.stl"));
    window.setOutputDirectory(QStringLiteral("out"));
}

/** Whether a label of the window shows the text of its status. */
QString shownStatus(const ZVConverterDialog& window)
{
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->text() == window.statusText())
            return label->text();
    return {};
}

/** Counts how often a widget is painted. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

} // namespace

class ZVConverterDialogTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newWindowIsIdle();
    void buttonsTellWhatWasClicked_data();
    void buttonsTellWhatWasClicked();
    void convertNeedsBothPaths();
    void pathsAreShownAsTheSystemWritesThem();
    void settingPathsTellsNobody();
    void eachStatusHasItsText_data();
    void eachStatusHasItsText();
    void descriptionIsPlainText();
    void logKeepsMessagesInOrder();
    void logIsPlainText();
    void logFollowsItsEndUnlessScrolledUp();
    void logCanBeSelectedAndCopied();
    void copyNeedsALog();
    void enterConverts();
    void escapeAndCloseButtonClose_data();
    void escapeAndCloseButtonClose();
    void whileConvertingNothingCanBeStartedOrClosed();
    void focusComesBackAfterConverting();
    void firstEnter_choosesTheInput();
    void manyMessages_arePaintedNowAndThenAndAtTheEnd();
    void changedLanguage_changesTheTexts();
};

void ZVConverterDialogTest::newWindowIsIdle()
{
    const ZVConverterDialog window;
    QCOMPARE(window.status(), ZVConverterDialog::StatusIdle);
    QCOMPARE(window.statusText(), QStringLiteral("Choose the file to convert."));
    QVERIFY(window.inputFile().isEmpty());
    QVERIFY(window.outputDirectory().isEmpty());
    QVERIFY(window.logText().isEmpty());
    QVERIFY(!window.isConverting());
    QVERIFY(!window.isModal());
}

void ZVConverterDialogTest::buttonsTellWhatWasClicked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("input") << QStringLiteral("Choose &File...")
                           << QByteArray(SIGNAL(inputWasClicked()));
    QTest::newRow("output") << QStringLiteral("Choose F&older...")
                            << QByteArray(SIGNAL(outputWasClicked()));
    QTest::newRow("convert") << QStringLiteral("&Convert")
                             << QByteArray(SIGNAL(convertWasClicked()));
}

void ZVConverterDialogTest::buttonsTellWhatWasClicked()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, signal);
    ZVConverterDialog window;
    choosePaths(window);
    QSignalSpy spy(&window, signal.constData());
    QSignalSpy converts(&window, &ZVConverterDialog::convertWasClicked);
    QTest::mouseClick(button(window, text.toLatin1().constData()), Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(converts.size(), text == QStringLiteral("&Convert") ? 1 : 0);
}

void ZVConverterDialogTest::convertNeedsBothPaths()
{
    ZVConverterDialog window;
    QVERIFY(!button(window, "&Convert")->isEnabled());
    window.setInputFile(QStringLiteral("die.stl"));
    QVERIFY(!button(window, "&Convert")->isEnabled());
    QCOMPARE(window.statusText(), QStringLiteral("Choose the folder for the output."));
    window.setOutputDirectory(QStringLiteral("out"));
    QVERIFY(button(window, "&Convert")->isEnabled());
    QCOMPARE(window.statusText(), QStringLiteral("Ready to convert."));
    window.setInputFile(QString());
    QVERIFY(!button(window, "&Convert")->isEnabled());
}

void ZVConverterDialogTest::pathsAreShownAsTheSystemWritesThem()
{
    ZVConverterDialog window;
    choosePaths(window);
    const QList<QLineEdit*> fields = window.findChildren<QLineEdit*>();
    QCOMPARE(fields.size(), 2);
    QCOMPARE(fields[0]->text(), QDir::toNativeSeparators(QStringLiteral("meshes/die.stl")));
    QCOMPARE(fields[1]->text(), QStringLiteral("out"));
    QVERIFY(fields[0]->isReadOnly() && fields[1]->isReadOnly());
    QCOMPARE(window.inputFile(), QStringLiteral("meshes/die.stl"));
    QCOMPARE(window.outputDirectory(), QStringLiteral("out"));
}

void ZVConverterDialogTest::settingPathsTellsNobody()
{
    ZVConverterDialog window;
    QSignalSpy input(&window, &ZVConverterDialog::inputWasClicked);
    QSignalSpy output(&window, &ZVConverterDialog::outputWasClicked);
    choosePaths(window);
    QVERIFY(input.isEmpty());
    QVERIFY(output.isEmpty());
}

void ZVConverterDialogTest::eachStatusHasItsText_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    QTest::newRow("idle") << 0 << QStringLiteral("Ready to convert.");
    QTest::newRow("succeeded") << 1 << QStringLiteral("The file was converted.");
    QTest::newRow("input failed") << 2 << QStringLiteral("The input file could not be converted.");
    QTest::newRow("output failed") << 3 << QStringLiteral("The output could not be written.");
}

void ZVConverterDialogTest::eachStatusHasItsText()
{
    QFETCH(int, status);
    QFETCH(QString, text);
    ZVConverterDialog window;
    choosePaths(window);
    window.setStatus(ZVConverterDialog::Status(status));
    QCOMPARE(int(window.status()), status);
    QCOMPARE(window.statusText(), text);
}

void ZVConverterDialogTest::descriptionIsPlainText()
{
    ZVConverterDialog window;
    const auto* label = window.findChild<QLabel*>();
    QVERIFY(label->isHidden());
    window.setDescription(QStringLiteral("<b>Converts</b> files."));
    QCOMPARE(window.description(), QStringLiteral("<b>Converts</b> files."));
    QVERIFY(!label->isHidden());
    QCOMPARE(label->textFormat(), Qt::PlainText);
    window.setDescription(QString());
    QVERIFY(label->isHidden());
}

void ZVConverterDialogTest::logKeepsMessagesInOrder()
{
    ZVConverterDialog window;
    window.addLogMessage(QStringLiteral("first"));
    window.addLogMessage(QStringLiteral("second\nthird"));
    QCOMPARE(window.logText(), QStringLiteral("first\nsecond\nthird"));
    window.clearLog();
    QVERIFY(window.logText().isEmpty());
}

void ZVConverterDialogTest::logIsPlainText()
{
    ZVConverterDialog window;
    window.addLogMessage(QStringLiteral("<b>R&amp;D</b>"));
    QCOMPARE(window.logText(), QStringLiteral("<b>R&amp;D</b>"));
}

void ZVConverterDialogTest::logFollowsItsEndUnlessScrolledUp()
{
    ZVConverterDialog window;
    window.show();
    QScrollBar* bar = log(window)->verticalScrollBar();
    for (int line = 0; line < 200; ++line)
        window.addLogMessage(QString::number(line));
    QTRY_COMPARE(bar->value(), bar->maximum());
    bar->setValue(5);
    window.addLogMessage(QStringLiteral("more"));
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), 5);
}

void ZVConverterDialogTest::logCanBeSelectedAndCopied()
{
    ZVConverterDialog window;
    window.addLogMessage(QStringLiteral("first"));
    window.addLogMessage(QStringLiteral("second"));
    window.show();
    log(window)->setFocus();
    QTest::keyClick(log(window), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(log(window), Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClick(log(window), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("first"));
    QTest::mouseClick(button(window, "Copy &Log"), Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("first\nsecond"));
    QTest::keyClicks(log(window), QStringLiteral("x"));
    QCOMPARE(window.logText(), QStringLiteral("first\nsecond"));
}

void ZVConverterDialogTest::copyNeedsALog()
{
    ZVConverterDialog window;
    QVERIFY(!button(window, "Copy &Log")->isEnabled());
    window.addLogMessage(QStringLiteral("first"));
    QVERIFY(button(window, "Copy &Log")->isEnabled());
    window.clearLog();
    QVERIFY(!button(window, "Copy &Log")->isEnabled());
}

void ZVConverterDialogTest::enterConverts()
{
    ZVConverterDialog window;
    QSignalSpy converts(&window, &ZVConverterDialog::convertWasClicked);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window, Testing::patience));
    log(window)->setFocus();
    QTest::keyClick(log(window), Qt::Key_Return);
    QVERIFY(converts.isEmpty());
    choosePaths(window);
    QTest::keyClick(log(window), Qt::Key_Return);
    QCOMPARE(converts.size(), 1);
    QVERIFY(window.isVisible());
}

void ZVConverterDialogTest::escapeAndCloseButtonClose_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Escape") << true;
    QTest::newRow("Close") << false;
}

void ZVConverterDialogTest::escapeAndCloseButtonClose()
{
    QFETCH(bool, escape);
    ZVConverterDialog window;
    choosePaths(window);
    window.show();
    if (escape)
        QTest::keyClick(&window, Qt::Key_Escape);
    else
        QTest::mouseClick(button(window, "Close"), Qt::LeftButton);
    QVERIFY(!window.isVisible());
    // What was chosen is there when it is shown again.
    QCOMPARE(window.outputDirectory(), QStringLiteral("out"));
}

void ZVConverterDialogTest::whileConvertingNothingCanBeStartedOrClosed()
{
    ZVConverterDialog window;
    choosePaths(window);
    window.show();
    window.setConverting(true);
    QCOMPARE(window.statusText(), QStringLiteral("Converting..."));
    for (const char* text : {"Choose &File...", "Choose F&older...", "&Convert", "Close"})
        QVERIFY2(!button(window, text)->isEnabled(), text);
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.close());
    QVERIFY(window.isVisible());
    QVERIFY(window.isEnabled());
    window.addLogMessage(QStringLiteral("reading"));
    QCOMPARE(window.logText(), QStringLiteral("reading"));
    window.setConverting(false);
    QVERIFY(button(window, "&Convert")->isEnabled());
    QVERIFY(window.close());
}

void ZVConverterDialogTest::focusComesBackAfterConverting()
{
    ZVConverterDialog window;
    choosePaths(window);
    window.show();
    button(window, "&Convert")->setFocus();
    window.setConverting(true);
    window.setConverting(false);
    QCOMPARE(window.focusWidget(), button(window, "&Convert"));
}

void ZVConverterDialogTest::firstEnter_choosesTheInput()
{
    ZVConverterDialog window;
    const QSignalSpy input(&window, &ZVConverterDialog::inputWasClicked);
    window.show();
    QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Return);
    QCOMPARE(input.size(), 1);
}

void ZVConverterDialogTest::manyMessages_arePaintedNowAndThenAndAtTheEnd()
{
    ZVConverterDialog window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, Testing::patience));
    PaintCounter paints(log(window)->viewport());
    window.setConverting(true);
    const int before = paints.count;
    QElapsedTimer time;
    time.start();
    for (int line = 0; line < 8000; ++line)
        window.addLogMessage(QStringLiteral("triangle %1").arg(line));
    QVERIFY(paints.count > before);
    QVERIFY(paints.count - before <= 1 + time.elapsed() / 50);

    const int atTheEnd = paints.count;
    window.setConverting(false);
    QVERIFY(paints.count > atTheEnd);
    QVERIFY(window.logText().endsWith(QStringLiteral("triangle 7999")));
}

void ZVConverterDialogTest::changedLanguage_changesTheTexts()
{
    ZVConverterDialog window;
    choosePaths(window);
    window.show();
    {
        Testing::CapitalTexts language;
        QVERIFY(QCoreApplication::installTranslator(&language));
        QCoreApplication::processEvents();
        QVERIFY(button(window, "&CONVERT"));
        QCOMPARE(window.findChildren<QLineEdit*>()[0]->accessibleName(),
                 QStringLiteral("INPUT FILE"));
        QCOMPARE(shownStatus(window), QStringLiteral("READY TO CONVERT."));
    }
    QCoreApplication::processEvents();
    QVERIFY(button(window, "&Convert"));
    QCOMPARE(shownStatus(window), QStringLiteral("Ready to convert."));
}

ZORVANE_TEST(ZVConverterDialogTest)
#include "ZVConverterDialogTest.moc"
