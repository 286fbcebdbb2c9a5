// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "SceneObject.h"

namespace LumetraSample {

/// A blue glazed cup with a white inside, a handle and coffee in it.
class Cup final : public SceneObject
{
public:
    /// `foot` is the middle of its bottom.
    explicit Cup(const Vec3& foot);

    Bounds Box() const override;
    float Distance(const Vec3& point) const override;
    Material MaterialAt(const Vec3& point, const Vec3& normal) const override;

private:
    static float Wall(const Vec3& p);
    static float Handle(const Vec3& p);
    static float Coffee(const Vec3& p);

    Vec3 m_foot;
};

} // namespace LumetraSample
