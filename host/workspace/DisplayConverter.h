// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Util/ImageUtils.h"

namespace LumetraHost {

/// Frames for a display that is taken to be sRGB: colours stay, floats become 8 bits (clamped to
/// 0..1, rounded to the nearest value, NaN is black). Profiles of real monitors are not applied.
class DisplayConverter : public Zorvik::Util::IImageConverter
{
public:
    /// An 8-bit frame is returned as it is, sharing its pixels.
    Zorvik::Proc::Frame ToDisplay(const Zorvik::Proc::Frame& frame) const override;
};

} // namespace LumetraHost
