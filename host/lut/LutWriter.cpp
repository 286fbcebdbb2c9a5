// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/LutWriter.h"

#include "catalogue/VisibleText.h"
#include "lut/LutError.h"
#include "photo/PhotoWriter.h"

#include <OpenColorIO/OpenColorIO.h>

#include <cmath>
#include <sstream>

namespace LumetraHost {
namespace {

namespace Ocio = OCIO_NAMESPACE;

constexpr char ClfName[] = "Academy/ASC Common LUT Format"; // OpenColorIO's for it
constexpr int SmallestLevel = 2;
constexpr int LargestLevel = 11; // of 121 points; cubes end at 129

QString CleanTitle(const QString& title)
{
    return VisibleText::WithoutControls(title).simplified();
}

int FindLevel(int size)
{
    int level = SmallestLevel;
    while (level < LargestLevel && level * level < size)
        ++level;
    return level * level == size ? level : 0;
}

std::uint16_t To16Bits(float value)
{
    return static_cast<std::uint16_t>(std::lround(value * 65535.0f));
}

/// One pixel for each entry, in the same order: red runs fastest in both.
Image MakeHald(const LookUpTable& cube, int level)
{
    const int side = level * level * level;
    Image picture = Image::Allocate(side, side, Image::Depth::Bits16);
    const float* value = cube.values.data();
    for (int y = 0; y < side; ++y) {
        std::uint16_t* pixel = picture.Row16(y);
        for (int x = 0; x < side; ++x, pixel += Image::Channels, value += LookUpTable::Stride) {
            for (int c = 0; c < 3; ++c)
                pixel[c] = To16Bits(value[c]);
            pixel[3] = 65535;
        }
    }
    return picture;
}

QByteArray ToHaldFile(const LookUpTable& cube, const QString& path)
{
    const int level = FindLevel(cube.size);
    if (level == 0)
        FailInLut(
            path, 0,
            "expected for a HaldCLUT as many points as the square of a whole number, 4 to 121, "
            "found " +
                std::to_string(cube.size));
    Photo photo;
    photo.image = MakeHald(cube, level);
    const bool isTiff = GetPhotoFormatOfName(path) == PhotoFormat::Tiff;
    const Bytes file = PhotoWriter::Encode(photo, isTiff ? PhotoFormat::Tiff : PhotoFormat::Png, {},
                                           path.toStdString());
    return {reinterpret_cast<const char*>(file.data()), static_cast<int>(file.size())};
}

Ocio::Lut3DTransformRcPtr MakeTransform(const LookUpTable& cube)
{
    const auto size = static_cast<unsigned long>(cube.size);
    const auto transform = Ocio::Lut3DTransform::Create(size);
    transform->setInterpolation(Ocio::INTERP_TETRAHEDRAL);
    transform->setFileOutputBitDepth(Ocio::BIT_DEPTH_UINT16);
    const float* value = cube.values.data();
    for (unsigned long blue = 0; blue < size; ++blue)
        for (unsigned long green = 0; green < size; ++green)
            for (unsigned long red = 0; red < size; ++red, value += LookUpTable::Stride)
                transform->setValue(red, green, blue, value[0], value[1], value[2]);
    return transform;
}

} // namespace

bool LutWriter::CanWrite(LutFormat format)
{
    return format == LutFormat::Cube || format == LutFormat::Clf || format == LutFormat::Hald;
}

bool LutWriter::IsHaldSize(int size)
{
    return FindLevel(size) != 0;
}

QByteArray LutWriter::Encode(const LookUpTable& cube, LutFormat format, const QString& title,
                             const QString& path)
{
    switch (format) {
    case LutFormat::Cube:
        return ToCubeFile(cube, title);
    case LutFormat::Clf:
        return ToClfFile(cube, title);
    case LutFormat::Hald:
        return ToHaldFile(cube, path);
    default:
        FailInLut(path, 0, "expected .cube, .clf or a HaldCLUT to be written");
    }
}

// A title stands in quotes, on one line.
QByteArray LutWriter::ToCubeFile(const LookUpTable& cube, const QString& title)
{
    QByteArray text = "TITLE \"" + CleanTitle(title).toUtf8().replace('"', '\'') +
                      "\"\nLUT_3D_SIZE " + QByteArray::number(cube.size) +
                      "\nDOMAIN_MIN 0.0 0.0 0.0\nDOMAIN_MAX 1.0 1.0 1.0\n";
    text.reserve(text.size() + static_cast<int>(cube.GetCount()) * 27);
    for (std::size_t i = 0; i < cube.GetCount(); ++i)
        for (std::size_t c = 0; c < 3; ++c)
            text += QByteArray::number(
                        static_cast<double>(cube.values[LookUpTable::Stride * i + c]), 'f', 6) +
                    (c == 2 ? '\n' : ' ');
    return text;
}

QByteArray LutWriter::ToClfFile(const LookUpTable& cube, const QString& title)
{
    const auto group = Ocio::GroupTransform::Create();
    group->appendTransform(MakeTransform(cube));
    const std::string name = CleanTitle(title).toStdString();
    group->getFormatMetadata().setName(name.c_str());
    group->getFormatMetadata().addChildElement("Description", name.c_str());
    std::ostringstream text;
    group->write(Ocio::Config::CreateRaw(), ClfName, text);
    return QByteArray::fromStdString(text.str());
}

} // namespace LumetraHost
