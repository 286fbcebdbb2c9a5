// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/foreign/ForeignLook.h"

namespace LumetraPlugin {

/// Settings whose meaning depends on others of the same look.
class LookMeaning
{
public:
    /// The look without the settings that its own program would not follow either: colours of a
    /// black-and-white look and greys of a coloured one, the white balance of the camera's own,
    /// older spellings beside newer ones, and older ones at the values that raw photos start with.
    static ForeignLook Resolve(ForeignLook look);

    /// True when the look makes the picture grey, be it by the name of a nested look alone.
    static bool IsGrey(const ForeignLook& look);
    /// True for "true" in either spelling.
    static bool IsTrue(const ForeignValue* value);
};

} // namespace LumetraPlugin
