// SPDX-License-Identifier: GPL-2.0-or-later
#include "Parapet.h"

#include "Noise.h"
#include "Sdf.h"

namespace LumetraSample {

namespace {

constexpr float FarEdge = 0.40f;
constexpr float EdgeRadius = 0.016f;
constexpr float BlockLength = 0.92f;
constexpr float JointShift = 0.57f;

} // namespace

SceneObject::Bounds Parapet::Box() const
{
    return {{-3.0f, -0.4f, -2.0f}, {3.0f, 0.001f, FarEdge + 0.001f}};
}

float Parapet::Distance(const Vec3& point) const
{
    const float inwards = FarEdge - point.z;
    const float chipped = inwards < 0.06f ? 0.006f * Fbm(point.x * 9.0f, point.z * 9.0f + 3.0f, 3) *
                                                SmoothStep(0.06f, 0.0f, inwards)
                                          : 0.0f;
    const float up = point.y + EdgeRadius;
    const float out = point.z - FarEdge + EdgeRadius - chipped;
    const float corner = std::sqrt(std::max(up, 0.0f) * std::max(up, 0.0f) +
                                   std::max(out, 0.0f) * std::max(out, 0.0f));
    const float box = corner + std::min(std::max(up, out), 0.0f) - EdgeRadius;
    return box + 0.011f * Joint(point);
}

Material Parapet::MaterialAt(const Vec3& point, const Vec3& /*normal*/) const
{
    const float broad = Fbm(point.x * 3.1f, point.z * 3.1f, 4);
    const float fine = Fbm(point.x * 42.0f, point.z * 42.0f, 6);
    const float block = HashUnit(Hash(Floor((point.x + JointShift) / BlockLength), 4, 4));
    Vec3 color = Mix({0.37f, 0.335f, 0.285f}, {0.27f, 0.26f, 0.245f}, 0.5f + 0.8f * broad);
    color = color * ((0.92f + 0.16f * block) * (1.0f + 0.75f * fine));
    const float speck = ValueNoise(point.x * 420.0f, point.z * 420.0f);
    color = color * (1.0f - 0.45f * SmoothStep(0.72f, 0.9f, speck));
    const float growth = Fbm(point.x * 6.5f + 7.0f, point.z * 6.5f, 6) + 0.25f * fine;
    color = Mix(color, {0.44f, 0.43f, 0.37f}, 0.7f * SmoothStep(0.26f, 0.36f, growth));
    const float moss = Fbm(point.x * 8.0f - 4.0f, point.z * 8.0f + 11.0f, 6) + 0.3f * fine;
    color = Mix(color, {0.20f, 0.19f, 0.06f}, 0.55f * SmoothStep(0.30f, 0.42f, moss));
    color = Mix(color, {0.07f, 0.065f, 0.05f}, 0.8f * Joint(point));
    Material material;
    material.albedo = color;
    material.roughness = 0.85f;
    return material;
}

float Parapet::Relief(const Vec3& point) const
{
    const float pits = Fbm(point.x * 95.0f, point.z * 95.0f, 4);
    return 0.0016f * Fbm(point.x * 14.0f, point.z * 14.0f, 5) + 0.0007f * pits -
           0.0016f * SmoothStep(0.22f, 0.5f, pits);
}

// 1 in the middle of a joint between two blocks, 0 on the blocks.
float Parapet::Joint(const Vec3& point)
{
    const float along = (point.x + JointShift) / BlockLength;
    const float aside = (along - std::round(along)) * BlockLength;
    if (std::abs(aside) > 0.02f) {
        return 0.0f;
    }
    const float wobble = 0.006f * Fbm(point.z * 11.0f, point.x * 2.0f, 3);
    return SmoothStep(0.009f, 0.003f, std::abs(aside + wobble));
}

} // namespace LumetraSample
