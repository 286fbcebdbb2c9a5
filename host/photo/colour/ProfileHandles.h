// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

#include <memory>

#include <lcms2.h>

namespace LumetraHost {

/// Gives the destroying function of a C handle to a smart pointer.
template <auto Destroy>
struct HandleDeleter
{
    template <class Handle>
    void operator()(Handle* handle) const
    {
        Destroy(handle);
    }
};

using ProfileHandle = std::unique_ptr<void, HandleDeleter<cmsCloseProfile>>;
using TransformHandle = std::unique_ptr<void, HandleDeleter<cmsDeleteTransform>>;
using CurveHandle = std::unique_ptr<cmsToneCurve, HandleDeleter<cmsFreeToneCurve>>;

/// Null for what is no ICC profile.
inline ProfileHandle OpenProfile(const QByteArray& bytes)
{
    return ProfileHandle(
        cmsOpenProfileFromMem(bytes.constData(), static_cast<cmsUInt32Number>(bytes.size())));
}

} // namespace LumetraHost
