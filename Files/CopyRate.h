#pragma once

#include "UiToolsExport.h"

#include <QtCore/QtGlobal>

#include <deque>
#include <optional>

namespace Zorvane {

/** Tells speed and time left from the last few seconds, so that it follows changes calmly. */
class ZORVANE_UITOOLS_EXPORT CopyRate
{
public:
    /** The bytes done in all at a time in milliseconds. Neither ever goes back. */
    void add(qint64 milliseconds, qint64 bytesDone);

    /** Nothing while too little is known, or nothing moves. */
    std::optional<double> bytesPerSecond() const;
    std::optional<qint64> secondsLeft(qint64 bytesLeft) const;

private:
    struct Sample
    {
        qint64 milliseconds;
        qint64 bytes;
    };
    std::deque<Sample> m_samples;
};

} // namespace Zorvane
