#include "Workbench/Preview/TableHead.h"

#include "Tests/Support/TestCase.h"

namespace Zorvane::Workbench {

class TableHeadTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesCellsApart_data();
    void takesCellsApart();
    void longTablesAreCut();
    void wideTablesAreCut();
    void longCellsAreCut();
};

void TableHeadTest::takesCellsApart_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("cells"); // "|" between cells, "/" behind rows
    // clang-format off
    QTest::newRow("nothing")                << ""                        << "";
    QTest::newRow("one cell")               << "a"                       << "a/";
    QTest::newRow("commas")                 << "a,b\n1,2\n"              << "a|b/1|2/";
    QTest::newRow("semicolons")             << "a;b\n1,5;2,5"            << "a|b/1,5|2,5/";
    QTest::newRow("tabs")                   << "a\tb\n1\t2"              << "a|b/1|2/";
    QTest::newRow("first line decides")     << "a;b\n1,2,3;4"            << "a|b/1,2,3|4/";
    QTest::newRow("most decide")            << "a, b;c;d\n"              << "a, b|c|d/";
    QTest::newRow("as many: semicolons")    << "a,b;c"                   << "a,b|c/";
    QTest::newRow("other line ends")        << "a,b\r\n1,2\r\n"          << "a|b/1|2/";
    QTest::newRow("empty lines")            << "\na,b\n\n\n1,2\n\n"      << "a|b/1|2/";
    QTest::newRow("empty cells")            << "a,b,\n,,3"               << "a|b|/||3/";
    QTest::newRow("spaces around")          << " a , b "                 << "a|b/";
    QTest::newRow("quotes")                 << "\"a,1\",\"b\"\n1,2"      << "a,1|b/1|2/";
    QTest::newRow("quotes in quotes")       << "\"say \"\"a\"\"\",b"     << "say \"a\"|b/";
    QTest::newRow("quoted line end")        << "\"a\nb\",c"              << "a\nb|c/";
    QTest::newRow("empty quotes")           << "\"\",\"\""               << "|/";
    QTest::newRow("quote within a cell")    << "5\" pipe,b"              << "5\" pipe|b/";
    QTest::newRow("quote never closed")     << "a,\"b\nc"                << "a|b\nc/";
    QTest::newRow("rows of other lengths")  << "a,b,c\n1\n1,2,3,4"       << "a|b|c/1/1|2|3|4/";
    // clang-format on
}

void TableHeadTest::takesCellsApart()
{
    QFETCH(QString, text);
    QFETCH(QString, cells);
    const TableHead head = TableHead::read(text);
    QString found;
    for (const QStringList& row : head.rows)
        found += row.join(QLatin1Char('|')) + QLatin1Char('/');
    QCOMPARE(found, cells);
    QVERIFY(!head.hasMoreRows && !head.hasMoreColumns);
}

void TableHeadTest::longTablesAreCut()
{
    const QString row = QStringLiteral("1,2\n");
    const TableHead whole = TableHead::read(row.repeated(TableHead::mostRows));
    QCOMPARE(int(whole.rows.size()), TableHead::mostRows);
    QVERIFY(!whole.hasMoreRows);
    const TableHead cut = TableHead::read(row.repeated(TableHead::mostRows + 1));
    QCOMPARE(int(cut.rows.size()), TableHead::mostRows);
    QVERIFY(cut.hasMoreRows);
}

void TableHeadTest::wideTablesAreCut()
{
    const TableHead whole = TableHead::read(QString(TableHead::mostColumns - 1, QLatin1Char(',')));
    QCOMPARE(whole.rows.front().size(), TableHead::mostColumns);
    QVERIFY(!whole.hasMoreColumns);
    const TableHead cut = TableHead::read(QString(TableHead::mostColumns, QLatin1Char(',')));
    QCOMPARE(cut.rows.front().size(), TableHead::mostColumns);
    QVERIFY(cut.hasMoreColumns);
}

void TableHeadTest::longCellsAreCut()
{
    const TableHead head = TableHead::read(QString(100'000, QLatin1Char('x')));
    QCOMPARE(head.rows.front().front().size(), TableHead::longestCell);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::TableHeadTest;

ZORVANE_TEST(TableHeadTest)
#include "TableHeadTest.moc"
