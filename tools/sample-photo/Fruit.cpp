// SPDX-License-Identifier: GPL-2.0-or-later
#include "Fruit.h"

#include "Noise.h"
#include "Sdf.h"

namespace LumetraSample {

Fruit::Fruit(Kind kind, const Vec3& center, float radius, float tilt)
    : m_kind(kind), m_center(center), m_radius(radius), m_tilt(tilt)
{
}

SceneObject::Bounds Fruit::Box() const
{
    const float half = 1.1f * m_radius;
    return {m_center - Vec3{half, half, half}, m_center + Vec3{half, 1.55f * m_radius, half}};
}

float Fruit::Distance(const Vec3& point) const
{
    const Vec3 p = Local(point);
    if (m_kind == Kind::Orange) {
        const float dimple = SphereDistance(p, {0, 1.02f, 0}, 0.09f);
        return 0.9f * m_radius *
               SmoothDifference(EllipsoidDistance(p, {0, 0, 0}, {1.0f, 0.95f, 1.0f}), dimple,
                                0.12f);
    }
    // A thick ring closed in the middle has the hollows of an apple; it narrows downwards.
    const float taper = 1.0f + 0.13f * SmoothStep(0.3f, -0.9f, p.y);
    const Vec3 q{p.x * taper, p.y, p.z * taper};
    const float ring = RingDistance({q.x, q.y * 0.70f, q.z}, 0.40f, 0.60f);
    const float lobes =
        0.02f * std::cos(5.0f * std::atan2(q.z, q.x)) * SmoothStep(0.1f, -0.8f, p.y);
    return 0.75f * m_radius * std::min(ring - lobes, Stalk(p));
}

Material Fruit::MaterialAt(const Vec3& point, const Vec3& /*normal*/) const
{
    const Vec3 p = Local(point);
    return m_kind == Kind::Apple ? AppleSkin(p) : OrangePeel(p);
}

float Fruit::Relief(const Vec3& point) const
{
    if (m_kind == Kind::Apple) {
        return 0.00006f * Fbm(point * 300.0f, 2);
    }
    return 0.0003f * GradientNoise(point * 420.0f) + 0.0004f * Fbm(point * 60.0f, 2);
}

Vec3 Fruit::Local(const Vec3& point) const
{
    const Vec3 p = (point - m_center) * (1.0f / m_radius);
    const float cosine = std::cos(m_tilt);
    const float sine = std::sin(m_tilt);
    return {cosine * p.x - sine * p.y, sine * p.x + cosine * p.y, p.z};
}

float Fruit::Stalk(const Vec3& p) const
{
    return std::min(RodDistance(p, {0, 0.45f, 0}, {0.04f, 0.8f, 0.02f}, 0.035f, 0.035f),
                    RodDistance(p, {0.04f, 0.8f, 0.02f}, {0.14f, 1.05f, 0.05f}, 0.035f, 0.055f));
}

Material Fruit::AppleSkin(const Vec3& p) const
{
    Material skin;
    if (Stalk(p) < 0.01f) {
        skin.albedo = {0.09f, 0.055f, 0.025f};
        return skin;
    }
    const float angle = std::atan2(p.z, p.x);
    const float streak = Fbm({std::cos(angle) * 7.0f, p.y * 0.9f, std::sin(angle) * 7.0f}, 5);
    const Vec3 red = Mix({0.50f, 0.018f, 0.022f}, {0.24f, 0.006f, 0.014f}, 0.5f + streak);
    const Vec3 yellow{0.58f, 0.36f, 0.05f};
    const float blush = 0.75f * p.x - 0.55f * p.y + 0.9f * streak;
    skin.albedo = Mix(red, yellow, 0.75f * SmoothStep(0.42f, 1.0f, blush));
    const float hollow = SmoothStep(0.28f, 0.1f, std::sqrt(p.x * p.x + p.z * p.z));
    skin.albedo = Mix(skin.albedo, {0.33f, 0.25f, 0.06f}, 0.6f * hollow);
    const CellPoint dot = Cells(angle * 8.0f, p.y * 8.0f);
    skin.albedo = Mix(skin.albedo, yellow, 0.5f * SmoothStep(0.10f, 0.05f, dot.distance));
    skin.mirrors = true;
    skin.roughness = 0.22f;
    return skin;
}

Material Fruit::OrangePeel(const Vec3& p) const
{
    Material peel;
    const float tone = Fbm(p * 2.5f, 4);
    peel.albedo = Mix({0.78f, 0.25f, 0.018f}, {0.70f, 0.33f, 0.03f}, 0.5f + tone);
    const float navel = SmoothStep(0.10f, 0.05f, std::sqrt(p.x * p.x + p.z * p.z));
    peel.albedo = Mix(peel.albedo, {0.16f, 0.17f, 0.05f}, p.y > 0.5f ? navel : 0.0f);
    peel.roughness = 0.42f;
    peel.wrap = {0.10f, 0.04f, 0.0f};
    peel.depth = 0.001f;
    return peel;
}

} // namespace LumetraSample
