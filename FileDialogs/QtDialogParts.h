#pragma once

#include <QtCore/qglobal.h>

#include <optional>

QT_BEGIN_NAMESPACE
class QComboBox;
class QDialogButtonBox;
class QFileDialog;
class QGridLayout;
class QLineEdit;
class QListView;
QT_END_NAMESPACE

namespace Zorvane {

/**
 * What Qt's own file dialog is made of. Their names are Qt's and kept since Qt 4, but promised to
 * nobody: another version may lack them. They belong to the dialog.
 */
struct QtDialogParts
{
    /** Folder, list, name and type one under the other, the buttons beside the last two. */
    QGridLayout* rows = nullptr;
    QListView* list = nullptr;
    QLineEdit* name = nullptr;
    QComboBox* types = nullptr;
    QDialogButtonBox* buttons = nullptr;
};

/** All of them, or none and a warning where the dialog lacks one. */
std::optional<QtDialogParts> findQtDialogParts(const QFileDialog& dialog);

} // namespace Zorvane
