// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraPlugin {

/// The panel's texts in the user's language.
class PanelTranslation
{
public:
    /// Follows QLocale's default: loads the texts of that language, or none for English and for
    /// languages that there are no texts for. Does nothing when they are loaded already.
    static void Follow();
};

} // namespace LumetraPlugin
