#include "Dialogs/SaveMessage.h"
#include "Tests/Dialogs/SaveRules.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QSet>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>

using namespace Zorvane;
using Testing::SaveCase;

namespace {

const QString s_name = QStringLiteral("door outer.dsg");

SaveState designStateOf(const SaveCase& given)
{
    SaveState state;
    state.isModified = given.isModified;
    state.isJobRunning = given.isRunning;
    state.hasResults = given.hasResults;
    state.isCurrentVersion = !given.isOldVersion;
    state.hasEvaluationDataChanged = given.isEvaluationChanged;
    state.areResultsOutdated = given.isInputChanged;
    state.areResultsLostByConversion = given.isLostByConversion;
    return state;
}

SaveMessage messageFor(const SaveCase& given, const QString& name = s_name)
{
    return saveMessageFor(designStateOf(given), given.action, {given.isNew, name});
}

QString plainText(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText();
}

SaveCase closing()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionClose;
    return given;
}

} // namespace

class SaveMessageTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCaseReadsAsTheRulesSay();
    void rulesReachEveryFactText();
    void savingSaysNothingOfUnsavedChanges();
    void refusedStartTellsOnlyThat();
    void startTellsThatResultsGo();
    void closedNewDesignGoesToANewFile();
    void headlineStandsAlsoWithoutPoints();
    void runningDesignIsClosedWithoutAQuestion();
    void newerEvaluationDataOfAnOldDesignIsAskedAboutEvenWhileRunning();
    void designWithoutFileHasAnEmptyName();
    void longNamesAreBroken();
    void namesAreNoMarkUp_data();
    void namesAreNoMarkUp();
};

void SaveMessageTest::everyCaseReadsAsTheRulesSay()
{
    Testing::forEveryCase([](const SaveCase& given) {
        QCOMPARE(given.name() + messageFor(given).toHtml(),
                 given.name() + Testing::SaveRules::html(given, s_name));
    });
}

/** Else the enumeration could leave out a text. */
void SaveMessageTest::rulesReachEveryFactText()
{
    QSet<QString> letters;
    QSet<int> facts;
    Testing::forEveryDesign([&](const SaveCase& given) {
        letters.insert(Testing::SaveRules::facts(given));
        facts.insert(messageFor(given).facts);
    });
    QCOMPARE(letters.size(), 16);
    QCOMPARE(facts.size(), 16);
}

void SaveMessageTest::savingSaysNothingOfUnsavedChanges()
{
    SaveCase given;
    given.isModified = true;
    QCOMPARE(messageFor(given).facts, 0);
    given.action = ZVSaveDialog::ActionStart;
    QCOMPARE(messageFor(given).facts, int(SaveMessage::NotSaved));
    given.isModified = false;
    QCOMPARE(messageFor(given).facts, 0);
    given.action = ZVSaveDialog::ActionProceed;
    QCOMPARE(messageFor(given).facts, int(SaveMessage::NotSaved));
}

void SaveMessageTest::refusedStartTellsOnlyThat()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionStart;
    given.isRunning = true;
    const SaveMessage message = messageFor(given);
    QCOMPARE(message.facts, int(SaveMessage::IsRunning));
    QVERIFY(message.question.isEmpty());
    QVERIFY(message.showsConsequences);
    QCOMPARE(message.consequences.size(), std::size_t(1));
    QCOMPARE(message.consequences.front().text,
             QStringLiteral("Starting is not allowed. Kill simulation first."));
    QCOMPARE(message.toHtml(),
             QStringLiteral("<html><body><div>The current design is still running a simulation."
                            "</div><br><div>Starting is not allowed. Kill simulation first.<ul>"
                            "</ul></div></body></html>"));
}

void SaveMessageTest::startTellsThatResultsGo()
{
    SaveCase given;
    given.action = ZVSaveDialog::ActionStart;
    given.hasResults = true;
    const SaveMessage message = messageFor(given);
    QCOMPARE(message.facts, int(SaveMessage::HasResults));
    QCOMPARE(message.consequences.size(), std::size_t(2));
    QCOMPARE(message.consequences.back().label, QStringLiteral("Delete:"));
    // Nothing invalidates them, and saving keeps them.
    given.action = ZVSaveDialog::ActionSave;
    QCOMPARE(messageFor(given).facts, 0);
}

void SaveMessageTest::closedNewDesignGoesToANewFile()
{
    SaveCase given = closing();
    given.isNew = true;
    const SaveMessage message = messageFor(given, QString());
    QCOMPARE(message.question,
             QStringLiteral("Do you want to save the changes to a new file prior to closing?"));
    QVERIFY(!message.showsConsequences);
    QVERIFY(!message.toHtml().contains(QStringLiteral("<ul>")));
}

void SaveMessageTest::headlineStandsAlsoWithoutPoints()
{
    const SaveMessage message = messageFor(closing());
    QVERIFY(message.showsConsequences);
    QCOMPARE(message.consequences.size(), std::size_t(1));
    QVERIFY(message.toHtml().contains(
        QStringLiteral("<div>If you confirm this action the consequences will be<ul></ul></div>")));
}

void SaveMessageTest::runningDesignIsClosedWithoutAQuestion()
{
    SaveCase given = closing();
    given.isRunning = true;
    const SaveMessage message = messageFor(given);
    QVERIFY(message.question.isEmpty());
    QCOMPARE(message.facts, int(SaveMessage::NotSaved));
    QVERIFY(message.showsConsequences);
}

void SaveMessageTest::newerEvaluationDataOfAnOldDesignIsAskedAboutEvenWhileRunning()
{
    SaveCase given = closing();
    given.isRunning = true;
    given.isOldVersion = true;
    given.isEvaluationChanged = true;
    QVERIFY(messageFor(given).question.startsWith(QStringLiteral("Evaluation Data has changed.")));
    given.isOldVersion = false;
    QVERIFY(messageFor(given).question.isEmpty());
}

void SaveMessageTest::designWithoutFileHasAnEmptyName()
{
    QCOMPARE(messageFor(closing(), QString()).question,
             QStringLiteral("Do you want to save the changes to \"\" prior to closing?"));
}

void SaveMessageTest::longNamesAreBroken()
{
    const QString name(200, QLatin1Char('m'));
    const QString question = messageFor(closing(), name).question;
    const QStringList lines = question.split(QStringLiteral("<br>"));
    QVERIFY(lines.size() > 2);
    const QFontMetrics metrics(QApplication::font("QMessageBox"));
    for (const QString& line : lines.mid(1, lines.size() - 2))
        QVERIFY(metrics.horizontalAdvance(line) <= 300);
    QVERIFY(QString(question).remove(QStringLiteral("<br>")).contains(name));
}

void SaveMessageTest::namesAreNoMarkUp_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("tags") << QStringLiteral("<b>door</b>.dsg");
    QTest::newRow("entity") << QStringLiteral("R&amp;D.dsg");
    QTest::newRow("quotes") << QStringLiteral("\"door\".dsg");
    QTest::newRow("placeholder") << QStringLiteral("%1 %2.dsg");
    QTest::newRow("umlauts") << QString::fromUtf8("Tür außen – 左.dsg");
}

void SaveMessageTest::namesAreNoMarkUp()
{
    QFETCH(QString, name);
    const QString text = plainText(messageFor(closing(), name).toHtml());
    QVERIFY2(text.contains(QLatin1Char('"') + name + QLatin1Char('"')), qPrintable(text));
}

ZORVANE_TEST(SaveMessageTest)
#include "SaveMessageTest.moc"
