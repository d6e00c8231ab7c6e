#pragma once

#include <span>

enum class HRFPreferencePane { General, Display, Tagging, Conversions };

enum class HRFPreferenceKind {
    Switch,
    InvertedSwitch, ///< is on when the setting is off
    Choice,
    Folder, ///< a path, or nothing
};

struct HRFPreferenceChoice
{
    const char *value; ///< of the setting, as text
    const char *label;
};

/// A setting as the user finds it among the preferences. Texts are keys of translation in the
/// context "HRFPreferences".
struct HRFPreferenceRow
{
    HRFPreferencePane pane;
    HRFPreferenceKind kind;
    const char *group;
    const char *key;
    const char *label;
    const char *explanation;
    std::span<const HRFPreferenceChoice> choices = {};
};

/// Every setting that is for the user to choose, in the order of the panes.
std::span<const HRFPreferenceRow> HRFPreferenceRows();
