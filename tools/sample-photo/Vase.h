// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "SceneObject.h"

namespace LumetraSample {

/// A white porcelain vase with two painted rings; the flowers in it are bodies of their own.
class Vase final : public SceneObject
{
public:
    /// `foot` is the middle of its bottom.
    explicit Vase(const Vec3& foot);

    /// The middle of the mouth, where stems come out.
    Vec3 Mouth() const;

    Bounds Box() const override;
    float Distance(const Vec3& point) const override;
    Material MaterialAt(const Vec3& point, const Vec3& normal) const override;

private:
    Vec3 m_foot;
};

} // namespace LumetraSample
