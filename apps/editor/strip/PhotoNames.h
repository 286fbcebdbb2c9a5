// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraEditor {

/// The endings of file names that stand for photos. Reading decides by the content; the name
/// decides only which files of a folder are looked at, since nobody waits for 10,000 files to be
/// opened.
namespace PhotoNames {

/// True for the name of a photo. Files whose names begin with a dot are hidden, and are none.
bool IsPhoto(const QString& name);
/// The patterns of a file dialog, such as "*.jpg *.png".
QString GetPatterns();

} // namespace PhotoNames
} // namespace LumetraEditor
