#pragma once

#include "UiToolsExport.h"

#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QFileDialog;
QT_END_NAMESPACE

namespace Zorvane {

/**
 * Gives the side bar of Qt's own file dialog the width that the names of its places take, up to a
 * third of the dialog. A side bar that is wider stays so; one that the user has narrowed does not,
 * as Qt keeps the width of every dialog and can't tell whose it is. For a dialog that is shown, or
 * about to be; nothing happens to one that the system draws.
 */
ZORVANE_UITOOLS_EXPORT void widenSideBar(const QFileDialog& dialog);

/** While it lives, the side bars of file dialogs that appear are widened. */
class ZORVANE_UITOOLS_EXPORT SideBarWidening : public QObject
{
    Q_OBJECT

public:
    SideBarWidening();

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Zorvane
