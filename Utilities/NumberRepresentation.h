#pragma once

#include "UiToolsExport.h"

#include <string>

namespace Zorvane {

/**
 * How dialogs show a measured value, and by how much their spin boxes step it. Keeps no state.
 *
 * Not supported: units, a number of digits of the caller's choice, reading texts back.
 */
class ZORVANE_UITOOLS_EXPORT NumberRepresentation
{
public:
    NumberRepresentation() = delete;

    /**
     * The value as the host's `ZVFormatter` writes it in engineering notation, in UTF-8.
     *
     * A value that is not a number, or that does not lie strictly between the negative and the
     * positive largest single-precision float, is the application's mark for "nothing measured"
     * and gives the translated "No value".
     */
    static std::string convertToEngineeringNotation(double value);

    /**
     * The step of a spin box that shows `value`: a hundredth of the value's decade, whatever its
     * sign. Below 1 the step is one decade coarser than that, so 0.5 steps by 0.01 as 5 does,
     * except at 0.1, 0.01, ... themselves: 0.1 steps by 0.001.
     *
     * Zero gives a step of zero, and what is not finite no step that a spin box can use: callers
     * decide what to step by then.
     */
    static double optimalSpinnerIncrement(double value);
};

} // namespace Zorvane
