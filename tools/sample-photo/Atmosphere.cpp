// SPDX-License-Identifier: GPL-2.0-or-later
#include "Atmosphere.h"

namespace LumetraSample {

namespace {

constexpr float EarthRadius = 6360e3f;
constexpr float AirTop = 60e3f;
constexpr float RayleighHeight = 7994.0f;
constexpr float HazeHeight = 1200.0f;
constexpr float HazeScattering = 9e-6f;
constexpr float HazeForward = 0.78f;
constexpr float SunStrength = 20.0f;
// Scattering coefficients per metre at 680, 550 and 440 nm, and ozone's absorption there.
const Vec3 Rayleigh{5.8e-6f, 13.5e-6f, 33.1e-6f};
const Vec3 Ozone{0.65e-6f, 1.88e-6f, 0.085e-6f};

float DistanceToTop(const Vec3& point, const Vec3& direction)
{
    const float along = Dot(point, direction);
    const float top = EarthRadius + AirTop;
    return -along + std::sqrt(std::max(0.0f, along * along - Dot(point, point) + top * top));
}

float RayleighPhase(float cosine)
{
    return 3.0f / (16.0f * Pi) * (1.0f + cosine * cosine);
}

// Henyey and Greenstein, 1941.
float HazePhase(float cosine)
{
    const float g = HazeForward;
    const float base = 1.0f + g * g - 2.0f * g * cosine;
    return (1.0f - g * g) / (4.0f * Pi * base * std::sqrt(base));
}

struct AirDensity
{
    float rayleigh = 0.0f;
    float haze = 0.0f;
};

AirDensity DensityAt(const Vec3& point)
{
    const float height = std::max(0.0f, Length(point) - EarthRadius);
    return {std::exp(-height / RayleighHeight), std::exp(-height / HazeHeight)};
}

Vec3 Extinction(const AirDensity& depth)
{
    const float haze = 1.1f * HazeScattering * depth.haze;
    return (Rayleigh + Ozone) * depth.rayleigh + Vec3{haze, haze, haze};
}

} // namespace

Atmosphere::Atmosphere(const Vec3& sunDirection) : m_sunDirection(sunDirection) {}

// Single scattering by air and haze, integrated along the ray (T. Nishita et al., "Display of the
// Earth Taking into Account Atmospheric Scattering", 1993), with the step length growing with
// distance. Light scattered more than once is taken as an even share of the local sun light.
Vec3 Atmosphere::Radiance(const Vec3& direction) const
{
    constexpr int StepsValue = 24;
    const Vec3 eye{0.0f, EarthRadius + 300.0f, 0.0f};
    const float end = DistanceToTop(eye, direction);
    const float cosine = Dot(direction, m_sunDirection);
    const float air = RayleighPhase(cosine) + 0.022f;
    const float haze = HazePhase(cosine) + 0.022f;
    Vec3 sum;
    AirDensity depth;
    float previous = 0.0f;
    for (int i = 1; i <= StepsValue; ++i) {
        const float share = static_cast<float>(i) / StepsValue;
        const float next = end * share * share;
        const float step = next - previous;
        const Vec3 point = eye + direction * (0.5f * (next + previous));
        previous = next;
        const AirDensity here = DensityAt(point);
        depth.rayleigh += 0.5f * here.rayleigh * step;
        depth.haze += 0.5f * here.haze * step;
        const Vec3 light = Exp(-(Extinction(depth) + OpticalDepthToSun(point)));
        sum += light * (Rayleigh * (here.rayleigh * air * step));
        sum += light * (here.haze * haze * step * HazeScattering);
        depth.rayleigh += 0.5f * here.rayleigh * step;
        depth.haze += 0.5f * here.haze * step;
    }
    return sum * SunStrength;
}

Vec3 Atmosphere::SunIrradiance() const
{
    return Exp(-OpticalDepthToSun({0.0f, EarthRadius + 300.0f, 0.0f})) * SunStrength;
}

Vec3 Atmosphere::OpticalDepthToSun(const Vec3& point) const
{
    constexpr int StepsValue = 10;
    const float end = DistanceToTop(point, m_sunDirection);
    AirDensity depth;
    float previous = 0.0f;
    for (int i = 1; i <= StepsValue; ++i) {
        const float share = static_cast<float>(i) / StepsValue;
        const float next = end * share * share;
        const AirDensity here = DensityAt(point + m_sunDirection * (0.5f * (next + previous)));
        depth.rayleigh += here.rayleigh * (next - previous);
        depth.haze += here.haze * (next - previous);
        previous = next;
    }
    return Extinction(depth);
}

} // namespace LumetraSample
