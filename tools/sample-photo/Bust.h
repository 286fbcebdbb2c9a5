// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "SceneObject.h"

namespace LumetraSample {

/// A mannequin's head and shoulders in the colour of skin, with a knitted cap, a red
/// scarf and a dark jumper. The body is symmetric; lengths are those of a small adult.
class Bust final : public SceneObject
{
public:
    /// `foot` is the middle of its underside; `yaw` turns the face, 0 looking away from the camera
    /// and negative angles (radians) to the left.
    Bust(const Vec3& foot, float yaw);

    Bounds Box() const override;
    float Distance(const Vec3& point) const override;
    Material MaterialAt(const Vec3& point, const Vec3& normal) const override;
    float Relief(const Vec3& point) const override;

private:
    enum class Part
    {
        Skin,
        Cap,
        Scarf,
        Jumper
    };

    Vec3 Local(const Vec3& point) const;
    static Part PartAt(const Vec3& p);
    static float Skin(const Vec3& p);
    static float Skull(const Vec3& q);
    static float Eyes(const Vec3& q, float skull);
    static float Nose(const Vec3& q);
    static float Mouth(const Vec3& q);
    static float Ear(const Vec3& q);
    static float Neck(const Vec3& p);
    static float Cap(const Vec3& p);
    static float Scarf(const Vec3& p);
    static float Jumper(const Vec3& p);
    static Material SkinMaterial(const Vec3& p);
    static Material CapMaterial(const Vec3& p);
    static Material JumperMaterial(const Vec3& p);
    static Material ScarfMaterial(const Vec3& p);

    Vec3 m_foot;
    float m_cosine;
    float m_sine;
};

} // namespace LumetraSample
