#include "Files/FileTypeFilters.h"
#include "Tests/Support/GermanTexts.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QTranslator>
#include <QtWidgets/QFileDialog>

using namespace Zorvane;

namespace {

/** Translates every text of one context by writing it in brackets. */
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        return qstrcmp(context, "ZvFileName") == 0 ? u'[' + QString::fromUtf8(sourceText) + u']'
                                                   : QString();
    }
};

ZvFileType type(int number)
{
    return static_cast<ZvFileType>(number);
}

const std::list<ZvFileType> s_stepAndIges{ZvFileType::StepShort, ZvFileType::IgesShort};

} // namespace

class FileTypeFiltersTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeHasItsClearText_data();
    void everyTypeHasItsClearText();
    void textsAreTranslatedAtTheMomentOfUse();
    void aTypesFilterNamesItsEnding_data() { everyTypeHasItsClearText_data(); }
    void aTypesFilterNamesItsEnding();
    void aKnownEndingIsNamedAfterItsType_data();
    void aKnownEndingIsNamedAfterItsType();
    void anUnknownEndingIsNamedAfterItself_data();
    void anUnknownEndingIsNamedAfterItself();
    void filtersOfTypesAreJoinedBehindAllAtOnce_data();
    void filtersOfTypesAreJoinedBehindAllAtOnce();
    void filtersOfEndingsAreJoinedBehindAllAtOnce_data();
    void filtersOfEndingsAreJoinedBehindAllAtOnce();
    void allLabelMayHoldPlaceholders();
    void filtersAreTranslated();
    void germanCatalogueIsBuiltIn();
    void fileDialogsUnderstandFilters();
    void documentationHasTheSameTable_data() { everyTypeHasItsClearText_data(); }
    void documentationHasTheSameTable();
};

void FileTypeFiltersTest::everyTypeHasItsClearText_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    const auto row = [](int number, const char* text) {
        QTest::addRow("%d", number) << number << QString::fromLatin1(text);
    };
    row(0, "ZV Design File");
    row(1, "ZV Optimization File");
    row(2, "ZV Simulation File R3.x");
    row(3, "ZV File");
    row(4, "Nastran File");
    row(5, "IGES File");
    row(6, "IGES File");
    row(7, "VDA File");
    row(8, "STL File (ASCII)");
    row(9, "ZV Restart File");
    row(10, "Vantrel File");
    row(11, "Text File");
    row(12, "Unknown File");
    row(13, "Guideline File");
    row(14, "Material ASCII");
    row(15, "Material Binary");
    row(16, "Tool with Temperatures");
    row(17, "Profile File");
    row(18, "Hemming Roller Geometry File");
    row(19, "ZV Assembly File");
    row(20, "Lubrication File");
    row(21, "Frictor File");
    row(22, "ZV-Model File");
    row(23, "CATIA V5 File");
    row(24, "CATIA V5 File");
    row(25, "CATIA V5 File");
    row(26, "CATIA V4 File");
    row(27, "CATIA V4 File");
    row(28, "CATIA V4 File");
    row(29, "UG / NX File");
    row(30, "IDEAS File");
    row(31, "IDEAS File");
    row(32, "STEP File");
    row(33, "STEP File");
    row(34, "PROE File");
    row(35, "JT File");
    row(36, "Solid Works File");
    row(37, "Solid Works File");
    row(38, "Parasolid ASCII File");
    row(39, "Parasolid Binary File");
    row(40, "VISI CAD File");
    row(41, "ZV Veskel Die File");
    row(42, "Unknown File");
    row(43, "ZV Assembly File");
    row(44, "ZV Ormitra File");
    row(45, "ZV Tandrel File");
    row(46, "ZV Brakwell File");
    row(47, "JSON File");
    row(48, "ZV Press Elasticity Data");
    row(49, "STL File (Binary)");
    row(50, "CSV File");
    row(51, "Unknown File");
    row(52, "Unknown File");
    row(-1, "Unknown File");
}

void FileTypeFiltersTest::everyTypeHasItsClearText()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QCOMPARE(QString::fromStdString(clearTextForFileType(type(number))), text);
}

void FileTypeFiltersTest::textsAreTranslatedAtTheMomentOfUse()
{
    QCOMPARE(clearTextForFileType(type(32)), std::string("STEP File"));
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    for (int number = -1; number <= 52; ++number) {
        const std::string text = clearTextForFileType(type(number));
        QVERIFY(text.front() == '[' && text.back() == ']');
    }
}

void FileTypeFiltersTest::aTypesFilterNamesItsEnding()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    const QString ending = QString::fromStdString(getExtensionForFileType(type(number)));
    QCOMPARE(QString::fromStdString(getFileFilterForType(type(number))),
             text + QStringLiteral(" (*.") + ending + u')');
    QCOMPARE(getFileFilterForTypes({type(number)}, false, {}), getFileFilterForType(type(number)));
}

