// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <memory>

namespace LumetraHost {

/// Rows of planar floats of which only the latest are kept: a row takes the place of the one
/// `rows` above it. Rows are aligned to 64 bytes; what a new ring holds is undefined.
class PlaneRing
{
public:
    PlaneRing() = default;
    /// `planes`: 1 to 3. All at least 1.
    PlaneRing(int width, int planes, int rows);

    bool IsEmpty() const { return !m_values; }
    int GetPlaneCount() const { return m_planes; }
    float* Row(int row, int plane = 0)
    {
        return m_values.get() +
               m_stride * static_cast<std::size_t>(row % m_rows * m_planes + plane);
    }

private:
    struct Free
    {
        void operator()(float* values) const;
    };

    std::size_t m_stride = 0;
    int m_planes = 0;
    int m_rows = 1;
    std::unique_ptr<float, Free> m_values;
};

} // namespace LumetraHost
