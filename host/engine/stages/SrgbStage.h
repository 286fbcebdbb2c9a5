// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"

namespace LumetraHost {

/// Takes a tile from one colour space into the other. A segment puts it between effects that work
/// in different spaces; GetColourSpace is the space it starts from.
class SrgbStage : public Stage
{
public:
    /// To encoded, or to linear.
    SrgbStage(ColourSpace target, Isa isa);

    void Run(const Tile& tile) const override { m_kernel(tile); }
    ColourSpace GetColourSpace() const override;
    ChannelWork GetChannelWork() const override { return ChannelWork::Heavy; }

private:
    ColourSpace m_target;
    void (*m_kernel)(const Tile&);
};

} // namespace LumetraHost
