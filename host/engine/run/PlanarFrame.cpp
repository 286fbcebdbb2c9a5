// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/PlanarFrame.h"

#include <cstring>
#include <new>

namespace LumetraHost {
namespace {

constexpr std::align_val_t Alignment{64};
constexpr std::size_t FloatsPerLine = 16;
constexpr std::size_t Planes = 3;

std::size_t GetPlaneWidth(int width)
{
    return (static_cast<std::size_t>(width) + FloatsPerLine - 1) / FloatsPerLine * FloatsPerLine;
}

void Copy(float* target, const float* source, int count)
{
    std::memcpy(target, source, static_cast<std::size_t>(count) * sizeof(float));
}

} // namespace

void PlanarFrame::Release::operator()(float* values) const
{
    ::operator delete(values, Alignment);
}

void PlanarFrame::Resize(int width, int height)
{
    if (m_values && m_planeWidth == GetPlaneWidth(width) && m_height == height)
        return;
    Free();
    m_values.reset(static_cast<float*>(::operator new(CountBytes(width, height), Alignment)));
    m_planeWidth = GetPlaneWidth(width);
    m_height = height;
}

void PlanarFrame::Free()
{
    m_values.reset();
}

std::size_t PlanarFrame::CountBytes(int width, int height)
{
    return GetPlaneWidth(width) * Planes * static_cast<std::size_t>(height) * sizeof(float);
}

void PlanarFrame::Load(const Tile& tile) const
{
    Copy(tile.red, GetPlane(tile.y, 0) + tile.x, tile.count);
    Copy(tile.green, GetPlane(tile.y, 1) + tile.x, tile.count);
    Copy(tile.blue, GetPlane(tile.y, 2) + tile.x, tile.count);
}

void PlanarFrame::Store(const Tile& tile)
{
    Copy(GetPlane(tile.y, 0) + tile.x, tile.red, tile.count);
    Copy(GetPlane(tile.y, 1) + tile.x, tile.green, tile.count);
    Copy(GetPlane(tile.y, 2) + tile.x, tile.blue, tile.count);
}

float* PlanarFrame::GetPlane(int y, int plane) const
{
    return m_values.get() +
           (static_cast<std::size_t>(y) * Planes + static_cast<std::size_t>(plane)) * m_planeWidth;
}

} // namespace LumetraHost
