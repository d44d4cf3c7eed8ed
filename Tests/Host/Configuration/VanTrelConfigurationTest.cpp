#include "Host/Configuration/VanTrelConfiguration.h"

#include "Host/ScopedReplacement.h"
#include "Tests/Support/TestCase.h"

#include <memory>

using namespace Zorvane;

namespace {

class AlwaysRestricted : public VanTrelConfiguration
{
public:
    bool getDisableExportWithoutStandard() const override { return true; }
};

} // namespace

class VanTrelConfigurationTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void thereIsNoneUntilTheApplicationRegistersOne();
    void exportIsNotRestrictedAtFirst();
    void copiesAreIndependent();
    void aSettingMayBeWorkedOut();
    void replacedConfiguration_endsWithItsScope();
};

void VanTrelConfigurationTest::cleanup()
{
    VanTrelConfiguration::registerInstance(nullptr);
    TestCase::cleanup();
}

void VanTrelConfigurationTest::thereIsNoneUntilTheApplicationRegistersOne()
{
    QVERIFY(!VanTrelConfiguration::getRegisteredInstance());
    const auto own = std::make_shared<VanTrelConfiguration>();
    VanTrelConfiguration::registerInstance(own);
    QCOMPARE(VanTrelConfiguration::getRegisteredInstance(), own);
    VanTrelConfiguration::registerInstance(nullptr);
    QVERIFY(!VanTrelConfiguration::getRegisteredInstance());
}

void VanTrelConfigurationTest::exportIsNotRestrictedAtFirst()
{
    VanTrelConfiguration exchange;
    QVERIFY(!exchange.getDisableExportWithoutStandard());
    exchange.setDisableExportWithoutStandard(true);
    QVERIFY(exchange.getDisableExportWithoutStandard());
}

void VanTrelConfigurationTest::copiesAreIndependent()
{
    VanTrelConfiguration exchange;
    exchange.setDisableExportWithoutStandard(true);
    VanTrelConfiguration copy = exchange;
    copy.setDisableExportWithoutStandard(false);
    QVERIFY(exchange.getDisableExportWithoutStandard());
}

void VanTrelConfigurationTest::aSettingMayBeWorkedOut()
{
    VanTrelConfiguration::registerInstance(std::make_shared<AlwaysRestricted>());
    QVERIFY(VanTrelConfiguration::getRegisteredInstance()->getDisableExportWithoutStandard());
}

void VanTrelConfigurationTest::replacedConfiguration_endsWithItsScope()
{
    {
        const ScopedReplacement<VanTrelConfiguration> own(std::make_shared<VanTrelConfiguration>());
        QVERIFY(VanTrelConfiguration::getRegisteredInstance());
    }
    QVERIFY(!VanTrelConfiguration::getRegisteredInstance());
}

ZORVANE_TEST(VanTrelConfigurationTest)
#include "VanTrelConfigurationTest.moc"
