#pragma once

#include "Host/HostExport.h"

#include <QtCore/QFlags>
#include <QtCore/QObject>

namespace Zorvane {

/**
 * The states that a widget or a row can show about the object behind it. Any of them may come
 * together; item data holds them as an int. The values are stored by hosts and stay as they are.
 */
class ZORVANE_HOST_EXPORT ZVWidgetStatus
{
    Q_GADGET

public:
    enum Status
    {
        Normal = 0x00,
        /** Something that the object needs, such as its file, is not there. */
        Missing = 0x01,
        /** Changed since it was saved. */
        Modified = 0x02,
        /** It cannot be used as it is. */
        Error = 0x04,
        /** It can be used, but something about it should be looked at. */
        Warning = 0x08,
        /** Work on it is under way. */
        Busy = 0x10,
        /** Results no longer match what they were computed from. */
        OutOfDate = 0x20,
        ReadOnly = 0x40
    };
    Q_DECLARE_FLAGS(Stati, Status)
    Q_FLAG(Stati)

    ZVWidgetStatus() = delete;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZVWidgetStatus::Stati)

} // namespace Zorvane
