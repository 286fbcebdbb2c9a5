// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "SceneObject.h"

namespace LumetraSample {

/// The stone wall on whose top (the plane y = 0) the still life stands.
class Parapet final : public SceneObject
{
public:
    Bounds Box() const override;
    float Distance(const Vec3& point) const override;
    Material MaterialAt(const Vec3& point, const Vec3& normal) const override;
    float Relief(const Vec3& point) const override;

private:
    static float Joint(const Vec3& point);
};

} // namespace LumetraSample
