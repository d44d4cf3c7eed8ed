#include "Files/DefaultPathProvider.h"
#include "Files/LastPathProvider.h"
#include "Tests/Files/FolderSetup.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QStringList>

#include <type_traits>

using namespace Zorvane;

namespace {

QString lastPathSetting(const QString& scope)
{
    return QSettings().value(QStringLiteral("LastFile/") + scope).toString();
}

/** Answers the operations that the base class calls, and shows what is protected. */
class ScriptedProvider : public DefaultPathProvider
{
public:
    QString defaultPath;
    QString lastPath;
    QStringList calls;

    QString getDefaultPathFromScope(const QString& scope) override
    {
        calls << QStringLiteral("default ") + scope;
        return defaultPath;
    }
    QString getLastPathFromScope(const QString& scope) override
    {
        calls << QStringLiteral("last ") + scope;
        return lastPath.isNull() ? DefaultPathProvider::getLastPathFromScope(scope) : lastPath;
    }

    using PathProvider::getDefaultPathes;
    using PathProvider::getDirectoryName;
};

class ScriptedLastProvider : public LastPathProvider
{
public:
    QString getLastPathFromScope(const QString& scope) override
    {
        return QStringLiteral("last of ") + scope;
    }
};

} // namespace

class PathProviderTest : public Testing::TestCase
{
    Q_OBJECT

private:
    const Testing::FolderSetup m_folders;
    const QString m_design = QStringLiteral("Design");
    const QString m_import = QStringLiteral("Import");

private Q_SLOTS:
    void init();
    void everyScopeHasItsDefaultFolder_data();
    void everyScopeHasItsDefaultFolder();
    void defaultFoldersAreFilledOnce();
    void directoryOfAFileIsItsFolder();
    void directoryOfAnythingElseIsItself();
    void lastPathOfAFreshStoreIsTheDefault();
    void lastPathOfAFileIsItsFolder();
    void lastPathOfAFolderIsItself();
    void lastPathOfAFileThatIsGoneIsTheNameItself();
    void lastPathWhoseFolderIsGoneIsTheDefault();
    void unusableLastPathsGiveTheDefaultFolder_data();
    void unusableLastPathsGiveTheDefaultFolder();
    void lastPathWithoutDefaultStays();
    void defaultProviderForgetsOtherScopes();
    void lastProviderRemembersEveryScope();
    void emptyPathIsNotStored();
    void pathIsStoredAsGiven();
    void placesAreDefaultAndLast();
    void placesOfDesignsGrow();
    void placesOfDesignsBelongToTheProvider();
    void copiesKeepTheirPlaces();
    void pathAsksVirtually();
    void lastPathAsksVirtually();
    void placesAskVirtually();
    void lastProviderAsksVirtually();
    void instancesStayTheSame();
    void providersAreCopyable();
};

void PathProviderTest::init()
{
    QSettings().clear();
}

void PathProviderTest::everyScopeHasItsDefaultFolder_data()
{
    QTest::addColumn<QString>("folder");
    const auto row = [this](const char* scope, const char* folder) {
        QTest::newRow(scope) << (folder ? m_folders.data(folder) : m_folders.documents());
    };
    // clang-format off
    row("Presses",             "Presses");
    row("Material",            "Materials");
    row("Lubrication",         "Lubrication");
    row("Standard",            "Standards");
    row("userStandards",       nullptr);
    row("Design",              nullptr);
    row("DesignTemplate",      "DesignTemplates");
    row("Import",              nullptr);
    row("RemoteComputing",     nullptr);
    row("Solver Log",          nullptr);
    row("Hotforming",          nullptr);
    row("Strength",            "Drawbeads");
    row("Drawbead",            "Drawbeads");
    row("FormabilitySettings", "Formability");
    row("AddendumProfile",     "Addendum");
    row("VanTrel",             nullptr);
    row("HemmingTools",        "HemmingTools");
    row("Guideline",           "Guidelines");
    row("Connectors",          "Connectors");
    row("of no table",         nullptr);
    row("presses",             nullptr);
    row("",                    nullptr);
    // clang-format on
}

