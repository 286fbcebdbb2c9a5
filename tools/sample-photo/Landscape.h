// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Sky.h"
#include "Vec3.h"

namespace LumetraSample {

/// Everything that a ray meets beyond the still life: land, lake, haze and sky. Keeps a reference
/// to the sky, which must outlive it. It neither shades nor lights the still life.
class Landscape
{
public:
    explicit Landscape(const Sky& sky);

    /// Radiance towards `origin` from `direction`; `wave` picks the slope of the water.
    Vec3 Radiance(const Vec3& origin, const Vec3& direction, const Vec2& wave) const;

private:
    Vec3 ShadeLand(const Vec3& origin, const Vec3& direction, float distance) const;
    Vec3 ShadeWater(const Vec3& point, const Vec3& direction, const Vec2& wave) const;
    Vec3 WaterMirror(const Vec3& point, const Vec3& direction, const Vec3& normal) const;
    Vec3 ThroughHaze(const Vec3& color, const Vec3& direction, float distance, float height) const;

    const Sky& m_sky;
};

} // namespace LumetraSample
