// SPDX-License-Identifier: GPL-2.0-or-later
#include "PhotoSamples.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace LumetraTest {
namespace {

std::uint32_t Mix(std::uint32_t value)
{
    value = (value ^ (value >> 16)) * 0x7FEB352Du;
    value = (value ^ (value >> 15)) * 0x846CA68Bu;
    return value ^ (value >> 16);
}

int GetChannel(const Image& image, int x, int y, int channel)
{
    const int index = Image::Channels * x + channel;
    return image.GetDepth() == Image::Depth::Bits16 ? image.Row16(y)[index] : image.Row(y)[index];
}

void SetChannel(Image& image, int x, int y, int channel, std::uint32_t value)
{
    const int index = Image::Channels * x + channel;
    if (image.GetDepth() == Image::Depth::Bits16)
        image.Row16(y)[index] = static_cast<std::uint16_t>(value);
    else
        image.Row(y)[index] = static_cast<std::uint8_t>(value);
}

} // namespace

Image MakePattern(int width, int height, Image::Depth depth, Alpha alpha)
{
    Image image = Image::Allocate(width, height, depth);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int channel = 0; channel < Image::Channels; ++channel)
                SetChannel(image, x, y, channel,
                           Mix(static_cast<std::uint32_t>((y * width + x) * 4 + channel + 1)));
            if (alpha == Alpha::Opaque)
                SetChannel(image, x, y, 3, 0xFFFF);
        }
    }
    return image;
}

Image MakeGradient(int width, int height)
{
    Image image = Image::Allocate(width, height, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            SetChannel(image, x, y, 0, static_cast<std::uint32_t>(255 * x / width));
            SetChannel(image, x, y, 1, static_cast<std::uint32_t>(255 * y / height));
            SetChannel(image, x, y, 2, 96);
            SetChannel(image, x, y, 3, 255);
        }
    }
    return image;
}

Image MakeMarked(const std::array<int, 6>& red, Image::Depth depth)
{
    Image image = Image::Allocate(3, 2, depth);
    for (int i = 0; i < 6; ++i) {
        SetChannel(image, i % 3, i / 3, 0,
                   static_cast<std::uint32_t>(red[static_cast<std::size_t>(i)]));
        SetChannel(image, i % 3, i / 3, 3, 0xFFFF);
    }
    return image;
}

std::string DescribeRed(const Image& image)
{
    std::string text =
        std::to_string(image.GetWidth()) + "x" + std::to_string(image.GetHeight()) + ":";
    for (int y = 0; y < image.GetHeight(); ++y) {
        for (int x = 0; x < image.GetWidth(); ++x)
            text += " " + std::to_string(GetChannel(image, x, y, 0));
    }
    return text;
}

int LargestDifference(const Image& first, const Image& second)
{
    if (first.GetWidth() != second.GetWidth() || first.GetHeight() != second.GetHeight() ||
        first.GetDepth() != second.GetDepth())
        return -1;
    int largest = 0;
    for (int y = 0; y < first.GetHeight(); ++y) {
        for (int x = 0; x < first.GetWidth(); ++x) {
            for (int channel = 0; channel < Image::Channels; ++channel)
                largest = std::max(largest, std::abs(GetChannel(first, x, y, channel) -
                                                     GetChannel(second, x, y, channel)));
        }
    }
    return largest;
}

void WriteFile(const QString& path, const Bytes& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto size = static_cast<qint64>(content.size());
    ASSERT_EQ(file.write(reinterpret_cast<const char*>(content.data()), size), size);
}

Bytes ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? ToBytes(file.readAll()) : Bytes();
}

std::uint32_t Crc(const Bytes& bytes, std::size_t begin, std::size_t end)
{
    std::uint32_t crc = 0xFFFFFFFF;
    for (std::size_t i = begin; i < end; ++i) {
        crc ^= bytes[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

Bytes ToBytes(const QByteArray& bytes)
{
    return Bytes(bytes.begin(), bytes.end());
}

} // namespace LumetraTest
