// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "SceneObject.h"

#include <memory>
#include <vector>

namespace LumetraSample {

/// The bodies on the parapet: builds and owns them and finds where rays meet them. It knows nothing
/// of light. Read only once built.
class StillLife
{
public:
    StillLife();

    /// Where a ray meets a body; `object` is null where it meets none.
    struct Hit
    {
        const SceneObject* object = nullptr;
        float distance = 0.0f;
    };

    /// The nearest body along the ray (unit direction) within `limit` metres.
    Hit Intersect(const Vec3& origin, const Vec3& direction, float limit) const;

    /// True when any body is within `limit` metres of the ray's origin along it.
    bool Blocked(const Vec3& origin, const Vec3& direction, float limit) const;

    /// Unit normal with the relief of the surface, averaged over about `detail` metres.
    static Vec3 Normal(const SceneObject& object, const Vec3& point, float detail);

private:
    struct Entry
    {
        std::unique_ptr<SceneObject> object;
        SceneObject::Bounds box;
    };

    void Add(std::unique_ptr<SceneObject> object);
    void AddBouquet(const Vec3& mouth);
    static float March(const Entry& entry, const Vec3& origin, const Vec3& direction,
                       const Vec3& inverse, float limit);

    std::vector<Entry> m_entries;
};

} // namespace LumetraSample
