// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/ResultSearch.h"

namespace LumetraHost {

void ResultSearch::AddPhoto(std::size_t number, const QString& path)
{
    m_photos.emplace(number, FileIdentity::Of(path));
}

void ResultSearch::AddOutput(std::size_t number, const QString& output)
{
    m_origins.emplace(FileIdentity::Of(output), number);
}

std::optional<std::size_t> ResultSearch::FindParent(std::size_t number) const
{
    const auto photo = m_photos.find(number);
    if (photo == m_photos.end())
        return std::nullopt;
    const auto origin = m_origins.find(photo->second);
    const bool isResult =
        origin != m_origins.end() && !(m_photos.at(origin->second) == photo->second);
    return isResult ? std::make_optional(origin->second) : std::nullopt;
}

std::optional<std::size_t> ResultSearch::FindOrigin(std::size_t number) const
{
    const auto parent = FindParent(number);
    auto ancestor = parent;
    for (std::size_t step = 0; ancestor && step <= m_photos.size(); ++step) {
        const auto next = FindParent(*ancestor);
        if (!next)
            return parent;
        ancestor = next;
    }
    return std::nullopt;
}

} // namespace LumetraHost
