// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <QByteArray>

#include <cstddef>
#include <memory>
#include <string>

namespace LumetraHost {

/// From sRGB to the colours of a monitor, relative colorimetric with black point compensation, for
/// showing and for nothing else: what is saved or exported never comes from here. Shared by
/// whoever shows pictures; immutable, for any number of threads at once. RGB monitors only.
class DisplayTransform
{
public:
    /// Null for a profile that is sRGB within one 8-bit step: nothing has to be done then.
    /// Zorvik::Exception, which begins with `origin`, for a profile that is damaged or not that of
    /// an RGB monitor.
    static std::shared_ptr<const DisplayTransform> Make(const QByteArray& iccProfile,
                                                        const std::string& origin);
    ~DisplayTransform();
    DisplayTransform(const DisplayTransform&) = delete;
    DisplayTransform& operator=(const DisplayTransform&) = delete;

    /// The picture as 8 bits in the monitor's colours, alpha unchanged; null for a null one. Runs
    /// on the shared pool. `recycled`: see Renderer::Render().
    Image Apply(const Image& picture, Image recycled = {}) const;

    /// Rows of 8-bit RGBA with premultiplied alpha. Strides in bytes.
    void ApplyPremultiplied(const std::uint8_t* source, std::size_t sourceStride,
                            std::uint8_t* target, std::size_t targetStride, int width,
                            int height) const;

private:
    struct Transforms;

    explicit DisplayTransform(std::unique_ptr<const Transforms> transforms);

    std::unique_ptr<const Transforms> m_transforms;
};

} // namespace LumetraHost
