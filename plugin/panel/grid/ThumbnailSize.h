// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSize>

namespace LumetraPlugin {

/// How large the user wants the thumbnails of looks.
enum class ThumbnailSize
{
    Small,
    Medium,
    Large
};

/// The measures of a grid with thumbnails of one size, in logical pixels.
struct ThumbnailShape
{
    int smallestCell; ///< the width from which on a cell has room for one more beside it
    int fewestColumns;
    /// The size in which pictures are asked for: the largest cell's. A smaller picture, of a preset
    /// that wants the whole photo seen or no pixel enlarged, stands in the middle.
    QSize picture;

    static constexpr ThumbnailShape Of(ThumbnailSize size)
    {
        switch (size) {
        case ThumbnailSize::Small:
            return {84, 3, {120, 80}};
        case ThumbnailSize::Large:
            return {200, 1, {384, 256}};
        case ThumbnailSize::Medium:
            break;
        }
        return {112, 2, {168, 112}};
    }
};

} // namespace LumetraPlugin
