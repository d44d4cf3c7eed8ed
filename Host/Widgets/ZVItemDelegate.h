#pragma once

#include "Host/HostExport.h"

#include <QtWidgets/QStyledItemDelegate>

namespace Zorvane {

/** Base of the suite's item delegates: Qt's, and what they all ask about an item. */
class ZORVANE_HOST_EXPORT ZVItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ZVItemDelegate(QObject* parent = nullptr);
    ~ZVItemDelegate() override;

protected:
    /** Whether the model says that the item is enabled; false for an invalid index. */
    static bool isEnabled(const QModelIndex& index);
    /** What a colour that stands for something looks like while its item is disabled. */
    static QColor disabledColor(const QColor& color);
};

} // namespace Zorvane
