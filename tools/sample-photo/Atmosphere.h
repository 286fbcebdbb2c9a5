// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

namespace LumetraSample {

/// Clear air about a round earth, lit by the sun. Owned by the sky, which bakes it into a map as
/// each query integrates along the ray. No multiple scattering beyond a small constant share.
class Atmosphere
{
public:
    explicit Atmosphere(const Vec3& sunDirection);

    /// Radiance of the clear sky in direction `direction` (unit length, from horizon upward).
    Vec3 Radiance(const Vec3& direction) const;

    /// Irradiance of the sun on a plane that faces it, after its way through the air.
    Vec3 SunIrradiance() const;

private:
    Vec3 OpticalDepthToSun(const Vec3& point) const;

    Vec3 m_sunDirection;
};

} // namespace LumetraSample
