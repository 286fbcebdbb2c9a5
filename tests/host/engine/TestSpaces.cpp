// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/TestSpaces.h"

#include "image/Srgb.h"
#include "photo/colour/ColorConversion.h"
#include "photo/colour/ProfileHandles.h"
#include "photo/colour/ProfileSpaces.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

QByteArray Save(const cmsCIExyY& white, const cmsCIExyYTRIPLE& primaries, const CurveHandle& curve)
{
    cmsToneCurve* curves[] = {curve.get(), curve.get(), curve.get()};
    const ProfileHandle profile(cmsCreateRGBProfile(&white, &primaries, curves));
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &size);
    QByteArray bytes(static_cast<int>(size), '\0');
    cmsSaveProfileToMem(profile.get(), bytes.data(), &size);
    return bytes;
}

TestSpace MakeSpace(const char* name, const QByteArray& profile, double gamma)
{
    return {name, ProfileSpaces::Find(profile, Image::Depth::Bits16), gamma};
}

} // namespace

QByteArray MakeProPhotoProfile()
{
    const cmsCIExyY white{0.3457, 0.3585, 1.0};
    const cmsCIExyYTRIPLE primaries{
        {0.7347, 0.2653, 1.0}, {0.1596, 0.8404, 1.0}, {0.0366, 0.0001, 1.0}};
    return Save(white, primaries, CurveHandle(cmsBuildGamma(nullptr, 1.8)));
}

QByteArray MakeTableProfile(int entries)
{
    std::vector<cmsUInt16Number> table;
    for (int i = 0; i < entries; ++i)
        table.push_back(static_cast<cmsUInt16Number>(
            std::lround(65535 * std::pow(static_cast<double>(i) / (entries - 1), 2.2))));
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.680, 0.320, 1.0}, {0.265, 0.690, 1.0}, {0.150, 0.060, 1.0}};
    return Save(white, primaries,
                CurveHandle(cmsBuildTabulatedToneCurve16(
                    nullptr, static_cast<cmsUInt32Number>(entries), table.data())));
}

double TestSpace::Decode(double encoded) const
{
    return gamma == 0 ? SrgbToLinear(encoded) : std::pow(encoded, gamma);
}

double TestSpace::Encode(double linear) const
{
    const double limited = std::clamp(linear, 0.0, 1.0);
    return gamma == 0 ? LinearToSrgb(limited) : std::pow(limited, 1 / gamma);
}

const std::vector<TestSpace>& GetTestSpaces()
{
    static const std::vector<TestSpace> spaces = {
        MakeSpace("Display P3", ColorConversion::GetDisplayP3Profile(), 0),
        MakeSpace("Adobe RGB", ColorConversion::GetAdobeRgbProfile(), 563.0 / 256),
        MakeSpace("ProPhoto RGB", MakeProPhotoProfile(), 1.8)};
    return spaces;
}

Image InSpace(Image picture, std::shared_ptr<const RgbSpace> space)
{
    picture.SetSpace(std::move(space));
    return picture;
}

} // namespace LumetraHost
