// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>

namespace LumetraHost {

/// When a live view shows something else before the exact frame.
struct LiveViewOptions
{
    /// A frame that is expected to take longer is preceded by a preview: all pixels from tables
    /// where that is quick enough, else fewer pixels.
    std::chrono::nanoseconds previewBeyond = std::chrono::milliseconds(25);
    /// While an effect is dragged, pictures come from tables where these take less than this share
    /// of the exact picture's time. The exact picture follows when the drag rests.
    double largestTableShare = 0.9;
    /// A drag rests when it has not moved for so long; the exact picture is begun then.
    std::chrono::nanoseconds rest = std::chrono::milliseconds(40);
    /// Pictures of fewer pixels are always drawn exactly: that is done before a table is made.
    double leastTablePixels = 5e5;
};

} // namespace LumetraHost