void FileTypeFiltersTest::aKnownEndingIsNamedAfterItsType_data()
{
    QTest::addColumn<QString>("filter");
    QTest::newRow(".stp") << QStringLiteral("STEP File (*.stp)");
    QTest::newRow(".STEP") << QStringLiteral("STEP File (*.step)");
    QTest::newRow(".catpart") << QStringLiteral("CATIA V5 File (*.CATPart)");
    QTest::newRow("igs") << QStringLiteral("IGES File (*.igs)");
    QTest::newRow(".stl") << QStringLiteral("STL File (ASCII) (*.stl)");
    QTest::newRow(".prt.*") << QStringLiteral("PROE File (*.prt.*)");
}

void FileTypeFiltersTest::aKnownEndingIsNamedAfterItsType()
{
    QFETCH(QString, filter);
    QCOMPARE(QString::fromStdString(getFileFilterForEnding(QTest::currentDataTag())), filter);
}

void FileTypeFiltersTest::anUnknownEndingIsNamedAfterItself_data()
{
    QTest::addColumn<QString>("filter");
    QTest::newRow(".abc") << QStringLiteral("abc (*.abc)");
    QTest::newRow(".ABC") << QStringLiteral("ABC (*.ABC)");
    QTest::newRow(".tar.gz") << QStringLiteral("gz (*.tar.gz)");
    QTest::newRow(".%1") << QStringLiteral("%1 (*.%1)");
    QTest::newRow("abc") << QStringLiteral(" (*abc)");
    QTest::newRow(".") << QStringLiteral(" (*.)");
    QTest::newRow("") << QStringLiteral(" (*)");
    QTest::newRow(".*") << QStringLiteral("* (*.*)");
}

void FileTypeFiltersTest::anUnknownEndingIsNamedAfterItself()
{
    QFETCH(QString, filter);
    QCOMPARE(QString::fromStdString(getFileFilterForEnding(QTest::currentDataTag())), filter);
}

void FileTypeFiltersTest::filtersOfTypesAreJoinedBehindAllAtOnce_data()
{
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<bool>("withAllEntry");
    QTest::addColumn<QString>("allLabel");
    QTest::addColumn<QString>("filter");
    const auto row = [](const char* name, const QList<int>& numbers, bool withAllEntry,
                        const char* allLabel, const char* filter) {
        QTest::newRow(name) << numbers << withAllEntry << QString::fromLatin1(allLabel)
                            << QString::fromLatin1(filter);
    };
    // clang-format off
    row("none",               {},           false, "",         "");
    row("none with all",      {},           true,  "",         "All Files ();;");
    row("one",                {32},         false, "",         "STEP File (*.stp)");
    row("one with all",       {32},         true,  "",         "All Files (*.stp);;STEP File (*.stp)");
    row("label without all",  {32},         false, "Geometry", "STEP File (*.stp)");
    row("two",                {32, 5},      false, "",         "STEP File (*.stp);;IGES File (*.igs)");
    row("two with all",       {32, 5},      true,  "",         "All Files (*.stp *.igs);;STEP File (*.stp);;IGES File (*.igs)");
    row("two with label",     {32, 5},      true,  "Geometry", "Geometry (*.stp *.igs);;STEP File (*.stp);;IGES File (*.igs)");
    row("the other way",      {5, 32},      true,  "",         "All Files (*.igs *.stp);;IGES File (*.igs);;STEP File (*.stp)");
    row("twice",              {32, 32},     true,  "",         "All Files (*.stp *.stp);;STEP File (*.stp);;STEP File (*.stp)");
    row("same text",          {5, 6},       true,  "",         "All Files (*.igs *.iges);;IGES File (*.igs);;IGES File (*.iges)");
    row("unknown",            {51},         true,  "",         "All Files (*.*);;Unknown File (*.*)");
    // clang-format on
}

void FileTypeFiltersTest::filtersOfTypesAreJoinedBehindAllAtOnce()
{
    QFETCH(QList<int>, numbers);
    QFETCH(bool, withAllEntry);
    QFETCH(QString, allLabel);
    QFETCH(QString, filter);
    std::list<ZvFileType> types;
    for (int number : qAsConst(numbers))
        types.push_back(type(number));
    QCOMPARE(
        QString::fromStdString(getFileFilterForTypes(types, withAllEntry, allLabel.toStdString())),
        filter);
}

