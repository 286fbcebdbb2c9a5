// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <algorithm>
#include <cmath>

namespace LumetraSample {

constexpr float Pi = 3.14159265358979f;

/// Three floats: a point in metres (x right, y up, z away from the camera), a direction, or a
/// linear colour with the primaries of sRGB. A plain value; it offers no checked access.
struct Vec3
{
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;

    Vec3& operator+=(const Vec3& other)
    {
        x += other.x;
        y += other.y;
        z += other.z;
        return *this;
    }
};

/// Two floats: random numbers in [0, 1) or a position in a plane.
struct Vec2
{
    float x = 0.0f;
    float y = 0.0f;
};

inline Vec3 operator+(const Vec3& a, const Vec3& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec3 operator-(const Vec3& a, const Vec3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec3 operator-(const Vec3& a)
{
    return {-a.x, -a.y, -a.z};
}
inline Vec3 operator*(const Vec3& a, const Vec3& b)
{
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}
inline Vec3 operator*(const Vec3& a, float s)
{
    return {a.x * s, a.y * s, a.z * s};
}
inline Vec3 operator*(float s, const Vec3& a)
{
    return a * s;
}

inline float Dot(const Vec3& a, const Vec3& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline float Length(const Vec3& a)
{
    return std::sqrt(Dot(a, a));
}
inline Vec3 Normalized(const Vec3& a)
{
    return a * (1.0f / std::max(Length(a), 1e-20f));
}

inline Vec3 Cross(const Vec3& a, const Vec3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline Vec3 Exp(const Vec3& a)
{
    return {std::exp(a.x), std::exp(a.y), std::exp(a.z)};
}

inline Vec3 Reflected(const Vec3& incoming, const Vec3& normal)
{
    return incoming - normal * (2.0f * Dot(incoming, normal));
}

inline float Mix(float a, float b, float t)
{
    return a + (b - a) * t;
}
inline Vec3 Mix(const Vec3& a, const Vec3& b, float t)
{
    return a + (b - a) * t;
}
inline float Saturate(float a)
{
    return std::clamp(a, 0.0f, 1.0f);
}

/// Rises smoothly (cubic Hermite) from 0 at `from` to 1 at `to`; `from` may exceed `to`.
inline float SmoothStep(float from, float to, float value)
{
    const float t = Saturate((value - from) / (to - from));
    return t * t * (3.0f - 2.0f * t);
}

/// Relative luminance of a linear colour with the primaries of sRGB (IEC 61966-2-1).
inline float Luminance(const Vec3& c)
{
    return 0.2126f * c.x + 0.7152f * c.y + 0.0722f * c.z;
}

/// A direction on the hemisphere about `normal`, chosen with a density proportional to the cosine
/// (Malley's method: a uniform disc sample projected up).
inline Vec3 CosineDirection(const Vec3& normal, const Vec2& u)
{
    const float radius = std::sqrt(u.x);
    const float angle = 2.0f * Pi * u.y;
    const Vec3 helper = std::abs(normal.y) < 0.9f ? Vec3{0, 1, 0} : Vec3{1, 0, 0};
    const Vec3 tangent = Normalized(Cross(helper, normal));
    const Vec3 bitangent = Cross(normal, tangent);
    return Normalized(tangent * (radius * std::cos(angle)) +
                      bitangent * (radius * std::sin(angle)) +
                      normal * std::sqrt(std::max(0.0f, 1.0f - u.x)));
}

} // namespace LumetraSample
