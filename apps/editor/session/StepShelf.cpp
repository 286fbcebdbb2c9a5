// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/StepShelf.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace LumetraEditor {

void StepShelf::Put(Steps steps)
{
    Take(steps.photo);
    if (steps.steps.empty())
        return;
    m_photos.push_back(std::move(steps));
    const auto count = [this] {
        return std::accumulate(
            m_photos.begin(), m_photos.end(), std::size_t{0},
            [](std::size_t sum, const Steps& photo) { return sum + photo.steps.size(); });
    };
    while (count() > MostSteps)
        m_photos.pop_front();
}

std::optional<StepShelf::Steps> StepShelf::Take(const QString& photo)
{
    const auto found = std::find_if(m_photos.begin(), m_photos.end(),
                                    [&photo](const Steps& one) { return one.photo == photo; });
    if (found == m_photos.end())
        return std::nullopt;
    Steps steps = std::move(*found);
    m_photos.erase(found);
    return steps;
}

} // namespace LumetraEditor
