// SPDX-License-Identifier: MIT
#pragma once

namespace Zorvik::Brassel::Settings {

/// These are the keys of a group's settings and of a preset in a catalogue.
struct ConfigData
{
    static constexpr char APPSTOREID[] = "appStoreId";
    static constexpr char CONTROLLER[] = "controller";
    static constexpr char EDITABLE[] = "editable";
    static constexpr char INTENSITY[] = "intensity";
    static constexpr char ITEMS[] = "items";
};

/// These are the keys of a stored preset and of a favourite mark.
struct EffectInfo
{
    static constexpr char KEY_GROUP[] = "group";
    static constexpr char KEY_NAME[] = "name";
    static constexpr char TAG_SETTINGS[] = "settings";
    static constexpr char TAG_SETTINGS_PREVIEW[] = "settingsPreview";
};

} // namespace Zorvik::Brassel::Settings
