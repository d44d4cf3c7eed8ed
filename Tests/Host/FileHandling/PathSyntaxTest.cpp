#include "Host/FileHandling/PathSyntax.h"
#include "Tests/Support/TestCase.h"

using namespace Zorvane;

Q_DECLARE_METATYPE(Zorvane::PathSyntax)

class PathSyntaxTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everySpellingHasParentLeafAndExtension_data();
    void everySpellingHasParentLeafAndExtension();
    void windowsSeparatorsTurnBothWays();
    void posixBackslashIsALetter();
    void longPathsKeepEveryLetter();
};

void PathSyntaxTest::everySpellingHasParentLeafAndExtension_data()
{
    QTest::addColumn<PathSyntax>("syntax");
    QTest::addColumn<std::string>("path");
    QTest::addColumn<std::string>("parent");
    QTest::addColumn<std::string>("leaf");
    QTest::addColumn<std::string>("extension");
    const auto row = [](const char* name, PathSyntax syntax, const char* path, const char* parent,
                        const char* leaf, const char* extension) {
        QTest::newRow(name) << syntax << std::string(path) << std::string(parent)
                            << std::string(leaf) << std::string(extension);
    };
    const PathSyntax posix = PathSyntax::Posix;
    const PathSyntax windows = PathSyntax::Windows;
    // clang-format off
    row("absolute",             posix,   "/press/door.stl",          "/press",              "door.stl",      "stl");
    row("relative",             posix,   "press/door.stl",           "press",               "door.stl",      "stl");
    row("bare name",            posix,   "door.stl",                 ".",                   "door.stl",      "stl");
    row("below the root",       posix,   "/door.stl",                "/",                   "door.stl",      "stl");
    row("root",                 posix,   "/",                        "",                    "",              "");
    row("slash at the end",     posix,   "/press/door/",             "/press",              "door",          "");
    row("several slashes",      posix,   "/press//door.stl//",       "/press",              "door.stl",      "stl");
    row("case is kept",         posix,   "/p/Door.CATPart",          "/p",                  "Door.CATPart",  "CATPart");
    row("last dot counts",      posix,   "/p/door.prt.12",           "/p",                  "door.prt.12",   "12");
    row("dot in a folder",      posix,   "/p.d/door",                "/p.d",                "door",          "");
    row("hidden file",          posix,   "/p/.profile",              "/p",                  ".profile",      "");
    row("dot at the end",       posix,   "/p/door.",                 "/p",                  "door.",         "");
    row("this folder",          posix,   "/p/..",                    "/p",                  "..",            "");
    row("no drives",            posix,   "C:/door.stl",              "C:",                  "door.stl",      "stl");
    row("no shares",            posix,   "//server/share/door.stl",  "//server/share",      "door.stl",      "stl");
    row("drive",                windows, "C:/press/door.stl",        "C:/press",            "door.stl",      "stl");
    row("below a drive's root", windows, "C:/door.stl",              "C:/",                 "door.stl",      "stl");
    row("drive root",           windows, "C:/",                      "",                    "",              "");
    row("drive alone",          windows, "C:",                       "",                    "",              "");
    row("relative to a drive",  windows, "C:door.stl",               "C:",                  "door.stl",      "stl");
    row("root of this drive",   windows, "/door.stl",                "/",                   "door.stl",      "stl");
    row("below a share",        windows, "//server/share/door.stl",  "//server/share",      "door.stl",      "stl");
    row("deep in a share",      windows, "//server/share/p/d.stl",   "//server/share/p",    "d.stl",         "stl");
    row("share",                windows, "//server/share",           "",                    "",              "");
    row("share with a slash",   windows, "//server/share/",          "",                    "",              "");
    row("server alone",         windows, "//server",                 "",                    "",              "");
    row("long drive",           windows, "//?/C:/press/door.stl",    "//?/C:/press",        "door.stl",      "stl");
    row("long drive root",      windows, "//?/C:/",                  "",                    "",              "");
    row("long share",           windows, "//?/UNC/srv/sh/door.stl",  "//?/UNC/srv/sh",      "door.stl",      "stl");
    row("long share root",      windows, "//?/UNC/srv/sh",           "",                    "",              "");
    row("device",               windows, "//./COM1",                 "",                    "",              "");
    row("reserved name",        windows, "C:/press/CON.stl",         "C:/press",            "CON.stl",       "stl");
    row("reserved leaf",        windows, "C:/press/nul",             "C:/press",            "nul",           "");
    row("bare Windows name",    windows, "door.stl",                 ".",                   "door.stl",      "stl");
    // clang-format on
}

void PathSyntaxTest::everySpellingHasParentLeafAndExtension()
{
    QFETCH(PathSyntax, syntax);
    QFETCH(std::string, path);
    QTEST(parentOf(path, syntax), "parent");
    QTEST(leafOf(path, syntax), "leaf");
    QTEST(extensionOf(path, syntax), "extension");
}

void PathSyntaxTest::windowsSeparatorsTurnBothWays()
{
    const std::string native = "\\\\server\\share\\door.stl";
    const std::string plain = withForwardSlashes(native, PathSyntax::Windows);
    QCOMPARE(plain, std::string("//server/share/door.stl"));
    QCOMPARE(withNativeSeparators(plain, PathSyntax::Windows), native);
    QCOMPARE(withForwardSlashes("\\\\?\\C:\\d.stl", PathSyntax::Windows),
             std::string("//?/C:/d.stl"));
}

void PathSyntaxTest::posixBackslashIsALetter()
{
    const std::string name = "/press/left\\right.stl";
    QCOMPARE(withForwardSlashes(name, PathSyntax::Posix), name);
    QCOMPARE(withNativeSeparators(name, PathSyntax::Posix), name);
    QCOMPARE(leafOf(name, PathSyntax::Posix), std::string("left\\right.stl"));
}

void PathSyntaxTest::longPathsKeepEveryLetter()
{
    std::string folder = "//?/C:";
    for (int i = 0; i < 2000; ++i)
        folder += "/folder of some length";
    const std::string leaf = std::string(255, 'x') + ".stl";
    QCOMPARE(parentOf(folder + "/" + leaf, PathSyntax::Windows), folder);
    QCOMPARE(leafOf(folder + "/" + leaf, PathSyntax::Windows), leaf);
}

ZORVANE_TEST(PathSyntaxTest)
#include "PathSyntaxTest.moc"
