// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

#include <array>
#include <cstdint>
#include <vector>

namespace LumetraSample {

/// The light from above: sun, clear sky and clouds, baked into a map once, then read only and safe
/// to share between threads. Owned by the renderer. The sun's disc itself is not in the map.
class Sky
{
public:
    /// `width` is the map's number of columns around the horizon; the seed moves the clouds.
    Sky(int width, std::uint32_t seed);

    Vec3 SunDirection() const { return m_sunDirection; }
    Vec3 SunIrradiance() const { return m_sunIrradiance; }

    /// Radiance from a direction; below the horizon it repeats the horizon.
    Vec3 Radiance(const Vec3& direction) const;

    /// The radiance averaged over some ten degrees: for light that is gathered from everywhere.
    Vec3 BlurredRadiance(const Vec3& direction) const;

    /// Irradiance on a plane from the sky above and from ground lit by it, without the sun.
    Vec3 Irradiance(const Vec3& normal) const;

    /// Radiance of average sunlit ground, for rays that leave the scene downwards.
    Vec3 GroundRadiance() const { return m_ground; }

private:
    /// A map that is denser near the horizon, as a row is the square root of elevation, and
    /// straight ahead.
    struct Map
    {
        int width = 0;
        int height = 0;
        std::vector<Vec3> texels;

        Vec3 DirectionOf(float column, float row) const;
        Vec3 Lookup(const Vec3& direction) const;
    };

    void Bake(int width, std::uint32_t seed);
    void BakeBlurred();
    void ProjectIrradiance();

    Vec3 m_sunDirection;
    Vec3 m_sunIrradiance;
    Vec3 m_ground;
    Map m_map;
    Map m_blurred;
    std::array<Vec3, 9> m_harmonics;
};

} // namespace LumetraSample
