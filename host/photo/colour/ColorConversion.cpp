// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/colour/ColorConversion.h"

#include "photo/colour/MatrixShaper.h"
#include "threads/RowBands.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <array>
#include <cstdlib>

#include <limits>
#include <memory>
#include <optional>

#include <lcms2.h>
#include <lcms2_plugin.h>

namespace LumetraHost {
namespace {

/// Gives the destroying function of a C handle to a smart pointer.
template <auto Destroy>
struct Deleter
{
    template <class Handle>
    void operator()(Handle* handle) const
    {
        Destroy(handle);
    }
};

using Profile = std::unique_ptr<void, Deleter<cmsCloseProfile>>;
using Transform = std::unique_ptr<void, Deleter<cmsDeleteTransform>>;
using Curve = std::unique_ptr<cmsToneCurve, Deleter<cmsFreeToneCurve>>;

constexpr cmsUInt32Number Flags = cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOCACHE;
constexpr int ProbeSteps = 9;
constexpr int ColorChannels = 3;

constexpr char UnusableProfile[] =
    "the embedded colour profile is damaged or belongs to another kind of picture; the colours are "
    "taken as they are";

[[noreturn]] void Fail(const std::string& text)
{
    throw Zorvik::Exception("colour conversion: " + text, BOOST_CURRENT_FUNCTION,
                            "photo/ColorConversion", __LINE__);
}

Profile OpenProfile(const QByteArray& bytes)
{
    return Profile(
        cmsOpenProfileFromMem(bytes.constData(), static_cast<cmsUInt32Number>(bytes.size())));
}

/// The bytes of a profile that we made, dated the same every time, so that equal photos become
/// equal files.
QByteArray Save(const Profile& profile)
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

QByteArray MakeAdobeRgb()
{
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
    const Curve gamma(cmsBuildGamma(nullptr, 563.0 / 256.0));
    cmsToneCurve* curves[] = {gamma.get(), gamma.get(), gamma.get()};
    return Save(Profile(cmsCreateRGBProfile(&white, &primaries, curves)));
}

QByteArray MakeDisplayP3()
{
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.680, 0.320, 1.0}, {0.265, 0.690, 1.0}, {0.150, 0.060, 1.0}};
    const cmsFloat64Number numbers[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    const Curve curve(cmsBuildParametricToneCurve(nullptr, 4, numbers));
    cmsToneCurve* curves[] = {curve.get(), curve.get(), curve.get()};
    return Save(Profile(cmsCreateRGBProfile(&white, &primaries, curves)));
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

Transform MakeTransform(const Profile& profile, cmsUInt32Number source, bool deep)
{
    const Profile srgb(cmsCreate_sRGBProfile());
    return Transform(cmsCreateTransform(
        profile.get(), source, srgb.get(), deep ? TYPE_RGBA_16 : TYPE_RGBA_8,
        INTENT_RELATIVE_COLORIMETRIC, Flags | (deep ? cmsFLAGS_HIGHRESPRECALC : 0u)));
}

/// Reads the primaries' colours as the columns; false when the profile does not have them.
bool ReadPrimaries(const Profile& profile, cmsMAT3& matrix)
{
    constexpr cmsTagSignature tags[] = {cmsSigRedColorantTag, cmsSigGreenColorantTag,
                                        cmsSigBlueColorantTag};
    for (int column = 0; column < ColorChannels; ++column) {
        const auto* const color =
            static_cast<const cmsCIEXYZ*>(cmsReadTag(profile.get(), tags[column]));
        if (!color)
            return false;
        matrix.v[0].n[column] = color->X;
        matrix.v[1].n[column] = color->Y;
        matrix.v[2].n[column] = color->Z;
    }
    return true;
}

using Curves = std::array<std::vector<float>, 3>;

/// Samples one curve for each channel; nothing for a profile without them.
std::optional<Curves> SampleCurves(const Profile& profile,
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

/// The matrix from the profile's linear colours to those of sRGB, by way of the connection space.
std::optional<MatrixShaper::Matrix> MakeMatrix(const Profile& profile)
{
    cmsMAT3 source;
    cmsMAT3 target;
    cmsMAT3 inverse;
    cmsMAT3 product;
    const Profile srgb(cmsCreate_sRGBProfile());
    if (!ReadPrimaries(profile, source) || !ReadPrimaries(srgb, target) ||
        !_cmsMAT3inverse(&target, &inverse))
        return std::nullopt;
    _cmsMAT3per(&product, &inverse, &source);
    MatrixShaper::Matrix matrix;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            matrix[row][column] = product.v[row].n[column];
    }
    return matrix;
}

/// Makes the quick conversion; nothing for profiles that go by tables.
std::optional<MatrixShaper> MakeMatrixShaper(const Profile& profile, bool deep)
{
    const bool tables = cmsIsTag(profile.get(), cmsSigAToB0Tag) ||
                        cmsIsTag(profile.get(), cmsSigAToB1Tag) ||
                        cmsIsTag(profile.get(), cmsSigDToB1Tag);
    if (tables || cmsGetPCS(profile.get()) != cmsSigXYZData)
        return std::nullopt;
    const bool gray = cmsGetColorSpace(profile.get()) == cmsSigGrayData;
    constexpr MatrixShaper::Matrix identity{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    const auto matrix = gray ? identity : MakeMatrix(profile);
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
bool ActsAsSrgb(const Profile& profile)
{
    if (cmsGetColorSpace(profile.get()) != cmsSigRgbData)
        return false;
    const Transform transform = MakeTransform(profile, TYPE_RGBA_8, false);
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
bool ConvertColors(Image& pixels, const Profile& profile, cmsUInt32Number layout)
{
    if (layout == 0)
        return false;
    const bool deep = pixels.GetDepth() == Image::Depth::Bits16;
    if (const auto shaper = MakeMatrixShaper(profile, deep)) {
        ForEachBand(ThreadPool::GetShared(), pixels.GetHeight(), 0, nullptr,
                    [&](int first, int end) { shaper->Convert(pixels, first, end); });
        return true;
    }
    const Transform transform = MakeTransform(profile, layout, deep);
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

/// The profile's own description; in quotes, or a word where it has none.
std::string DescribeProfile(const Profile& profile)
{
    char text[80] = "";
    cmsGetProfileInfoASCII(profile.get(), cmsInfoDescription, "en", "US", text, sizeof text);
    return *text ? '"' + std::string(text) + '"' : std::string("its own profile");
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

QByteArray ColorConversion::ToSrgb(DecodedPhoto& photo, Warnings& warnings)
{
    if (photo.isProfileDamaged)
        Warn(warnings, UnusableProfile);
    if (photo.iccProfile.isEmpty())
        return ConvertPlain(photo);
    const bool deep = photo.pixels.GetDepth() == Image::Depth::Bits16;
    const Profile profile = OpenProfile(photo.iccProfile);
    const cmsUInt32Number layout =
        profile ? GetSourceLayout(photo.meaning, cmsGetColorSpace(profile.get()), deep) : 0;
    if (layout != 0 && ActsAsSrgb(profile))
        return photo.iccProfile;
    if (!ConvertColors(photo.pixels, profile, layout)) {
        Warn(warnings, UnusableProfile);
        return ConvertPlain(photo);
    }
    if (IsCmyk(photo.meaning))
        MakeOpaque(photo.pixels);
    Warn(photo.reductions, "its colours are converted from " + DescribeProfile(profile) +
                               " to sRGB; those that sRGB does not have are clipped");
    return GetSrgbProfile();
}

bool ColorConversion::IsSrgb(PixelMeaning meaning, const QByteArray& iccProfile)
{
    if (iccProfile.isEmpty())
        return !IsCmyk(meaning);
    const Profile profile = OpenProfile(iccProfile);
    return profile && GetSourceLayout(meaning, cmsGetColorSpace(profile.get()), false) != 0 &&
           ActsAsSrgb(profile);
}

QByteArray ColorConversion::GetSrgbProfile()
{
    static const QByteArray profile = Save(Profile(cmsCreate_sRGBProfile()));
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
