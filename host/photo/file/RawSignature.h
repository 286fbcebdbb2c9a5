// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

namespace LumetraHost {

/// True for files whose first bytes announce a camera's raw format; looks into the directory of
/// those that are built like TIFF.
bool IsRawPhoto(const Bytes& content);

} // namespace LumetraHost
