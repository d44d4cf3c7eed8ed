#pragma once

#include "Host/HostExport.h"

#include <QtCore/QString>

#include <memory>

namespace Zorvane::Resources {

/**
 * Where the icons lie that differ between the applications of the suite. An application with
 * drawings of its own derives from it, and registers that before it creates its actions.
 */
class ZORVANE_HOST_EXPORT IconPathProvider
{
public:
    IconPathProvider();
    IconPathProvider(const IconPathProvider&);
    IconPathProvider& operator=(const IconPathProvider&);
    virtual ~IconPathProvider();

    /** Returns the instance before, which it replaces. Null stands for the suite's. */
    static std::shared_ptr<IconPathProvider>
    registerInstance(std::shared_ptr<IconPathProvider> instance);

    /** The overview of what is selected; an SVG file, for `createSvgIcon`. */
    virtual QString getOverviewIconPath() const;
    /** Product coordinates; without size and ending, for `createTwoSizeSvgIcon`. */
    virtual QString getProductCoordinatesIconPath() const;
};

/** Never null: the application's own when it registered one, else the suite's. */
ZORVANE_HOST_EXPORT std::shared_ptr<IconPathProvider> getIconPathProvider();
/** The same as `IconPathProvider::registerInstance`. */
ZORVANE_HOST_EXPORT void registerIconPathProvider(std::shared_ptr<IconPathProvider> provider);

} // namespace Zorvane::Resources
