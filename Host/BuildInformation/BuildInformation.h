#pragma once

#include "Host/HostExport.h"

namespace Zorvane {

/** What kind of product of the suite this process is. For the GUI thread. */
class ZORVANE_HOST_EXPORT BuildInformation
{
public:
    BuildInformation() = delete;

    /** The product whose stations are pitched, where coordinate systems are named differently. */
    static constexpr int s_pitchedStations = 5;

    /** The number of the product; 0 unless the application set one. */
    static int getProductType();
    /** Set it at start, before anything is created whose texts depend on it. */
    static void setProductType(int productType);
};

} // namespace Zorvane