void PathProviderTest::everyScopeHasItsDefaultFolder()
{
    QFETCH(QString, folder);
    const QString scope = QString::fromLatin1(QTest::currentDataTag());
    DefaultPathProvider provider;
    QCOMPARE(provider.getDefaultPathFromScope(scope), m_folders.asConfigured(folder));
    QCOMPARE(provider.getLastPathFromScope(scope), folder);
    LastPathProvider lastProvider;
    QCOMPARE(lastProvider.getPathFromScope(scope), folder);
    if (scope != m_design)
        QCOMPARE(provider.getPathFromScope(scope), folder);
}

void PathProviderTest::defaultFoldersAreFilledOnce()
{
    DefaultPathProvider provider;
    const QString scope = QStringLiteral("Presses");
    const QString before = provider.getDefaultPathFromScope(scope);
    const QTemporaryDir other;
    QSettings().setValue(QStringLiteral("Paths/Presses"), other.path());
    QCOMPARE(provider.getDefaultPathFromScope(scope), before);
    QCOMPARE(ScriptedProvider::getDefaultPathes().size(), 19);
    QCOMPARE(&ScriptedProvider::getDefaultPathes(), &ScriptedProvider::getDefaultPathes());
}

void PathProviderTest::directoryOfAFileIsItsFolder()
{
    const QString file = m_folders.makeFile("a/door.stl");
    QCOMPARE(ScriptedProvider::getDirectoryName(file), m_folders.path("a"));
}

void PathProviderTest::directoryOfAnythingElseIsItself()
{
    const QString folder = m_folders.makeFolder("a folder");
    QCOMPARE(ScriptedProvider::getDirectoryName(folder), folder);
    QCOMPARE(ScriptedProvider::getDirectoryName(m_folders.path("missing/door.stl")),
             m_folders.path("missing/door.stl"));
    QCOMPARE(ScriptedProvider::getDirectoryName(QStringLiteral("a/b")),
             QDir::toNativeSeparators(QStringLiteral("a/b")));
    QCOMPARE(ScriptedProvider::getDirectoryName(QString()), QString());
}

void PathProviderTest::lastPathOfAFreshStoreIsTheDefault()
{
    DefaultPathProvider provider;
    QCOMPARE(provider.getLastPathFromScope(QStringLiteral("Presses")), m_folders.data("Presses"));
    QCOMPARE(provider.getLastPathFromScope(QStringLiteral("unheard of")), m_folders.documents());
}

void PathProviderTest::lastPathOfAFileIsItsFolder()
{
    DefaultPathProvider provider;
    provider.setPathToScope(m_folders.makeFile("imports/door.stl"), m_import);
    QCOMPARE(provider.getLastPathFromScope(m_import), m_folders.path("imports"));
}

void PathProviderTest::lastPathOfAFolderIsItself()
{
    DefaultPathProvider provider;
    provider.setPathToScope(m_folders.makeFolder("imports"), m_import);
    QCOMPARE(provider.getLastPathFromScope(m_import), m_folders.path("imports"));
}

void PathProviderTest::lastPathOfAFileThatIsGoneIsTheNameItself()
{
    DefaultPathProvider provider;
    m_folders.makeFolder("imports");
    provider.setPathToScope(m_folders.path("imports/gone.stl"), m_import);
    QCOMPARE(provider.getLastPathFromScope(m_import), m_folders.path("imports/gone.stl"));
}

void PathProviderTest::lastPathWhoseFolderIsGoneIsTheDefault()
{
    DefaultPathProvider provider;
    const QString scope = QStringLiteral("Material");
    const QString file = m_folders.makeFile("to be deleted/steel.mat");
    provider.setPathToScope(file, scope);
    QCOMPARE(provider.getLastPathFromScope(scope), m_folders.path("to be deleted"));
    QVERIFY(QDir(m_folders.path("to be deleted")).removeRecursively());
    QCOMPARE(provider.getLastPathFromScope(scope), m_folders.data("Materials"));
    QCOMPARE(lastPathSetting(scope), file);
}

