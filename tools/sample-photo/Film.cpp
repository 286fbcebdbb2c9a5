// SPDX-License-Identifier: GPL-2.0-or-later
#include "Film.h"

#include "Noise.h"

#include <QtGui/QColorSpace>

namespace LumetraSample {

namespace {

constexpr float Exposure = 1.12f;
constexpr float Contrast = 1.36f;
constexpr float White = 4.2f;
constexpr float MiddleGrey = 0.18f;
constexpr float GlowShare = 0.035f;
constexpr float GrainValue = 0.0042f;
const Vec3 WhiteBalance{0.95f, 1.0f, 1.13f};

// Transfer function of IEC 61966-2-1.
float EncodeSrgb(float linear)
{
    return linear <= 0.0031308f ? 12.92f * linear : 1.055f * std::pow(linear, 1.0f / 2.4f) - 0.055f;
}

void BlurRow(std::vector<Vec3>& pixels, std::size_t start, std::size_t stride, int count,
             int radius)
{
    std::vector<Vec3> line(static_cast<std::size_t>(count));
    Vec3 sum;
    const auto at = [&](int i) {
        return pixels[start + stride * static_cast<std::size_t>(std::clamp(i, 0, count - 1))];
    };
    for (int i = -radius; i <= radius; ++i) {
        sum += at(i);
    }
    for (int i = 0; i < count; ++i) {
        line[static_cast<std::size_t>(i)] = sum * (1.0f / static_cast<float>(2 * radius + 1));
        sum += at(i + radius + 1) - at(i - radius);
    }
    for (int i = 0; i < count; ++i) {
        pixels[start + stride * static_cast<std::size_t>(i)] = line[static_cast<std::size_t>(i)];
    }
}

} // namespace

Film::Film(std::uint32_t seed) : m_seed(seed) {}

QImage Film::Develop(const LightImage& light) const
{
    QImage image(light.width, light.height, QImage::Format_RGB888);
    image.setColorSpace(QColorSpace::SRgb);
    const std::vector<Vec3> glow = Glow(light);
    const float halfWidth = 0.5f * static_cast<float>(light.width);
    for (int y = 0; y < light.height; ++y) {
        uchar* line = image.scanLine(y);
        for (int x = 0; x < light.width; ++x) {
            const auto i = static_cast<std::size_t>(y * light.width + x);
            const float u = (static_cast<float>(x) + 0.5f) / halfWidth - 1.0f;
            const float v =
                (static_cast<float>(y) + 0.5f - 0.5f * static_cast<float>(light.height)) /
                halfWidth;
            // Natural vignetting falls with the fourth power of the cosine, here at 40 degrees.
            const float cosine = 1.0f / (1.0f + 0.13f * (u * u + v * v));
            const Vec3 mixed = Mix(light.pixels[i], glow[i], GlowShare) * (cosine * cosine);
            const Vec3 toned = Develop(mixed) + Grain(x, y);
            const float channels[3] = {toned.x, toned.y, toned.z};
            for (int c = 0; c < 3; ++c) {
                line[3 * x + c] =
                    static_cast<uchar>(std::clamp(channels[c] * 255.0f + 0.5f, 0.0f, 255.0f));
            }
        }
    }
    return image;
}

// Stray light in the lens: three box filters come close to a Gaussian (W. Wells, 1986).
std::vector<Vec3> Film::Glow(const LightImage& light)
{
    std::vector<Vec3> pixels = light.pixels;
    const int radius = std::max(1, light.width / 60);
    const auto width = static_cast<std::size_t>(light.width);
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < light.height; ++y) {
            BlurRow(pixels, static_cast<std::size_t>(y) * width, 1, light.width, radius);
        }
        for (int x = 0; x < light.width; ++x) {
            BlurRow(pixels, static_cast<std::size_t>(x), width, light.height, radius);
        }
    }
    return pixels;
}

// A film's density curve as a logistic function of the logarithm of exposure (Naka and Rushton,
// 1966), scaled so that `White` becomes 1 and middle grey keeps its value.
float Film::Tone(float exposure)
{
    const auto power = [](float value) { return std::pow(std::max(value, 0.0f), Contrast); };
    const float white = power(White);
    const float grey = power(MiddleGrey);
    // Solves (1 + k / white) * grey / (grey + k) = MiddleGrey for k.
    const float k = grey * (1.0f - MiddleGrey) / (MiddleGrey - grey / white);
    const float value = power(exposure);
    return (1.0f + k / white) * value / (value + k);
}

Vec3 Film::Develop(const Vec3& light)
{
    const Vec3 exposed = light * WhiteBalance * Exposure;
    const Vec3 toned{Tone(exposed.x), Tone(exposed.y), Tone(exposed.z)};
    return {EncodeSrgb(Saturate(toned.x)), EncodeSrgb(Saturate(toned.y)),
            EncodeSrgb(Saturate(toned.z))};
}

// Makes grain that is mostly common to the channels, as in a scan; the sum of hashes is nearly
// Gaussian.
Vec3 Film::Grain(int x, int y) const
{
    const auto value = [&](int channel) {
        float sum = -2.0f;
        for (int i = 0; i < 4; ++i) {
            sum += HashUnit(Hash(x, y, static_cast<std::int32_t>(m_seed) * 64 + channel * 8 + i));
        }
        return sum * 1.73f;
    };
    const float common = 0.8f * value(3);
    return Vec3{common + 0.6f * value(0), common + 0.6f * value(1), common + 0.6f * value(2)} *
           GrainValue;
}

} // namespace LumetraSample
