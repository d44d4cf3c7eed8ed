#pragma once

#include "UiToolsExport.h"

#include <QtCore/QString>

namespace Zorvane {

struct CopyProgressState
{
    enum class Stage
    {
        Checking, /**< Files are looked at; nothing is copied yet, and there are no bytes. */
        Copying
    };
    Stage stage = Stage::Copying;
    QString fileName; /**< Leaf name of the file at work, or the last one. */
    qint64 bytesDone = 0;
    qint64 bytesTotal = 0;
    int filesDone = 0;
    int filesTotal = 0;
};

/** Told after each small slice of work. */
class ZORVANE_UITOOLS_EXPORT CopyProgress
{
public:
    CopyProgress();
    virtual ~CopyProgress();

    CopyProgress(const CopyProgress&) = delete;
    CopyProgress& operator=(const CopyProgress&) = delete;

    /**
     * False cancels: nothing more is copied, and what isn't complete goes away. Stays false then,
     * however often it is told while things are tidied up.
     */
    virtual bool goOn(const CopyProgressState& state) = 0;
};

} // namespace Zorvane
