// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/RgbSpace.h"

#include <QByteArray>

#include <memory>
#include <string>
#include <vector>

namespace LumetraHost {

/// Primaries and gamma of ROMM RGB, as editors of raw files embed it.
QByteArray MakeProPhotoProfile();
/// Display P3 with curves of that many entries that follow a plain gamma of 2.2.
QByteArray MakeTableProfile(int entries);

/// A space with its formulas in double precision.
struct TestSpace
{
    std::string name;
    std::shared_ptr<const RgbSpace> space;
    double gamma = 0; ///< 0: the curve of sRGB

    double Decode(double encoded) const;
    double Encode(double linear) const; ///< limited to 0..1
};

/// Display P3, Adobe RGB and ProPhoto RGB.
const std::vector<TestSpace>& GetTestSpaces();

/// The picture's pixels, said to be in that space.
Image InSpace(Image picture, std::shared_ptr<const RgbSpace> space);

} // namespace LumetraHost
