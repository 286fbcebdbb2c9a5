// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <array>
#include <string>

namespace LumetraTests {

/// Patches of skin side by side in the middle of a grey picture, where no vignette reaches far.
class SkinChart
{
public:
    using Color = std::array<int, 3>;

    /// The light skin of a colour chart and five tones from the lightest to the darkest; sRGB.
    static constexpr std::array<Color, 6> Tones{{{194, 150, 130},
                                                 {234, 218, 186},
                                                 {215, 189, 150},
                                                 {160, 126, 86},
                                                 {130, 92, 67},
                                                 {96, 65, 52}}};

    SkinChart();

    const LumetraHost::Image& GetImage() const { return m_image; }

    /// The mean over the middle of a patch, so that grain does not count.
    static Color ColorIn(const LumetraHost::Image& look, std::size_t tone);
    /// Degrees: 0 red, 60 yellow, from -180 to 180.
    static double HueIn(const LumetraHost::Image& look, std::size_t tone);
    static std::string Describe(const LumetraHost::Image& look, std::size_t tone);

private:
    LumetraHost::Image m_image;
};

} // namespace LumetraTests
