// SPDX-License-Identifier: GPL-2.0-or-later
#include "StillLife.h"

#include "Bust.h"
#include "Cup.h"
#include "Flower.h"
#include "Fruit.h"
#include "Parapet.h"
#include "Vase.h"

#include <utility>

namespace LumetraSample {

StillLife::StillLife()
{
    Add(std::make_unique<Bust>(Vec3{0.36f, -0.01f, 0.06f}, -1.92f));
    Add(std::make_unique<Cup>(Vec3{-0.17f, 0.0f, -0.10f}));
    Add(std::make_unique<Fruit>(Fruit::Kind::Apple, Vec3{0.035f, 0.0338f, -0.24f}, 0.0405f, 0.22f));
    Add(std::make_unique<Fruit>(Fruit::Kind::Orange, Vec3{0.10f, 0.0365f, -0.14f}, 0.0385f,
                                -0.35f));
    auto vase = std::make_unique<Vase>(Vec3{-0.47f, 0.0f, 0.10f});
    const Vec3 mouth = vase->Mouth();
    Add(std::move(vase));
    AddBouquet(mouth);
    Add(std::make_unique<Parapet>());
}

StillLife::Hit StillLife::Intersect(const Vec3& origin, const Vec3& direction, float limit) const
{
    const Vec3 inverse{1.0f / direction.x, 1.0f / direction.y, 1.0f / direction.z};
    Hit hit{nullptr, limit};
    for (const Entry& entry : m_entries) {
        const float distance = March(entry, origin, direction, inverse, hit.distance);
        if (distance >= 0.0f) {
            hit = {entry.object.get(), distance};
        }
    }
    return hit;
}

bool StillLife::Blocked(const Vec3& origin, const Vec3& direction, float limit) const
{
    const Vec3 inverse{1.0f / direction.x, 1.0f / direction.y, 1.0f / direction.z};
    return std::any_of(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
        return March(entry, origin, direction, inverse, limit) >= 0.0f;
    });
}

Vec3 StillLife::Normal(const SceneObject& object, const Vec3& point, float detail)
{
    // The four corners of a tetrahedron give the gradient with the fewest evaluations.
    const Vec3 corners[4] = {{1, -1, -1}, {-1, -1, 1}, {-1, 1, -1}, {1, 1, 1}};
    Vec3 sum;
    for (const Vec3& corner : corners) {
        const Vec3 p = point + corner * detail;
        sum += corner * (object.Distance(p) - object.Relief(p));
    }
    return Normalized(sum);
}

void StillLife::Add(std::unique_ptr<SceneObject> object)
{
    const SceneObject::Bounds box = object->Box();
    m_entries.push_back({std::move(object), box});
}

void StillLife::AddBouquet(const Vec3& mouth)
{
    struct Blossom
    {
        Vec3 head;
        Vec3 facing;
        float radius;
    };
    const Blossom blossoms[] = {
        {{-0.075f, 0.125f, -0.050f}, {-0.45f, 0.45f, -0.77f}, 0.036f},
        {{0.010f, 0.180f, -0.030f}, {0.10f, 0.42f, -0.90f}, 0.038f},
        {{0.085f, 0.105f, -0.045f}, {0.55f, 0.40f, -0.73f}, 0.034f},
        {{-0.050f, 0.215f, 0.030f}, {-0.50f, 0.70f, -0.50f}, 0.034f},
        {{0.070f, 0.200f, 0.040f}, {0.65f, 0.70f, -0.15f}, 0.032f},
        {{0.005f, 0.090f, -0.070f}, {0.05f, 0.35f, -0.93f}, 0.033f},
        {{-0.110f, 0.165f, 0.050f}, {-0.85f, 0.50f, 0.05f}, 0.031f},
    };
    std::uint32_t seed = 1;
    for (const Blossom& blossom : blossoms) {
        const Vec3 root = mouth + Vec3{0.10f * blossom.head.x, -0.045f, 0.10f * blossom.head.z};
        Add(std::make_unique<Flower>(root, mouth + blossom.head, Normalized(blossom.facing),
                                     blossom.radius, seed++));
    }
}

// Sphere tracing (J. Hart, 1996) between entry to and exit from the body's box (T. Kay, J. Kajiya,
// "Ray Tracing Complex Scenes", 1986).
float StillLife::March(const Entry& entry, const Vec3& origin, const Vec3& direction,
                       const Vec3& inverse, float limit)
{
    const Vec3 a = (entry.box.lower - origin) * inverse;
    const Vec3 b = (entry.box.upper - origin) * inverse;
    float t = std::max({0.0f, std::min(a.x, b.x), std::min(a.y, b.y), std::min(a.z, b.z)});
    const float end = std::min({limit, std::max(a.x, b.x), std::max(a.y, b.y), std::max(a.z, b.z)});
    for (int i = 0; i < 160 && t < end; ++i) {
        const float distance = entry.object->Distance(origin + direction * t);
        if (distance < 0.00012f) {
            return t;
        }
        t += distance;
    }
    return -1.0f;
}

} // namespace LumetraSample