void PathProviderTest::unusableLastPathsGiveTheDefaultFolder_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("a dot") << QVariant(QStringLiteral("."));
    QTest::newRow("empty") << QVariant(QString());
    QTest::newRow("no text") << QVariant(QStringList{m_design, m_import});
    QTest::newRow("folder is gone") << QVariant(m_folders.path("never there/file"));
}

void PathProviderTest::unusableLastPathsGiveTheDefaultFolder()
{
    QFETCH(QVariant, stored);
    QSettings().setValue(QStringLiteral("LastFile/Presses"), stored);
    DefaultPathProvider provider;
    QCOMPARE(provider.getLastPathFromScope(QStringLiteral("Presses")), m_folders.data("Presses"));
}

void PathProviderTest::lastPathWithoutDefaultStays()
{
    ScriptedProvider provider;
    QCOMPARE(provider.getLastPathFromScope(m_import), QStringLiteral("."));
    const QString gone = m_folders.path("never there/file");
    provider.setPathToScope(gone, m_import);
    QCOMPARE(provider.getLastPathFromScope(m_import), gone);
}

void PathProviderTest::defaultProviderForgetsOtherScopes()
{
    DefaultPathProvider provider;
    provider.setPathToScope(m_folders.makeFolder("imports"), m_import);
    QCOMPARE(provider.getPathFromScope(m_import), m_folders.documents());
}

void PathProviderTest::lastProviderRemembersEveryScope()
{
    LastPathProvider provider;
    provider.setPathToScope(m_folders.makeFolder("imports"), m_import);
    QCOMPARE(provider.getPathFromScope(m_import), m_folders.path("imports"));
    LastPathProvider another;
    QCOMPARE(another.getPathFromScope(m_import), m_folders.path("imports"));
}

void PathProviderTest::emptyPathIsNotStored()
{
    DefaultPathProvider provider;
    provider.setPathToScope(QString(), m_design);
    provider.setPathToScope(QStringLiteral(""), m_design);
    QVERIFY(QSettings().allKeys().isEmpty());
    QCOMPARE(provider.getPlacesFromScope(m_design).size(), std::size_t(2));
}

void PathProviderTest::pathIsStoredAsGiven()
{
    DefaultPathProvider provider;
    provider.setPathToScope(QStringLiteral("a/../b\\c"), QStringLiteral("Solver Log"));
    QCOMPARE(lastPathSetting(QStringLiteral("Solver Log")), QStringLiteral("a/../b\\c"));
}

void PathProviderTest::placesAreDefaultAndLast()
{
    DefaultPathProvider provider;
    provider.setPathToScope(m_folders.makeFolder("imports"), m_import);
    const std::vector<QString> expected{m_folders.asConfigured(m_folders.documents()),
                                        m_folders.path("imports")};
    QCOMPARE(provider.getPlacesFromScope(m_import), expected);
}

void PathProviderTest::placesOfDesignsGrow()
{
    DefaultPathProvider provider;
    const QString documents = m_folders.asConfigured(m_folders.documents());
    const QString first = m_folders.makeFile("first/door.zvd");
    const QString second = m_folders.makeFile("second/hood.zvd");
    const QString firstFolder = m_folders.path("first");
    const QString secondFolder = m_folders.path("second");

    provider.setPathToScope(first, m_design);
    std::vector<QString> expected{documents, firstFolder, firstFolder};
    QCOMPARE(provider.getPlacesFromScope(m_design), expected);
    provider.setPathToScope(second, m_design);
    expected = {documents, secondFolder, firstFolder, secondFolder};
    QCOMPARE(provider.getPlacesFromScope(m_design), expected);
    provider.setPathToScope(first, m_design);
    expected = {documents, firstFolder, firstFolder, secondFolder, firstFolder};
    QCOMPARE(provider.getPlacesFromScope(m_design), expected);
    QCOMPARE(provider.getPlacesFromScope(m_import).size(), std::size_t(2));
}

