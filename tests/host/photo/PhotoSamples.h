// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "photo/file/PhotoFormat.h"

#include "Zorvik/Exception.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace LumetraTest {

using LumetraHost::Bytes;
using LumetraHost::Image;

enum class Alpha
{
    Opaque,
    Varying
};

/// Every pixel differs from its neighbours; the whole range of values occurs.
Image MakePattern(int width, int height, Image::Depth depth, Alpha alpha = Alpha::Opaque);
/// A smooth picture, on which JPEG loses next to nothing.
Image MakeGradient(int width, int height);
/// 3 x 2 pixels whose red values are these, row by row; green and blue are 0.
Image MakeMarked(const std::array<int, 6>& red, Image::Depth depth);
/// The red values of an 8-bit picture, row by row, and its size: "3x2: 1 2 3 4 5 6".
std::string DescribeRed(const Image& image);

/// The largest difference of any channel; -1 for pictures of different size or depth.
int LargestDifference(const Image& first, const Image& second);

/// The text of the Zorvik::Exception that the call throws, or "no error".
template <class Call>
std::string ErrorOf(const Call& call)
{
    try {
        call();
    } catch (const Zorvik::Exception& error) {
        return error.what();
    }
    return "no error";
}

void WriteFile(const QString& path, const Bytes& content);
Bytes ReadFile(const QString& path);
/// The checksum of PNG chunks, over the bytes from `begin` up to `end`.
std::uint32_t Crc(const Bytes& bytes, std::size_t begin, std::size_t end);
Bytes ToBytes(const QByteArray& bytes);

} // namespace LumetraTest
