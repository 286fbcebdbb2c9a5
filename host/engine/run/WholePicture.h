// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/PictureFacts.h"
#include "image/Image.h"
#include "image/KeptImage.h"
#include "image/PictureArea.h"

#include <functional>
#include <memory>
#include <mutex>

namespace LumetraHost {

/// A whole picture as effects know it that look at all of it: reduced to 512 pixels along its
/// longer side, and drawn on with 16 bits. It is made when a fact is asked for, once: a picture
/// that nobody asks about costs nothing. The facts of a photo are those of its area average,
/// wherever and at whatever size it is drawn, so canvas, previews and exports agree.
class WholePicture : public PictureFacts, public std::enable_shared_from_this<WholePicture>
{
public:
    static constexpr int LargestSide = 512;

    /// Pixels along each side; the sides of smaller pictures stay.
    struct Size
    {
        int width;
        int height;
    };

    using Ptr = std::shared_ptr<const WholePicture>;

    /// The facts of a picture, which is kept until one is asked for. `area`: where it lies; a part
    /// of a picture has facts of its own.
    static Ptr Of(const Image& picture, const PictureArea& area);
    /// The facts of a whole photo.
    static Ptr OfPhoto(const KeptImage& photo);
    /// The facts of a picture of that size whose reduced form `reduce` makes; null where that was
    /// cancelled, which is taken for a picture without haze. `reduce` is called once at most, on
    /// the thread that asks.
    static Ptr Of(int width, int height, std::function<Image(const Size&)> reduce);

    static Size GetReducedSize(int width, int height);

    /// The reduced picture with 16 bits, in the photo's space.
    const Image& GetPicture() const;

    std::shared_ptr<const HazeMap> GetHaze() const override;
    std::shared_ptr<const PictureFacts>
    With(const Zorvik::Quindle::EffectList& effects) const override;
    /// The facts of this picture with these effects on it, blended as Renderer does it.
    Ptr With(const Zorvik::Quindle::EffectList& effects, int blendAmount) const;

private:
    class Memory;

    WholePicture(std::function<Image()> make, const PictureArea& area,
                 std::shared_ptr<Memory> memory);

    mutable std::once_flag m_isMade;
    mutable std::function<Image()> m_make; ///< null when the picture is there
    mutable Image m_picture;
    const PictureArea m_area; ///< of the reduced picture
    const std::shared_ptr<Memory> m_memory;
};

} // namespace LumetraHost
