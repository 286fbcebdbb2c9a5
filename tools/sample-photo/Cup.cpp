// SPDX-License-Identifier: GPL-2.0-or-later
#include "Cup.h"

#include "Noise.h"
#include "Sdf.h"

namespace LumetraSample {

namespace {

constexpr float HeightValue = 0.088f;
constexpr float Radius = 0.043f;
constexpr float Thickness = 0.0021f;
constexpr float Fill = 0.068f;

float Outwards(const Vec3& p)
{
    return std::sqrt(p.x * p.x + p.z * p.z);
}

float RadiusAt(float height)
{
    const float low = SmoothStep(0.026f, -0.004f, height);
    return Radius * (0.97f + 0.06f * height / HeightValue) - 0.016f * low * low;
}

} // namespace

Cup::Cup(const Vec3& foot) : m_foot(foot) {}

SceneObject::Bounds Cup::Box() const
{
    return {m_foot - Vec3{0.085f, 0.0f, 0.085f},
            m_foot + Vec3{0.085f, HeightValue + 0.006f, 0.085f}};
}

float Cup::Distance(const Vec3& point) const
{
    const Vec3 p = point - m_foot;
    const float body = SmoothUnion(Wall(p), Handle(p), 0.008f);
    return 0.8f * std::min(body, Coffee(p));
}

Material Cup::MaterialAt(const Vec3& point, const Vec3& normal) const
{
    const Vec3 p = point - m_foot;
    Material material;
    material.mirrors = true;
    material.roughness = 0.06f;
    if (Coffee(p) < std::min(Wall(p), Handle(p))) {
        material.albedo = {0.018f, 0.008f, 0.004f};
        material.reflectance = 0.021f;
        return material;
    }
    const bool inside =
        Outwards(p) < RadiusAt(p.y) - 0.6f * Thickness && p.x * normal.x + p.z * normal.z < 0.0f;
    const float pool = 1.0f + 0.35f * Fbm(p * 60.0f, 3);
    const Vec3 blue = Vec3{0.012f, 0.075f, 0.36f} * pool;
    const Vec3 white{0.78f, 0.76f, 0.72f};
    const float rim = SmoothStep(HeightValue - 0.0035f, HeightValue - 0.0015f, p.y);
    material.albedo = inside ? white : Mix(blue, white, 0.75f * rim);
    return material;
}

float Cup::Wall(const Vec3& p)
{
    const float shell = std::abs(Outwards(p) - RadiusAt(p.y)) - Thickness;
    const float sides =
        SmoothIntersection(shell, std::max(p.y - HeightValue, 0.002f - p.y), 0.003f);
    const float bottom = std::max(Outwards(p) - RadiusAt(p.y), std::abs(p.y - 0.005f) - 0.003f);
    return std::min(sides, bottom);
}

float Cup::Handle(const Vec3& p)
{
    // The ring stands upright and points right and towards the camera.
    const float along = 0.8f * p.x - 0.6f * p.z - Radius - 0.006f;
    const float aside = 0.6f * p.x + 0.8f * p.z;
    const Vec3 upright{along / 0.9f, aside * 0.8f, (p.y - 0.047f) / 1.12f};
    const float ring = RingDistance(upright, 0.0235f, 0.0052f);
    return SmoothDifference(ring, Outwards(p) - RadiusAt(p.y), 0.004f);
}

float Cup::Coffee(const Vec3& p)
{
    return std::max(Outwards(p) - RadiusAt(p.y), std::abs(p.y - 0.5f * Fill) - 0.5f * Fill);
}

} // namespace LumetraSample
