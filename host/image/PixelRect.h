// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {

/// A rectangle of whole pixels.
struct PixelRect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

} // namespace LumetraHost
