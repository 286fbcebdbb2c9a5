// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

namespace LumetraBench {

/// The blend of two opaque pictures with QPainter: the source, and the effect over it with an
/// opacity. `target` has their size.
void BlendWithQt(const LumetraHost::Image& source, const LumetraHost::Image& effect,
                 double effectWeight, LumetraHost::Image& target);

/// The blend of two opaque pictures with cv::addWeighted.
void BlendWithOpenCv(const LumetraHost::Image& source, const LumetraHost::Image& effect,
                     double effectWeight, LumetraHost::Image& target);

} // namespace LumetraBench
