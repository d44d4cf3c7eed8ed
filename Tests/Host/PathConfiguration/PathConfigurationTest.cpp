#include "Host/PathConfiguration/PathConfiguration.h"
#include "Host/ScopedReplacement.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <memory>

using namespace Zorvane;

namespace {

using Getter = FileName (*)();

struct Row
{
    const char* name;
    const char* variable;
    Getter getter;
};

// clang-format off
constexpr Row s_rows[]{
    {"MyDocuments",     "ZORVANE_PATH_MY_DOCUMENTS",     &PathConfiguration::getZvPathMyDocuments},
    {"Presses",         "ZORVANE_PATH_PRESSES",          &PathConfiguration::getZvPathPressesFiles},
    {"Materials",       "ZORVANE_PATH_MATERIALS",        &PathConfiguration::getZvPathMaterialFiles},
    {"Lubrication",     "ZORVANE_PATH_LUBRICATION",      &PathConfiguration::getZvPathLubricationFiles},
    {"Standards",       "ZORVANE_PATH_STANDARDS",        &PathConfiguration::getZvPathStandardFiles},
    {"DesignTemplates", "ZORVANE_PATH_DESIGN_TEMPLATES", &PathConfiguration::getZvPathTemplateDesignFiles},
    {"Drawbeads",       "ZORVANE_PATH_DRAWBEADS",        &PathConfiguration::getZvPathDrawbeadFiles},
    {"Formability",     "ZORVANE_PATH_FORMABILITY",      &PathConfiguration::getZvPathFormabilityFiles},
    {"Addendum",        "ZORVANE_PATH_ADDENDUM",         &PathConfiguration::getZvPathAddendumFiles},
    {"HemmingTools",    "ZORVANE_PATH_HEMMING_TOOLS",    &PathConfiguration::getZvPathHemmingToolFiles},
    {"Guidelines",      "ZORVANE_PATH_GUIDELINES",       &PathConfiguration::getZvPathGuidelineFiles},
    {"Connectors",      "ZORVANE_PATH_CONNECTORS",       &PathConfiguration::getZvPathConnectorFiles},
};
// clang-format on

constexpr const char* s_rootVariable = "ZORVANE_PATH_DATA";

} // namespace

Q_DECLARE_METATYPE(const Row*)

class PathConfigurationTest : public Testing::TestCase
{
    Q_OBJECT

private:
    void addRows();
    static QString pathOf(const Row& row) { return row.getter().toQString(); }
    static QString settingOf(const Row& row)
    {
        return QStringLiteral("Paths/") + QString::fromLatin1(row.name);
    }
    static bool isData(const Row& row) { return &row != s_rows; }

private Q_SLOTS:
    void init();
    void foldersStandAtTheSystemsLocations_data() { addRows(); }
    void foldersStandAtTheSystemsLocations();
    void existingSharedFolderIsFound();
    void settingOverrides_data() { addRows(); }
    void settingOverrides();
    void environmentOverridesTheSetting_data() { addRows(); }
    void environmentOverridesTheSetting();
    void dataRootMovesAllDataFolders_data() { addRows(); }
    void dataRootMovesAllDataFolders();
    void relativeOverridesAreIgnored_data() { addRows(); }
    void relativeOverridesAreIgnored();
    void nothingIsCreated_data() { addRows(); }
    void nothingIsCreated();
    void replacedFolders_answerEveryGetter();
};

void PathConfigurationTest::addRows()
{
    QTest::addColumn<const Row*>("row");
    for (const Row& row : s_rows)
        QTest::newRow(row.name) << &row;
}

void PathConfigurationTest::init()
{
    QSettings().clear();
    qunsetenv(s_rootVariable);
    for (const Row& row : s_rows)
        qunsetenv(row.variable);
}

void PathConfigurationTest::foldersStandAtTheSystemsLocations()
{
    QFETCH(const Row*, row);
    const QString expected =
        isData(*row) ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                           QStringLiteral("/zorvane/") + QString::fromLatin1(row->name)
                     : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QCOMPARE(pathOf(*row), expected);
}

