#include "Files/CopyNames.h"

#include "Files/PathText.h"
#include "Tests/Support/TestCase.h"

#include <rapidcheck.h>

#include <set>

using namespace Zorvane;

namespace {

constexpr std::size_t s_limit = 255;

bool isFree(const std::string&)
{
    return false;
}

QByteArray bytes(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

rc::Gen<std::string> fileNames()
{
    const auto piece = rc::gen::element<std::string>("a", ".", " ", "(2)", "\xC3\xBC", "\xFC",
                                                     "\xF0\x9F\x94\xA7", "long name", ".stl");
    return rc::gen::map(rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(piece)),
                        [](const std::vector<std::string>& pieces) {
                            std::string name;
                            for (const std::string& text : pieces) {
                                if (name.size() + text.size() <= s_limit)
                                    name += text;
                            }
                            return name;
                        });
}

std::string firstFreeName(const std::string& leaf, std::size_t limit, const NameIsTaken& isTaken)
{
    unsigned number = 2;
    return keepBothName(leaf, limit, isTaken, number);
}

} // namespace

class CopyNamesTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepBothNumbersTheStem_data();
    void keepBothNumbersTheStem();
    void keepBothTakesTheFirstFreeNumber();
    void keepBothAgain_goesOnFromTheLastNumber();
    void keepBothFitsIntoTheLimit_data();
    void keepBothFitsIntoTheLimit();
    void keepBothNamesAreUniqueAndLegal();
    void foldedNamesIgnoreCaseOnly();
};

void CopyNamesTest::keepBothNumbersTheStem_data()
{
    QTest::addColumn<QByteArray>("leaf");
    QTest::addColumn<QByteArray>("expected");
    // clang-format off
    QTest::newRow("ending kept")            << QByteArray("part.stl")       << QByteArray("part (2).stl");
    QTest::newRow("no ending")              << QByteArray("part")           << QByteArray("part (2)");
    QTest::newRow("only the last ending")   << QByteArray("part.v2.stl")    << QByteArray("part.v2 (2).stl");
    QTest::newRow("hidden file")            << QByteArray(".profile")       << QByteArray(".profile (2)");
    QTest::newRow("hidden with ending")     << QByteArray(".profile.txt")   << QByteArray(".profile (2).txt");
    QTest::newRow("dot at the end")         << QByteArray("part.")          << QByteArray("part. (2)");
    QTest::newRow("dots only")              << QByteArray("...")            << QByteArray("... (2)");
    QTest::newRow("numbered before")        << QByteArray("part (2).stl")   << QByteArray("part (2) (2).stl");
    QTest::newRow("bytes that are no text") << QByteArray("T\xFCr.stl")     << QByteArray("T\xFCr (2).stl");
    // clang-format on
}

void CopyNamesTest::keepBothNumbersTheStem()
{
    QFETCH(QByteArray, leaf);
    QFETCH(QByteArray, expected);
    QCOMPARE(bytes(firstFreeName(leaf.toStdString(), s_limit, isFree)), expected);
}

void CopyNamesTest::keepBothTakesTheFirstFreeNumber()
{
    const std::set<std::string> taken{"a (2).x", "a (3).x", "a (5).x"};
    const auto isTaken = [&](const std::string& name) { return taken.count(name) != 0; };
    QCOMPARE(bytes(firstFreeName("a.x", s_limit, isTaken)), QByteArray("a (4).x"));
}

void CopyNamesTest::keepBothAgain_goesOnFromTheLastNumber()
{
    std::set<std::string> taken;
    int looks = 0;
    unsigned number = 2;
    for (int i = 0; i < 1000; ++i) {
        const std::string name = keepBothName(
            "a.x", s_limit,
            [&](const std::string& text) { return ++looks, taken.count(text) != 0; }, number);
        QVERIFY(taken.insert(name).second);
    }
    QCOMPARE(taken.count("a (1001).x"), std::size_t(1));
    QVERIFY(looks <= 2000);
}

void CopyNamesTest::keepBothFitsIntoTheLimit_data()
{
    QTest::addColumn<QByteArray>("leaf");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray long251(251, 'x');
    QTest::newRow("stem is cut") << long251 + ".stl" << 255 << QByteArray(247, 'x') + " (2).stl";
    QTest::newRow("just fits") << QByteArray(247, 'x') + ".stl" << 255
                               << QByteArray(247, 'x') + " (2).stl";
    QTest::newRow("no character is cut in two")
        << QByteArray("\xC3\xBC").repeated(125) + ".stl" << 255
        << QByteArray("\xC3\xBC").repeated(123) + " (2).stl";
    QTest::newRow("no space before the number")
        << QByteArray(246, 'x') + " yyyy.stl" << 255 << QByteArray(246, 'x') + " (2).stl";
    QTest::newRow("ending that is no file type")
        << QByteArray("a.") + QByteArray(250, 'e') << 255 << "a." + QByteArray(249, 'e') + " (2)";
    QTest::newRow("file system of short names")
        << QByteArray(140, 'x') + ".stl" << 143 << QByteArray(135, 'x') + " (2).stl";
}

void CopyNamesTest::keepBothFitsIntoTheLimit()
{
    QFETCH(QByteArray, leaf);
    QFETCH(int, limit);
    QFETCH(QByteArray, expected);
    const auto size = static_cast<std::size_t>(limit);
    QCOMPARE(bytes(firstFreeName(leaf.toStdString(), size, isFree)), expected);
}

void CopyNamesTest::keepBothNamesAreUniqueAndLegal()
{
    QVERIFY(rc::check("generated names are new, not too long and without separators", [] {
        const auto leaf = *fileNames();
        const auto limit = *rc::gen::inRange<std::size_t>(32, s_limit + 1);
        std::set<std::string> taken{leaf};
        for (int i = 0; i < 12; ++i) {
            const std::string name = firstFreeName(
                leaf, limit, [&](const std::string& text) { return taken.count(text) != 0; });
            RC_ASSERT(!name.empty());
            RC_ASSERT(name.size() <= limit);
            RC_ASSERT(name.find('/') == std::string::npos);
            RC_ASSERT(taken.insert(name).second);
        }
    }));
    QVERIFY(rc::check("a name that is text stays text", [] {
        const auto leaf = *rc::gen::suchThat(fileNames(), [](const std::string& name) {
            return pathForDisplay(pathFromBytes(name)) == pathFromBytes(name);
        });
        const QString name = pathFromBytes(firstFreeName(leaf, 40, isFree));
        RC_ASSERT(pathForDisplay(name) == name);
    }));
}

void CopyNamesTest::foldedNamesIgnoreCaseOnly()
{
    QCOMPARE(foldedName("PART.Stl"), foldedName("part.sTL"));
    QCOMPARE(foldedName("\xC3\x9C"), foldedName("\xC3\xBC"));
    QCOMPARE(foldedName("u\xCC\x88"), foldedName("\xC3\xBC"));
    QVERIFY(foldedName("part") != foldedName("parts"));
    QVERIFY(foldedName("\xFC") != foldedName("\xDC"));
    // Whatever the language of the user.
    QCOMPARE(foldedName("MINI.STL"), foldedName("mini.stl"));
    QVERIFY(foldedName("m\xC4\xB1ni.stl") != foldedName("mini.stl"));
    QCOMPARE(foldedName("\xCE\xA3.stl"), foldedName("\xCF\x82.stl"));
    QCOMPARE(foldedName("CON"), foldedName("con"));
}

ZORVANE_TEST(CopyNamesTest)
#include "CopyNamesTest.moc"
