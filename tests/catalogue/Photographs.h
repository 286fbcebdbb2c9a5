// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <string>
#include <vector>

namespace LumetraTests {

/// A photograph that a package of the test section of packaging/apt-packages.txt brings.
struct Photograph
{
    std::string subject; ///< "sky", "skin", "snow", "night", "foliage" or "interior"
    LumetraHost::Image picture;
};

/// Reads the six photographs on which looks are judged, with `longestSide` pixels along their
/// longer sides. Zorvik::Exception, which names the package, when one of them is not installed.
std::vector<Photograph> ReadPhotographs(int longestSide);

/// Reads a square of the blue sky in the photograph of the sky, as the camera stored it: with the
/// blocks and the noise that a look may bring out. Exceptions as above.
LumetraHost::Image ReadBlueSky(int side);

} // namespace LumetraTests
