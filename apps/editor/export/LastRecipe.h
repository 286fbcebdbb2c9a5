// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {
struct ExportRecipe;
}

namespace LumetraEditor {

class EditorSettings;

/// The form of the last export of a single photo, which the next one begins with.
namespace LastRecipe {

/// The defaults where nothing is remembered, or nothing sound.
LumetraHost::ExportRecipe Read(const EditorSettings& settings);
void Write(EditorSettings& settings, const LumetraHost::ExportRecipe& recipe);

} // namespace LastRecipe
} // namespace LumetraEditor
