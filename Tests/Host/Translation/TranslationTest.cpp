#include "Host/ScopedReplacement.h"
#include "Host/Translation/ArgString.h"
#include "Host/Translation/Translator.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QTranslator>

#include <memory>

using namespace Zorvane;

namespace {

/** Knows one text, and says how it was asked for it. */
class OneTextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int count) const override
    {
        if (qstrcmp(context, "ZvFileName") != 0 || qstrcmp(sourceText, "All Files") != 0)
            return {};
        return QStringLiteral("Alle Dateien [%1, %2]")
            .arg(disambiguation ? QString::fromUtf8(disambiguation) : QStringLiteral("none"))
            .arg(count);
    }
};

} // namespace

class TranslationTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textWithoutTranslationStaysItself();
    void textIsTranslatedFromItsContext();
    void disambiguationAndCountAreHandedOn();
    void catalogueInstalledLaterServesTheNextCall();
    void argumentsFillTheirPlaceholders_data();
    void argumentsFillTheirPlaceholders();
    void argStringTakesStandardStringsInUtf8();
    void replacedTranslator_givesTheTexts();
};

void TranslationTest::textWithoutTranslationStaysItself()
{
    QCOMPARE(Translator::translate("ZvFileName", "STEP File"), QStringLiteral("STEP File"));
    QCOMPARE(Translator::translate("ZvFileName", "100 \xC2\xB5m"), QStringLiteral(u"100 µm"));
}

void TranslationTest::textIsTranslatedFromItsContext()
{
    OneTextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(Translator::translate("ZvFileName", "All Files"),
             QStringLiteral("Alle Dateien [none, -1]"));
    QCOMPARE(Translator::translate("OtherContext", "All Files"), QStringLiteral("All Files"));
}

void TranslationTest::disambiguationAndCountAreHandedOn()
{
    OneTextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(Translator::translate("ZvFileName", "All Files", "menu", 3),
             QStringLiteral("Alle Dateien [menu, 3]"));
}

void TranslationTest::catalogueInstalledLaterServesTheNextCall()
{
    QCOMPARE(Translator::translate("ZvFileName", "All Files"), QStringLiteral("All Files"));
    OneTextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QVERIFY(Translator::translate("ZvFileName", "All Files") != QStringLiteral("All Files"));
}

void TranslationTest::argumentsFillTheirPlaceholders_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("filled");
    const auto row = [](const char* name, const char* text, const QStringList& values,
                        const char* filled) {
        QTest::newRow(name) << QString::fromUtf8(text) << values << QString::fromUtf8(filled);
    };
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    row("no placeholder", "plain", {a}, "plain");
    row("one", "<%1>", {a}, "<a>");
    row("in order", "%1 (*.%2)", {a, b}, "a (*.b)");
    row("the other way round", "%2 %1", {a, b}, "b a");
    row("twice", "%1 and %1", {a}, "a and a");
    row("left out", "only %2", {a, b}, "only b");
    row("no value for it", "%1 %2", {a}, "a %2");
    row("no values at all", "%1", {}, "%1");
    row("placeholder in a value", "%1 to %2", {QStringLiteral("50%2.stl"), b}, "50%2.stl to b");
    row("empty value", "<%1>", {QString()}, "<>");
    row("percent signs", "100% %", {a}, "100% %");
    row("percent sign in front", "%%1", {a}, "%a");
    row("zero is no placeholder", "%0 %1", {a}, "%0 a");
    row("at the end", "%1%", {a}, "a%");
    QStringList many;
    for (int i = 1; i <= 11; ++i)
        many << QStringLiteral("v%1").arg(i);
    row("two digits", "%11 %1", many, "v11 v1");
    row("empty template", "", {a}, "");
}

void TranslationTest::argumentsFillTheirPlaceholders()
{
    QFETCH(QString, text);
    QFETCH(QStringList, values);
    QFETCH(QString, filled);
    ArgString string(text);
    for (const QString& value : values)
        string.arg(value);
    QCOMPARE(string.toQString(), filled);
    QCOMPARE(string.toStdString(), filled.toStdString());
}

void TranslationTest::argStringTakesStandardStringsInUtf8()
{
    const std::string filled = ArgString(std::string("%1: %2"))
                                   .arg(std::string("Gr\xC3\xB6\xC3\x9F"
                                                    "e"))
                                   .arg(12);
    QCOMPARE(filled, std::string("Gr\xC3\xB6\xC3\x9F"
                                 "e: 12"));
}

void TranslationTest::replacedTranslator_givesTheTexts()
{
    struct OwnTexts : Translator
    {
        QString getText(const char* context, const char* sourceText, const char* disambiguation,
                        int count) const override
        {
            return QStringLiteral("%1/%2/%3/%4")
                .arg(QString::fromUtf8(context), QString::fromUtf8(sourceText),
                     QString::fromUtf8(disambiguation))
                .arg(count);
        }
    };
    struct Silence : Translator
    {
        QString getText(const char*, const char*, const char*, int) const override { return {}; }
    };
    {
        const ScopedReplacement<Translator> texts(std::make_shared<OwnTexts>());
        QCOMPARE(Translator::translate("Context", "Text", "menu", 3),
                 QStringLiteral("Context/Text/menu/3"));
        {
            const ScopedReplacement<Translator> none(std::make_shared<Silence>());
            QVERIFY(Translator::translate("Context", "Text").isEmpty());
        }
        QCOMPARE(Translator::translate("Context", "Text"), QStringLiteral("Context/Text//-1"));
    }
    QCOMPARE(Translator::translate("Context", "Text"), QStringLiteral("Text"));
}

ZORVANE_TEST(TranslationTest)
#include "TranslationTest.moc"
