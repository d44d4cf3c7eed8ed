#include "Host/Widgets/TextWrapping.h"
#include "Tests/Support/TestCase.h"

#include <QtGui/QFontMetrics>
#include <QtWidgets/QApplication>

using namespace Zorvane;

namespace {

constexpr int s_width = 200;

QStringList wrapped(const QString& text)
{
    return wrapTextToFitWidth(text, QApplication::font(), s_width).split(QLatin1Char('\n'));
}

} // namespace

class TextWrappingTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textThatFitsStaysAsItIs();
    void longTextsFitAndLoseNothing_data();
    void longTextsFitAndLoseNothing();
    void linesAreBrokenBetweenWords();
    void lineEndsOfTheTextStay();
    void narrowWidthHasACharacterALine();
    void charactersOfTwoUnitsStayWhole();
    void noWidthIsNoLimit();
};

void TextWrappingTest::textThatFitsStaysAsItIs()
{
    QCOMPARE(wrapped(QStringLiteral("door.dsg")), {QStringLiteral("door.dsg")});
    QCOMPARE(wrapped(QString()), {QString()});
}

void TextWrappingTest::longTextsFitAndLoseNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one word") << QString(300, QLatin1Char('m'));
    QTest::newRow("words") << QStringLiteral("outer panel of the left door ").repeated(20);
    QTest::newRow("a name") << QStringLiteral("outer_panel-of-the.left.door").repeated(20);
    QTest::newRow("no spaces between words") << QString::fromUtf8("板材成形").repeated(40);
}

void TextWrappingTest::longTextsFitAndLoseNothing()
{
    QFETCH(QString, text);
    const QStringList lines = wrapped(text);
    QVERIFY(lines.size() > 1);
    const QFontMetrics metrics(QApplication::font());
    for (const QString& line : lines)
        QVERIFY2(metrics.horizontalAdvance(line.trimmed()) <= s_width, qPrintable(line));
    QCOMPARE(lines.join(QString()), text);
}

void TextWrappingTest::linesAreBrokenBetweenWords()
{
    for (const QString& line : wrapped(QStringLiteral("left ").repeated(60)))
        QVERIFY(line.isEmpty() || line.endsWith(QStringLiteral("left ")));
}

void TextWrappingTest::lineEndsOfTheTextStay()
{
    QCOMPARE(wrapped(QStringLiteral("left\n\nright\n")),
             QStringList({QStringLiteral("left"), QString(), QStringLiteral("right"), QString()}));
}

void TextWrappingTest::narrowWidthHasACharacterALine()
{
    QCOMPARE(wrapTextToFitWidth(QStringLiteral("door"), QApplication::font(), 1),
             QStringLiteral("d\no\no\nr"));
}

void TextWrappingTest::charactersOfTwoUnitsStayWhole()
{
    const QString wheel = QString::fromUtf8("🛞");
    QCOMPARE(wrapTextToFitWidth(wheel.repeated(3), QApplication::font(), 1),
             QStringList({wheel, wheel, wheel}).join(QLatin1Char('\n')));
}

void TextWrappingTest::noWidthIsNoLimit()
{
    const QString text(300, QLatin1Char('m'));
    QCOMPARE(wrapTextToFitWidth(text, QApplication::font(), 0), text);
    QCOMPARE(wrapTextToFitWidth(text, QApplication::font(), -1), text);
}

ZORVANE_TEST(TextWrappingTest)
#include "TextWrappingTest.moc"
