// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/DisplayTransform.h"

#include "photo/colour/ColorConversion.h"

#include "threads/RowBands.h"

#include "Zorvik/Exception.h"

#include <QImage>

#include <boost/current_function.hpp>

#include <algorithm>
#include <cstring>
#include <utility>

#include <lcms2.h>

namespace LumetraHost {
namespace {

struct CloseProfile
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};

struct DeleteTransform
{
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};

using Profile = std::unique_ptr<void, CloseProfile>;
using Transform = std::unique_ptr<void, DeleteTransform>;

[[noreturn]] void Refuse(const std::string& origin, const std::string& found)
{
    throw Zorvik::Exception(origin + ": expected the ICC profile of an RGB monitor, found " + found,
                            BOOST_CURRENT_FUNCTION, "drawer/DisplayTransform", __LINE__);
}

Profile Open(const QByteArray& bytes, const std::string& origin)
{
    Profile profile(
        cmsOpenProfileFromMem(bytes.constData(), static_cast<cmsUInt32Number>(bytes.size())));
    if (!profile)
        Refuse(origin, "something else or a damaged one");
    if (cmsGetColorSpace(profile.get()) != cmsSigRgbData)
        Refuse(origin, "one of another colour space");
    // Monitor's profiles are of the class "mntr"; those of colour spaces do the same.
    const auto kind = cmsGetDeviceClass(profile.get());
    if (kind != cmsSigDisplayClass && kind != cmsSigColorSpaceClass)
        Refuse(origin, "one of another kind of device");
    return profile;
}

} // namespace

struct DisplayTransform::Transforms
{
    Transform bits8;
    Transform bits16;
};

DisplayTransform::DisplayTransform(std::unique_ptr<const Transforms> transforms)
    : m_transforms(std::move(transforms))
{
}

DisplayTransform::~DisplayTransform() = default;

std::shared_ptr<const DisplayTransform> DisplayTransform::Make(const QByteArray& iccProfile,
                                                               const std::string& origin)
{
    const Profile monitor = Open(iccProfile, origin);
    if (ColorConversion::IsSrgb(PixelMeaning::Rgb, iccProfile))
        return nullptr;
    const Profile srgb(cmsCreate_sRGBProfile());
    const auto make = [&](cmsUInt32Number from, cmsUInt32Number to) {
        // Without its cache a transform can be used by several threads.
        Transform transform(cmsCreateTransform(
            srgb.get(), from, monitor.get(), to, INTENT_RELATIVE_COLORIMETRIC,
            cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOCACHE | cmsFLAGS_COPY_ALPHA));
        if (!transform)
            Refuse(origin, "one that no colour can be converted to");
        return transform;
    };
    auto transforms = std::make_unique<Transforms>();
    transforms->bits8 = make(TYPE_RGBA_8, TYPE_RGBA_8);
    transforms->bits16 = make(TYPE_RGBA_16, TYPE_RGBA_8);
    return std::shared_ptr<const DisplayTransform>(new DisplayTransform(std::move(transforms)));
}

Image DisplayTransform::Apply(const Image& picture, Image recycled) const
{
    if (picture.IsNull())
        return {};
    const int width = picture.GetWidth();
    const int height = picture.GetHeight();
    const bool fits = recycled.GetWidth() == width && recycled.GetHeight() == height &&
                      recycled.GetDepth() == Image::Depth::Bits8 && recycled.IsSoleOwner();
    Image target = fits ? std::move(recycled)
                        : Image::AllocateUninitialised(width, height, Image::Depth::Bits8);
    const auto& transform =
        picture.GetDepth() == Image::Depth::Bits16 ? m_transforms->bits16 : m_transforms->bits8;
    ForEachBand(ThreadPool::GetShared(), height, 0, nullptr, [&](int first, int end) {
        cmsDoTransformLineStride(transform.get(), picture.Row(first), target.Row(first),
                                 static_cast<cmsUInt32Number>(width),
                                 static_cast<cmsUInt32Number>(end - first),
                                 static_cast<cmsUInt32Number>(picture.GetStride()),
                                 static_cast<cmsUInt32Number>(target.GetStride()), 0, 0);
    });
    return target;
}

void DisplayTransform::ApplyPremultiplied(const std::uint8_t* source, std::size_t sourceStride,
                                          std::uint8_t* target, std::size_t targetStride, int width,
                                          int height) const
{
    // lcms2 itself gets premultiplied bytes wrong (seen with 2.14).
    const QImage premultiplied(source, width, height, static_cast<int>(sourceStride),
                               QImage::Format_RGBA8888_Premultiplied);
    QImage pixels = premultiplied.convertToFormat(QImage::Format_RGBA8888);
    const auto stride = static_cast<cmsUInt32Number>(pixels.bytesPerLine());
    cmsDoTransformLineStride(m_transforms->bits8.get(), pixels.constBits(), pixels.bits(),
                             static_cast<cmsUInt32Number>(width),
                             static_cast<cmsUInt32Number>(height), stride, stride, 0, 0);
    pixels = std::move(pixels).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < height; ++y)
        std::memcpy(target + static_cast<std::size_t>(y) * targetStride, pixels.constScanLine(y),
                    static_cast<std::size_t>(width) * Image::Channels);
}

} // namespace LumetraHost
