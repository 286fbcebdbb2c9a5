// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

namespace LumetraSample {

/// How the matter at a point takes up and returns light.
struct Material
{
    Vec3 albedo{0.5f, 0.5f, 0.5f};
    /// 0 is a mirror, 1 is chalk: the square root of the slope spread of the microfacets.
    float roughness = 0.8f;
    /// Reflectance at normal incidence.
    float reflectance = 0.04f;
    /// True when surroundings are seen mirrored in it.
    bool mirrors = false;
    /// How far light of each colour wraps beyond the terminator under the surface.
    Vec3 wrap;
    /// Depth in metres at which light that travels under the surface is gathered.
    float depth = 0.0f;
    /// Colour of light that passes through a thin body from behind.
    Vec3 translucency;
};

/// A body of the still life, given by its signed distance inside an axis-aligned box. Owned by the
/// still life, which finds where rays meet it. Read only once built, so threads may share it.
class SceneObject
{
public:
    virtual ~SceneObject() = default;

    /// Lower and upper corner of the box outside which the body is not.
    struct Bounds
    {
        Vec3 lower;
        Vec3 upper;
    };
    virtual Bounds Box() const = 0;

    /// Signed distance in metres, an underestimate where it is not exact.
    virtual float Distance(const Vec3& point) const = 0;

    virtual Material MaterialAt(const Vec3& point, const Vec3& normal) const = 0;

    /// Shape too fine for Distance(), as a height in metres; only normals follow it.
    virtual float Relief(const Vec3& point) const;
};

} // namespace LumetraSample
