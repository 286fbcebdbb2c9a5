// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/DisplayTransform.h"

#include "engine/run/Renderer.h"
#include "image/DepthConversion.h"
#include "image/RgbSpace.h"
#include "photo/colour/ColorConversion.h"
#include "photo/colour/ProfileHandles.h"
#include "photo/colour/ProfileSpaces.h"
#include "threads/RowBands.h"

#include "storage/FailWith.h"

#include <QImage>

#include <algorithm>
#include <cstring>
#include <utility>

#include <lcms2.h>

namespace LumetraHost {
namespace {

[[noreturn]] void Refuse(const std::string& origin, const std::string& found)
{
    FailWith(origin + ": expected the ICC profile of an RGB monitor, found " + found);
}

ProfileHandle Open(const QByteArray& bytes, const std::string& origin)
{
    ProfileHandle profile = OpenProfile(bytes);
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
    TransformHandle bits8;
    TransformHandle bits16;
};

DisplayTransform::DisplayTransform(const QByteArray& iccProfile, const std::string& origin)
    : m_monitor(iccProfile), m_monitorSpace(ProfileSpaces::Find(iccProfile, Image::Depth::Bits8)),
      m_origin(origin), m_fromSrgb(MakeTransforms(ProfileHandle(cmsCreate_sRGBProfile()).get()))
{
}

DisplayTransform::~DisplayTransform() = default;

std::shared_ptr<const DisplayTransform> DisplayTransform::Make(const QByteArray& iccProfile,
                                                               const std::string& origin)
{
    Open(iccProfile, origin);
    if (ColorConversion::IsSrgb(PixelMeaning::Rgb, iccProfile))
        return nullptr;
    return std::shared_ptr<const DisplayTransform>(new DisplayTransform(iccProfile, origin));
}

DisplayTransform::TransformsPtr DisplayTransform::MakeTransforms(void* source) const
{
    const ProfileHandle monitor = OpenProfile(m_monitor);
    const auto make = [&](cmsUInt32Number layout) {
        // Without its cache a transform can be used by several threads.
        TransformHandle transform(cmsCreateTransform(
            source, layout, monitor.get(), TYPE_RGBA_8, INTENT_RELATIVE_COLORIMETRIC,
            cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOCACHE | cmsFLAGS_COPY_ALPHA));
        if (!transform)
            Refuse(m_origin, "one that no colour can be converted to");
        return transform;
    };
    auto transforms = std::make_shared<Transforms>();
    transforms->bits8 = make(TYPE_RGBA_8);
    transforms->bits16 = make(TYPE_RGBA_16);
    return transforms;
}

DisplayTransform::TransformsPtr
DisplayTransform::FindTransforms(const std::shared_ptr<const RgbSpace>& space) const
{
    if (!space)
        return m_fromSrgb;
    const std::lock_guard lock(m_mutex);
    const auto found =
        std::find_if(m_fromSpaces.begin(), m_fromSpaces.end(),
                     [&](const SpaceTransforms& known) { return known.space == space; });
    if (found != m_fromSpaces.end())
        return found->transforms;
    const ProfileHandle profile = OpenProfile(space->GetProfile());
    m_fromSpaces.push_back({space, MakeTransforms(profile.get())});
    if (m_fromSpaces.size() > MostSpaces)
        m_fromSpaces.erase(m_fromSpaces.begin());
    return m_fromSpaces.back().transforms;
}

/// The colour library takes several times as long, and interpolates in a coarse cube where there
/// are 16 bits.
Image DisplayTransform::ApplyByEngine(const Image& picture, Image recycled) const
{
    const bool isDeep = picture.GetDepth() == Image::Depth::Bits16;
    Image shown =
        Renderer().Convert(picture, m_monitorSpace, {}, isDeep ? Image() : std::move(recycled));
    if (isDeep) {
        Image rounded = Image::AllocateUninitialised(picture.GetWidth(), picture.GetHeight(),
                                                     Image::Depth::Bits8);
        CopyRows(shown, 0, rounded, 0, picture.GetHeight());
        shown = rounded;
    }
    shown.SetSpace(nullptr);
    return shown;
}

Image DisplayTransform::Apply(const Image& picture, Image recycled) const
{
    if (picture.IsNull())
        return {};
    if (picture.GetSpace() && m_monitorSpace)
        return ApplyByEngine(picture, std::move(recycled));
    const int width = picture.GetWidth();
    const int height = picture.GetHeight();
    const bool fits = recycled.GetWidth() == width && recycled.GetHeight() == height &&
                      recycled.GetDepth() == Image::Depth::Bits8 && recycled.IsSoleOwner();
    recycled.SetSpace(nullptr);
    Image target = fits ? std::move(recycled)
                        : Image::AllocateUninitialised(width, height, Image::Depth::Bits8);
    const TransformsPtr transforms = FindTransforms(picture.GetSpace());
    const auto& transform =
        picture.GetDepth() == Image::Depth::Bits16 ? transforms->bits16 : transforms->bits8;
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
    cmsDoTransformLineStride(m_fromSrgb->bits8.get(), pixels.constBits(), pixels.bits(),
                             static_cast<cmsUInt32Number>(width),
                             static_cast<cmsUInt32Number>(height), stride, stride, 0, 0);
    pixels = std::move(pixels).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    for (int y = 0; y < height; ++y)
        std::memcpy(target + static_cast<std::size_t>(y) * targetStride, pixels.constScanLine(y),
                    static_cast<std::size_t>(width) * Image::Channels);
}

} // namespace LumetraHost
