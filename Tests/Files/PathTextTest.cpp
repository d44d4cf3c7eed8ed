#include "Files/PathText.h"

#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

using namespace Zorvane;

class PathTextTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bytesSurvive();
    void textIsUtf8();
    void otherBytesAreEscaped_data();
    void otherBytesAreEscaped();
};

void PathTextTest::bytesSurvive()
{
    QVERIFY(rc::check("any bytes come back", [](const std::string& bytes) {
        RC_ASSERT(pathToBytes(pathFromBytes(bytes)) == bytes);
    }));
    QVERIFY(rc::check("likely bytes come back", [] {
        const auto bytes = *rc::gen::container<std::string>(
            rc::gen::element('a', '\x80', '\xBF', '\xC3', '\xE2', '\xED', '\xF0', '\xF4', '\xFF'));
        RC_ASSERT(pathToBytes(pathFromBytes(bytes)) == bytes);
    }));
}

void PathTextTest::textIsUtf8()
{
    const QString text = QString::fromUtf8("T\xC3\xBCr \xE6\xBF\x80 \xF0\x9F\x94\xA7");
    QCOMPARE(pathFromBytes(text.toStdString()), text);
    QCOMPARE(pathToBytes(text), text.toStdString());
    QCOMPARE(pathForDisplay(text), text);
}

void PathTextTest::otherBytesAreEscaped_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* name, const char* bytes, const char* shown) {
        QTest::newRow(name) << QByteArray(bytes) << QString::fromLatin1(shown);
    };
    row("Latin-1", "T\xFCr", "T\\xFCr");
    row("cut sequence", "a\xE2\x82", "a\\xE2\\x82");
    row("overlong", "\xC0\xAF", "\\xC0\\xAF");
    row("encoded surrogate", "\xED\xB3\xBC", "\\xED\\xB3\\xBC");
    row("beyond the last character", "\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80");
}

void PathTextTest::otherBytesAreEscaped()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, shown);
    const QString path = pathFromBytes(bytes.toStdString());
    QCOMPARE(pathForDisplay(path), shown);
    QCOMPARE(QByteArray::fromStdString(pathToBytes(path)), bytes);
}

ZORVANE_TEST(PathTextTest)
#include "PathTextTest.moc"
