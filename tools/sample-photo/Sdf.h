// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

namespace LumetraSample {

// Distances to simple bodies, negative inside, in metres (J. Hart, "Sphere Tracing", 1996, has the
// method and the derivations of the exact ones).

inline float SphereDistance(const Vec3& p, const Vec3& center, float radius)
{
    return Length(p - center) - radius;
}

/// First-order estimate: the implicit function over the length of its gradient.
inline float EllipsoidDistance(const Vec3& p, const Vec3& center, const Vec3& radii)
{
    const Vec3 q = p - center;
    const Vec3 scaled{q.x / radii.x, q.y / radii.y, q.z / radii.z};
    const Vec3 gradient{scaled.x / radii.x, scaled.y / radii.y, scaled.z / radii.z};
    const float k = Length(scaled);
    if (k < 1e-4f) {
        return -std::min({radii.x, radii.y, radii.z});
    }
    return k * (k - 1.0f) / std::max(Length(gradient), 1e-6f);
}

/// A tapered rod with round ends; exact where the radii are equal.
inline float RodDistance(const Vec3& p, const Vec3& a, const Vec3& b, float radiusA, float radiusB)
{
    const Vec3 axis = b - a;
    const float share = Saturate(Dot(p - a, axis) / Dot(axis, axis));
    return Length(p - a - axis * share) - Mix(radiusA, radiusB, share);
}

/// A ring about the y axis.
inline float RingDistance(const Vec3& p, float radius, float tube)
{
    const float outside = std::sqrt(p.x * p.x + p.z * p.z) - radius;
    return std::sqrt(outside * outside + p.y * p.y) - tube;
}

// Blends that are exact away from the seam: where both distances are closer to each other than
// `width`, a quadratic piece (A. Ricci's blend as a polynomial) takes away or adds a fillet.
inline float SmoothUnion(float a, float b, float width)
{
    const float overlap = std::max(width - std::abs(a - b), 0.0f);
    return std::min(a, b) - overlap * overlap / (4.0f * width);
}

inline float SmoothIntersection(float a, float b, float width)
{
    return -SmoothUnion(-a, -b, width);
}

inline float SmoothDifference(float body, float tool, float width)
{
    return SmoothIntersection(body, -tool, width);
}

} // namespace LumetraSample
