// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/engine/Reference.h"

#include <vector>

namespace LumetraHost {

/// The formula of the effect "dehaze" in double precision on a whole picture of sRGB that is small
/// enough not to be reduced, written down apart from the engine: every minimum and every mean is
/// taken over all pixels of its square.
class ReferenceHaze
{
public:
    explicit ReferenceHaze(const Image& picture);

    const Colour& GetAirLight() const { return m_air; }
    /// On linear light, as MakeReference() has it.
    ReferenceFormula MakeFormula(double amount) const;

private:
    using Plane = std::vector<double>;

    template <class Take>
    Plane OverSquares(int reach, Take take) const;
    Plane FindDark(const Colour& air) const;
    Plane Mean(const Plane& plane, int reach) const;
    void FindAir();
    void FindTransmission();
    std::size_t At(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }

    int m_width;
    int m_height;
    std::vector<Colour> m_colours;
    Colour m_air{};
    Plane m_slope;
    Plane m_offset;
};

/// A picture of fine dark and bright detail in all colours behind air that gets thicker from bottom
/// to top. `haze`: 0 none, 1 hardly anything is left at the top.
Image MakeHazyPicture(int width, int height, Image::Depth depth, double haze);

} // namespace LumetraHost
