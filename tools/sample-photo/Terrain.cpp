// SPDX-License-Identifier: GPL-2.0-or-later
#include "Terrain.h"

#include "Noise.h"

namespace LumetraSample {

namespace {

constexpr float LakeBed = -30.0f;
constexpr float MeadowEnd = 480.0f;
constexpr float HillsBegin = 900.0f;
constexpr float MountainsBegin = 3200.0f;
constexpr float Highest = 1900.0f;
constexpr float MeadowRelief = 6.0f;
constexpr float PixelAngle = 0.0006f;

int Octaves(float largest, float detail, int most)
{
    const float count = std::log2(std::max(largest / std::max(detail, 1e-3f), 1.0f)) + 1.0f;
    return std::clamp(static_cast<int>(count), 1, most);
}

} // namespace

float Terrain::Height(float x, float z, float detail)
{
    if (z < MeadowEnd) {
        return Meadow(x, z, detail);
    }
    if (z < HillsBegin) {
        return LakeBed;
    }
    const float hills = Hills(x, z, detail);
    return z < MountainsBegin ? hills : std::max(hills, Mountains(x, z, detail));
}

Vec3 Terrain::Normal(const Vec3& point, float detail)
{
    const float step = std::max(0.5f * detail, 0.004f);
    const float dx =
        Height(point.x - step, point.z, detail) - Height(point.x + step, point.z, detail);
    const float dz =
        Height(point.x, point.z - step, detail) - Height(point.x, point.z + step, detail);
    return Normalized({dx, 2.0f * step, dz});
}

// Steps in proportion to the height above the land, then halves the last step (F. Musgrave, "Grid
// Tracing"; the step that grows with distance bounds the error to a part of a pixel). High above
// the land its finer forms do not matter yet.
float Terrain::Intersect(const Vec3& origin, const Vec3& direction, float limit)
{
    float t = 4.0f;
    float previous = t;
    float above = 0.0f;
    for (int i = 0; i < 420 && t < limit; ++i) {
        const Vec3 p = origin + direction * t;
        if (p.y > Highest && direction.y > 0.0f) {
            return -1.0f;
        }
        const float skip = EmptyAhead(p, direction);
        if (skip > 0.0f) {
            previous = t;
            t += skip;
            continue;
        }
        const float detail = std::max(PixelAngle * t, 0.06f * above);
        above = p.y - Height(p.x, p.z, detail);
        if (above < 0.0f && detail > PixelAngle * t) {
            above = p.y - Height(p.x, p.z, PixelAngle * t);
        }
        if (above < 0.0f) {
            return Refined(origin, direction, previous, t);
        }
        previous = t;
        t += std::max(0.5f * above, 0.0022f * t);
    }
    return -1.0f;
}

float Terrain::Refined(const Vec3& origin, const Vec3& direction, float above, float below)
{
    const float detail = PixelAngle * below;
    for (int i = 0; i < 8; ++i) {
        const float middle = 0.5f * (above + below);
        const Vec3 p = origin + direction * middle;
        (p.y < Height(p.x, p.z, detail) ? below : above) = middle;
    }
    return below;
}

float Terrain::EmptyAhead(const Vec3& p, const Vec3& direction)
{
    if (p.z < MeadowEnd) {
        const float above = p.y - MeadowProfile(p.z) - MeadowRelief;
        return above > 0.5f ? 0.8f * above : 0.0f;
    }
    const bool overLake = p.z < HillsBegin && p.y > LakeBed;
    if (overLake) {
        const float ahead = direction.z > 0.0f ? HillsBegin - p.z : MeadowEnd - p.z;
        return std::abs(direction.z) > 0.02f ? ahead / direction.z + 0.5f : 10.0f;
    }
    const float above = p.y - (p.z < MountainsBegin ? 520.0f : Highest);
    return above > 5.0f ? 0.5f * above : 0.0f;
}

float Terrain::Sunlit(const Vec3& point, const Vec3& sunDirection)
{
    float light = 1.0f;
    const float unit = 0.02f + 0.0012f * Length(point);
    float t = 2.0f * unit;
    for (int i = 0; i < 30 && light > 0.0f; ++i) {
        const Vec3 p = point + sunDirection * t;
        const float above = p.y - Height(p.x, p.z, std::max(unit, 0.03f * t));
        light = std::min(light, 0.5f + 18.0f * above / t);
        t += std::max(unit + 0.08f * t, 0.5f * above);
        if (p.y > Highest || EmptyAhead(p, sunDirection) > 3.0f) {
            break;
        }
    }
    return SmoothStep(0.0f, 1.0f, light);
}

Vec3 Terrain::Albedo(const Vec3& point, const Vec3& normal, float detail)
{
    if (point.z < MeadowEnd) {
        return MeadowAlbedo(point, normal, detail);
    }
    const bool hill =
        point.z < MountainsBegin || Hills(point.x, point.z, detail) >= point.y - 3.0f - detail;
    return hill ? HillAlbedo(point) : MountainAlbedo(point, normal);
}

float Terrain::MeadowProfile(float z)
{
    return std::max(-1.6f - 0.094f * z + 0.00009f * z * z, -19.3f);
}

float Terrain::Meadow(float x, float z, float detail)
{
    const float shore = 265.0f + 45.0f * Fbm(x * 0.012f, 3.0f, 3);
    float height = MeadowProfile(z) - 5.5f * SmoothStep(shore - 30.0f, shore + 25.0f, z);
    height += 4.2f * Fbm(x * 0.021f + 5.0f, z * 0.021f, 2) * SmoothStep(12.0f, 70.0f, z);
    height += 1.3f * Fbm(x * 0.11f, z * 0.11f, Octaves(4.0f, detail, 5));
    if (detail < 0.25f) {
        height += 0.10f * Fbm(x * 2.6f, z * 2.6f, Octaves(0.4f, detail, 4));
    }
    const float bushes = SmoothStep(0.02f, 0.22f, Fbm(x * 0.03f + 9.0f, z * 0.024f + 2.0f, 3));
    if (bushes > 0.0f && z > 30.0f && z < shore) {
        height += bushes * Canopy(x, z, 4.5f) * 0.42f;
        height += bushes * 0.5f * Fbm(x * 1.4f, z * 1.4f, Octaves(0.8f, detail, 4));
    }
    return height;
}

float Terrain::Hills(float x, float z, float detail)
{
    const float shore = 1080.0f + 190.0f * Fbm(x * 0.0022f, 8.0f, 4);
    const float rise = SmoothStep(shore - 60.0f, shore + 1500.0f, z);
    const float valley =
        0.30f + 0.70f * SmoothStep(150.0f, 1300.0f, std::abs(x + 0.10f * z + 60.0f));
    float height = LakeBed + 12.0f * SmoothStep(shore - 60.0f, shore + 60.0f, z);
    const float form = Ridged(x * 0.00085f + 1.7f, z * 0.0007f + 0.4f, Octaves(1200.0f, detail, 6));
    height += rise * valley * (70.0f + 430.0f * form);
    const float forest = ForestShare(x, z);
    if (forest > 0.0f && z > shore && detail < 6.0f) {
        height += forest * Canopy(x, z, 13.0f);
    }
    return height;
}

float Terrain::Mountains(float x, float z, float detail)
{
    const float rise = SmoothStep(MountainsBegin, 8200.0f, z);
    const float side = 0.42f + 0.58f * SmoothStep(-2600.0f, 2600.0f, x - 0.02f * z);
    const float form =
        Ridged(x * 0.00026f + 6.3f, z * 0.00026f + 2.9f, Octaves(4000.0f, detail, 9));
    return LakeBed + rise * side * (250.0f + 1750.0f * form);
}

float Terrain::ForestShare(float x, float z)
{
    return SmoothStep(-0.20f, 0.0f, Fbm(x * 0.0042f + 2.0f, z * 0.0031f, 4) + 0.06f);
}

// Crowns of trees as cones with rounded tops about the points of a jittered lattice, of about
// `spacing` metres distance and a little less height.
float Terrain::Canopy(float x, float z, float spacing)
{
    const CellPoint cell = Cells(x / spacing, z / spacing);
    const float size = 0.55f + 0.6f * HashUnit(Hash(cell.id + 7));
    return spacing * size * std::max(0.0f, 1.15f - 1.35f * cell.distance);
}

Vec3 Terrain::MeadowAlbedo(const Vec3& point, const Vec3& normal, float detail)
{
    const Vec3 green{0.105f, 0.135f, 0.028f};
    const Vec3 straw{0.30f, 0.235f, 0.095f};
    const Vec3 rock{0.22f, 0.205f, 0.185f};
    const float broad = Fbm(point.x * 0.06f, point.z * 0.045f + 4.0f, 4);
    const float fine = Fbm(point.x * 1.7f, point.z * 1.7f, Octaves(0.6f, 0.5f * detail, 6));
    Vec3 color = Mix(green, straw, SmoothStep(-0.35f, 0.5f, broad + 0.9f * fine));
    color = color * (1.0f + 0.9f * fine);
    const float steep = SmoothStep(0.86f, 0.72f, normal.y);
    const float patch = SmoothStep(0.30f, 0.42f, Fbm(point.x * 0.16f + 1.0f, point.z * 0.12f, 4));
    color = Mix(color, rock * (1.0f + 0.8f * fine), std::max(steep * 0.35f, patch));
    const float bushes =
        SmoothStep(0.05f, 0.18f, Fbm(point.x * 0.03f + 9.0f, point.z * 0.024f + 2.0f, 3));
    const Vec3 leaf = Vec3{0.045f, 0.075f, 0.018f} * (1.0f + 1.1f * fine);
    color = Mix(color, leaf, point.z > 30.0f ? bushes : 0.0f);
    const float wet = SmoothStep(LakeLevel + 1.1f, LakeLevel + 0.2f, point.y);
    return Mix(color, rock * (0.7f + 0.5f * fine), wet);
}

Vec3 Terrain::HillAlbedo(const Vec3& point)
{
    const float forest = ForestShare(point.x, point.z);
    const float tone = Fbm(point.x * 0.011f, point.z * 0.011f, 5);
    const CellPoint tree = Cells(point.x / 13.0f, point.z / 13.0f);
    const float age = 0.75f + 0.5f * HashUnit(tree.id);
    const Vec3 field =
        Mix({0.13f, 0.15f, 0.045f}, {0.27f, 0.22f, 0.10f}, SmoothStep(-0.2f, 0.35f, tone));
    const Vec3 needles =
        Mix({0.035f, 0.058f, 0.022f}, {0.075f, 0.082f, 0.022f}, HashUnit(Hash(tree.id + 3))) * age;
    const Vec3 land = Mix(field, needles, SmoothStep(0.1f, 0.6f, forest));
    const float beach = SmoothStep(LakeLevel + 2.5f, LakeLevel + 0.8f, point.y);
    return Mix(land, {0.24f, 0.22f, 0.18f}, beach);
}

Vec3 Terrain::MountainAlbedo(const Vec3& point, const Vec3& normal)
{
    const float tone = Fbm(point.x * 0.004f, point.z * 0.004f, 6);
    const Vec3 rock = Vec3{0.17f, 0.155f, 0.145f} * (1.0f + 0.7f * tone);
    const Vec3 wood{0.05f, 0.065f, 0.03f};
    const Vec3 land = Mix(wood, rock, SmoothStep(330.0f, 620.0f, point.y + 160.0f * tone));
    const float snow = SmoothStep(700.0f, 950.0f, point.y + 260.0f * tone) *
                       SmoothStep(0.50f, 0.74f, normal.y + 0.18f * tone);
    return Mix(land, {0.86f, 0.88f, 0.92f}, snow);
}

} // namespace LumetraSample
