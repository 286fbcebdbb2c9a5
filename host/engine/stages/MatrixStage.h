// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/Stage.h"

#include <array>

namespace LumetraHost {

/// A matrix on the colours, worked out in double and applied in float.
class MatrixStage : public Stage
{
public:
    MatrixStage(const ColourMatrix& matrix, ColourSpace space, Isa isa);

    void Run(const Tile& tile) const override { m_kernel(tile, m_coefficients.data()); }
    ColourSpace GetColourSpace() const override { return m_space; }
    ChannelWork GetChannelWork() const override;
    std::optional<ColourMatrix> GetMatrix() const override { return m_matrix; }

private:
    ColourMatrix m_matrix;
    ColourSpace m_space;
    std::array<float, 9> m_coefficients{};
    void (*m_kernel)(const Tile&, const float*);
};

} // namespace LumetraHost
