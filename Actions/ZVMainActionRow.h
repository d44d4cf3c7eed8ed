#pragma once

#include "Actions/StaticText.h"

namespace Zorvane {

/** What is done to an action after it is created. */
struct ZVMainActionSettings
{
    enum Flag : unsigned
    {
        WindowContext = 1U << 0,
        Disabled = 1U << 1,
        Enabled = 1U << 2,
        Checkable = 1U << 3,
        Checked = 1U << 4,
        Unchecked = 1U << 5,
        IconTextIsText = 1U << 6,
        InWindowGroup = 1U << 7,
        OfCoordinates = 1U << 8,
        OfStations = 1U << 9,
        MayNeedStandards = 1U << 10
    };
    unsigned flags = 0;
    /** The value in an exclusive group. */
    int value = 0;
    /** The angle that stands for "%1". */
    int degrees = 0;
    /** Another text, for the product with pitched stations. */
    const char* pitchedText = nullptr;

    constexpr bool has(Flag flag) const { return (flags & flag) != 0; }
};

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
        /** A `QKeySequence::StandardKey`, or a key code; 0 where only Qt can tell what is meant. */
        int key = 0;
        /** To be translated. While it isn't, `key` is what it means. */
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
        StaticText path;
    };

    /** A tool tip that is the text once more. */
    static constexpr char s_sameAsText[] = "=";

    /** An id of `Actions`, or less than 0 for an action that is reached through its group only. */
    int id;
    StaticText objectName;
    const char* text;
    /** Empty for none. */
    const char* toolTip;
    Shortcut shortcut;
    Icon icon;
    ZVMainActionSettings settings;
};

/** Both together; each says something of its own. */
constexpr ZVMainActionSettings operator|(const ZVMainActionSettings& one,
                                         const ZVMainActionSettings& other)
{
    return {one.flags | other.flags, one.value + other.value, one.degrees + other.degrees,
            one.pitchedText ? one.pitchedText : other.pitchedText};
}

} // namespace Zorvane
