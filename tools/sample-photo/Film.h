// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LightImage.h"
#include "Vec3.h"

#include <QtGui/QImage>

#include <cstdint>
#include <vector>

namespace LumetraSample {

/// Turns scene light into a picture, as lens, film and development do: glow, vignette, white
/// balance, exposure, tone curve, grain and the coding of sRGB. Stateless but for its seed.
class Film
{
public:
    explicit Film(std::uint32_t seed);

    /// An image of format QImage::Format_RGB888, tagged as sRGB.
    QImage Develop(const LightImage& light) const;

private:
    static std::vector<Vec3> Glow(const LightImage& light);
    static float Tone(float exposure);
    static Vec3 Develop(const Vec3& light);
    Vec3 Grain(int x, int y) const;

    std::uint32_t m_seed;
};

} // namespace LumetraSample
