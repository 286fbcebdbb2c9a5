// SPDX-License-Identifier: GPL-2.0-or-later
#include "Sky.h"

#include "Atmosphere.h"
#include "Clouds.h"
#include "Noise.h"

namespace LumetraSample {

namespace {

constexpr float SunAzimuth = -47.0f * Pi / 180.0f;
constexpr float SunElevation = 18.0f * Pi / 180.0f;
constexpr float HazeReach = 32e3f;

Vec3 Direction(float azimuth, float elevation)
{
    return {std::sin(azimuth) * std::cos(elevation), std::sin(elevation),
            std::cos(azimuth) * std::cos(elevation)};
}

// Columns of a map are densest straight ahead, where the camera looks: the share s, from -1 to 1,
// is at the azimuth pi (s + Dense s |s|) / (1 + Dense).
constexpr float Dense = 3.0f;

float AzimuthOf(float share)
{
    return Pi * (share + Dense * share * std::abs(share)) / (1.0f + Dense);
}

float ShareOf(float azimuth)
{
    const float turn = std::abs(azimuth) / Pi * (1.0f + Dense);
    return std::copysign((std::sqrt(1.0f + 4.0f * Dense * turn) - 1.0f) / (2.0f * Dense), azimuth);
}

// The nine real spherical harmonics up to the second band.
std::array<float, 9> Harmonics(const Vec3& d)
{
    return {0.282095f,
            0.488603f * d.y,
            0.488603f * d.z,
            0.488603f * d.x,
            1.092548f * d.x * d.y,
            1.092548f * d.y * d.z,
            0.315392f * (3.0f * d.z * d.z - 1.0f),
            1.092548f * d.x * d.z,
            0.546274f * (d.x * d.x - d.y * d.y)};
}

} // namespace

Sky::Sky(int width, std::uint32_t seed) : m_sunDirection(Direction(SunAzimuth, SunElevation))
{
    Bake(width, seed);
    BakeBlurred();
    ProjectIrradiance();
}

Vec3 Sky::Radiance(const Vec3& direction) const
{
    return m_map.Lookup(direction);
}

Vec3 Sky::BlurredRadiance(const Vec3& direction) const
{
    return m_blurred.Lookup(direction);
}

// R. Ramamoorthi, P. Hanrahan, "An Efficient Representation for Irradiance Environment Maps", 2001:
// the cosine lobe scales the bands by pi, 2 pi / 3 and pi / 4.
Vec3 Sky::Irradiance(const Vec3& normal) const
{
    const std::array<float, 9> basis = Harmonics(normal);
    Vec3 sum;
    for (std::size_t i = 0; i < basis.size(); ++i) {
        const float band = i == 0 ? Pi : (i < 4 ? 2.0f * Pi / 3.0f : Pi / 4.0f);
        sum += m_harmonics[i] * (band * basis[i]);
    }
    return {std::max(sum.x, 0.0f), std::max(sum.y, 0.0f), std::max(sum.z, 0.0f)};
}

Vec3 Sky::Map::DirectionOf(float column, float row) const
{
    const float share = row / static_cast<float>(height - 1);
    return Direction(AzimuthOf(column / static_cast<float>(width) * 2.0f - 1.0f),
                     share * share * 0.5f * Pi);
}

Vec3 Sky::Map::Lookup(const Vec3& direction) const
{
    const float azimuth = std::atan2(direction.x, direction.z);
    const float elevation = std::asin(std::clamp(direction.y, 0.0f, 1.0f));
    const float column = (ShareOf(azimuth) + 1.0f) * 0.5f * static_cast<float>(width);
    const float row = std::sqrt(elevation / (0.5f * Pi)) * static_cast<float>(height - 1);
    const int left = static_cast<int>(column);
    const int below = std::min(static_cast<int>(row), height - 2);
    const float u = column - static_cast<float>(left);
    const float v = row - static_cast<float>(below);
    const auto at = [this](int x, int y) {
        return texels[static_cast<std::size_t>(y * width + x % width)];
    };
    return Mix(Mix(at(left, below), at(left + 1, below), u),
               Mix(at(left, below + 1), at(left + 1, below + 1), u), v);
}

void Sky::Bake(int width, std::uint32_t seed)
{
    const Atmosphere air(m_sunDirection);
    m_sunIrradiance = air.SunIrradiance();
    const Vec3 overhead = air.Radiance({0, 1, 0});
    const Vec3 ambient = overhead * 0.6f + air.Radiance(Direction(0, 0.25f)) * 0.4f;
    const Clouds clouds(m_sunDirection, m_sunIrradiance, ambient, seed);
    m_map = {width, std::max(width / 3, 8), {}};
    m_map.texels.reserve(static_cast<std::size_t>(m_map.width * m_map.height));
    for (int y = 0; y < m_map.height; ++y) {
        for (int x = 0; x < m_map.width; ++x) {
            const Vec3 direction = m_map.DirectionOf(static_cast<float>(x), static_cast<float>(y));
            const Vec3 clear = air.Radiance(direction);
            const Clouds::Veil veil = clouds.March(direction, HashUnit(Hash(x, y, 5)));
            const float haze = std::exp(-veil.distance / HazeReach);
            const Vec3 cloudy = veil.radiance + clear * veil.transmittance;
            m_map.texels.push_back(Mix(clear, cloudy, haze));
        }
    }
}

void Sky::BakeBlurred()
{
    m_blurred = {32, 10, {}};
    constexpr int Side = 6;
    for (int y = 0; y < m_blurred.height; ++y) {
        for (int x = 0; x < m_blurred.width; ++x) {
            Vec3 sum;
            for (int i = 0; i < Side * Side; ++i) {
                const float dx = (static_cast<float>(i % Side) + 0.5f) / Side - 0.5f;
                const float dy = (static_cast<float>(i / Side) + 0.5f) / Side - 0.5f;
                const float row = std::clamp(static_cast<float>(y) + dy, 0.0f, 9.0f);
                sum += m_map.Lookup(m_blurred.DirectionOf(static_cast<float>(x) + dx, row));
            }
            m_blurred.texels.push_back(sum * (1.0f / (Side * Side)));
        }
    }
}

void Sky::ProjectIrradiance()
{
    constexpr int CountValue = 2048;
    m_harmonics = {};
    Vec3 average;
    for (int pass = 0; pass < 2; ++pass) {
        // The first pass finds what the ground receives, the second projects both half spheres.
        for (int i = 0; i < CountValue; ++i) {
            const float height = 1.0f - 2.0f * (static_cast<float>(i) + 0.5f) / CountValue;
            const float turn = static_cast<float>(i) * 2.39996323f;
            const float radius = std::sqrt(1.0f - height * height);
            const Vec3 d{radius * std::cos(turn), height, radius * std::sin(turn)};
            const Vec3 light = height > 0.0f ? BlurredRadiance(d) : m_ground;
            if (pass == 0) {
                average += light * (std::max(height, 0.0f) * 4.0f / CountValue);
                continue;
            }
            const std::array<float, 9> basis = Harmonics(d);
            for (std::size_t k = 0; k < basis.size(); ++k) {
                m_harmonics[k] += light * (basis[k] * 4.0f * Pi / CountValue);
            }
        }
        const Vec3 albedo{0.16f, 0.15f, 0.10f};
        m_ground = albedo * (average + m_sunIrradiance * (m_sunDirection.y / Pi));
    }
}

} // namespace LumetraSample
