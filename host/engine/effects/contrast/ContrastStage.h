// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/contrast/ContrastParameters.h"
#include "engine/stages/Stage.h"

namespace LumetraHost {

/// Runs the contrast effect over tiles of linear light.
class ContrastStage : public Stage
{
public:
    ContrastStage(const ContrastParameters& parameters, const StageContext& context);

    void Run(const Tile& tile) const override;
    ChannelWork GetChannelWork() const override { return ChannelWork::Heavy; }

private:
    float m_exponent;
    float m_offset;
    void (*m_kernel)(const Tile&, float, float);
};

} // namespace LumetraHost
