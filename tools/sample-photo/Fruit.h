// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "SceneObject.h"

namespace LumetraSample {

/// An apple or an orange with its stalk or navel on top, a little tilted.
class Fruit final : public SceneObject
{
public:
    enum class Kind
    {
        Apple,
        Orange
    };

    /// `center` is the middle of the body, `radius` its half width in metres, `tilt` the lean of
    /// its axis to the right in radians.
    Fruit(Kind kind, const Vec3& center, float radius, float tilt);

    Bounds Box() const override;
    float Distance(const Vec3& point) const override;
    Material MaterialAt(const Vec3& point, const Vec3& normal) const override;
    float Relief(const Vec3& point) const override;

private:
    Vec3 Local(const Vec3& point) const;
    float Stalk(const Vec3& p) const;
    Material AppleSkin(const Vec3& p) const;
    Material OrangePeel(const Vec3& p) const;

    Kind m_kind;
    Vec3 m_center;
    float m_radius;
    float m_tilt;
};

} // namespace LumetraSample
