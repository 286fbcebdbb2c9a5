// SPDX-License-Identifier: GPL-2.0-or-later
#include "SamplePhotos.h"

#include "common/Pictures.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"
#include "storage/CheckedFileWriter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <random>
#include <vector>

namespace LumetraBench {
namespace {

using namespace LumetraHost;

constexpr int TextureSide = 512;

/// Sums of octaves of noise around 0.
std::vector<float> MakeTexture(unsigned seed)
{
    std::mt19937 random(seed);
    std::normal_distribution<float> noise(0.0f, 1.0f);
    std::vector<float> texture(TextureSide * TextureSide, 0.0f);
    for (int cell = 1; cell <= 64; cell *= 4) {
        const int side = TextureSide / cell;
        std::vector<float> values(static_cast<std::size_t>(side * side));
        for (float& value : values)
            value = noise(random);
        const float weight = cell == 1 ? 2.5f : 2.0f * std::sqrt(float(cell));
        for (int y = 0; y < TextureSide; ++y)
            for (int x = 0; x < TextureSide; ++x)
                texture[static_cast<std::size_t>(y * TextureSide + x)] +=
                    weight * values[static_cast<std::size_t>(y / cell * side + x / cell)];
    }
    return texture;
}

void FillRow(std::uint8_t* row, int y, int width, int height, const std::vector<float>& texture)
{
    const float v = float(y) / float(height);
    for (int x = 0; x < width; ++x) {
        const float u = float(x) / float(width);
        const float light = 110 + 70 * std::sin(5 * u + 2 * v) * std::cos(4 * v - u);
        const bool isShape = std::sin(40 * u) * std::sin(30 * v) > 0.8f;
        const auto at = static_cast<std::size_t>(y % TextureSide * TextureSide + x % TextureSide);
        const float base = (isShape ? 0.5f * light : light) + texture[at];
        const float colour[3] = {base * (1.1f - 0.2f * v), base, base * (0.8f + 0.3f * v)};
        for (int c = 0; c < 3; ++c)
            row[4 * x + c] = static_cast<std::uint8_t>(std::clamp(colour[c], 0.0f, 255.0f));
        row[4 * x + 3] = 255;
    }
}

} // namespace

void WriteSamplePhoto(const QString& path, int width, int height, unsigned seed)
{
    const std::vector<float> texture = MakeTexture(seed);
    const auto encoder = PhotoWriter::Start({width, height, Image::Depth::Bits8, true}, {},
                                            PhotoFormat::Jpeg, {}, path.toStdString());
    Image row = Image::AllocateUninitialised(width, 1, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y) {
        FillRow(row.Row(0), y, width, height, texture);
        encoder->Write(row, 0, 1);
    }
    const Bytes content = encoder->Finish();
    CheckedFileWriter::Write(path, content.data(), content.size());
}

double MeasurePsnr(const QString& first, const QString& second)
{
    try {
        const Image a = PhotoReader::Read(first).image;
        const Image b = PhotoReader::Read(second).image;
        if (a.GetWidth() != b.GetWidth() || a.GetHeight() != b.GetHeight() ||
            a.GetDepth() != b.GetDepth() || a.GetDepth() != Image::Depth::Bits8)
            return 0;
        return GetPsnr(a, b);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 0;
    }
}

} // namespace LumetraBench
