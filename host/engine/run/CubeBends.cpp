// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/CubeBends.h"

#include "engine/kernels/ColourCubeKernel.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <vector>

namespace LumetraHost {
namespace {

constexpr int ToEntry(int steps)
{
    return steps * ColourCube::One / 255;
}

/// A line of entries, red running, and the lines on both sides of it in some direction.
struct Lines
{
    const std::int16_t* before;
    const std::int16_t* centre;
    const std::int16_t* after;
};

/// Raises the entries' largest second differences so far. Bends that can be seen neither at the
/// entry nor at its neighbours do not count.
void AddBends(const Lines& lines, int entries, std::int32_t* bends)
{
    for (int i = 0; i < entries * ColourCube::Stride; ++i) {
        const std::int32_t before = lines.before[i];
        const std::int32_t centre = lines.centre[i];
        const std::int32_t after = lines.after[i];
        const bool isSeen = std::max(std::max(before, centre), after) > 0 &&
                            std::min(std::min(before, centre), after) < ColourCube::One;
        const std::int32_t bend = std::abs(before - 2 * centre + after);
        bends[i] = std::max(bends[i], isSeen ? bend : 0);
    }
}

class Search
{
public:
    Search(std::int16_t* cube, int points)
        : m_cube(cube), m_points(points), m_bendAt(Offset(0, 0, points) / ColourCube::Stride)
    {
    }

    void FindInPlane(int blue);
    void MarkPlane(int blue);

    int GetMarkedCount() const { return m_markedCount; }
    bool HasJump() const { return m_hasJump; }

private:
    std::size_t Offset(int red, int green, int blue) const
    {
        const auto size = static_cast<std::size_t>(m_points);
        return ((static_cast<std::size_t>(blue) * size + static_cast<std::size_t>(green)) * size +
                static_cast<std::size_t>(red)) *
               ColourCube::Stride;
    }
    bool IsInside(int i) const { return i > 0 && i < m_points - 1; }
    Lines GetLines(int green, int blue, int alongRed, int alongGreen, int alongBlue) const;
    bool HasBentCorner(int red, int green, int blue) const;

    std::int16_t* m_cube;
    int m_points;
    std::vector<char> m_bendAt; ///< for each entry
    std::atomic<int> m_markedCount{0};
    std::atomic<bool> m_hasJump{false};
};

/// Begins at the second entry of a line when the direction runs along red.
Lines Search::GetLines(int green, int blue, int alongRed, int alongGreen, int alongBlue) const
{
    return {m_cube + Offset(0, green - alongGreen, blue - alongBlue),
            m_cube + Offset(alongRed, green, blue),
            m_cube + Offset(2 * alongRed, green + alongGreen, blue + alongBlue)};
}

void Search::FindInPlane(int blue)
{
    constexpr int stride = ColourCube::Stride;
    std::vector<std::int32_t> bends;
    for (int green = 0; green < m_points; ++green) {
        bends.assign(static_cast<std::size_t>(m_points * stride), 0);
        AddBends(GetLines(green, blue, 1, 0, 0), m_points - 2, bends.data() + stride);
        if (IsInside(green))
            AddBends(GetLines(green, blue, 0, 1, 0), m_points, bends.data());
        if (IsInside(blue))
            AddBends(GetLines(green, blue, 0, 0, 1), m_points, bends.data());
        if (IsInside(green) && IsInside(blue))
            AddBends(GetLines(green, blue, 1, 1, 1), m_points - 2, bends.data() + stride);
        char* const bendAt = m_bendAt.data() + Offset(0, green, blue) / stride;
        for (int i = 0; i < m_points * stride; ++i) {
            if (bends[static_cast<std::size_t>(i)] > ToEntry(CubeBends::Limit))
                bendAt[i / stride] = 1;
            if (bends[static_cast<std::size_t>(i)] > ToEntry(CubeBends::Jump))
                m_hasJump = true;
        }
    }
}

bool Search::HasBentCorner(int red, int green, int blue) const
{
    for (const int blueCorner : {blue, blue + 1})
        for (const int greenCorner : {green, green + 1}) {
            const char* const corner =
                m_bendAt.data() + Offset(red, greenCorner, blueCorner) / ColourCube::Stride;
            if (corner[0] || corner[1])
                return true;
        }
    return false;
}

void Search::MarkPlane(int blue)
{
    int count = 0;
    for (int green = 0; green < m_points - 1; ++green)
        for (int red = 0; red < m_points - 1; ++red)
            if (HasBentCorner(red, green, blue)) {
                m_cube[Offset(red, green, blue) + ColourCube::Mark] = 1;
                ++count;
            }
    m_markedCount += count;
}

} // namespace

CubeBends::CubeBends(std::int16_t* cube, int points, ThreadPool& pool)
{
    Search search(cube, points);
    pool.ForEach(points, 0, [&search](int blue) { search.FindInPlane(blue); });
    pool.ForEach(points - 1, 0, [&search](int blue) { search.MarkPlane(blue); });
    const double cells = points - 1;
    m_markedShare = search.GetMarkedCount() / (cells * cells * cells);
    m_hasJump = search.HasJump();
}

} // namespace LumetraHost
