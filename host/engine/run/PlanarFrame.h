// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Tile.h"

#include <cstddef>
#include <memory>

namespace LumetraHost {

/// A picture as a chain of stages sees it in the middle: three planes of float for each row, not
/// clamped. Its memory is kept when the size stays. Different rows may be used by different
/// threads.
class PlanarFrame
{
public:
    /// Leaves the values undefined.
    void Resize(int width, int height);
    void Free();

    /// Bytes that a frame of that size takes.
    static std::size_t CountBytes(int width, int height);

    /// Loads the part of row tile.y that begins at column tile.x.
    void Load(const Tile& tile) const;
    void Store(const Tile& tile);

private:
    struct Release
    {
        void operator()(float* values) const;
    };

    float* GetPlane(int y, int plane) const;

    std::size_t m_planeWidth = 0;
    int m_height = 0;
    std::unique_ptr<float, Release> m_values;
};

} // namespace LumetraHost
