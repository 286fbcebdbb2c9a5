// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

namespace LumetraSample {

/// A camera with a thin lens, which stands in front of the parapet. A plain value.
class Camera
{
public:
    struct Ray
    {
        Vec3 origin;
        Vec3 direction;
    };

    /// `aspect` is width over height of the picture.
    explicit Camera(float aspect);

    /// The ray through the picture at `u` and `v` (0 to 1 from the upper left) and through the
    /// point of the lens that `lens` chooses.
    Ray RayAt(float u, float v, const Vec2& lens) const;

private:
    Vec3 m_forward;
    Vec3 m_right;
    Vec3 m_up;
    float m_aspect;
};

} // namespace LumetraSample
