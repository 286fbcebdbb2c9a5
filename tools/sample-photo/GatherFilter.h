// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LightImage.h"
#include "PixelRecord.h"

#include <vector>

namespace LumetraSample {

/// Removes the noise of light gathered from few bounced rays. It smooths that light alone, before
/// it meets the colour of the surface, and so keeps texture, edges and sunlight sharp. Stateless.
///
/// Wavelet filter with holes, guided by normal, depth and brightness (H. Dammertz et al.,
/// "Edge-Avoiding A-Trous Wavelet Transform for fast Global Illumination Filtering", 2010).
class GatherFilter
{
public:
    /// The picture of `records`, which are rows from the top of `width` times `height` pixels.
    static LightImage Resolve(std::vector<PixelRecord> records, int width, int height);

private:
    static std::vector<Vec3> Pass(const std::vector<PixelRecord>& records, int width, int height,
                                  int step);
    static float Likeness(const PixelRecord& a, const PixelRecord& b, int step);
};

} // namespace LumetraSample
