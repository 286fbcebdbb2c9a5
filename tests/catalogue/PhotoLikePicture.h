// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

namespace LumetraTests {

/// A picture with all that looks react to: hues from grey to fully saturated, gradients from black
/// to white, fine structure for local contrast, and alpha from transparent to opaque. Values that
/// only 16 bits can hold are among them at that depth. It is the same at each call.
LumetraHost::Image MakePhotoLikePicture(LumetraHost::Image::Depth depth);

} // namespace LumetraTests
