// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/WholePicture.h"

#include "engine/effects/dehaze/HazeMap.h"
#include "engine/run/Blend.h"
#include "engine/run/Renderer.h"
#include "image/DepthConversion.h"
#include "image/Resize.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <utility>

namespace LumetraHost {
namespace {

Image WidenTo16Bits(const Image& picture)
{
    if (picture.IsNull() || picture.GetDepth() == Image::Depth::Bits16)
        return picture;
    Image wide = Image::AllocateUninitialised(picture.GetWidth(), picture.GetHeight(),
                                              Image::Depth::Bits16, picture.GetSpace());
    CopyRows(picture, 0, wide, 0, picture.GetHeight());
    return wide;
}

PictureArea Reduce(PictureArea area, int width, int height, const WholePicture::Size& size)
{
    area.scaleX *= double(width) / size.width;
    area.scaleY *= double(height) / size.height;
    return area;
}

/// One thread: the picture is small, and whoever asks may be a step of the pool itself.
RenderOptions MakeOptions()
{
    RenderOptions options;
    options.threads = 1;
    return options;
}

} // namespace

/// The haze of the pictures that were asked about last, known by their pixels: while the amount of
/// an effect is dragged, the picture below it is made anew and is the same. Shared by a photo and
/// everything that was drawn on it.
class WholePicture::Memory
{
public:
    std::shared_ptr<const HazeMap> FindHaze(const Image& picture, const PictureArea& area)
    {
        const std::lock_guard lock(m_mutex);
        for (const Known& known : m_known)
            if (known.picture.SharesPixelsWith(picture) || HaveSamePixels(known.picture, picture))
                return known.haze;
        const Image colours = Renderer().ToSrgb(picture, MakeOptions());
        m_known.push_front({picture, std::make_shared<const HazeMap>(colours, area)});
        if (m_known.size() > MostKnown)
            m_known.pop_back();
        return m_known.front().haze;
    }

private:
    static constexpr std::size_t MostKnown = 4;

    struct Known
    {
        Image picture;
        std::shared_ptr<const HazeMap> haze;
    };

    std::mutex m_mutex;
    std::deque<Known> m_known; ///< newest first
};

WholePicture::WholePicture(std::function<Image()> make, const PictureArea& area,
                           std::shared_ptr<Memory> memory)
    : m_make(std::move(make)), m_area(area), m_memory(std::move(memory))
{
}

WholePicture::Ptr WholePicture::Of(const Image& picture, const PictureArea& area)
{
    const int width = picture.GetWidth();
    const int height = picture.GetHeight();
    const Size size = GetReducedSize(width, height);
    const auto make = [picture, width, height, size] {
        return LumetraHost::Resize(picture, {0, 0, width, height}, size.width, size.height,
                                   ResizeQuality::Fine);
    };
    return Ptr(
        new WholePicture(make, Reduce(area, width, height, size), std::make_shared<Memory>()));
}

WholePicture::Ptr WholePicture::OfPhoto(const KeptImage& photo)
{
    return Of(photo.GetWidth(), photo.GetHeight(), [photo](const Size& size) {
        return LumetraHost::Resize(photo, {0, 0, photo.GetWidth(), photo.GetHeight()}, size.width,
                                   size.height, ResizeQuality::Fine);
    });
}

WholePicture::Ptr WholePicture::Of(int width, int height, std::function<Image(const Size&)> reduce)
{
    const Size size = GetReducedSize(width, height);
    const auto make = [reduce = std::move(reduce), size] { return reduce(size); };
    return Ptr(new WholePicture(make,
                                Reduce(PictureArea::Whole(width, height), width, height, size),
                                std::make_shared<Memory>()));
}

WholePicture::Size WholePicture::GetReducedSize(int width, int height)
{
    const int longest = std::max(width, height);
    if (longest <= LargestSide)
        return {width, height};
    const auto reduce = [longest](int side) {
        return std::max(1, static_cast<int>(std::lround(double(side) * LargestSide / longest)));
    };
    return {reduce(width), reduce(height)};
}

const Image& WholePicture::GetPicture() const
{
    std::call_once(m_isMade, [this] {
        m_picture = WidenTo16Bits(m_make());
        m_make = nullptr;
    });
    return m_picture;
}

std::shared_ptr<const HazeMap> WholePicture::GetHaze() const
{
    const Image& picture = GetPicture();
    return picture.IsNull() ? std::make_shared<const HazeMap>()
                            : m_memory->FindHaze(picture, m_area);
}

std::shared_ptr<const PictureFacts>
WholePicture::With(const Zorvik::Quindle::EffectList& effects) const
{
    return With(effects, FullEffect);
}

WholePicture::Ptr WholePicture::With(const Zorvik::Quindle::EffectList& effects,
                                     int blendAmount) const
{
    const auto make = [below = shared_from_this(), effects, blendAmount] {
        RenderOptions options = MakeOptions();
        options.area = below->m_area;
        options.facts = below;
        return Renderer().Render(below->GetPicture(), effects, blendAmount, options);
    };
    return Ptr(new WholePicture(make, m_area, m_memory));
}

} // namespace LumetraHost
