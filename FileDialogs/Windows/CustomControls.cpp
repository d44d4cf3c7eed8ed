#include "FileDialogs/Windows/CustomControls.h"

#include "FileDialogs/FileDialogConfiguration.h"
#include "Files/Windows/ShellPath.h"

namespace Zorvane {

namespace {

using CustomItem = FileDialogConfiguration::CustomItem;

constexpr DWORD firstGroupId = FileDialogConfiguration::s_firstGroupId;

HRESULT addCheckBox(IFileDialogCustomize* dialog, const CustomItem& item)
{
    return dialog->AddCheckButton(DWORD(item.controlId), wide(item.content.toString()),
                                  item.initialValue.toBool());
}

HRESULT addComboBox(IFileDialogCustomize* dialog, const CustomItem& item)
{
    const DWORD id = DWORD(item.controlId);
    HRESULT result = dialog->AddComboBox(id);
    DWORD itemId = 0;
    for (const QString& text : item.content.toStringList()) {
        if (FAILED(result))
            return result;
        result = dialog->AddControlItem(id, itemId++, wide(text));
    }
    if (SUCCEEDED(result))
        result = dialog->SetSelectedControlItem(id, DWORD(item.initialValue.toInt()));
    return result;
}

HRESULT addControl(IFileDialogCustomize* dialog, const CustomItem& item)
{
    HRESULT result = S_OK;
    if (item.controlType == FileDialogConfiguration::CheckBox)
        result = addCheckBox(dialog, item);
    else if (item.controlType == FileDialogConfiguration::ComboBox)
        result = addComboBox(dialog, item);
    if (SUCCEEDED(result))
        result = dialog->SetControlState(DWORD(item.controlId), CDCONTROLSTATEF(item.controlState));
    return result;
}

HRESULT addItem(IFileDialogCustomize* dialog, const CustomItem& item, DWORD groupId)
{
    const bool isGrouped = !item.groupLabel.isEmpty();
    HRESULT result = S_OK;
    if (isGrouped)
        result = dialog->StartVisualGroup(groupId, wide(item.groupLabel));
    if (SUCCEEDED(result))
        result = addControl(dialog, item);
    if (SUCCEEDED(result) && isGrouped)
        result = dialog->EndVisualGroup();
    if (SUCCEEDED(result) && item.prominent)
        result = dialog->MakeProminent(isGrouped ? groupId : DWORD(item.controlId));
    return result;
}

} // namespace

HRESULT addCustomControls(IFileDialogCustomize* dialog,
                          const FileDialogConfiguration& configuration)
{
    HRESULT result = S_OK;
    for (int i = 0; i < configuration.numberOfcustomControls() && SUCCEEDED(result); ++i)
        result = addItem(dialog, configuration.getCustomControl(i), firstGroupId + DWORD(i));
    return result;
}

} // namespace Zorvane
