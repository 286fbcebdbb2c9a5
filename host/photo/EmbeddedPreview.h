// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <QString>

#include <optional>

namespace LumetraHost {

/// The small picture of a photo that its camera has stored in the file. It costs a hundredth of
/// decoding the photo. It shows the photo as the camera developed it: that of a raw file may differ
/// from what PhotoReader makes of it. Usable from any thread.
struct EmbeddedPreview
{
    Image image;         ///< upright, in the space of the photo, without bars at its sides
    int photoWidth = 0;  ///< pixels of the photo, upright; of the preview where that is unknown
    int photoHeight = 0; ///< see photoWidth

    /// The smallest preview whose longer side has at least `smallestSide` pixels. Nothing for files
    /// without one, of formats that have none (PNG, TIFF, WebP, HEIC), with a damaged one, and
    /// for files that are no photos or cannot be read: reading the photo tells what is wrong.
    static std::optional<EmbeddedPreview> Read(const QString& path, int smallestSide);
};

} // namespace LumetraHost
