// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/gaussian/PlaneRing.h"

#include <new>

namespace LumetraHost {
namespace {

constexpr std::align_val_t Alignment{64};
constexpr std::size_t FloatsPerLine = 16;

} // namespace

void PlaneRing::Free::operator()(float* values) const
{
    ::operator delete(values, Alignment);
}

PlaneRing::PlaneRing(int width, int planes, int rows)
    : m_stride((static_cast<std::size_t>(width) + FloatsPerLine - 1) / FloatsPerLine *
               FloatsPerLine),
      m_planes(planes), m_rows(rows)
{
    const std::size_t count =
        m_stride * static_cast<std::size_t>(planes) * static_cast<std::size_t>(rows);
    m_values.reset(static_cast<float*>(::operator new(count * sizeof(float), Alignment)));
}

} // namespace LumetraHost
