#include "FileDialogs/QtDialogParts.h"

#include <QtCore/QDebug>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

namespace Zorvane {

std::optional<QtDialogParts> findQtDialogParts(const QFileDialog& dialog)
{
    QtDialogParts parts;
    parts.rows = qobject_cast<QGridLayout*>(dialog.layout());
    parts.list = dialog.findChild<QListView*>(QStringLiteral("listView"));
    parts.name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    parts.types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    parts.buttons = dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    if (parts.rows && parts.list && parts.name && parts.types && parts.buttons)
        return parts;
    qWarning("This version of Qt's file dialog is built otherwise: no controls, no events");
    return std::nullopt;
}

} // namespace Zorvane
