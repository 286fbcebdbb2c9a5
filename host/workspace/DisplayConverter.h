// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/view/DisplayTransform.h"

#include "Zorvik/Util/ImageUtils.h"

#include <memory>

namespace LumetraHost {

/// Frames for the display: floats become 8 bits (clamped to 0..1, rounded to the nearest value, NaN
/// is black), and sRGB becomes the colours of the monitor where these have been set.
class DisplayConverter : public Zorvik::Util::IImageConverter
{
public:
    /// Sets the display's colours; null: sRGB.
    void SetDisplay(const std::shared_ptr<const DisplayTransform>& display) { m_display = display; }

    /// An 8-bit frame for an sRGB display is returned as it is, sharing its pixels.
    Zorvik::Proc::Frame ToDisplay(const Zorvik::Proc::Frame& frame) const override;

private:
    std::shared_ptr<const DisplayTransform> m_display;
};

} // namespace LumetraHost
