#pragma once

#include "Host/HostExport.h"

#include <memory>

namespace Zorvane {

/**
 * How the application exchanges data with VanTrel. There is none unless the application registers
 * it. Derive to work a setting out.
 *
 * Not supported: keeping settings from one start to the next, which is the application's business,
 * and use outside of the GUI thread.
 */
class ZORVANE_HOST_EXPORT VanTrelConfiguration
{
public:
    VanTrelConfiguration();
    VanTrelConfiguration(const VanTrelConfiguration&);
    VanTrelConfiguration& operator=(const VanTrelConfiguration&);
    virtual ~VanTrelConfiguration();

    /** Null without data exchange. */
    static std::shared_ptr<VanTrelConfiguration> getRegisteredInstance();
    /** Returns the instance before, which it replaces. Null stands for none. */
    static std::shared_ptr<VanTrelConfiguration>
    registerInstance(std::shared_ptr<VanTrelConfiguration> instance);

    /** Whether data may leave only by way of export standards. False at first. */
    virtual bool getDisableExportWithoutStandard() const;
    void setDisableExportWithoutStandard(bool disable);

private:
    bool m_disableExportWithoutStandard = false;
};

} // namespace Zorvane
