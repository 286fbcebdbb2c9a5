// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"

#include <memory>
#include <optional>
#include <string>

namespace LumetraHost {

/// Settles in which colours decoded pictures are worked on. Pixels stay as they are where their
/// profile is sRGB, or an RGB space of three curves and a matrix, which the picture then names. All
/// others (grey and CMYK profiles, RGB profiles that go by tables) are converted to sRGB, relative
/// colorimetric with black point compensation. Grey and RGB pictures without a profile count as
/// sRGB, CMYK pictures without one as plain process inks (R = (1 - C)(1 - K)).
class ColorConversion
{
public:
    /// The colours of pixels that need no conversion.
    struct Kept
    {
        std::shared_ptr<const RgbSpace> space; ///< null: sRGB
    };

    /// Names the space of the picture's pixels, or converts them in place, and returns the profile
    /// that they have afterwards: the picture's own where they stay as they are, an sRGB profile
    /// after a conversion, nothing when there was none. A profile that is damaged or belongs to
    /// another kind of picture is left out with a warning. The photo's reductions tell of a
    /// conversion: colours that sRGB does not have become the nearest on its border.
    static QByteArray Settle(DecodedPhoto& photo, Warnings& warnings);

    /// The colours in which Settle() would leave a picture whose pixels and profile it keeps
    /// without a warning; empty where it would change or warn.
    static std::optional<Kept> FindKept(PixelMeaning meaning, const QByteArray& iccProfile,
                                        Image::Depth depth);

    /// True for a profile that is sRGB within one 8-bit step, and where the lack of one says so.
    static bool IsSrgb(PixelMeaning meaning, const QByteArray& iccProfile);

    /// Adds the sentence that tells of a conversion from a profile of this name, which may be
    /// empty.
    static void WarnOfConversion(Warnings& warnings, const std::string& name);

    static QByteArray GetSrgbProfile();
    /// Primaries (0.64, 0.33), (0.21, 0.71), (0.15, 0.06), white D65, gamma 563/256: what cameras
    /// mean that say "Adobe RGB" in their EXIF block and embed no profile.
    static QByteArray GetAdobeRgbProfile();
    /// Primaries (0.680, 0.320), (0.265, 0.690), (0.150, 0.060), white D65, the curve of sRGB: what
    /// phones and screens use.
    static QByteArray GetDisplayP3Profile();
};

} // namespace LumetraHost
