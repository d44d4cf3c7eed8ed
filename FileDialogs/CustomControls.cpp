#include "FileDialogs/CustomControls.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace Zorvane {

namespace {

constexpr int s_firstGroupId = 201;

QLabel* makeLabel(const QString& text, QWidget* control, QWidget* dialog)
{
    auto* label = new QLabel(text, dialog);
    label->setBuddy(control);
    return label;
}

} // namespace

CustomControls::CustomControls(QWidget* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{}

void CustomControls::add(const FileDialogConfiguration& configuration, QGridLayout& rows,
                         QBoxLayout& prominent)
{
    for (int i = 0; i < configuration.numberOfcustomControls(); ++i) {
        const Item& item = configuration.getCustomControl(i);
        const int row = rows.rowCount();
        const auto place = [&](QWidget* widget, int column) {
            if (item.prominent)
                prominent.addWidget(widget);
            else
                rows.addWidget(widget, row, column, column == 0 ? Qt::Alignment() : Qt::AlignLeft);
        };
        QList<QWidget*> widgets;
        QWidget* control = makeControl(item);
        if (!item.groupLabel.isEmpty()) {
            widgets << makeLabel(item.groupLabel, control, m_dialog);
            place(widgets.last(), 0);
        }
        if (control) {
            widgets << control;
            m_controls << control;
            place(control, 1);
        }
        for (const int id : {item.controlId, s_firstGroupId + i}) {
            if (!m_widgets.contains(id))
                m_widgets.insert(id, widgets);
        }
        setState(s_firstGroupId + i, item.controlState);
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
