// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/colour/ProfileParts.h"

#include "photo/colour/ProfileHandles.h"

#include <lcms2_plugin.h>

namespace LumetraHost {
namespace {

/// The columns are the primaries' colours; false when the profile does not have them.
bool ReadPrimaries(void* profile, cmsMAT3& matrix)
{
    constexpr cmsTagSignature tags[] = {cmsSigRedColorantTag, cmsSigGreenColorantTag,
                                        cmsSigBlueColorantTag};
    for (int column = 0; column < 3; ++column) {
        const auto* const color = static_cast<const cmsCIEXYZ*>(cmsReadTag(profile, tags[column]));
        if (!color)
            return false;
        matrix.v[0].n[column] = color->X;
        matrix.v[1].n[column] = color->Y;
        matrix.v[2].n[column] = color->Z;
    }
    return true;
}

} // namespace

std::string ProfileParts::GetName(void* profile)
{
    char text[80] = "";
    cmsGetProfileInfoASCII(profile, cmsInfoDescription, "en", "US", text, sizeof text);
    return text;
}

bool ProfileParts::IsMatrixProfile(void* profile)
{
    const bool hasTables = cmsIsTag(profile, cmsSigAToB0Tag) || cmsIsTag(profile, cmsSigAToB1Tag) ||
                           cmsIsTag(profile, cmsSigDToB1Tag);
    return !hasTables && cmsGetPCS(profile) == cmsSigXYZData;
}

std::optional<RgbSpace::Matrix> ProfileParts::GetToSrgb(void* profile)
{
    cmsMAT3 source;
    cmsMAT3 target;
    cmsMAT3 inverse;
    cmsMAT3 product;
    const ProfileHandle srgb(cmsCreate_sRGBProfile());
    if (!ReadPrimaries(profile, source) || !ReadPrimaries(srgb.get(), target) ||
        !_cmsMAT3inverse(&target, &inverse))
        return std::nullopt;
    _cmsMAT3per(&product, &inverse, &source);
    RgbSpace::Matrix matrix;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            matrix[row][column] = product.v[row].n[column];
    }
    return matrix;
}

} // namespace LumetraHost
