#include "Tools/ActionCatalogue/ActionCatalogue.h"

#include "Actions/ZVMainActions.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QFile>

using namespace Zorvane;

class ActionCatalogueTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void thePageIsCurrent();
    void marksSharedShortcuts();
};

void ActionCatalogueTest::cleanup()
{
    ZVMainActions::releaseInstance();
    TestCase::cleanup();
}

void ActionCatalogueTest::thePageIsCurrent()
{
    QFile file(QStringLiteral(":/expectations/Actions.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList page = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    const QStringList current = Tools::actionCatalogue().split(QLatin1Char('\n'));
    for (int i = 0; i < qMin(page.size(), current.size()); ++i)
        QVERIFY2(page[i] == current[i],
                 qPrintable(QStringLiteral("Docs/Actions.md line %1; write it anew with "
                                           "action-catalogue: %2")
                                .arg(i + 1)
                                .arg(current[i])));
    QCOMPARE(page.size(), current.size());
}

void ActionCatalogueTest::marksSharedShortcuts()
{
    const QString page = Tools::actionCatalogue();
    QVERIFY(page.contains(
        QStringLiteral("- `T`: `ShowCurrentOpTools`, `ShowTandrelTools`, `ShowHydroOpTools`\n")));
    QVERIFY(page.contains(QStringLiteral("- `S`: `ShowSheet`, `ShowFormedTube`\n")));
    QVERIFY(page.contains(QStringLiteral("| Show Sheet |  | `S` * |")) ||
            page.contains(QStringLiteral("| Show Sheet | Show Sheet | `S` * |")));
    QVERIFY(page.contains(QStringLiteral("| `W` |")));
}

ZORVANE_TEST(ActionCatalogueTest)
#include "ActionCatalogueTest.moc"