void FileTypeFiltersTest::filtersOfEndingsAreJoinedBehindAllAtOnce_data()
{
    QTest::addColumn<QStringList>("endings");
    QTest::addColumn<bool>("withAllEntry");
    QTest::addColumn<QString>("allLabel");
    QTest::addColumn<QString>("filter");
    const auto row = [](const char* name, const char* endings, bool withAllEntry,
                        const char* allLabel, const char* filter) {
        QTest::newRow(name) << QString::fromLatin1(endings).split(u' ', Qt::SkipEmptyParts)
                            << withAllEntry << QString::fromLatin1(allLabel)
                            << QString::fromLatin1(filter);
    };
    // clang-format off
    row("none",             "",          false, "",     "");
    row("none with all",    "",          true,  "",     "All Files ();;");
    row("known",            ".stp",      false, "",     "STEP File (*.stp)");
    row("unknown",          ".abc",      false, "",     "abc (*.abc)");
    row("both with all",    ".STP .abc", true,  "",     "All Files (*.STP *.abc);;STEP File (*.stp);;abc (*.abc)");
    row("both with label",  ".STP .abc", true,  "Mine", "Mine (*.STP *.abc);;STEP File (*.stp);;abc (*.abc)");
    row("twice",            ".abc .abc", true,  "",     "All Files (*.abc *.abc);;abc (*.abc);;abc (*.abc)");
    // clang-format on
}

void FileTypeFiltersTest::filtersOfEndingsAreJoinedBehindAllAtOnce()
{
    QFETCH(QStringList, endings);
    QFETCH(bool, withAllEntry);
    QFETCH(QString, allLabel);
    QFETCH(QString, filter);
    std::list<std::string> list;
    for (const QString& ending : qAsConst(endings))
        list.push_back(ending.toStdString());
    QCOMPARE(
        QString::fromStdString(getFileFilterForEndings(list, withAllEntry, allLabel.toStdString())),
        filter);
}

void FileTypeFiltersTest::allLabelMayHoldPlaceholders()
{
    QCOMPARE(getFileFilterForTypes(s_stepAndIges, true, "100%2 %3"),
             std::string("100%2 %3 (*.stp *.igs);;STEP File (*.stp);;IGES File (*.igs)"));
}

void FileTypeFiltersTest::filtersAreTranslated()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(getFileFilterForTypes(s_stepAndIges, true, {}),
             std::string("[All Files] (*.stp *.igs);;[STEP File] (*.stp);;[IGES File] (*.igs)"));
    QCOMPARE(getFileFilterForTypes({ZvFileType::Csv}, true, "Tables"),
             std::string("Tables (*.csv);;[CSV File] (*.csv)"));
    QCOMPARE(getFileFilterForEnding(".abc"), std::string("abc (*.abc)"));
}

void FileTypeFiltersTest::germanCatalogueIsBuiltIn()
{
    const Testing::GermanTexts german;
    QVERIFY(german.isInstalled());
    QCOMPARE(getFileFilterForTypes(s_stepAndIges, true, {}),
             std::string("Alle Dateien (*.stp *.igs);;STEP-Datei (*.stp);;IGES-Datei (*.igs)"));
    QCOMPARE(clearTextForFileType(ZvFileType::MaterialBinary),
             std::string("Werkstoff (bin\xC3\xA4r)"));
    QCOMPARE(clearTextForFileType(ZvFileType::Unknown), std::string("Unbekannte Datei"));
}

void FileTypeFiltersTest::fileDialogsUnderstandFilters()
{
    std::list<ZvFileType> types;
    for (int number = 0; number <= 51; ++number)
        types.push_back(type(number));
    QFileDialog dialog(nullptr, {}, {},
                       QString::fromStdString(getFileFilterForTypes(types, true, {})));
    QCOMPARE(dialog.nameFilters().size(), 53);
    dialog.selectNameFilter(dialog.nameFilters().at(1));
    QCOMPARE(dialog.selectedNameFilter(), QStringLiteral("ZV Design File (*.zvd)"));
}

void FileTypeFiltersTest::documentationHasTheSameTable()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QFile documentation(QFINDTESTDATA("../../Docs/Files.md"));
    QVERIFY2(documentation.open(QIODevice::ReadOnly), "the sources are not beside the test");
    const QRegularExpression row(
        QStringLiteral("^\\| %1 \\| `(\\w+)` \\| (.+) \\| `(.+)` \\|$").arg(number),
        QRegularExpression::MultilineOption);
    const auto match = row.match(QString::fromUtf8(documentation.readAll()));
    QCOMPARE(match.hasMatch(), number >= 0 && number <= 51);
    if (!match.hasMatch())
        return;
    QCOMPARE(match.captured(2), text);
    QCOMPARE(match.captured(3), QString::fromStdString(getExtensionForFileType(type(number))));
}

ZORVANE_TEST(FileTypeFiltersTest)
#include "FileTypeFiltersTest.moc"
