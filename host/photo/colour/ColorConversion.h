// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"

namespace LumetraHost {

/// Brings decoded pictures to sRGB, relative colorimetric with black point compensation. Grey and
/// RGB pictures without a profile count as sRGB, CMYK pictures without one as plain process inks
/// (R = (1 - C)(1 - K)).
class ColorConversion
{
public:
    /// Converts the picture's pixels in place and returns the profile that they have afterwards:
    /// the picture's own where that is sRGB within one 8-bit step (the pixels are then untouched),
    /// an sRGB profile after a conversion, nothing when there was none. A profile that is damaged
    /// or belongs to another kind of picture is left out with a warning. The photo's reductions
    /// tell of a conversion: colours that sRGB does not have become the nearest on its border.
    static QByteArray ToSrgb(DecodedPhoto& photo, Warnings& warnings);

    /// True when ToSrgb() would leave the pixels and the profile of a picture as they are, without
    /// a warning.
    static bool IsSrgb(PixelMeaning meaning, const QByteArray& iccProfile);

    static QByteArray GetSrgbProfile();
    /// Primaries (0.64, 0.33), (0.21, 0.71), (0.15, 0.06), white D65, gamma 563/256: what cameras
    /// mean that say "Adobe RGB" in their EXIF block and embed no profile.
    static QByteArray GetAdobeRgbProfile();
    /// Primaries (0.680, 0.320), (0.265, 0.690), (0.150, 0.060), white D65, the curve of sRGB: what
    /// phones and screens use.
    static QByteArray GetDisplayP3Profile();
};

} // namespace LumetraHost
