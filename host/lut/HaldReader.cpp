// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/HaldReader.h"

#include "engine/effects/lut3d/Lut3dStage.h"
#include "lut/LutError.h"
#include "lut/OcioLutReader.h"
#include "photo/PhotoReader.h"
#include "photo/file/PhotoFile.h"
#include "photo/file/PhotoHead.h"

#include <cstdint>

namespace LumetraHost {
namespace {

constexpr int SmallestLevel = 2;
constexpr int LargestLevel = 12;

/// The level of the table that a picture of this size holds; 0 for other sizes.
int FindLevel(std::uint64_t width, std::uint64_t height)
{
    for (int level = SmallestLevel; level <= LargestLevel; ++level)
        if (width == static_cast<std::uint64_t>(level * level * level) && height == width)
            return level;
    return 0;
}

int FindLevel(const QString& path, const Image& image)
{
    if (const int level = FindLevel(static_cast<std::uint64_t>(image.GetWidth()),
                                    static_cast<std::uint64_t>(image.GetHeight())))
        return level;
    FailInLut(path, 0,
              "expected a HaldCLUT, a square picture of 8, 27, 64, 125 and so on to 1728 pixels, "
              "found " +
                  std::to_string(image.GetWidth()) + " x " + std::to_string(image.GetHeight()));
}

float GetValue(const Image& image, int x, int y, int channel)
{
    if (image.GetDepth() == Image::Depth::Bits16)
        return static_cast<float>(image.Row16(y)[4 * x + channel]) / 65535.0f;
    return static_cast<float>(image.Row(y)[4 * x + channel]) / 255.0f;
}

LookUpTable ReadCube(const Image& image, int level)
{
    auto cube =
        LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, level * level, {0, 0, 0}, {1, 1, 1});
    float* value = cube.values.data();
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth(); ++x, value += LookUpTable::Stride)
            for (int c = 0; c < 3; ++c)
                value[c] = GetValue(image, x, y, c);
    return cube;
}

LookUpTable Resample(LookUpTable&& cube, int size)
{
    const Lut3dStage stage(nullptr, std::make_shared<const LookUpTable>(std::move(cube)), 1,
                           Isa::Baseline);
    auto smaller = LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, size, {0, 0, 0}, {1, 1, 1});
    alignas(64) float planes[3][1];
    for (std::size_t i = 0; i < smaller.GetCount(); ++i) {
        float* const entry = &smaller.values[LookUpTable::Stride * i];
        for (std::size_t c = 0; c < 3; ++c)
            planes[c][0] = entry[c];
        Tile tile{planes[0], planes[1], planes[2], 1};
        stage.Run(tile);
        for (std::size_t c = 0; c < 3; ++c)
            entry[c] = planes[c][0];
    }
    return smaller;
}

} // namespace

bool HaldReader::HasTableSize(const QString& path)
{
    try {
        PhotoFile file(path);
        const PhotoHead head = PhotoHead::Read(file);
        return FindLevel(head.width, head.height) != 0;
    } catch (const std::exception&) {
        return false; // no picture, or one that announces nothing
    }
}

LookUpTable HaldReader::Read(const QString& path)
{
    const Image image = PhotoReader::Read(path).image;
    const int level = FindLevel(path, image);
    auto cube = ReadCube(image, level);
    if (cube.size > OcioLutReader::LargestStoredCube)
        return Resample(std::move(cube), OcioLutReader::LargestStoredCube);
    return cube;
}

} // namespace LumetraHost
