#include "Host/System/CommandLineParser.h"

#include "Tests/Support/TestCase.h"

using Zorvane::CommandLineParser;

namespace {

const QString s_alternative = QStringLiteral("alternativeFileDialog");

bool wasGiven(const char* arguments)
{
    CommandLineParser::instance()->parse(QString::fromLatin1(arguments).split(QLatin1Char(' ')));
    return CommandLineParser::instance()->optionWasSpecified(s_alternative);
}

} // namespace

class CommandLineParserTest : public Zorvane::Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheApplicationsArguments();
    void thereIsOne();
    void optionsAreFound_data();
    void optionsAreFound();
    void undeclaredOptionIsNot();
    void wrongArgumentHidesNoOther();
    void programAddsOptions();
};

void CommandLineParserTest::readsTheApplicationsArguments()
{
    // Nobody has read them before this test function, which is the first.
    QVERIFY(CommandLineParser::instance()->optionWasSpecified(s_alternative));
}

void CommandLineParserTest::thereIsOne()
{
    QCOMPARE(CommandLineParser::instance(), CommandLineParser::instance());
}

void CommandLineParserTest::optionsAreFound_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("isGiven");
    QTest::newRow("none") << QStringLiteral("program") << false;
    QTest::newRow("two dashes") << QStringLiteral("program --alternativeFileDialog") << true;
    QTest::newRow("one dash") << QStringLiteral("program -alternativeFileDialog") << true;
    QTest::newRow("among files") << QStringLiteral("program a --alternativeFileDialog b") << true;
    QTest::newRow("no dash") << QStringLiteral("program alternativeFileDialog") << false;
    QTest::newRow("another case") << QStringLiteral("program --alternativefiledialog") << false;
    QTest::newRow("behind the end of options")
        << QStringLiteral("program -- --alternativeFileDialog") << false;
}

void CommandLineParserTest::optionsAreFound()
{
    QFETCH(QString, arguments);
    QTEST(wasGiven(qPrintable(arguments)), "isGiven");
}

void CommandLineParserTest::undeclaredOptionIsNot()
{
    QVERIFY(!CommandLineParser::instance()->parse(
        {QStringLiteral("program"), QStringLiteral("--undeclared")}));
    QVERIFY(!CommandLineParser::instance()->optionWasSpecified(QStringLiteral("undeclared")));
}

void CommandLineParserTest::wrongArgumentHidesNoOther()
{
    QVERIFY(wasGiven("program --undeclared --alternativeFileDialog"));
}

void CommandLineParserTest::programAddsOptions()
{
    CommandLineParser& parser = *CommandLineParser::instance();
    parser.options().addOption(
        QCommandLineOption(QStringLiteral("folder"), QString(), QStringLiteral("path")));
    parser.parse(
        {QStringLiteral("program"), QStringLiteral("--folder=parts"), QStringLiteral("a.dsg")});
    QVERIFY(parser.optionWasSpecified(QStringLiteral("folder")));
    QCOMPARE(parser.options().value(QStringLiteral("folder")), QStringLiteral("parts"));
    QCOMPARE(parser.options().positionalArguments(), QStringList(QStringLiteral("a.dsg")));
}

static int runWithOption(int argc, char** argv)
{
    Zorvane::Testing::prepareApplication();
    char option[] = "--alternativeFileDialog";
    char* arguments[] = {argv[0], option, nullptr};
    int count = 2;
    const QApplication application(count, arguments);
    CommandLineParserTest test;
    return QTest::qExec(&test, argc, argv);
}

ZORVANE_TEST_RUN_BY(CommandLineParserTest, &runWithOption)
#include "CommandLineParserTest.moc"
