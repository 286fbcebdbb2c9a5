// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "SceneObject.h"

#include <cstdint>

namespace LumetraSample {

/// One yellow daisy with its bent stem and a leaf.
class Flower final : public SceneObject
{
public:
    /// `root` is where the stem begins, `head` the middle of the blossom, `facing` (unit length)
    /// where it looks, `radius` half its width in metres; the seed varies its petals.
    Flower(const Vec3& root, const Vec3& head, const Vec3& facing, float radius,
           std::uint32_t seed);

    Bounds Box() const override;
    float Distance(const Vec3& point) const override;
    Material MaterialAt(const Vec3& point, const Vec3& normal) const override;
    float Relief(const Vec3& point) const override;

private:
    Vec3 Local(const Vec3& point) const;
    float Petals(const Vec3& p) const;
    float Ring(const Vec3& p, float turn, float lift) const;
    float Middle(const Vec3& p) const;
    float Stem(const Vec3& point) const;
    float Leaf(const Vec3& point) const;

    Vec3 m_root;
    Vec3 m_head;
    Vec3 m_axis;
    Vec3 m_right;
    Vec3 m_up;
    Vec3 m_bend;
    Vec3 m_leafEnd;
    float m_radius;
    float m_turn;
};

} // namespace LumetraSample
