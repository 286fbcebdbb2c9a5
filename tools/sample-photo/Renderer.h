// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Camera.h"
#include "GatherFilter.h"
#include "Landscape.h"
#include "PixelSampler.h"
#include "Sky.h"
#include "StillLife.h"

#include <cstdint>
#include <vector>

namespace LumetraSample {

/// Renders the sample photo by following light backwards: sun and sky with one bounce in the still
/// life, direct light only in the landscape. Owns the scene. The result depends on the settings
/// only, not on the number of threads.
class Renderer
{
public:
    struct Settings
    {
        int width = 1920;
        int height = 1280;
        /// Light paths per pixel; powers of two spread best.
        int samples = 32;
        std::uint32_t seed = 3;
        int threads = 1;
    };

    explicit Renderer(const Settings& settings);

    /// The scene's light, before the film.
    LightImage Render() const;

private:
    struct Path
    {
        const PixelSampler& sampler;
        int index;
        Vec2 Pair(Choice choice) const { return sampler.Pair(index, choice); }
    };
    struct Surface
    {
        Vec3 point;
        Vec3 normal;
        Vec3 towardsEye;
        Material material;
    };

    void RenderRow(std::vector<PixelRecord>& records, int row, PixelSampler& sampler) const;
    PixelRecord Follow(int column, int row, const PixelSampler& sampler) const;
    Camera::Ray RayAt(int column, int row, const Path& path) const;
    void AddNear(PixelRecord& sum, const StillLife::Hit& hit, const Camera::Ray& ray,
                 const Path& path) const;
    Vec3 SunLight(const Surface& surface, const Vec2& u) const;
    Vec3 Highlight(const Surface& surface, const Vec3& sun) const;
    Vec3 GatheredLight(const Surface& surface, const Path& path) const;
    Vec3 MirroredLight(const Surface& surface, const Path& path) const;
    Vec3 SecondaryRadiance(const Vec3& origin, const Vec3& direction, const Vec2& u,
                           bool sharp) const;
    static Surface SurfaceAt(const StillLife::Hit& hit, const Vec3& origin, const Vec3& direction,
                             float detail);

    Settings m_settings;
    Sky m_sky;
    Landscape m_landscape;
    StillLife m_stillLife;
    Camera m_camera;
};

} // namespace LumetraSample
