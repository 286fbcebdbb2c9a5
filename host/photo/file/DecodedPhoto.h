// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "photo/file/Warnings.h"

#include <QByteArray>

namespace LumetraHost {

/// The meaning of the four channels of a decoded picture.
enum class PixelMeaning
{
    Rgb,         ///< red, green, blue, straight alpha
    Gray,        ///< the grey value three times, straight alpha
    Cmyk,        ///< amounts of ink, 0 is none
    CmykInverted ///< amounts of ink, 0 is full
};

/// A picture as its file stores it: not turned upright, in the file's own colours. The decoders
/// make it, the photo reader finishes it.
struct DecodedPhoto
{
    Image pixels;
    PixelMeaning meaning = PixelMeaning::Rgb;
    QByteArray iccProfile;
    bool isProfileDamaged = false; ///< there is a profile, of which parts are missing
    QByteArray exif;               ///< only of formats whose EXIF block the codec itself delivers
    QByteArray xmp;                ///< as `exif`
    /// True: the codec has delivered all blocks, and the file is not searched for others.
    bool hasOwnMetadata = false;
    int orientation = 0;    ///< 1..8 where the codec itself delivers it, else 0
    bool isUpright = false; ///< the codec has turned the picture, whatever the EXIF block says
    Warnings warnings;      ///< see Photo
    Warnings reductions;    ///< see Photo
};

} // namespace LumetraHost