void PathConfigurationTest::existingSharedFolderIsFound()
{
    const QString own = PathConfiguration::getZvPathConnectorFiles().toQString();
    const QTemporaryDir shared;
    QVERIFY(QDir(shared.path()).mkpath(QStringLiteral("zorvane/Connectors")));
    const QByteArray before = qgetenv("XDG_DATA_DIRS");
    qputenv("XDG_DATA_DIRS", shared.path().toLocal8Bit());
    const bool isShared = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)
                              .contains(shared.path());
    const QString found = PathConfiguration::getZvPathConnectorFiles().toQString();
    const QString missing = PathConfiguration::getZvPathPressesFiles().toQString();
    before.isNull() ? qunsetenv("XDG_DATA_DIRS") : qputenv("XDG_DATA_DIRS", before);
    if (!isShared)
        QSKIP("the shared data locations of this system cannot be moved");
    QCOMPARE(found, shared.filePath(QStringLiteral("zorvane/Connectors")));
    QVERIFY(found != own);
    QVERIFY(!missing.startsWith(shared.path()));
}

void PathConfigurationTest::settingOverrides()
{
    QFETCH(const Row*, row);
    const QTemporaryDir dir;
    QSettings().setValue(settingOf(*row), dir.filePath(QStringLiteral("a//b/")));
    QCOMPARE(pathOf(*row), dir.filePath(QStringLiteral("a/b")));
}

void PathConfigurationTest::environmentOverridesTheSetting()
{
    QFETCH(const Row*, row);
    const QTemporaryDir dir;
    QSettings().setValue(settingOf(*row), dir.filePath(QStringLiteral("setting")));
    qputenv(row->variable, dir.filePath(QStringLiteral(u"Umgebung für alle")).toLocal8Bit());
    QCOMPARE(pathOf(*row), dir.filePath(QStringLiteral(u"Umgebung für alle")));
}

void PathConfigurationTest::dataRootMovesAllDataFolders()
{
    QFETCH(const Row*, row);
    const QTemporaryDir dir;
    const QString standard = pathOf(*row);
    QSettings().setValue(QStringLiteral("Paths/Data"), dir.filePath(QStringLiteral("setting")));
    const QString below = u'/' + QString::fromLatin1(row->name);
    QCOMPARE(pathOf(*row),
             isData(*row) ? dir.filePath(QStringLiteral("setting")) + below : standard);
    qputenv(s_rootVariable, dir.path().toLocal8Bit());
    QCOMPARE(pathOf(*row), isData(*row) ? dir.path() + below : standard);
    QSettings().setValue(settingOf(*row), dir.filePath(QStringLiteral("own")));
    QCOMPARE(pathOf(*row), dir.filePath(QStringLiteral("own")));
}

void PathConfigurationTest::relativeOverridesAreIgnored()
{
    QFETCH(const Row*, row);
    const QString standard = pathOf(*row);
    qputenv(row->variable, "relative/folder");
    qputenv(s_rootVariable, "relative");
    QCOMPARE(pathOf(*row), standard);
    const QTemporaryDir dir;
    QSettings().setValue(settingOf(*row), dir.path());
    QCOMPARE(pathOf(*row), dir.path());
    QSettings().setValue(settingOf(*row), QStringLiteral("."));
    QCOMPARE(pathOf(*row), standard);
}

void PathConfigurationTest::nothingIsCreated()
{
    QFETCH(const Row*, row);
    const QTemporaryDir dir;
    const QString missing = dir.filePath(QStringLiteral("missing"));
    qputenv(row->variable, missing.toLocal8Bit());
    QCOMPARE(pathOf(*row), missing);
    QVERIFY(!QFileInfo::exists(missing));
}

void PathConfigurationTest::replacedFolders_answerEveryGetter()
{
    struct Drives : PathConfiguration
    {
        FileName getFolder(Folder folder) const override
        {
            if (folder == Folder::MyDocuments)
                return PathConfiguration::getFolder(folder);
            return FileName(QStringLiteral("/suite/%1").arg(int(folder)));
        }
    };
    const FileName documents = PathConfiguration::getZvPathMyDocuments();
    {
        const ScopedReplacement<PathConfiguration> folders(std::make_shared<Drives>());
        QCOMPARE(PathConfiguration::getZvPathMyDocuments().toQString(), documents.toQString());
        int number = 0;
        for (const Row& row : s_rows) {
            if (number != 0)
                QCOMPARE(row.getter().toQString(), QStringLiteral("/suite/%1").arg(number));
            ++number;
        }
    }
    QVERIFY(!PathConfiguration::getZvPathConnectorFiles().toQString().startsWith(
        QStringLiteral("/suite")));
}

ZORVANE_TEST(PathConfigurationTest)
#include "PathConfigurationTest.moc"
