#include "Files/DesignPathProvider.h"
#include "Files/LastPathProvider.h"
#include "Tests/Files/FolderSetup.h"
#include "Tests/Support/TestCase.h"

using namespace Zorvane;

class DesignPathProviderTest : public Testing::TestCase
{
    Q_OBJECT

private:
    FileName existingDesign() const { return FileName(m_folders.makeFile("designs/door.zvd")); }
    FileName missingDesign() const { return FileName(m_folders.path("not yet/door.zvd")); }
    QString designFolder() const { return m_folders.path("designs"); }
    static DesignPathProvider providerOf(const FileName& design)
    {
        return DesignPathProvider(GUIdentifier::create(), design);
    }

    const Testing::FolderSetup m_folders;
    const QString m_design = QStringLiteral("Design");
    const QString m_import = QStringLiteral("Import");

private Q_SLOTS:
    void init();
    void scopesOfAnExistingDesign_data();
    void scopesOfAnExistingDesign();
    void scopesOfAMissingDesign_data();
    void scopesOfAMissingDesign();
    void designWithoutFileNameFallsBack();
    void rememberedPathComesFirst();
    void rememberedPathIsReturnedAsItIs();
    void rememberedPathsAreTheDesignsOwn();
    void rememberedPathsReachTheSettings();
    void designPathsBecomePlaces();
    void emptyPathIsNotRemembered();
    void fallsBackToVirtualLastPath();
    void sameIdentifierGivesTheSameProvider();
    void providerIsReboundToASecondFile();
    void otherIdentifierGivesAnotherProvider();
    void copiesRememberByThemselves();
};

void DesignPathProviderTest::init()
{
    QSettings().clear();
    // Other tests of this process may have opened the first design, or not.
    DefaultPathProvider().setPathToScope(m_folders.makeFolder("last"), m_design);
}

void DesignPathProviderTest::scopesOfAnExistingDesign_data()
{
    QTest::addColumn<bool>("nextToDesign");
    const char* const next[]{
        "Design",     "Import",        "Export",     "ExportVanTrel",       "Export something else",
        "Image",      "Animation",     "Solver Log", "ZVDelvarScatterplot", "ZVSectionPlot",
        "ForcesPlot", "TRIAL-SpinOff", "VanTrel",    "Hotforming"};
    const char* const elsewhere[]{"export",          "exportVanTrel", "EXPORT",    "design",
                                  "import",          "Import2",       "Images",    "solver log",
                                  "Trial-SpinOff",   "Presses",       "Material",  "Standard",
                                  "RemoteComputing", "userStandards", "my Export", ""};
    for (const char* scope : next)
        QTest::newRow(scope) << true;
    for (const char* scope : elsewhere)
        QTest::newRow(scope) << false;
}

void DesignPathProviderTest::scopesOfAnExistingDesign()
{
    QFETCH(bool, nextToDesign);
    const QString scope = QString::fromLatin1(QTest::currentDataTag());
    DesignPathProvider provider = providerOf(existingDesign());
    QCOMPARE(provider.getPathFromScope(scope),
             nextToDesign ? designFolder() : DefaultPathProvider().getPathFromScope(scope));
}

void DesignPathProviderTest::scopesOfAMissingDesign_data()
{
    scopesOfAnExistingDesign_data();
}

void DesignPathProviderTest::scopesOfAMissingDesign()
{
    const QString scope = QString::fromLatin1(QTest::currentDataTag());
    const FileName design = missingDesign();
    DesignPathProvider provider = providerOf(design);
    // A design that is not saved yet is to be saved under its own name.
    QCOMPARE(provider.getPathFromScope(scope), scope == m_design
                                                   ? QString::fromStdString(design.toNativeString())
                                                   : DefaultPathProvider().getPathFromScope(scope));
}

void DesignPathProviderTest::designWithoutFileNameFallsBack()
{
    DesignPathProvider provider = providerOf(FileName());
    QCOMPARE(provider.getPathFromScope(m_design), m_folders.path("last"));
    QCOMPARE(provider.getPathFromScope(m_import), m_folders.documents());
}

void DesignPathProviderTest::rememberedPathComesFirst()
{
    DesignPathProvider provider = providerOf(existingDesign());
    const QString folder = m_folders.makeFolder("imports");
    provider.setPathToScope(folder, m_import);
    QCOMPARE(provider.getPathFromScope(m_import), folder);
    QCOMPARE(provider.getPathFromScope(QStringLiteral("Export")), designFolder());
    const QString presses = QStringLiteral("Presses");
    provider.setPathToScope(folder, presses);
    QCOMPARE(provider.getPathFromScope(presses), folder);
    provider.setPathToScope(m_folders.path("b"), m_import);
    QCOMPARE(provider.getPathFromScope(m_import), m_folders.path("b"));
}

