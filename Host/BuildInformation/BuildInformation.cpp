#include "Host/BuildInformation/BuildInformation.h"

namespace Zorvane {

namespace {

int s_productType = 0;

} // namespace

int BuildInformation::getProductType()
{
    return s_productType;
}

void BuildInformation::setProductType(int productType)
{
    s_productType = productType;
}

} // namespace Zorvane
