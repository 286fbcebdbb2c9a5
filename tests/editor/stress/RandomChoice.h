// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

#include <algorithm>
#include <random>
#include <vector>

namespace LumetraTest {

/// Chooses what a run does next, the same for the same seed.
class RandomChoice
{
public:
    explicit RandomChoice(unsigned seed) : m_random(seed) {}

    /// A number below `count`; 0 for an empty widget or list.
    int Pick(int count)
    {
        return std::uniform_int_distribution<int>(0, std::max(count, 1) - 1)(m_random);
    }
    QPoint PickPlace(const QWidget& widget)
    {
        const int x = Pick(widget.width());
        return {x, Pick(widget.height())};
    }
    /// One of the visible widgets of this kind that can be used, below `parent`; null without any.
    template <class Widget>
    Widget* PickOne(const QWidget& parent)
    {
        std::vector<Widget*> found;
        for (Widget* const widget : parent.findChildren<Widget*>())
            if (widget->isVisible() && widget->isEnabled())
                found.push_back(widget);
        return found.empty()
                   ? nullptr
                   : found[static_cast<std::size_t>(Pick(static_cast<int>(found.size())))];
    }

private:
    std::mt19937 m_random;
};

} // namespace LumetraTest
