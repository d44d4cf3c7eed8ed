#pragma once

#include "FileDialogs/FileDialogConfiguration.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>

#include <initializer_list>

class QDialogButtonBox;
class QGridLayout;
class QWidget;

namespace Zorvane {

/**
 * The controls of a configuration as widgets of a dialog of Qt's, in the places that they have in
 * a dialog of the system: below the file list, one under the other, and prominent ones beside the
 * buttons. The widgets belong to the dialog.
 */
class CustomControls : public QObject
{
    Q_OBJECT

public:
    explicit CustomControls(QWidget* dialog);

    /**
     * Adds the controls below the rows of the dialog, labels in the first column. Where some are
     * prominent, the buttons move to the end of the last row, beside these. At most once.
     */
    void add(const FileDialogConfiguration& configuration, QGridLayout& rows,
             QDialogButtonBox& buttons);
    /**
     * Sets `FileDialogConfiguration::ControlState` flags of a control, or of a group by its
     * number. A label goes with its control. An unknown identifier changes nothing.
     */
    void setState(int id, int state);
    /** Lets the tabulator go through the controls, in their order, behind the widget. */
    void followInTabOrder(QWidget* widget) const;

Q_SIGNALS:
    void toggled(bool checked, int controlId);
    void itemSelected(int controlId, int itemIndex);

private:
    using Item = FileDialogConfiguration::CustomItem;

    void collectMnemonics(const FileDialogConfiguration& configuration);
    void addItem(const Item& item, int groupId, QGridLayout& rows, int row);
    QString withMnemonic(const QString& text);
    QWidget* makeControl(const Item& item);
    QWidget* makeCheckBox(const Item& item);
    QWidget* makeComboBox(const Item& item);
    /** The first of an identifier keeps it. */
    void remember(std::initializer_list<int> ids, QWidget* label, QWidget* control);

    QWidget* const m_dialog;
    QHash<int, QList<QWidget*>> m_widgets;
    QList<QWidget*> m_controls;
    /** The letters by which something in the dialog is reached, in lower case. */
    QString m_mnemonics;
};

} // namespace Zorvane
