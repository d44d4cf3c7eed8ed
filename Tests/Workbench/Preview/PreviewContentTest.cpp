#include "Workbench/Preview/PreviewContent.h"

#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

namespace Zorvane::Workbench {

using Kind = PreviewContent::Kind;

class PreviewContentTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void comesBack();
    void otherBytesAreRefused_data();
    void otherBytesAreRefused();
    void anyBytesAreSurvived();
    void cutOnesAreRefused();
};

namespace {

PreviewContent everything()
{
    PreviewContent content;
    content.kind = Kind::Picture;
    content.note = QString::fromUtf8(u8"12\u00a0345 \u00b7 \u00fc\n\"");
    content.picture = QImage(7, 5, QImage::Format_RGB32);
    content.picture.fill(qRgb(1, 2, 3));
    content.picture.setPixel(6, 4, qRgb(200, 100, 10));
    content.rows = {{QStringLiteral("a"), QString()}, {}, {QStringLiteral("b\nc")}};
    content.text = QStringLiteral("line\nline");
    return content;
}

} // namespace

void PreviewContentTest::comesBack()
{
    const PreviewContent content = everything();
    const std::optional<PreviewContent> back = PreviewContent::fromBytes(content.toBytes());
    QVERIFY(back);
    QCOMPARE(back->kind, content.kind);
    QCOMPARE(back->note, content.note);
    QCOMPARE(back->picture, content.picture);
    QVERIFY(back->rows == content.rows);
    QCOMPARE(back->text, content.text);
    const auto message =
        PreviewContent::fromBytes(PreviewContent::message(QStringLiteral("no")).toBytes());
    QVERIFY(message);
    QCOMPARE(message->kind, Kind::Message);
    QCOMPARE(message->note, QStringLiteral("no"));
    QVERIFY(message->picture.isNull());
}

void PreviewContentTest::otherBytesAreRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no description") << QByteArray("\n");
    QTest::newRow("no end") << QByteArray(R"({"kind":3})");
    QTest::newRow("no kind") << QByteArray("{}\n");
    QTest::newRow("kind of another version") << QByteArray("{\"kind\":4}\n");
    QTest::newRow("negative kind") << QByteArray("{\"kind\":-1}\n");
    QTest::newRow("no object") << QByteArray("[3]\n");
    QTest::newRow("picture without pixels") << QByteArray("{\"kind\":1}\n");
    QTest::newRow("too few pixels") << QByteArray("{\"kind\":1,\"width\":1,\"height\":1}\nabc");
    QTest::newRow("too many pixels") << QByteArray("{\"kind\":1,\"width\":1,\"height\":1}\nabcde");
    QTest::newRow("pixels without picture") << QByteArray("{\"kind\":3}\nabcd");
    QTest::newRow("huge sides") << QByteArray(
        "{\"kind\":1,\"width\":2147483647,\"height\":2147483647}\nabcd");
    QTest::newRow("negative sides") << QByteArray("{\"kind\":1,\"width\":-1,\"height\":-1}\nabcd");
    QTest::newRow("too long") << QByteArray("{\"kind\":3}\n") +
                                     QByteArray(int(PreviewContent::largestSize), 'x');
}

void PreviewContentTest::otherBytesAreRefused()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!PreviewContent::fromBytes(bytes));
}

void PreviewContentTest::anyBytesAreSurvived()
{
    QVERIFY(rc::check("changed bytes give some content or none", [] {
        QByteArray bytes = everything().toBytes();
        const auto changes = *rc::gen::inRange(1, 6);
        for (int i = 0; i < changes; ++i)
            bytes[*rc::gen::inRange(0, bytes.size())] = *rc::gen::arbitrary<char>();
        const std::optional<PreviewContent> content = PreviewContent::fromBytes(bytes);
        // On one line the macro would look into a content that there is not.
        const bool isSound =
            !content || content->kind != Kind::Picture || !content->picture.isNull();
        RC_ASSERT(isSound);
    }));
}

void PreviewContentTest::cutOnesAreRefused()
{
    const QByteArray bytes = everything().toBytes();
    for (int length = 0; length < bytes.size(); ++length)
        QVERIFY(!PreviewContent::fromBytes(bytes.left(length)));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::PreviewContentTest;

ZORVANE_TEST(PreviewContentTest)
#include "PreviewContentTest.moc"
