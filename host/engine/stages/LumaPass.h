// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/SpatialPass.h"

#include <memory>
#include <tuple>
#include <type_traits>

namespace LumetraHost {

/// A pass on encoded colours that hands each tile to a kernel, together with the blurred luma and a
/// few fixed numbers.
template <class... Numbers>
class LumaPass : public SpatialPass
{
public:
    using Kernel = void (*)(const Tile&, const float* blurredLuma, Numbers...);

    LumaPass(Kernel kernel, const GaussianShape& shape, Numbers... numbers)
        : m_kernel(kernel), m_shape(shape), m_numbers(numbers...)
    {
    }

    GaussianShape GetShape() const override { return m_shape; }
    BlurredPlanes GetPlanes() const override { return BlurredPlanes::Luma; }
    void Combine(const Tile& tile, const BlurredTile& blurred) const override
    {
        std::apply([&](auto... numbers) { m_kernel(tile, blurred.planes[0], numbers...); },
                   m_numbers);
    }

private:
    Kernel m_kernel;
    GaussianShape m_shape;
    std::tuple<Numbers...> m_numbers;
};

template <class... Numbers>
SpatialPassPtr MakeLumaPass(void (*kernel)(const Tile&, const float*, Numbers...),
                            const GaussianShape& shape, std::decay_t<Numbers>... numbers)
{
    return std::make_shared<LumaPass<Numbers...>>(kernel, shape, numbers...);
}

} // namespace LumetraHost
