// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"

#include <memory>
#include <tuple>
#include <type_traits>

namespace LumetraHost {

/// A stage that hands each tile to a kernel, together with a few fixed numbers.
template <class... Numbers>
class KernelStage : public Stage
{
public:
    using Kernel = void (*)(const Tile&, Numbers...);

    KernelStage(Kernel kernel, ColourSpace space, ChannelWork work,
                const std::decay_t<Numbers>&... numbers)
        : m_kernel(kernel), m_space(space), m_work(work), m_numbers(numbers...)
    {
    }

    void Run(const Tile& tile) const override
    {
        std::apply([&](const auto&... numbers) { m_kernel(tile, numbers...); }, m_numbers);
    }
    ColourSpace GetColourSpace() const override { return m_space; }
    ChannelWork GetChannelWork() const override { return m_work; }

private:
    Kernel m_kernel;
    ColourSpace m_space;
    ChannelWork m_work;
    std::tuple<std::decay_t<Numbers>...> m_numbers;
};

template <class... Numbers>
StagePtr MakeKernelStage(void (*kernel)(const Tile&, Numbers...), ColourSpace space,
                         ChannelWork work, const std::decay_t<Numbers>&... numbers)
{
    return std::make_shared<KernelStage<Numbers...>>(kernel, space, work, numbers...);
}

} // namespace LumetraHost
