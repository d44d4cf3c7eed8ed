#include "Host/Configuration/ColorConfiguration.h"

#include "Host/ScopedReplacement.h"
#include "Tests/Support/TestCase.h"

#include <cmath>
#include <memory>

using namespace Zorvane;

namespace {

void compare(const ColorConfiguration::Color& actual, float red, float green, float blue)
{
    QCOMPARE(actual.red, red);
    QCOMPARE(actual.green, green);
    QCOMPARE(actual.blue, blue);
}

/** A host that works its colours out. */
class ComputedColors : public ColorConfiguration
{
public:
    Color getColor(int id) const override { return {float(id) / 10.0F, 0.0F, 0.0F}; }
};

} // namespace

class ColorConfigurationTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void thereIsAlwaysAnInstance();
    void theApplicationRegistersItsOwn();
    void aRegisteredInstanceLivesAsLongAsItIsUsed();
    void holdsColorsById();
    void anIdWithoutAColorIsGrey();
    void componentsStayWithinBounds();
    void copiesAreIndependent();
    void colorsMayBeWorkedOut();
    void replacedColors_endWithTheirScope();
};

void ColorConfigurationTest::cleanup()
{
    ColorConfiguration::registerInstance(nullptr);
    TestCase::cleanup();
}

void ColorConfigurationTest::thereIsAlwaysAnInstance()
{
    QVERIFY(ColorConfiguration::getRegisteredInstance());
    QVERIFY(!ColorConfiguration::getRegisteredInstance()->hasColor(0));
}

void ColorConfigurationTest::theApplicationRegistersItsOwn()
{
    const auto own = std::make_shared<ColorConfiguration>();
    ColorConfiguration::registerInstance(own);
    QCOMPARE(ColorConfiguration::getRegisteredInstance(), own);
    ColorConfiguration::registerInstance(nullptr);
    QVERIFY(ColorConfiguration::getRegisteredInstance());
    QVERIFY(ColorConfiguration::getRegisteredInstance() != own);
}

void ColorConfigurationTest::aRegisteredInstanceLivesAsLongAsItIsUsed()
{
    ColorConfiguration::registerInstance(std::make_shared<ComputedColors>());
    const auto used = ColorConfiguration::getRegisteredInstance();
    ColorConfiguration::registerInstance(nullptr);
    compare(used->getColor(5), 0.5F, 0.0F, 0.0F);
}

void ColorConfigurationTest::holdsColorsById()
{
    ColorConfiguration colors;
    colors.setColor(3, {0.25F, 0.5F, 1.0F});
    colors.setColor(-7, {1.0F, 0.0F, 0.0F});
    QVERIFY(colors.hasColor(3));
    compare(colors.getColor(3), 0.25F, 0.5F, 1.0F);
    compare(colors.getColor(-7), 1.0F, 0.0F, 0.0F);
    colors.setColor(3, {0.0F, 0.0F, 0.0F});
    compare(colors.getColor(3), 0.0F, 0.0F, 0.0F);
}

void ColorConfigurationTest::anIdWithoutAColorIsGrey()
{
    const ColorConfiguration colors;
    QVERIFY(!colors.hasColor(3));
    compare(colors.getColor(3), 0.5F, 0.5F, 0.5F);
}

void ColorConfigurationTest::componentsStayWithinBounds()
{
    ColorConfiguration colors;
    colors.setColor(1, {-0.5F, 1.5F, std::nanf("")});
    compare(colors.getColor(1), 0.0F, 1.0F, 0.0F);
}

void ColorConfigurationTest::copiesAreIndependent()
{
    ColorConfiguration colors;
    colors.setColor(1, {1.0F, 1.0F, 1.0F});
    ColorConfiguration copy = colors;
    copy.setColor(1, {0.0F, 0.0F, 0.0F});
    compare(colors.getColor(1), 1.0F, 1.0F, 1.0F);
}

void ColorConfigurationTest::colorsMayBeWorkedOut()
{
    ColorConfiguration::registerInstance(std::make_shared<ComputedColors>());
    compare(ColorConfiguration::getRegisteredInstance()->getColor(1), 0.1F, 0.0F, 0.0F);
}

void ColorConfigurationTest::replacedColors_endWithTheirScope()
{
    const auto before = ColorConfiguration::getRegisteredInstance();
    const auto own = std::make_shared<ComputedColors>();
    {
        const ScopedReplacement<ColorConfiguration> colors(own);
        QCOMPARE(ColorConfiguration::getRegisteredInstance(),
                 std::shared_ptr<ColorConfiguration>(own));
    }
    QCOMPARE(ColorConfiguration::getRegisteredInstance(), before);
}

ZORVANE_TEST(ColorConfigurationTest)
#include "ColorConfigurationTest.moc"