void PathProviderTest::placesOfDesignsBelongToTheProvider()
{
    DefaultPathProvider provider;
    DefaultPathProvider another;
    provider.setPathToScope(m_folders.makeFile("first/door.zvd"), m_design);
    QCOMPARE(another.getPlacesFromScope(m_design).size(), std::size_t(2));
}

void PathProviderTest::copiesKeepTheirPlaces()
{
    DefaultPathProvider provider;
    provider.setPathToScope(m_folders.makeFile("first/door.zvd"), m_design);
    DefaultPathProvider copy(provider);
    DefaultPathProvider assigned;
    assigned = provider;
    provider.setPathToScope(m_folders.makeFile("second/hood.zvd"), m_design);
    QCOMPARE(copy.getPlacesFromScope(m_design).size(), std::size_t(3));
    QCOMPARE(assigned.getPlacesFromScope(m_design).size(), std::size_t(3));
    QCOMPARE(provider.getPlacesFromScope(m_design).size(), std::size_t(4));
}

void PathProviderTest::pathAsksVirtually()
{
    ScriptedProvider provider;
    provider.defaultPath = m_folders.makeFile("scripted/file.txt");
    QCOMPARE(provider.getPathFromScope(m_import), m_folders.path("scripted"));
    QCOMPARE(provider.calls, QStringList{QStringLiteral("default Import")});

    provider.calls.clear();
    provider.lastPath = QStringLiteral("last");
    provider.setPathToScope(m_folders.path("scripted"), m_design);
    QCOMPARE(provider.getPathFromScope(m_design), QStringLiteral("last"));
    QCOMPARE(provider.calls, QStringList{QStringLiteral("last Design")});
}

void PathProviderTest::lastPathAsksVirtually()
{
    ScriptedProvider provider;
    provider.defaultPath = m_folders.makeFolder("scripted");
    QCOMPARE(provider.getLastPathFromScope(m_import), m_folders.path("scripted"));
    const QStringList expected{QStringLiteral("last Import"), QStringLiteral("default Import")};
    QCOMPARE(provider.calls, expected);
}

void PathProviderTest::placesAskVirtually()
{
    ScriptedProvider provider;
    provider.defaultPath = QStringLiteral("default");
    provider.lastPath = QStringLiteral("last");
    const std::vector<QString> expected{QStringLiteral("default"), QStringLiteral("last")};
    QCOMPARE(provider.getPlacesFromScope(m_import), expected);
    const QStringList calls{QStringLiteral("default Import"), QStringLiteral("last Import")};
    QCOMPARE(provider.calls, calls);
}

void PathProviderTest::lastProviderAsksVirtually()
{
    ScriptedLastProvider provider;
    QCOMPARE(provider.getPathFromScope(m_import), QStringLiteral("last of Import"));
}

void PathProviderTest::instancesStayTheSame()
{
    DefaultPathProvider* defaultProvider = DefaultPathProvider::getInstance();
    QVERIFY(defaultProvider);
    QCOMPARE(DefaultPathProvider::getInstance(), defaultProvider);
    LastPathProvider* lastProvider = LastPathProvider::getInstance();
    QCOMPARE(LastPathProvider::getInstance(), lastProvider);
    QVERIFY(static_cast<DefaultPathProvider*>(lastProvider) != defaultProvider);
}

void PathProviderTest::providersAreCopyable()
{
    QVERIFY(std::has_virtual_destructor_v<PathProvider>);
    QVERIFY(std::is_abstract_v<PathProvider>);
    QVERIFY(std::is_copy_constructible_v<DefaultPathProvider>);
    QVERIFY(std::is_copy_assignable_v<LastPathProvider>);
}

ZORVANE_TEST(PathProviderTest)
#include "PathProviderTest.moc"
