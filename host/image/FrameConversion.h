// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include "Zorvik/Proc/Frame.h"

namespace LumetraHost {

/// The picture, which is sRGB, as a platform frame with premultiplied alpha: Rgba8Premultiplied for
/// 8 bits, RgbaFloatPremultiplied (white is 1.0) for 16. A null frame for a null picture.
Zorvik::Proc::Frame ImageToFrame(const Image& image);

} // namespace LumetraHost
