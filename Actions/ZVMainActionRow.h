#pragma once

namespace Zorvane {

/** A row of the table of the main actions. Texts are source texts, translated when it is used. */
struct ZVMainActionRow
{
    struct Shortcut
    {
        enum Kind
        {
            None,
            Standard,
            TranslatedKeys,
            KeyCode
        };
        Kind kind = None;
        /** A `QKeySequence::StandardKey` or a key code; with `keys`, their untranslated meaning. */
        int key = 0;
        /** The keys in words, to be translated. */
        const char* keys = nullptr;
    };

    struct Icon
    {
        enum Kind
        {
            None,
            Svg,
            TwoSizeSvg,
            Overview,
            ProductCoordinates
        };
        Kind kind = None;
        const char* path = nullptr;
    };

    enum class Group
    {
        None,
        WindowLayouts,
        CoordinateSystems,
        StationVisibilities
    };

    /** What is done to an action after it is created: by name, in a row only what it needs. */
    struct Settings
    {
        bool isCheckable = false;
        bool isChecked = false;
        bool isDisabled = false;
        bool hasTextAsIconText = false;
        bool mayNeedStandards = false;
        Group group = Group::None;
        /** In a group of values, the action's. */
        int value = 0;
        /** The angle that stands for "%1". */
        int degrees = 0;
        /** Another text, for the product with pitched stations. */
        const char* pitchedText = nullptr;

        constexpr Settings checkable() const
        {
            Settings changed = *this;
            changed.isCheckable = true;
            return changed;
        }
        constexpr Settings checked() const
        {
            Settings changed = checkable();
            changed.isChecked = true;
            return changed;
        }
        constexpr Settings disabled() const
        {
            Settings changed = *this;
            changed.isDisabled = true;
            return changed;
        }
        constexpr Settings textAsIconText() const
        {
            Settings changed = *this;
            changed.hasTextAsIconText = true;
            return changed;
        }
        constexpr Settings needingStandards() const
        {
            Settings changed = *this;
            changed.mayNeedStandards = true;
            return changed;
        }
        constexpr Settings in(Group itsGroup, int itsValue = 0) const
        {
            Settings changed = *this;
            changed.group = itsGroup;
            changed.value = itsValue;
            return changed;
        }
        constexpr Settings turnedBy(int angle) const
        {
            Settings changed = *this;
            changed.degrees = angle;
            return changed;
        }
        constexpr Settings onPitchedStations(const char* itsText) const
        {
            Settings changed = *this;
            changed.pitchedText = itsText;
            return changed;
        }
    };

    /** A tool tip that is the text once more. */
    static constexpr char s_sameAsText[] = "=";

    /** An id of `Actions`, or less than 0 for an action that is reached through its group only. */
    int id;
    const char* objectName;
    const char* text;
    /** Empty for none. */
    const char* toolTip;
    Shortcut shortcut;
    Icon icon;
    Settings settings;
};

} // namespace Zorvane
