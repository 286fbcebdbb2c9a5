// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

namespace LumetraHost {

/// True when a JPEG, PNG, TIFF or WebP file is as long as it says: the end of its format is there,
/// and so are the bytes of its pixels. Tells files that were cut from whole ones, and decodes
/// nothing. False for other files.
bool HasPhotoEnd(const Bytes& file);

} // namespace LumetraHost
