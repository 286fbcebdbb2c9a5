// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

namespace LumetraSample {

/// The land as heights over a plane: a meadow that falls to a lake, wooded hills on the far shore
/// and snowy mountains behind. Stateless; the water itself belongs to the landscape.
class Terrain
{
public:
    static constexpr float LakeLevel = -22.0f;
    static constexpr float Farthest = 15e3f;

    /// Height in metres. `detail` is the size in metres below which form may be left out.
    static float Height(float x, float z, float detail);

    /// Unit normal, averaged over about `detail` metres.
    static Vec3 Normal(const Vec3& point, float detail);

    /// Distance along the ray to the land, or a negative number where none is met before `limit`.
    static float Intersect(const Vec3& origin, const Vec3& direction, float limit);

    /// Share of sunlight that reaches the point, soft where something nearly hides the sun.
    static float Sunlit(const Vec3& point, const Vec3& sunDirection);

    /// Diffuse colour of the land at a point with the given normal.
    static Vec3 Albedo(const Vec3& point, const Vec3& normal, float detail);

private:
    static float Refined(const Vec3& origin, const Vec3& direction, float above, float below);
    static float EmptyAhead(const Vec3& p, const Vec3& direction);
    static float MeadowProfile(float z);
    static float Meadow(float x, float z, float detail);
    static float Hills(float x, float z, float detail);
    static float Mountains(float x, float z, float detail);
    static float ForestShare(float x, float z);
    static float Canopy(float x, float z, float spacing);
    static Vec3 MeadowAlbedo(const Vec3& point, const Vec3& normal, float detail);
    static Vec3 HillAlbedo(const Vec3& point);
    static Vec3 MountainAlbedo(const Vec3& point, const Vec3& normal);
};

} // namespace LumetraSample
