#include "FileDialogs/CustomControls.h"

#include <QtGui/QKeySequence>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <algorithm>

namespace Zorvane {

namespace {

/** A combo box of long texts asks for no more than this many characters. */
constexpr int longestComboText = 30;

void addRow(QGridLayout& rows, int row, QWidget* label, QWidget* control, bool isWide)
{
    if (label)
        rows.addWidget(label, row, 0);
    if (control && isWide)
        rows.addWidget(control, row, 0, 1, 2, Qt::AlignLeft);
    else if (control)
        rows.addWidget(control, row, 1, Qt::AlignLeft);
}

bool hasProminentControl(const FileDialogConfiguration& configuration)
{
    for (int i = 0; i < configuration.numberOfcustomControls(); ++i) {
        if (configuration.getCustomControl(i).prominent)
            return true;
    }
    return false;
}

/** Makes the row the buttons' own, across the dialog; gives the place left of them. */
QGridLayout* moveButtons(QDialogButtonBox& buttons, QGridLayout& rows, int row)
{
    rows.removeWidget(&buttons);
    buttons.setOrientation(Qt::Horizontal);
    auto* const whole = new QHBoxLayout;
    rows.addLayout(whole, row, 0, 1, rows.columnCount());
    auto* const place = new QGridLayout;
    whole->addStretch();
    whole->addLayout(place);
    whole->addWidget(&buttons);
    return place;
}

/** In lower case; empty where the text has none. */
QString mnemonicOf(const QString& text)
{
    const QKeySequence keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? QString() : QString(QChar(ushort(keys[0]))).toLower();
}

} // namespace

CustomControls::CustomControls(QWidget* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{}

void CustomControls::add(const FileDialogConfiguration& configuration, QGridLayout& rows,
                         QDialogButtonBox& buttons)
{
    const int count = configuration.numberOfcustomControls();
    collectMnemonics(configuration);
    const int firstRow = rows.rowCount();
    // Beside the name and the type, they would leave no room for these.
    QGridLayout* const besideButtons =
        hasProminentControl(configuration) ? moveButtons(buttons, rows, firstRow + count) : nullptr;
    for (int i = 0; i < count; ++i) {
        const Item& item = configuration.getCustomControl(i);
        addItem(item, FileDialogConfiguration::s_firstGroupId + i,
                item.prominent ? *besideButtons : rows, firstRow + i);
    }
}

void CustomControls::collectMnemonics(const FileDialogConfiguration& configuration)
{
    for (const auto* label : m_dialog->findChildren<QLabel*>())
        m_mnemonics += mnemonicOf(label->text());
    for (const auto* button : m_dialog->findChildren<QAbstractButton*>())
        m_mnemonics += mnemonicOf(button->text());
    for (int i = 0; i < configuration.numberOfcustomControls(); ++i) {
        const Item& item = configuration.getCustomControl(i);
        m_mnemonics += mnemonicOf(item.groupLabel) + mnemonicOf(item.content.toString());
    }
}

void CustomControls::addItem(const Item& item, int groupId, QGridLayout& rows, int row)
{
    QWidget* control = makeControl(item);
    QLabel* label = nullptr;
    if (!item.groupLabel.isEmpty()) {
        label = new QLabel(withMnemonic(item.groupLabel), m_dialog);
        label->setBuddy(control);
    }
    // Below the list, the second column lines up with the dialog's own fields.
    addRow(rows, row, label, control, item.prominent && !label);
    if (control)
        m_controls << control;
    remember({item.controlId, groupId}, label, control);
    setState(groupId, item.controlState);
}

/** By its first letter that is still free, where the caller has marked none. */
QString CustomControls::withMnemonic(const QString& text)
{
    if (text.contains(QLatin1Char('&')))
        return text;
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i).toLower();
        if (!letter.isLetterOrNumber() || m_mnemonics.contains(letter))
            continue;
        m_mnemonics += letter;
        return QString(text).insert(i, QLatin1Char('&'));
    }
    return text;
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
    auto* box = new QCheckBox(withMnemonic(item.content.toString()), m_dialog);
    box->setChecked(item.initialValue.toBool());
    connect(box, &QCheckBox::toggled, this,
            [this, id = item.controlId](bool checked) { Q_EMIT toggled(checked, id); });
    return box;
}

QWidget* CustomControls::makeComboBox(const Item& item)
{
    auto* box = new QComboBox(m_dialog);
    const QStringList texts = item.content.toStringList();
    box->addItems(texts);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    int longest = 0;
    for (const QString& text : texts)
        longest = std::max(longest, text.size());
    box->setMinimumContentsLength(std::min(longest, longestComboText));
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
