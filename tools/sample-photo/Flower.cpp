// SPDX-License-Identifier: GPL-2.0-or-later
#include "Flower.h"

#include "Noise.h"
#include "Sdf.h"

namespace LumetraSample {

namespace {

constexpr float PetalsValue = 13.0f;

} // namespace

Flower::Flower(const Vec3& root, const Vec3& head, const Vec3& facing, float radius,
               std::uint32_t seed)
    : m_root(root), m_head(head), m_axis(facing),
      m_right(Normalized(Cross({0.2f, 1.0f, 0.1f}, facing))), m_up(Cross(facing, m_right)),
      m_bend(Mix(root, head, 0.55f) + (Vec3{0, 1, 0} - facing) * (0.25f * Length(head - root))),
      m_radius(radius), m_turn(HashUnit(Hash(seed)) * 6.0f)
{
    const float angle = HashUnit(Hash(seed + 11)) * 2.0f * Pi;
    m_leafEnd =
        Mix(root, m_bend, 0.45f) + Vec3{std::cos(angle) * 0.045f, 0.035f, std::sin(angle) * 0.045f};
}

SceneObject::Bounds Flower::Box() const
{
    Bounds box{m_root, m_root};
    const auto include = [&box](const Vec3& p, float reach) {
        box.lower = {std::min(box.lower.x, p.x - reach), std::min(box.lower.y, p.y - reach),
                     std::min(box.lower.z, p.z - reach)};
        box.upper = {std::max(box.upper.x, p.x + reach), std::max(box.upper.y, p.y + reach),
                     std::max(box.upper.z, p.z + reach)};
    };
    include(m_root, 0.004f);
    include(m_bend, 0.004f);
    include(m_leafEnd, 0.012f);
    include(m_head, 1.08f * m_radius);
    return box;
}

float Flower::Distance(const Vec3& point) const
{
    const Vec3 p = Local(point);
    const float away = Length(p) - 1.08f;
    const float blossom = m_radius * (away > 0.2f ? away : std::min(Petals(p), Middle(p)));
    return 0.7f * std::min({blossom, Stem(point), Leaf(point)});
}

Material Flower::MaterialAt(const Vec3& point, const Vec3& /*normal*/) const
{
    const Vec3 p = Local(point);
    const float petals = m_radius * Petals(p);
    const float middle = m_radius * Middle(p);
    Material material;
    material.roughness = 0.75f;
    material.reflectance = 0.02f;
    if (petals < 0.0006f && petals < middle) {
        const float out = std::sqrt(p.x * p.x + p.y * p.y);
        const float vein = 0.12f * Fbm({p.x * 14.0f, p.y * 14.0f, p.z * 3.0f}, 3);
        material.albedo =
            Mix({0.80f, 0.36f, 0.01f}, {0.86f, 0.58f, 0.02f}, SmoothStep(0.2f, 0.75f, out + vein));
        material.translucency = material.albedo * Vec3{0.55f, 0.5f, 0.25f};
    } else if (middle < 0.0006f) {
        const float out = std::sqrt(p.x * p.x + p.y * p.y);
        const float grain = 1.0f + 0.8f * GradientNoise(p * 26.0f);
        material.albedo = Mix({0.16f, 0.07f, 0.015f}, {0.45f, 0.20f, 0.02f}, out / 0.30f) * grain;
    } else {
        const float tone = 1.0f + 0.5f * Fbm(point * 140.0f, 3);
        material.albedo = Vec3{0.10f, 0.19f, 0.04f} * tone;
        material.translucency = {0.05f, 0.10f, 0.01f};
    }
    return material;
}

float Flower::Relief(const Vec3& point) const
{
    const Vec3 p = Local(point);
    const float out = std::sqrt(p.x * p.x + p.y * p.y);
    if (out < 0.30f && p.z > 0.0f) {
        return 0.0006f * GradientNoise(p * 26.0f);
    }
    const float angle = std::atan2(p.y, p.x);
    return 0.00010f * std::sin(angle * PetalsValue * 5.0f) * SmoothStep(1.0f, 0.5f, out);
}

// The blossom's own frame: z along its axis, lengths in radii.
Vec3 Flower::Local(const Vec3& point) const
{
    const Vec3 p = (point - m_head) * (1.0f / m_radius);
    return {Dot(p, m_right), Dot(p, m_up), Dot(p, m_axis)};
}

float Flower::Petals(const Vec3& p) const
{
    return std::min(Ring(p, m_turn, 0.02f), Ring(p, m_turn + Pi / PetalsValue, -0.05f));
}

float Flower::Ring(const Vec3& p, float turn, float lift) const
{
    const float angle = std::atan2(p.y, p.x) + turn;
    const float sector = 2.0f * Pi / PetalsValue;
    const float index = std::round(angle / sector);
    const float vary =
        HashUnit(Hash(static_cast<int>(index + 40.0f) % 13, static_cast<int>(turn * 50.0f), 3));
    const float inside = angle - index * sector + 0.16f * (vary - 0.5f);
    const float out = std::sqrt(p.x * p.x + p.y * p.y);
    const float along = out * std::cos(inside);
    const float aside = out * std::sin(inside);
    // Petals rise, then droop a little at the tip, each by its own amount.
    const float bow = lift + 0.30f * along - (0.22f + 0.30f * vary) * along * along;
    const float length = 0.34f + 0.05f * vary;
    const float hollow = 0.5f * aside * aside;
    return EllipsoidDistance({along, aside, p.z - bow - hollow}, {0.28f + length, 0, 0},
                             {length, 0.125f, 0.022f});
}

float Flower::Middle(const Vec3& p) const
{
    return EllipsoidDistance(p, {0, 0, 0.03f}, {0.27f, 0.27f, 0.15f});
}

float Flower::Stem(const Vec3& point) const
{
    // Two points of the quadratic Bezier curve through root, bend and head; three rods.
    const auto at = [this](float t) {
        return Mix(Mix(m_root, m_bend, t), Mix(m_bend, m_head, t), t);
    };
    const Vec3 low = at(0.33f);
    const Vec3 high = at(0.68f);
    const float ends =
        std::min(RodDistance(point, m_root, low, 0.0020f, 0.0019f),
                 RodDistance(point, high, m_head - m_axis * 0.002f, 0.0017f, 0.003f));
    return SmoothUnion(ends, RodDistance(point, low, high, 0.0019f, 0.0017f), 0.002f);
}

float Flower::Leaf(const Vec3& point) const
{
    const Vec3 base = Mix(m_root, m_bend, 0.4f);
    const Vec3 axis = m_leafEnd - base;
    const float length = Length(axis);
    const Vec3 along = axis * (1.0f / length);
    const Vec3 side = Normalized(Cross(along, {0, 1, 0}));
    const Vec3 p = point - Mix(base, m_leafEnd, 0.5f);
    const float aside = Dot(p, side);
    const Vec3 q{Dot(p, along), aside, Dot(p, Cross(side, along)) - 6.0f * aside * aside};
    return EllipsoidDistance(q, {0, 0, 0}, {0.5f * length, 0.010f, 0.0012f});
}

} // namespace LumetraSample