void DesignPathProviderTest::rememberedPathIsReturnedAsItIs()
{
    DesignPathProvider provider = providerOf(existingDesign());
    const QString file = m_folders.makeFile("imports/door.stl");
    provider.setPathToScope(file, m_import);
    QCOMPARE(provider.getPathFromScope(m_import), file);
    QCOMPARE(provider.getLastPathFromScope(m_import), m_folders.path("imports"));
    const QString gone = QStringLiteral("gone/../with\\any/separators");
    provider.setPathToScope(gone, m_import);
    QCOMPARE(provider.getPathFromScope(m_import), gone);
}

void DesignPathProviderTest::rememberedPathsAreTheDesignsOwn()
{
    DesignPathProvider provider = providerOf(existingDesign());
    DesignPathProvider another = providerOf(existingDesign());
    provider.setPathToScope(m_folders.makeFolder("imports"), m_import);
    QCOMPARE(another.getPathFromScope(m_import), designFolder());
}

void DesignPathProviderTest::rememberedPathsReachTheSettings()
{
    DesignPathProvider provider = providerOf(existingDesign());
    provider.setPathToScope(m_folders.makeFolder("imports"), m_import);
    QCOMPARE(QSettings().value(QStringLiteral("LastFile/Import")).toString(),
             m_folders.path("imports"));
    QCOMPARE(provider.getLastPathFromScope(m_import), m_folders.path("imports"));
    QCOMPARE(LastPathProvider().getPathFromScope(m_import), m_folders.path("imports"));
}

void DesignPathProviderTest::designPathsBecomePlaces()
{
    DesignPathProvider provider = providerOf(existingDesign());
    provider.setPathToScope(m_folders.makeFile("a/door.zvd"), m_design);
    provider.setPathToScope(m_folders.makeFile("b/door.zvd"), m_design);
    const std::vector<QString> expected{m_folders.asConfigured(m_folders.documents()),
                                        m_folders.path("b"), m_folders.path("a"),
                                        m_folders.path("b")};
    QCOMPARE(provider.getPlacesFromScope(m_design), expected);
}

void DesignPathProviderTest::emptyPathIsNotRemembered()
{
    DesignPathProvider provider = providerOf(existingDesign());
    provider.setPathToScope(QString(), m_import);
    QCOMPARE(provider.getPathFromScope(m_import), designFolder());
    QVERIFY(!QSettings().contains(QStringLiteral("LastFile/Import")));
    provider.setPathToScope(m_folders.path("imports"), m_import);
    provider.setPathToScope(QString(), m_import);
    QCOMPARE(provider.getPathFromScope(m_import), m_folders.path("imports"));
}

void DesignPathProviderTest::fallsBackToVirtualLastPath()
{
    class LastIsScripted : public DesignPathProvider
    {
    public:
        using DesignPathProvider::DesignPathProvider;
        QString getLastPathFromScope(const QString& scope) override
        {
            return QStringLiteral("last of ") + scope;
        }
    };
    LastIsScripted provider(GUIdentifier::create(), FileName());
    QCOMPARE(provider.getPathFromScope(m_design), QStringLiteral("last of Design"));
}

void DesignPathProviderTest::sameIdentifierGivesTheSameProvider()
{
    const GUIdentifier id = GUIdentifier::create();
    DesignPathProvider* provider = DesignPathProvider::getInstance(id, existingDesign());
    QVERIFY(provider);
    QCOMPARE(DesignPathProvider::getInstance(id, existingDesign()), provider);
    QCOMPARE(DesignPathProvider::getInstance(GUIdentifier(id.getUUID()), existingDesign()),
             provider);
}

void DesignPathProviderTest::providerIsReboundToASecondFile()
{
    const GUIdentifier id = GUIdentifier::create();
    DesignPathProvider* provider = DesignPathProvider::getInstance(id, existingDesign());
    provider->setPathToScope(m_folders.makeFolder("pictures"), QStringLiteral("Image"));
    QCOMPARE(provider->getPathFromScope(m_import), designFolder());

    const FileName second(m_folders.makeFile("second/hood.zvd"));
    QCOMPARE(DesignPathProvider::getInstance(id, second), provider);
    QCOMPARE(provider->getPathFromScope(m_import), m_folders.path("second"));
    QCOMPARE(provider->getPathFromScope(m_design), m_folders.path("second"));
    QCOMPARE(provider->getPathFromScope(QStringLiteral("Image")), m_folders.path("pictures"));
}

void DesignPathProviderTest::otherIdentifierGivesAnotherProvider()
{
    DesignPathProvider* provider =
        DesignPathProvider::getInstance(GUIdentifier::create(), existingDesign());
    const FileName second(m_folders.makeFile("second/hood.zvd"));
    QVERIFY(DesignPathProvider::getInstance(GUIdentifier::create(), second) != provider);
    QCOMPARE(provider->getPathFromScope(m_import), designFolder());
}

void DesignPathProviderTest::copiesRememberByThemselves()
{
    DesignPathProvider provider = providerOf(existingDesign());
    provider.setPathToScope(m_folders.path("a"), m_import);
    DesignPathProvider copy(provider);
    provider.setPathToScope(m_folders.path("b"), m_import);
    QCOMPARE(copy.getPathFromScope(m_import), m_folders.path("a"));
}

ZORVANE_TEST(DesignPathProviderTest)
#include "DesignPathProviderTest.moc"
