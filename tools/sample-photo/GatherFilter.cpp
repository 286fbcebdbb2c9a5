// SPDX-License-Identifier: GPL-2.0-or-later
#include "GatherFilter.h"

#include <cstddef>

namespace LumetraSample {

namespace {

// The B3 spline of the wavelet, from its middle outwards.
constexpr float Spline[3] = {6.0f / 16.0f, 4.0f / 16.0f, 1.0f / 16.0f};
constexpr float NormalSpread = 0.25f;
constexpr float DepthPerPixel = 0.006f;
constexpr float LightSpread = 0.7f;

} // namespace

LightImage GatherFilter::Resolve(std::vector<PixelRecord> records, int width, int height)
{
    // The reach shrinks with the picture, so that a small one is not smeared.
    for (int step = 1; step <= std::min(4, width / 400); step *= 2) {
        const std::vector<Vec3> smooth = Pass(records, width, height, step);
        for (std::size_t i = 0; i < records.size(); ++i) {
            records[i].gathered = smooth[i];
        }
    }
    LightImage image{width, height, {}};
    image.pixels.reserve(records.size());
    for (const PixelRecord& record : records) {
        image.pixels.push_back(record.direct + record.albedo * record.gathered);
    }
    return image;
}

std::vector<Vec3> GatherFilter::Pass(const std::vector<PixelRecord>& records, int width, int height,
                                     int step)
{
    std::vector<Vec3> result(records.size());
    const auto index = [width](int x, int y) { return static_cast<std::size_t>(y * width + x); };
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const PixelRecord& center = records[index(x, y)];
            if (center.depth <= 0.0f) {
                continue;
            }
            Vec3 sum;
            float total = 0.0f;
            for (int k = 0; k < 25; ++k) {
                const int dx = k % 5 - 2;
                const int dy = k / 5 - 2;
                const PixelRecord& other = records[index(std::clamp(x + dx * step, 0, width - 1),
                                                         std::clamp(y + dy * step, 0, height - 1))];
                const float weight =
                    Spline[std::abs(dx)] * Spline[std::abs(dy)] * Likeness(center, other, step);
                sum += other.gathered * weight;
                total += weight;
            }
            result[index(x, y)] = sum * (1.0f / total);
        }
    }
    return result;
}

float GatherFilter::Likeness(const PixelRecord& a, const PixelRecord& b, int step)
{
    if (b.depth <= 0.0f) {
        return 0.0f;
    }
    const Vec3 turn = a.normal - b.normal;
    const float depth = std::abs(a.depth - b.depth) / (DepthPerPixel * static_cast<float>(step));
    const float own = Luminance(a.gathered);
    const float other = Luminance(b.gathered);
    const float light = std::abs(own - other) / (LightSpread * (0.5f * (own + other) + 1e-4f));
    return std::exp(-Dot(turn, turn) / NormalSpread - depth - light * light);
}

} // namespace LumetraSample
