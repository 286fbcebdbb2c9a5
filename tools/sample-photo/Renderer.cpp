// SPDX-License-Identifier: GPL-2.0-or-later
#include "Renderer.h"

#include <atomic>
#include <thread>
#include <utility>

namespace LumetraSample {

namespace {

constexpr float SunRadius = 0.009f; // about twice the real one, as through thin haze
constexpr float Reach = 6.0f;
constexpr int FarStride = 2;
constexpr float Brightest = 24.0f;

// C. Schlick, "An Inexpensive BRDF Model for Physically-based Rendering", 1994.
float Fresnel(float reflectance, float cosine)
{
    return reflectance + (1.0f - reflectance) * std::pow(1.0f - Saturate(cosine), 5.0f);
}

Vec3 Clamped(const Vec3& light)
{
    return {std::min(light.x, Brightest), std::min(light.y, Brightest),
            std::min(light.z, Brightest)};
}

float Tent(float u)
{
    return u < 0.5f ? std::sqrt(2.0f * u) - 1.0f : 1.0f - std::sqrt(2.0f - 2.0f * u);
}

} // namespace

Renderer::Renderer(const Settings& settings)
    : m_settings(settings), m_sky(std::clamp(settings.width, 64, 1600), settings.seed),
      m_landscape(m_sky),
      m_camera(static_cast<float>(settings.width) / static_cast<float>(settings.height))
{
}

LightImage Renderer::Render() const
{
    std::vector<PixelRecord> records(static_cast<std::size_t>(m_settings.width) *
                                     static_cast<std::size_t>(m_settings.height));
    std::atomic<int> nextRow{0};
    const auto work = [&] {
        PixelSampler sampler(m_settings.seed, m_settings.samples);
        for (int row = nextRow++; row < m_settings.height; row = nextRow++) {
            RenderRow(records, row, sampler);
        }
    };
    std::vector<std::thread> helpers;
    for (int i = 1; i < m_settings.threads; ++i) {
        helpers.emplace_back(work);
    }
    work();
    for (std::thread& helper : helpers) {
        helper.join();
    }
    return GatherFilter::Resolve(std::move(records), m_settings.width, m_settings.height);
}

void Renderer::RenderRow(std::vector<PixelRecord>& records, int row, PixelSampler& sampler) const
{
    for (int column = 0; column < m_settings.width; ++column) {
        sampler.Reset(column, row);
        const auto at = static_cast<std::size_t>(row) * static_cast<std::size_t>(m_settings.width) +
                        static_cast<std::size_t>(column);
        records[at] = Follow(column, row, sampler);
    }
}

// The landscape has no bounced light and so needs fewer paths than the still life: paths that pass
// the still life share the mean of those that are followed on.
PixelRecord Renderer::Follow(int column, int row, const PixelSampler& sampler) const
{
    PixelRecord sum;
    Vec3 far;
    int passed = 0;
    int followed = 0;
    for (int i = 0; i < m_settings.samples; ++i) {
        const Path path{sampler, i};
        const Camera::Ray ray = RayAt(column, row, path);
        const StillLife::Hit hit = m_stillLife.Intersect(ray.origin, ray.direction, Reach);
        if (hit.object != nullptr) {
            AddNear(sum, hit, ray, path);
        } else if (passed++ % FarStride == 0) {
            far += m_landscape.Radiance(ray.origin, ray.direction, path.Pair(Choice::Wave));
            ++followed;
        }
    }
    if (followed > 0) {
        sum.direct += far * (static_cast<float>(passed) / static_cast<float>(followed));
    }
    const float each = 1.0f / static_cast<float>(m_settings.samples);
    const float met = 1.0f / static_cast<float>(std::max(m_settings.samples - passed, 1));
    return {sum.direct * each, sum.albedo * each, sum.gathered * met, sum.normal * met,
            sum.depth * met};
}

Camera::Ray Renderer::RayAt(int column, int row, const Path& path) const
{
    const Vec2 pixel = path.Pair(Choice::Pixel);
    const float u = static_cast<float>(column) + 0.5f + 0.85f * Tent(pixel.x);
    const float v = static_cast<float>(row) + 0.5f + 0.85f * Tent(pixel.y);
    return m_camera.RayAt(u / static_cast<float>(m_settings.width),
                          v / static_cast<float>(m_settings.height), path.Pair(Choice::Lens));
}

void Renderer::AddNear(PixelRecord& sum, const StillLife::Hit& hit, const Camera::Ray& ray,
                       const Path& path) const
{
    const Surface surface = SurfaceAt(hit, ray.origin, ray.direction, 0.0003f);
    Vec3 light = SunLight(surface, path.Pair(Choice::Sun));
    if (surface.material.mirrors) {
        light += MirroredLight(surface, path);
    }
    sum.direct += Clamped(light);
    sum.albedo += surface.material.albedo;
    sum.gathered += Clamped(GatheredLight(surface, path));
    sum.normal += surface.normal;
    sum.depth += hit.distance;
}

// Light that wraps around the terminator, by colour, stands for light that comes out of skin beside
// where it went in (after E. d'Eon and D. Luebke, "Advanced Techniques for Realistic Real-Time Skin
// Rendering", 2007, and E. Penner's pre-integrated shading, 2011).
Vec3 Renderer::SunLight(const Surface& surface, const Vec2& u) const
{
    const Material& m = surface.material;
    const Vec3 center = m_sky.SunDirection();
    const float radius = SunRadius * std::sqrt(u.x);
    const Vec3 side = Normalized(Cross({0, 1, 0}, center));
    const Vec3 sun = Normalized(center + side * (radius * std::cos(2.0f * Pi * u.y)) +
                                Cross(center, side) * (radius * std::sin(2.0f * Pi * u.y)));
    const float cosine = Dot(surface.normal, sun);
    const auto wrapped = [cosine](float wrap) {
        const float value = std::max(0.0f, (cosine + wrap) / (1.0f + wrap));
        return value * Mix(1.0f, value, Saturate(2.0f * wrap)) / (1.0f + 0.4f * wrap);
    };
    Vec3 diffuse = m.albedo * Vec3{wrapped(m.wrap.x), wrapped(m.wrap.y), wrapped(m.wrap.z)};
    diffuse += m.translucency * std::max(0.0f, -cosine);
    const Vec3 shine = cosine > 0.0f ? Highlight(surface, sun) * cosine : Vec3{};
    if (Luminance(diffuse + shine) <= 0.0f) {
        return {};
    }
    const bool through = cosine < 0.0f && Luminance(m.translucency) > 0.0f;
    const float away = std::max(0.0006f, m.depth);
    const Vec3 start = surface.point + surface.normal * (through ? -0.004f : away);
    if (m_stillLife.Blocked(start, sun, Reach)) {
        return {};
    }
    return (diffuse * (1.0f / Pi) + shine) * m_sky.SunIrradiance();
}

// Microfacets with the GGX distribution (B. Walter et al., 2007) and Schlick's shadowing.
Vec3 Renderer::Highlight(const Surface& surface, const Vec3& sun) const
{
    const Material& m = surface.material;
    const Vec3 half = Normalized(sun + surface.towardsEye);
    const float alpha = std::max(m.roughness * m.roughness, 0.012f);
    const float nh = Saturate(Dot(surface.normal, half));
    const float base = nh * nh * (alpha * alpha - 1.0f) + 1.0f;
    const float spread = alpha * alpha / (Pi * base * base);
    const float k = 0.5f * alpha;
    const auto seen = [k](float cosine) { return 1.0f / (cosine * (1.0f - k) + k); };
    const float value = 0.25f * spread * Fresnel(m.reflectance, Dot(half, sun)) *
                        seen(Saturate(Dot(surface.normal, sun))) *
                        seen(std::max(0.05f, Dot(surface.normal, surface.towardsEye)));
    return {value, value, value};
}

Vec3 Renderer::GatheredLight(const Surface& surface, const Path& path) const
{
    const Vec3 direction = CosineDirection(surface.normal, path.Pair(Choice::Bounce));
    const Vec3 start = surface.point + surface.normal * std::max(0.0006f, surface.material.depth);
    return SecondaryRadiance(start, direction, path.Pair(Choice::BounceSun), false);
}

Vec3 Renderer::MirroredLight(const Surface& surface, const Path& path) const
{
    const float alpha = surface.material.roughness * surface.material.roughness;
    const Vec2 u = path.Pair(Choice::Gloss);
    // The GGX half vector for the random pair, about the normal.
    const float slope = alpha * std::sqrt(u.x / std::max(1.0f - u.x, 1e-3f));
    const Vec3 lobe = CosineDirection(surface.normal, {0.5f, u.y});
    const Vec3 tangent = Normalized(lobe - surface.normal * Dot(lobe, surface.normal));
    const Vec3 half = Normalized(surface.normal + tangent * slope);
    Vec3 direction = Reflected(-surface.towardsEye, half);
    const float below = Dot(direction, surface.normal);
    if (below < 0.0f) {
        direction = Normalized(direction - surface.normal * (1.02f * below));
    }
    const Vec3 start = surface.point + surface.normal * 0.0006f;
    const float share = Fresnel(surface.material.reflectance, Dot(half, surface.towardsEye));
    return SecondaryRadiance(start, direction, path.Pair(Choice::BounceSun), true) * share;
}

// The light along a bounced ray: bodies with plain matt shading, else sky or ground. `sharp` asks
// for the sky as seen in a mirror; gathered light takes the smooth one, as it has no noise.
Vec3 Renderer::SecondaryRadiance(const Vec3& origin, const Vec3& direction, const Vec2& u,
                                 bool sharp) const
{
    const StillLife::Hit hit = m_stillLife.Intersect(origin, direction, 3.0f);
    if (hit.object == nullptr) {
        if (sharp) {
            return m_landscape.Radiance(origin, direction, u);
        }
        const Vec3 sky = m_sky.BlurredRadiance(direction);
        return Mix(m_sky.GroundRadiance(), sky, SmoothStep(-0.03f, 0.05f, direction.y));
    }
    Surface surface = SurfaceAt(hit, origin, direction, 0.001f);
    surface.material.reflectance = 0.0f;
    const Vec3 ambient = m_sky.Irradiance(surface.normal) * (sharp ? 0.75f : 0.6f) * (1.0f / Pi);
    return SunLight(surface, u) + surface.material.albedo * ambient;
}

Renderer::Surface Renderer::SurfaceAt(const StillLife::Hit& hit, const Vec3& origin,
                                      const Vec3& direction, float detail)
{
    Surface surface;
    surface.point = origin + direction * hit.distance;
    surface.towardsEye = -direction;
    surface.normal = StillLife::Normal(*hit.object, surface.point, detail);
    surface.material = hit.object->MaterialAt(surface.point, surface.normal);
    return surface;
}

} // namespace LumetraSample
