#include "Host/Resources/IconPathProvider.h"

#include "Host/ScopedReplacement.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QFile>

#include <memory>

using namespace Zorvane;

namespace {

class OwnPaths : public Resources::IconPathProvider
{
public:
    QString getOverviewIconPath() const override { return QStringLiteral("mine.svg"); }
};

} // namespace

class IconPathProviderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void theSuitesIconsExist();
    void theApplicationRegistersItsOwn();
    void replacedProvider_endsWithItsScope();
};

void IconPathProviderTest::cleanup()
{
    Resources::registerIconPathProvider(nullptr);
    TestCase::cleanup();
}

void IconPathProviderTest::theSuitesIconsExist()
{
    const auto provider = Resources::getIconPathProvider();
    QVERIFY(provider);
    QVERIFY(QFile::exists(provider->getOverviewIconPath()));
    QVERIFY(QFile::exists(provider->getProductCoordinatesIconPath() + QStringLiteral("_16.svg")));
    QVERIFY(QFile::exists(provider->getProductCoordinatesIconPath() + QStringLiteral("_32.svg")));
}

void IconPathProviderTest::theApplicationRegistersItsOwn()
{
    const auto suites = Resources::getIconPathProvider();
    Resources::registerIconPathProvider(std::make_shared<OwnPaths>());
    QCOMPARE(Resources::getIconPathProvider()->getOverviewIconPath(), QStringLiteral("mine.svg"));
    QCOMPARE(Resources::getIconPathProvider()->getProductCoordinatesIconPath(),
             suites->getProductCoordinatesIconPath());
    Resources::registerIconPathProvider(nullptr);
    QVERIFY(Resources::getIconPathProvider()->getOverviewIconPath() != QStringLiteral("mine.svg"));
}

void IconPathProviderTest::replacedProvider_endsWithItsScope()
{
    const auto suites = Resources::getIconPathProvider();
    {
        const ScopedReplacement<Resources::IconPathProvider> own(std::make_shared<OwnPaths>());
        QCOMPARE(Resources::getIconPathProvider()->getOverviewIconPath(),
                 QStringLiteral("mine.svg"));
    }
    QCOMPARE(Resources::getIconPathProvider(), suites);
}

ZORVANE_TEST(IconPathProviderTest)
#include "IconPathProviderTest.moc"
