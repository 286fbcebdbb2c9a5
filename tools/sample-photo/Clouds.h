// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

#include <cstdint>

namespace LumetraSample {

/// A layer of soft clouds as a volume of noise, lit by the sun and the sky above. Owned by the sky,
/// which bakes it. The layer is flat, so it is of no use below the horizon.
class Clouds
{
public:
    /// Light that the layer adds to a ray, and the share of the sky that still shows through it.
    struct Veil
    {
        Vec3 radiance;
        float transmittance = 1.0f;
        float distance = 0.0f;
    };

    Clouds(const Vec3& sunDirection, const Vec3& sunIrradiance, const Vec3& ambient,
           std::uint32_t seed);

    /// The veil in direction `direction`; `jitter` in [0, 1) moves the samples along the ray.
    Veil March(const Vec3& direction, float jitter) const;

private:
    float Density(const Vec3& point, int octaves) const;
    float DepthToSun(const Vec3& point) const;
    Vec3 Scattered(const Vec3& point, float cosine) const;

    Vec3 m_sunDirection;
    Vec3 m_sunIrradiance;
    Vec3 m_ambient;
    Vec3 m_offset;
};

} // namespace LumetraSample
