// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "style/StyleColours.h"

#include <QIcon>

namespace LumetraEditor {

/// One of the editor's line icons in the palette's text colour, sharp at every scale; greyed where
/// it is disabled. `name` is the file's name without its extension.
QIcon MakeIcon(const QString& name, LumetraHost::PaletteKind kind);

/// The program's icon, in its own colours.
QIcon MakeProgramIcon();

} // namespace LumetraEditor
