// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraAdjust {

/// The panel's texts in the user's language.
class AdjustTranslation
{
public:
    /// Loads the texts of QLocale's default language; none for English and for languages without
    /// texts. Does nothing when they are loaded already.
    static void Follow();
};

} // namespace LumetraAdjust
