#include "Workbench/DialogPanel/ExampleControls.h"

#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/FileDialogConfiguration.h"

namespace Zorvane::Workbench {

namespace {

using Configuration = FileDialogConfiguration;

constexpr bool s_prominent = true;
constexpr bool s_below = false;

} // namespace

void ExampleControls::addAll(FileDialogConfiguration& configuration)
{
    const QStringList units{tr("Millimetres"), tr("Inches"), tr("Metres")};
    const QStringList sides{tr("Upper"), tr("Lower")};
    // clang-format off
    const Configuration::CustomItem items[] = {
        {Recursive, Configuration::CheckBox, s_below,     Configuration::ControlEnabledVisible, {},           tr("Include &folders"),       false},
        {KeepUnits, Configuration::CheckBox, s_prominent, Configuration::ControlEnabledVisible, {},           tr("&Keep units"),            true},
        {Unit,      Configuration::ComboBox, s_below,     Configuration::ControlEnabledVisible, tr("&Unit:"), units,                        1},
        {Side,      Configuration::ComboBox, s_prominent, Configuration::ControlEnabledVisible, tr("&Side:"), sides,                        0},
        {More,      Configuration::CheckBox, s_below,     Configuration::ControlEnabledVisible, {},           tr("&More"),                  false},
        {Disabled,  Configuration::CheckBox, s_below,     Configuration::ControlVisible,        {},           tr("&Disabled without More"), false},
        {Hidden,    Configuration::CheckBox, s_below,     Configuration::ControlEnabled,        {},           tr("&Hidden without More"),   true},
    };
    // clang-format on
    for (const Configuration::CustomItem& item : items)
        configuration.addCustomControl(item);
}

void ExampleControls::addAct(FileDialogConfiguration& configuration, const QString& label)
{
    configuration.addCustomControl({Act,
                                    Configuration::CheckBox,
                                    s_below,
                                    Configuration::ControlEnabledVisible,
                                    {},
                                    label,
                                    false});
}

void ExampleControls::follow(bool checked, int controlId,
                             const FileDialogCallbackInterface& callbacks)
{
    if (controlId != More)
        return;
    const int all = Configuration::ControlEnabledVisible;
    callbacks.setControlState(Disabled, checked ? all : Configuration::ControlVisible);
    callbacks.setControlState(Hidden, checked ? all : Configuration::ControlEnabled);
}

} // namespace Zorvane::Workbench
