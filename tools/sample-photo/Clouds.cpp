// SPDX-License-Identifier: GPL-2.0-or-later
#include "Clouds.h"

#include "Noise.h"

namespace LumetraSample {

namespace {

constexpr float Bottom = 1900.0f;
constexpr float Top = 2900.0f;
constexpr float ExtinctionValue = 0.011f;
constexpr float Farthest = 60e3f;

float Phase(float cosine, float g)
{
    const float base = 1.0f + g * g - 2.0f * g * cosine;
    return (1.0f - g * g) / (4.0f * Pi * base * std::sqrt(base));
}

} // namespace

Clouds::Clouds(const Vec3& sunDirection, const Vec3& sunIrradiance, const Vec3& ambient,
               std::uint32_t seed)
    : m_sunDirection(sunDirection), m_sunIrradiance(sunIrradiance),
      m_ambient(ambient), m_offset{HashUnit(Hash(seed)) * 40.0f, 0.0f,
                                   HashUnit(Hash(seed + 1)) * 40.0f}
{
}

// Front to back integration of emission and absorption (J. Kajiya, B. Von Herzen, 1984).
Clouds::Veil Clouds::March(const Vec3& direction, float jitter) const
{
    constexpr int StepsValue = 40;
    Veil veil;
    if (direction.y < 0.02f) {
        return veil;
    }
    const float from = Bottom / direction.y;
    const float step = (std::min(Top / direction.y, Farthest) - from) / StepsValue;
    const float cosine = Dot(direction, m_sunDirection);
    float weight = 0.0f;
    for (int i = 0; i < StepsValue && step > 0.0f && veil.transmittance > 0.01f; ++i) {
        const float t = from + step * (static_cast<float>(i) + jitter);
        const Vec3 point = direction * t;
        const float density = Density(point, 6);
        if (density <= 0.0f) {
            continue;
        }
        const float kept = std::exp(-density * ExtinctionValue * step);
        const float share = veil.transmittance * (1.0f - kept);
        veil.radiance += Scattered(point, cosine) * share;
        veil.distance += share * t;
        weight += share;
        veil.transmittance *= kept;
    }
    veil.distance = weight > 0.0f ? veil.distance / weight : 0.0f;
    return veil;
}

float Clouds::Density(const Vec3& point, int octaves) const
{
    const float height = (point.y - Bottom) / (Top - Bottom);
    if (height <= 0.0f || height >= 1.0f) {
        return 0.0f;
    }
    const Vec3 p = point * (1.0f / 2600.0f) + m_offset;
    const float cover = Fbm(p.x * 0.45f + 3.0f, p.z * 0.28f, 2);
    const float profile = SmoothStep(0.0f, 0.25f, height) * SmoothStep(1.0f, 0.35f, height);
    const float shape = Fbm({p.x, p.y * 1.3f, p.z * 0.75f}, octaves) * 1.25f + 0.9f * cover;
    return Saturate((shape + 0.42f * profile - 0.49f) * 2.6f) * profile;
}

float Clouds::DepthToSun(const Vec3& point) const
{
    float depth = 0.0f;
    float step = 60.0f;
    Vec3 p = point;
    for (int i = 0; i < 5; ++i, step *= 1.7f) {
        p += m_sunDirection * step;
        depth += Density(p, 4) * step;
    }
    return depth * ExtinctionValue;
}

// Light that was scattered several times reaches deeper and more evenly: octaves of single
// scattering with weaker extinction and rounder phase (M. Wrenninge et al., "Oz", 2013).
Vec3 Clouds::Scattered(const Vec3& point, float cosine) const
{
    const float depth = DepthToSun(point);
    float sun = 0.0f;
    float weight = 1.0f;
    float roundness = 1.0f;
    for (int i = 0; i < 4; ++i, weight *= 0.55f, roundness *= 0.5f) {
        const float phase =
            Mix(Phase(cosine, 0.75f * roundness), Phase(cosine, -0.2f * roundness), 0.3f);
        sun += weight * phase * std::exp(-depth * weight);
    }
    const float height = Saturate((point.y - Bottom) / (Top - Bottom));
    return m_sunIrradiance * sun + m_ambient * (0.55f + 0.45f * height);
}

} // namespace LumetraSample
