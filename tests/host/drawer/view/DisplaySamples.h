// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <QByteArray>

#include <array>

#include <lcms2.h>

namespace LumetraTest {

inline QByteArray SaveProfile(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(static_cast<int>(size), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}

/// A monitor far from sRGB: gamma 1.8, a warm white, and wide primaries with red and green
/// exchanged, so that its colours cannot be mistaken for those of a photo.
inline QByteArray MakeStrangeMonitor()
{
    const cmsCIExyY white{0.3457, 0.3585, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.20, 0.75, 1.0}, {0.68, 0.32, 1.0}, {0.15, 0.05, 1.0}};
    cmsToneCurve* const gamma = cmsBuildGamma(nullptr, 1.8);
    cmsToneCurve* curves[] = {gamma, gamma, gamma};
    const cmsHPROFILE profile = cmsCreateRGBProfile(&white, &primaries, curves);
    cmsFreeToneCurve(gamma);
    return SaveProfile(profile);
}

inline QByteArray MakeGreyProfile()
{
    cmsToneCurve* const gamma = cmsBuildGamma(nullptr, 2.2);
    const cmsHPROFILE profile = cmsCreateGrayProfile(cmsD50_xyY(), gamma);
    cmsFreeToneCurve(gamma);
    return SaveProfile(profile);
}

/// Converts colours of sRGB, or of another profile, with the colour library, in double precision
/// and without shortcuts.
class MonitorOracle
{
public:
    explicit MonitorOracle(const QByteArray& monitor, const QByteArray& photo = {})
    {
        const cmsHPROFILE source =
            photo.isEmpty() ? cmsCreate_sRGBProfile()
                            : cmsOpenProfileFromMem(photo.constData(),
                                                    static_cast<cmsUInt32Number>(photo.size()));
        const cmsHPROFILE target = cmsOpenProfileFromMem(
            monitor.constData(), static_cast<cmsUInt32Number>(monitor.size()));
        m_transform = cmsCreateTransform(source, TYPE_RGB_DBL, target, TYPE_RGB_DBL,
                                         INTENT_RELATIVE_COLORIMETRIC,
                                         cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOOPTIMIZE);
        cmsCloseProfile(source);
        cmsCloseProfile(target);
    }
    ~MonitorOracle() { cmsDeleteTransform(m_transform); }
    MonitorOracle(const MonitorOracle&) = delete;
    MonitorOracle& operator=(const MonitorOracle&) = delete;

    /// Converts to values of 0 to 1, clamped.
    std::array<double, 3> Convert(const std::array<double, 3>& colour) const
    {
        std::array<double, 3> shown{};
        cmsDoTransform(m_transform, colour.data(), shown.data(), 1);
        for (double& value : shown)
            value = value < 0 ? 0 : value > 1 ? 1 : value;
        return shown;
    }

private:
    cmsHTRANSFORM m_transform;
};

} // namespace LumetraTest
