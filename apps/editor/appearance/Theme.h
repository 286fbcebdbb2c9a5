// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "style/StyleColours.h"

#include <QString>

namespace LumetraEditor {

/// Dresses the whole application in a palette; to be called again for another one.
void UseTheme(LumetraHost::PaletteKind kind);

/// Loads the editor's, the library's and Qt's own texts in `language`, "en" or "de". Widgets hear
/// of it by QEvent::LanguageChange.
void UseLanguage(const QString& language);

} // namespace LumetraEditor
