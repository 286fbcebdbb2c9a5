// SPDX-License-Identifier: GPL-2.0-or-later
#include "Vase.h"

#include "Noise.h"
#include "Sdf.h"

namespace LumetraSample {

namespace {

constexpr float HeightValue = 0.150f;

} // namespace

Vase::Vase(const Vec3& foot) : m_foot(foot) {}

Vec3 Vase::Mouth() const
{
    return m_foot + Vec3{0, HeightValue, 0};
}

SceneObject::Bounds Vase::Box() const
{
    return {m_foot - Vec3{0.06f, 0.0f, 0.06f}, m_foot + Vec3{0.06f, HeightValue + 0.005f, 0.06f}};
}

float Vase::Distance(const Vec3& point) const
{
    const Vec3 p = point - m_foot;
    const float belly = EllipsoidDistance(p, {0, 0.052f, 0}, {0.054f, 0.056f, 0.054f});
    const float neck = RodDistance(p, {0, 0.09f, 0}, {0, HeightValue - 0.004f, 0}, 0.017f, 0.021f);
    const float lip = RingDistance(p - Vec3{0, HeightValue - 0.004f, 0}, 0.023f, 0.004f);
    float body = SmoothUnion(SmoothUnion(belly, neck, 0.045f), lip, 0.012f);
    body = SmoothIntersection(body, std::max(p.y - HeightValue, -p.y), 0.004f);
    return 0.85f * SmoothDifference(
                       body, RodDistance(p, {0, 0.05f, 0}, {0, 0.2f, 0}, 0.018f, 0.018f), 0.004f);
}

Material Vase::MaterialAt(const Vec3& point, const Vec3& /*normal*/) const
{
    const float height = point.y - m_foot.y + 0.0006f * Fbm((point - m_foot) * 90.0f, 2);
    const float broad = SmoothStep(0.0042f, 0.0034f, std::abs(height - 0.078f));
    const float narrow = SmoothStep(0.0016f, 0.0010f, std::abs(height - 0.0875f));
    Material glaze;
    glaze.albedo =
        Mix({0.80f, 0.785f, 0.75f}, {0.03f, 0.06f, 0.22f}, 0.9f * std::max(broad, narrow));
    glaze.mirrors = true;
    glaze.roughness = 0.07f;
    return glaze;
}

} // namespace LumetraSample
