// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/colour/ColorConversion.h"

#include "photo/colour/MatrixShaper.h"
#include "photo/colour/ProfileHandles.h"
#include "photo/colour/ProfileParts.h"
#include "photo/colour/ProfileSpaces.h"
#include "threads/RowBands.h"

#include "storage/FailWith.h"

#include <array>
#include <cstdlib>

#include <limits>
#include <memory>
#include <optional>

#include <lcms2.h>

namespace LumetraHost {
namespace {

constexpr cmsUInt32Number Flags = cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOCACHE;
constexpr int ProbeSteps = 9;
constexpr int ColorChannels = 3;

constexpr char UnusableProfile[] =
    "the embedded colour profile is damaged or belongs to another kind of picture; the colours are "
    "taken as they are";

[[noreturn]] void Fail(const std::string& text)
{
    FailWith("colour conversion: " + text);
}

/// The bytes of a profile that we made, dated the same every time, so that equal photos become
/// equal files.
QByteArray Save(const ProfileHandle& profile)
{
    cmsUInt32Number size = 0;
    if (!profile || !cmsSaveProfileToMem(profile.get(), nullptr, &size))
        Fail("the library cannot make a profile");
    QByteArray bytes(static_cast<int>(size), '\0');
    if (!cmsSaveProfileToMem(profile.get(), bytes.data(), &size))
        Fail("the library cannot store a profile");
    constexpr int datePosition = 24;
    const QByteArray date = QByteArray::fromHex("07E900010001000000000000"); // 1 January 2025
    return bytes.replace(datePosition, date.size(), date);
}

void SetName(const ProfileHandle& profile, const char* name)
{
    const std::unique_ptr<cmsMLU, HandleDeleter<cmsMLUfree>> text(cmsMLUalloc(nullptr, 1));
    if (profile && cmsMLUsetASCII(text.get(), "en", "US", name))
        cmsWriteTag(profile.get(), cmsSigProfileDescriptionTag, text.get());
}

QByteArray MakeAdobeRgb()
{
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
    const CurveHandle gamma(cmsBuildGamma(nullptr, 563.0 / 256.0));
    cmsToneCurve* curves[] = {gamma.get(), gamma.get(), gamma.get()};
    const ProfileHandle profile(cmsCreateRGBProfile(&white, &primaries, curves));
    SetName(profile, "Adobe RGB (compatible)");
    return Save(profile);
}

QByteArray MakeDisplayP3()
{
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.680, 0.320, 1.0}, {0.265, 0.690, 1.0}, {0.150, 0.060, 1.0}};
    const cmsFloat64Number numbers[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    const CurveHandle curve(cmsBuildParametricToneCurve(nullptr, 4, numbers));
    cmsToneCurve* curves[] = {curve.get(), curve.get(), curve.get()};
    const ProfileHandle profile(cmsCreateRGBProfile(&white, &primaries, curves));
    SetName(profile, "Display P3");
    return Save(profile);
}

/// How the four channels lie in memory for a profile of this colour space; 0 where the profile
/// cannot belong to the picture.
cmsUInt32Number GetSourceLayout(PixelMeaning meaning, cmsColorSpaceSignature space, bool deep)
{
    const cmsUInt32Number bytes = BYTES_SH(deep ? 2u : 1u);
    const bool cmyk = meaning == PixelMeaning::Cmyk || meaning == PixelMeaning::CmykInverted;
    if (space == cmsSigRgbData && !cmyk)
        return COLORSPACE_SH(PT_RGB) | CHANNELS_SH(3) | EXTRA_SH(1) | bytes;
    if (space == cmsSigGrayData && meaning == PixelMeaning::Gray)
        return COLORSPACE_SH(PT_GRAY) | CHANNELS_SH(1) | EXTRA_SH(3) | bytes;
    if (space == cmsSigCmykData && cmyk)
        return COLORSPACE_SH(PT_CMYK) | CHANNELS_SH(4) | bytes |
               FLAVOR_SH(meaning == PixelMeaning::CmykInverted ? 1u : 0u);
    return 0;
}

/// The layout for a profile, see GetSourceLayout(); 0 without a profile.
cmsUInt32Number GetLayout(const ProfileHandle& profile, PixelMeaning meaning, Image::Depth depth)
{
    return profile ? GetSourceLayout(meaning, cmsGetColorSpace(profile.get()),
                                     depth == Image::Depth::Bits16)
                   : 0;
}

TransformHandle MakeTransform(const ProfileHandle& profile, cmsUInt32Number source, bool deep)
{
    const ProfileHandle srgb(cmsCreate_sRGBProfile());
    return TransformHandle(cmsCreateTransform(
        profile.get(), source, srgb.get(), deep ? TYPE_RGBA_16 : TYPE_RGBA_8,
        INTENT_RELATIVE_COLORIMETRIC, Flags | (deep ? cmsFLAGS_HIGHRESPRECALC : 0u)));
}

using Curves = std::array<std::vector<float>, 3>;

/// Samples one curve for each channel; nothing for a profile without them.
std::optional<Curves> SampleCurves(const ProfileHandle& profile,
                                   const std::array<cmsTagSignature, 3>& tags, int count)
{
    Curves curves;
    for (std::size_t channel = 0; channel < curves.size(); ++channel) {
        const auto* const curve =
            static_cast<const cmsToneCurve*>(cmsReadTag(profile.get(), tags[channel]));
        if (!curve)
            return std::nullopt;
        for (int i = 0; i < count; ++i)
            curves[channel].push_back(cmsEvalToneCurveFloat(
                curve, static_cast<float>(i) / static_cast<float>(count - 1)));
    }
    return curves;
}

/// Makes the quick conversion; nothing for profiles that go by tables.
std::optional<MatrixShaper> MakeMatrixShaper(const ProfileHandle& profile, bool deep)
{
    if (!ProfileParts::IsMatrixProfile(profile.get()))
        return std::nullopt;
    const bool gray = cmsGetColorSpace(profile.get()) == cmsSigGrayData;
    constexpr RgbSpace::Matrix identity{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    const auto matrix = gray ? identity : ProfileParts::GetToSrgb(profile.get());
    auto curves =
        gray ? SampleCurves(profile, {cmsSigGrayTRCTag, cmsSigGrayTRCTag, cmsSigGrayTRCTag},
                            deep ? 65536 : 256)
             : SampleCurves(profile, {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag},
                            deep ? 65536 : 256);
    if (!matrix || !curves)
        return std::nullopt;
    return MatrixShaper(std::move(*curves), *matrix);
}

/// True when no 8-bit colour of a grid moves by more than one step.
bool ActsAsSrgb(const ProfileHandle& profile)
{
    if (cmsGetColorSpace(profile.get()) != cmsSigRgbData)
        return false;
    const TransformHandle transform = MakeTransform(profile, TYPE_RGBA_8, false);
    for (int i = 0; transform && i < ProbeSteps * ProbeSteps * ProbeSteps; ++i) {
        constexpr int step = 255 / (ProbeSteps - 1);
        const std::uint8_t color[] = {static_cast<std::uint8_t>(i % ProbeSteps * step),
                                      static_cast<std::uint8_t>(i / ProbeSteps % ProbeSteps * step),
                                      static_cast<std::uint8_t>(i / ProbeSteps / ProbeSteps * step),
                                      255};
        std::uint8_t result[4];
        cmsDoTransform(transform.get(), color, result, 1);
        for (int channel = 0; channel < ColorChannels; ++channel) {
            if (std::abs(color[channel] - result[channel]) > 1)
                return false;
        }
    }
    return transform != nullptr;
}

/// Converts in place: source and target pixels have the same size, and channels that are no colour
/// are left alone. False when the profile does not allow it.
bool ConvertColors(Image& pixels, const ProfileHandle& profile, cmsUInt32Number layout)
{
    if (layout == 0)
        return false;
    const bool deep = pixels.GetDepth() == Image::Depth::Bits16;
    if (const auto shaper = MakeMatrixShaper(profile, deep)) {
        ForEachBand(ThreadPool::GetShared(), pixels.GetHeight(), 0, nullptr,
                    [&](int first, int end) { shaper->Convert(pixels, first, end); });
        return true;
    }
    const TransformHandle transform = MakeTransform(profile, layout, deep);
    if (!transform)
        return false;
    ForEachBand(ThreadPool::GetShared(), pixels.GetHeight(), 0, nullptr, [&](int first, int end) {
        for (int y = first; y < end; ++y)
            cmsDoTransform(transform.get(), pixels.Row(y), pixels.Row(y),
                           static_cast<cmsUInt32Number>(pixels.GetWidth()));
    });
    return true;
}

template <class Value, class Change>
void ForPixels(Image& pixels, const Change& change)
{
    for (int y = 0; y < pixels.GetHeight(); ++y) {
        auto* pixel = reinterpret_cast<Value*>(pixels.Row(y));
        for (int x = 0; x < pixels.GetWidth(); ++x, pixel += Image::Channels)
            change(pixel);
    }
}

template <class Value>
void ConvertPlainInks(Image& pixels, bool inverted)
{
    constexpr std::uint64_t full = std::numeric_limits<Value>::max();
    ForPixels<Value>(pixels, [inverted](Value* pixel) {
        const std::uint64_t light = inverted ? pixel[3] : full - pixel[3];
        for (int channel = 0; channel < ColorChannels; ++channel) {
            const std::uint64_t color = inverted ? pixel[channel] : full - pixel[channel];
            pixel[channel] = static_cast<Value>((color * light + full / 2) / full);
        }
        pixel[3] = static_cast<Value>(full);
    });
}

void MakeOpaque(Image& pixels)
{
    if (pixels.GetDepth() == Image::Depth::Bits16)
        ForPixels<std::uint16_t>(pixels, [](std::uint16_t* pixel) { pixel[3] = 0xFFFF; });
    else
        ForPixels<std::uint8_t>(pixels, [](std::uint8_t* pixel) { pixel[3] = 0xFF; });
}

bool IsCmyk(PixelMeaning meaning)
{
    return meaning == PixelMeaning::Cmyk || meaning == PixelMeaning::CmykInverted;
}

/// Converts a picture without a usable profile.
QByteArray ConvertPlain(DecodedPhoto& photo)
{
    if (!IsCmyk(photo.meaning))
        return {};
    Warn(photo.reductions, "its inks (CMYK) are converted to sRGB");
    const bool inverted = photo.meaning == PixelMeaning::CmykInverted;
    if (photo.pixels.GetDepth() == Image::Depth::Bits16)
        ConvertPlainInks<std::uint16_t>(photo.pixels, inverted);
    else
        ConvertPlainInks<std::uint8_t>(photo.pixels, inverted);
    return {};
}

} // namespace

QByteArray ColorConversion::Settle(DecodedPhoto& photo, Warnings& warnings)
{
    if (photo.isProfileDamaged)
        Warn(warnings, UnusableProfile);
    if (photo.iccProfile.isEmpty())
        return ConvertPlain(photo);
    const Image::Depth depth = photo.pixels.GetDepth();
    if (const auto kept = FindKept(photo.meaning, photo.iccProfile, depth)) {
        photo.pixels.SetSpace(kept->space);
        return photo.iccProfile;
    }
    const ProfileHandle profile = OpenProfile(photo.iccProfile);
    const cmsUInt32Number layout = GetLayout(profile, photo.meaning, depth);
    if (!ConvertColors(photo.pixels, profile, layout)) {
        Warn(warnings, UnusableProfile);
        return ConvertPlain(photo);
    }
    if (IsCmyk(photo.meaning))
        MakeOpaque(photo.pixels);
    WarnOfConversion(photo.reductions, ProfileParts::GetName(profile.get()));
    return GetSrgbProfile();
}

std::optional<ColorConversion::Kept>
ColorConversion::FindKept(PixelMeaning meaning, const QByteArray& iccProfile, Image::Depth depth)
{
    if (IsSrgb(meaning, iccProfile))
        return Kept();
    if (iccProfile.isEmpty() || IsCmyk(meaning))
        return std::nullopt;
    const auto space = ProfileSpaces::Find(iccProfile, depth);
    return space ? std::optional(Kept{space}) : std::nullopt;
}

bool ColorConversion::IsSrgb(PixelMeaning meaning, const QByteArray& iccProfile)
{
    if (iccProfile.isEmpty())
        return !IsCmyk(meaning);
    const ProfileHandle profile = OpenProfile(iccProfile);
    return GetLayout(profile, meaning, Image::Depth::Bits8) != 0 && ActsAsSrgb(profile);
}

void ColorConversion::WarnOfConversion(Warnings& warnings, const std::string& name)
{
    const std::string from = name.empty() ? std::string("its own profile") : '"' + name + '"';
    Warn(warnings, "its colours are converted from " + from +
                       " to sRGB; those that sRGB does not have are clipped");
}

QByteArray ColorConversion::GetSrgbProfile()
{
    static const QByteArray profile = Save(ProfileHandle(cmsCreate_sRGBProfile()));
    return profile;
}

QByteArray ColorConversion::GetAdobeRgbProfile()
{
    static const QByteArray profile = MakeAdobeRgb();
    return profile;
}

QByteArray ColorConversion::GetDisplayP3Profile()
{
    static const QByteArray profile = MakeDisplayP3();
    return profile;
}

} // namespace LumetraHost
