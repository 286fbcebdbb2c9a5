// SPDX-License-Identifier: GPL-2.0-or-later
#include "Landscape.h"

#include "Noise.h"
#include "Terrain.h"

namespace LumetraSample {

namespace {

constexpr float PixelAngle = 0.0005f;
constexpr int Waves = 2;

} // namespace

Landscape::Landscape(const Sky& sky) : m_sky(sky) {}

Vec3 Landscape::Radiance(const Vec3& origin, const Vec3& direction, const Vec2& wave) const
{
    float water = Terrain::Farthest;
    if (direction.y < 0.0f) {
        water = std::min(water, (Terrain::LakeLevel - origin.y) / direction.y);
    }
    const float land = Terrain::Intersect(origin, direction, water);
    if (land > 0.0f) {
        const Vec3 color = ShadeLand(origin, direction, land);
        return ThroughHaze(color, direction, land, origin.y + 0.5f * direction.y * land);
    }
    if (water < Terrain::Farthest) {
        const Vec3 color = ShadeWater(origin + direction * water, direction, wave);
        return ThroughHaze(color, direction, water, origin.y);
    }
    return m_sky.Radiance(direction);
}

Vec3 Landscape::ShadeLand(const Vec3& origin, const Vec3& direction, float distance) const
{
    const Vec3 point = origin + direction * distance;
    const float detail = PixelAngle * distance;
    const Vec3 normal = Terrain::Normal(point, 1.6f * detail);
    const Vec3 albedo = Terrain::Albedo(point, normal, detail);
    const float cosine = Dot(normal, m_sky.SunDirection());
    Vec3 light = m_sky.Irradiance(normal) * (0.55f + 0.45f * Saturate(normal.y));
    // Leaves and blades let light through, which keeps plants bright against the sun.
    const float facing = Mix(std::max(cosine, 0.0f), 0.25f + 0.75f * std::abs(cosine), 0.25f);
    light += m_sky.SunIrradiance() * (facing * Terrain::Sunlit(point, m_sky.SunDirection()));
    return albedo * light * (1.0f / Pi);
}

// A mirror with random slopes (C. Cox, W. Munk, 1954: slopes are nearly Gaussian, their spread
// grows with the wind) in calmer and rougher patches, weighted with Schlick's Fresnel term (1994).
Vec3 Landscape::ShadeWater(const Vec3& point, const Vec3& direction, const Vec2& wave) const
{
    const float wind = Fbm(point.x * 0.004f, point.z * 0.016f, 4);
    const float spread = 0.006f + 0.016f * SmoothStep(-0.15f, 0.35f, wind);
    const float ripple = Fbm(point.x * 0.25f, point.z * 0.5f, 3) * spread * 0.7f;
    Vec3 light;
    for (int i = 0; i < Waves; ++i) {
        // Further waves of one path are an even step away from the first in both random numbers.
        const float u = wave.x + static_cast<float>(i) / Waves;
        const float angle = 2.0f * Pi * (wave.y + 0.618f * static_cast<float>(i));
        const float radius =
            spread * std::sqrt(-2.0f * std::log(1.0f - 0.999f * (u - std::floor(u))));
        const Vec3 normal =
            Normalized({radius * std::cos(angle), 1.0f, radius * std::sin(angle) + ripple});
        light += WaterMirror(point, direction, normal);
    }
    return light * (1.0f / Waves);
}

Vec3 Landscape::WaterMirror(const Vec3& point, const Vec3& direction, const Vec3& normal) const
{
    Vec3 mirrored = Reflected(direction, normal);
    mirrored.y = std::max(std::abs(mirrored.y), 0.002f);
    mirrored = Normalized(mirrored);
    const float cosine = Saturate(-Dot(direction, normal));
    const float fresnel = 0.02f + 0.98f * std::pow(1.0f - cosine, 5.0f);
    const float land = Terrain::Intersect(point, mirrored, Terrain::Farthest);
    Vec3 image = m_sky.Radiance(mirrored);
    if (land > 0.0f) {
        image = ThroughHaze(ShadeLand(point, mirrored, land), mirrored, land,
                            point.y + 0.5f * mirrored.y * land);
    }
    const Vec3 deep = m_sky.Irradiance({0, 1, 0}) * Vec3{0.006f, 0.016f, 0.016f};
    return Mix(deep, image, fresnel);
}

// Koschmieder's law: extinction by distance, replaced by the light of the horizon beyond.
Vec3 Landscape::ThroughHaze(const Vec3& color, const Vec3& direction, float distance,
                            float height) const
{
    const float density = std::exp(-std::max(height, 0.0f) / 900.0f);
    const Vec3 kept =
        Exp(Vec3{-1.0f / 13000.0f, -1.0f / 10500.0f, -1.0f / 8000.0f} * (distance * density));
    const Vec3 haze = m_sky.BlurredRadiance(Normalized({direction.x, 0.06f, direction.z})) * 0.85f;
    return color * kept + haze * (Vec3{1, 1, 1} - kept);
}

} // namespace LumetraSample
