#include "FileDialogs/CustomControls.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace Zorvane {

namespace {

constexpr int s_firstGroupId = FileDialogConfiguration::s_firstGroupId;

QLabel* makeLabel(const QString& text, QWidget* control, QWidget* dialog)
{
    auto* label = new QLabel(text, dialog);
    label->setBuddy(control);
    return label;
}

void addRow(QGridLayout& rows, QWidget* label, QWidget* control, bool isWide)
{
    const int row = rows.rowCount();
    if (label)
        rows.addWidget(label, row, 0);
    if (control && isWide)
        rows.addWidget(control, row, 0, 1, 2, Qt::AlignLeft);
    else if (control)
        rows.addWidget(control, row, 1, Qt::AlignLeft);
}

} // namespace

CustomControls::CustomControls(QWidget* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{}

void CustomControls::add(const FileDialogConfiguration& configuration, QGridLayout& below,
                         QGridLayout& besideButtons)
{
    for (int i = 0; i < configuration.numberOfcustomControls(); ++i) {
        const Item& item = configuration.getCustomControl(i);
        QWidget* control = makeControl(item);
        QLabel* label =
            item.groupLabel.isEmpty() ? nullptr : makeLabel(item.groupLabel, control, m_dialog);
        // Below the list, the second column lines up with the dialog's own fields.
        const bool isWide = item.prominent && !label;
        addRow(item.prominent ? besideButtons : below, label, control, isWide);
        if (control)
            m_controls << control;
        remember({item.controlId, s_firstGroupId + i}, label, control);
        setState(s_firstGroupId + i, item.controlState);
    }
}

void CustomControls::remember(std::initializer_list<int> ids, QWidget* label, QWidget* control)
{
    QList<QWidget*> widgets{label, control};
    widgets.removeAll(nullptr);
    for (const int id : ids) {
        if (!m_widgets.contains(id))
            m_widgets.insert(id, widgets);
    }
}

QWidget* CustomControls::makeControl(const Item& item)
{
    switch (item.controlType) {
    case FileDialogConfiguration::CheckBox:
        return makeCheckBox(item);
    case FileDialogConfiguration::ComboBox:
        return makeComboBox(item);
    default:
        return nullptr;
    }
}

QWidget* CustomControls::makeCheckBox(const Item& item)
{
    auto* box = new QCheckBox(item.content.toString(), m_dialog);
    box->setChecked(item.initialValue.toBool());
    connect(box, &QCheckBox::toggled, this,
            [this, id = item.controlId](bool checked) { Q_EMIT toggled(checked, id); });
    return box;
}

QWidget* CustomControls::makeComboBox(const Item& item)
{
    auto* box = new QComboBox(m_dialog);
    box->addItems(item.content.toStringList());
    box->setCurrentIndex(item.initialValue.toInt());
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, id = item.controlId](int index) { Q_EMIT itemSelected(id, index); });
    return box;
}

void CustomControls::setState(int id, int state)
{
    const QList<QWidget*> widgets = m_widgets.value(id);
    for (QWidget* widget : widgets) {
        widget->setEnabled((state & FileDialogConfiguration::ControlEnabled) != 0);
        widget->setVisible((state & FileDialogConfiguration::ControlVisible) != 0);
    }
}

void CustomControls::followInTabOrder(QWidget* widget) const
{
    for (QWidget* control : m_controls) {
        QWidget::setTabOrder(widget, control);
        widget = control;
    }
}

} // namespace Zorvane
