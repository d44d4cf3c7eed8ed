#pragma once

#include "Host/HostExport.h"

#include <memory>
#include <unordered_map>

namespace Zorvane {

/**
 * The application's table of colours, which models name by an id. Code that changes a colour
 * updates the views.
 *
 * Not supported: keeping colours from one start to the next, which is the application's business,
 * and use outside of the GUI thread.
 */
class ZORVANE_HOST_EXPORT ColorConfiguration
{
public:
    /** Components from 0 to 1. */
    struct Color
    {
        float red = 0.0F;
        float green = 0.0F;
        float blue = 0.0F;
    };

    ColorConfiguration();
    ColorConfiguration(const ColorConfiguration&);
    ColorConfiguration& operator=(const ColorConfiguration&);
    virtual ~ColorConfiguration();

    /** Never null: the application's own when it registered one, else one without colours. */
    static std::shared_ptr<ColorConfiguration> getRegisteredInstance();
    /** Returns the instance before, which it replaces. Null stands for one without colours. */
    static std::shared_ptr<ColorConfiguration>
    registerInstance(std::shared_ptr<ColorConfiguration> instance);

    /** The colour of this id; a medium grey for an id that has none. */
    virtual Color getColor(int id) const;
    virtual bool hasColor(int id) const;
    /** Components below 0 or above 1 are taken as 0 or 1, and what is no number as 0. */
    void setColor(int id, const Color& color);

private:
    std::unordered_map<int, Color> m_colors;
};

} // namespace Zorvane
