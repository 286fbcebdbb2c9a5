// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/stack/PictureRecipe.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace LumetraHost {

/// The measured costs of a drag's ticks, drawn exactly or from tables of colours. A drag changes
/// the same effect of the same layer again and again; how much of the picture is kept, and so what
/// an exact tick costs, depends on which one that is. Times are in nanoseconds; the shortest of a
/// drag counts, because other programs only make them longer. One thread only.
class TickCosts
{
public:
    /// A table is drawn where it takes less than this share of the exact time.
    explicit TickCosts(double largestShare) : m_largestShare(largestShare) {}

    /// A picture of these layers, in that many pixels, is about to be drawn.
    void Begin(const std::vector<Layer>& layers, double pixels);

    /// True while a drag goes on: the last two pictures differ where those before them did.
    bool IsDrag() const { return m_isDrag; }

    /// The exact picture took so long. The first of a drag makes what the next ones keep, and does
    /// not count.
    void AddExact(double time);
    /// Making the tables and drawing them took so long.
    void AddTable(double time);
    /// These effects make no table.
    void RefuseTable() { m_isRefused = true; }
    /// True when a table was refused since another effect, blend or size was drawn.
    bool IsTableRefused() const { return m_isRefused; }

    /// The time that an exact tick is expected to take; empty before it has been measured.
    std::optional<double> GetExact() const { return m_exact; }
    /// True when a tick from tables is expected to be quicker by enough. `assumed`: its time before
    /// one has been measured. `conversion`: the time that an exact tick takes besides to get into
    /// the colours of the screen.
    bool IsTableQuicker(double assumed, double conversion = 0) const;

private:
    static constexpr std::size_t NoEffect = static_cast<std::size_t>(-1);

    /// The first thing that differs from the picture before.
    struct Change
    {
        std::size_t layer = 0;
        std::size_t effect = NoEffect; ///< also where a layer or an effect is new or gone
        bool isBlend = false;
    };

    static Change Find(const std::vector<Layer>& before, const std::vector<Layer>& after);

    double m_largestShare;
    std::vector<Layer> m_layers;
    double m_pixels = 0;
    Change m_change;
    bool m_isDrag = false;
    bool m_isWarm = false; ///< an exact picture of such a tick has been drawn
    bool m_isRefused = false;
    std::optional<double> m_exact;
    std::optional<double> m_table;
};

} // namespace LumetraHost
