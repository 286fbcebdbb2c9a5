// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/PictureArea.h"

#include <array>
#include <cstddef>
#include <vector>

namespace LumetraHost {

/// The haze of one picture, found on a small copy of it: the colour of the air, and how much light
/// gets through the air to each place. That transmission is a straight line of a pixel's luma,
/// `slope * Y + offset`, whose two numbers change slowly from place to place: so it follows the
/// edges of the picture at whatever size that is drawn. Immutable.
///
/// All values are those of encoded sRGB:
/// - D, the dark channel, is the least channel of all pixels in a square around each one.
/// - The air light A is the mean colour of the places whose D is among the largest thousandth,
///   weighed by how far D lies above one step of 8 bits below that, and at least a quarter.
/// - The transmission is 1 - 0.95 D', D' the dark channel of the picture divided by A.
/// - The line is that of the guided filter with the luma as its guide.
/// Squares reach 1 % of the picture's diagonal to each side, those of the guided filter 4 %.
/// Sources: K. He, J. Sun, X. Tang, "Single Image Haze Removal Using Dark Channel Prior", CVPR 2009
/// and IEEE PAMI 33 (2011); "Guided Image Filtering", ECCV 2010 and IEEE PAMI 35 (2013), taken on a
/// small picture as in K. He, J. Sun, "Fast Guided Filter" (2015). The weights of the air light and
/// its lower end are ours: they keep small changes of the picture from turning the colour of the
/// air.
class HazeMap
{
public:
    /// No haze: white air and a transmission of 1 everywhere.
    HazeMap();
    /// `picture`: 16 bits, sRGB, not null. `area`: where it lies.
    HazeMap(const Image& picture, const PictureArea& area);

    const std::array<double, 3>& GetAirLight() const { return m_airLight; }
    int GetWidth() const { return m_width; }
    int GetHeight() const { return m_height; }
    const PictureArea& GetArea() const { return m_area; }
    /// The numbers of row `y`, 0 <= y < height, one for each column.
    const float* GetSlopes(int y) const { return m_slopes.data() + GetOffset(y); }
    const float* GetOffsets(int y) const { return m_offsets.data() + GetOffset(y); }

private:
    std::size_t GetOffset(int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width);
    }

    std::array<double, 3> m_airLight = {1, 1, 1};
    int m_width = 1;
    int m_height = 1;
    PictureArea m_area;
    std::vector<float> m_slopes;
    std::vector<float> m_offsets;
};

} // namespace LumetraHost
