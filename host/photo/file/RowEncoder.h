// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/KeptImage.h"
#include "photo/file/PhotoFormat.h"

#include <memory>

namespace LumetraHost {

/// The properties of a picture that an encoder has to know before its first row.
struct PictureForm
{
    int width = 0;
    int height = 0;
    Image::Depth depth = Image::Depth::Bits8;
    bool isOpaque = true;                            ///< no pixel lets anything shine through
    std::shared_ptr<const RgbSpace> space = nullptr; ///< null: sRGB
};

/// The form of a picture in memory; looks at its alpha.
inline PictureForm DescribeForm(const KeptImage& image)
{
    return {image.GetWidth(), image.GetHeight(), image.GetDepth(), image.IsOpaque(),
            image.GetSpace()};
}

/// Encodes one picture, whose rows come from top to bottom. An encoder that threw is of no use any
/// more. One thread at a time.
class RowEncoder
{
public:
    RowEncoder() = default;
    RowEncoder(const RowEncoder&) = delete;
    RowEncoder& operator=(const RowEncoder&) = delete;
    virtual ~RowEncoder() = default;

    /// Encodes the next `count` rows: row `first` of `rows` and the following ones. Width and depth
    /// are those of the form. Zorvik::Exception when they cannot be encoded.
    virtual void Write(const Image& rows, int first, int count) = 0;
    /// The encoded picture, once, after the last row.
    virtual Bytes Finish() = 0;
};

} // namespace LumetraHost
