// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

namespace LumetraHost {

/// Copies `count` rows of `source` from its row `first` on into `target` from row `targetFirst` on,
/// at the target's depth: 8-bit values are spread over the 16-bit range, 16-bit values are rounded
/// to the nearest. Both have the same width; the rows are inside (not checked).
void CopyRows(const Image& source, int first, Image& target, int targetFirst, int count);

} // namespace LumetraHost
