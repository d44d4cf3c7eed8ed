#include "Host/BuildInformation/BuildInformation.h"

#include "Tests/Support/TestCase.h"

using namespace Zorvane;

class BuildInformationTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theProductIsWhatTheApplicationSet();
};

void BuildInformationTest::theProductIsWhatTheApplicationSet()
{
    QCOMPARE(BuildInformation::getProductType(), 0);
    BuildInformation::setProductType(BuildInformation::s_pitchedStations);
    QCOMPARE(BuildInformation::getProductType(), 5);
    BuildInformation::setProductType(0);
    QCOMPARE(BuildInformation::getProductType(), 0);
}

ZORVANE_TEST(BuildInformationTest)
#include "BuildInformationTest.moc"
