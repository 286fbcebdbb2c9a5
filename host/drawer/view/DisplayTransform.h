// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <QByteArray>

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace LumetraHost {

/// From the colours of pictures to those of a monitor, relative colorimetric with black point
/// compensation, for showing and for nothing else: what is saved or exported never comes from here.
/// Shared by whoever shows pictures; for any number of threads at once. RGB monitors only.
class DisplayTransform
{
public:
    /// Null for a profile that is sRGB within one 8-bit step: pictures are to be shown in sRGB
    /// then. Zorvik::Exception, which begins with `origin`, for a profile that is damaged or not
    /// that of an RGB monitor.
    static std::shared_ptr<const DisplayTransform> Make(const QByteArray& iccProfile,
                                                        const std::string& origin);
    ~DisplayTransform();
    DisplayTransform(const DisplayTransform&) = delete;
    DisplayTransform& operator=(const DisplayTransform&) = delete;

    /// The picture, from the space that it is in, as 8 bits in the monitor's colours, alpha
    /// unchanged; null for a null one. Runs on the shared pool. `recycled`: see Renderer::Render().
    /// Zorvik::Exception where the space does not lead to the monitor.
    Image Apply(const Image& picture, Image recycled = {}) const;

    /// The monitor's space; null where its profile goes by tables.
    const std::shared_ptr<const RgbSpace>& GetSpace() const { return m_monitorSpace; }

    /// Rows of 8-bit RGBA in sRGB with premultiplied alpha. Strides in bytes.
    void ApplyPremultiplied(const std::uint8_t* source, std::size_t sourceStride,
                            std::uint8_t* target, std::size_t targetStride, int width,
                            int height) const;

private:
    struct Transforms;
    using TransformsPtr = std::shared_ptr<const Transforms>;

    /// Those of one space.
    struct SpaceTransforms
    {
        std::shared_ptr<const RgbSpace> space;
        TransformsPtr transforms;
    };

    /// The spaces of the photos that were shown last.
    static constexpr std::size_t MostSpaces = 4;

    DisplayTransform(const QByteArray& iccProfile, const std::string& origin);

    /// `source`: the profile of the pictures, a handle of the colour library.
    TransformsPtr MakeTransforms(void* source) const;
    TransformsPtr FindTransforms(const std::shared_ptr<const RgbSpace>& space) const;
    Image ApplyByEngine(const Image& picture, Image recycled) const;

    const QByteArray m_monitor;
    const std::shared_ptr<const RgbSpace> m_monitorSpace;
    const std::string m_origin;
    const TransformsPtr m_fromSrgb;
    mutable std::mutex m_mutex;
    mutable std::vector<SpaceTransforms> m_fromSpaces; ///< oldest first
};

} // namespace LumetraHost
