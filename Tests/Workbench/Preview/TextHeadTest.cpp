#include "Workbench/Preview/TextHead.h"

#include "Tests/Support/TestCase.h"

namespace Zorvane::Workbench {

class TextHeadTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data();
    void decodes();
    void otherBytesAreNoText_data();
    void otherBytesAreNoText();
    void takesTheFirstLines_data();
    void takesTheFirstLines();
};

void TextHeadTest::decodes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString word = QString::fromUtf8(u8"T\u00fcr \u91d1\u578b");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("plain") << QByteArray("a\tb\r\nc") << QStringLiteral("a\tb\r\nc");
    QTest::newRow("UTF-8") << word.toUtf8() << word;
    QTest::newRow("UTF-8 with mark") << QByteArray("\xEF\xBB\xBF") + word.toUtf8() << word;
    QTest::newRow("UTF-8 cut in a character") << word.toUtf8().chopped(1) << word.chopped(1);
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE"
                                          "a\0b\0",
                                          6)
                            << QStringLiteral("ab");
    QTest::newRow("UTF-16, other order") << QByteArray("\xFE\xFF\0a\0b", 6) << QStringLiteral("ab");
    QTest::newRow("Latin-1") << QByteArray("T\xFCr") << QString::fromLatin1("T\xFCr");
    QTest::newRow("page feed") << QByteArray("a\fb") << QStringLiteral("a\fb");
}

void TextHeadTest::decodes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    const std::optional<QString> decoded = decodeText(bytes);
    QVERIFY(decoded);
    QCOMPARE(*decoded, text);
}

void TextHeadTest::otherBytesAreNoText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a zero") << QByteArray("abc\0def", 7);
    QTest::newRow("control characters") << QByteArray("\x01\x02\x03 abc \x04\x05");
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
}

void TextHeadTest::otherBytesAreNoText()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!decodeText(bytes));
}

void TextHeadTest::takesTheFirstLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("lines");
    QTest::newRow("fewer") << "a\nb"
                           << "a\nb";
    QTest::newRow("as many") << "a\nb\nc"
                             << "a\nb\nc";
    QTest::newRow("as many, ended") << "a\nb\nc\n"
                                    << "a\nb\nc";
    QTest::newRow("more") << "a\nb\nc\nd\ne"
                          << "a\nb\nc";
    QTest::newRow("empty ones count") << "\n\n\n\n"
                                      << "\n\n";
    QTest::newRow("other ends") << "a\r\nb\r\n"
                                << "a\nb\n";
    QTest::newRow("control characters") << QString::fromLatin1("a\x1B[1m\tb") << "a[1m\tb";
}

void TextHeadTest::takesTheFirstLines()
{
    QFETCH(QString, text);
    QFETCH(QString, lines);
    QCOMPARE(firstLines(text, 3), lines);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::TextHeadTest;

ZORVANE_TEST(TextHeadTest)
#include "TextHeadTest.moc"
