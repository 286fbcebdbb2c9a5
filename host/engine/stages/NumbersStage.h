// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"

namespace LumetraHost {

/// A stage whose kernel needs nothing but a few numbers, the same for all tiles.
template <class Numbers>
class NumbersStage : public Stage
{
public:
    using Kernel = void (*)(const Tile&, const Numbers&);

    NumbersStage(ColourSpace space, const Numbers& numbers, Kernel kernel,
                 ChannelWork work = ChannelWork::Mixed)
        : m_space(space), m_numbers(numbers), m_kernel(kernel), m_work(work)
    {
    }

    void Run(const Tile& tile) const override { m_kernel(tile, m_numbers); }
    ColourSpace GetColourSpace() const override { return m_space; }
    ChannelWork GetChannelWork() const override { return m_work; }

private:
    ColourSpace m_space;
    Numbers m_numbers;
    Kernel m_kernel;
    ChannelWork m_work;
};

} // namespace LumetraHost
