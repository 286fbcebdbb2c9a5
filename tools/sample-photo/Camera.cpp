// SPDX-License-Identifier: GPL-2.0-or-later
#include "Camera.h"

namespace LumetraSample {

namespace {

const Vec3 Eye{-0.02f, 0.335f, -1.62f};
const Vec3 Target{-0.02f, 0.250f, 0.0f};
constexpr float HalfWidth = 0.405f; // tangent of half the horizontal angle of view
constexpr float Focus = 1.68f;
constexpr float LensRadius = 0.0016f;

} // namespace

Camera::Camera(float aspect)
    : m_forward(Normalized(Target - Eye)), m_right(Normalized(Cross({0, 1, 0}, m_forward))),
      m_up(Cross(m_forward, m_right)), m_aspect(aspect)
{
}

// Depth of field after R. Cook et al., "Distributed Ray Tracing", 1984.
Camera::Ray Camera::RayAt(float u, float v, const Vec2& lens) const
{
    const float x = (2.0f * u - 1.0f) * HalfWidth;
    const float y = (1.0f - 2.0f * v) * HalfWidth / m_aspect;
    const Vec3 focus = Eye + (m_forward + m_right * x + m_up * y) * Focus;
    const float radius = LensRadius * std::sqrt(lens.x);
    const float angle = 2.0f * Pi * lens.y;
    const Vec3 origin =
        Eye + m_right * (radius * std::cos(angle)) + m_up * (radius * std::sin(angle));
    return {origin, Normalized(focus - origin)};
}

} // namespace LumetraSample
