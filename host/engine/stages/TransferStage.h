// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"

#include "image/RgbSpace.h"

#include <array>
#include <memory>

namespace LumetraHost {

/// Changes linear light so that the curve of sRGB, with which all pixels are loaded and stored,
/// stands for the transfer curves of another space.
class TransferStage : public Stage
{
public:
    enum class Direction
    {
        Load, ///< pixels of the space were decoded as sRGB: gives the light that they stand for
        Store ///< the inverse, before light is encoded as sRGB
    };

    /// `space` has other curves than sRGB.
    TransferStage(std::shared_ptr<const RgbSpace> space, Direction direction, Isa isa);

    void Run(const Tile& tile) const override;
    ChannelWork GetChannelWork() const override { return ChannelWork::Heavy; }

private:
    std::shared_ptr<const RgbSpace> m_space;
    std::array<const float*, 3> m_tables;
    void (*m_kernel)(const Tile&, const float* const*);
};

} // namespace LumetraHost
