// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/stages/MatrixStage.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/kernels/MatrixKernel.h"

namespace LumetraHost {

MatrixStage::MatrixStage(const ColourMatrix& matrix, ColourSpace space, Isa isa)
    : m_matrix(matrix), m_space(space),
      m_kernel(matrix.IsDiagonal() ? SelectKernel<ScaleKernel>(isa)
                                   : SelectKernel<MatrixKernel>(isa))
{
    const bool isDiagonal = matrix.IsDiagonal();
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) {
            const auto value = static_cast<float>(matrix.rows[i][j]);
            if (!isDiagonal)
                m_coefficients[3 * i + j] = value;
            else if (i == j)
                m_coefficients[i] = value;
        }
}

ChannelWork MatrixStage::GetChannelWork() const
{
    return m_matrix.IsDiagonal() ? ChannelWork::Light : ChannelWork::Mixed;
}

} // namespace LumetraHost
