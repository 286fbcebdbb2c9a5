// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>

namespace LumetraHost {

class CancelToken;

/// A rendering of a live view as it begins, on the view's own thread.
struct ViewRendering
{
    quint64 serial;
    bool isReduced;
    const CancelToken& cancel; ///< good during the call
};

/// Settings of a live view.
struct LiveViewOptions
{
    /// A full frame that is expected to take longer is preceded by a preview: all pixels from
    /// tables where that is quick enough, else fewer pixels.
    std::chrono::nanoseconds reducedBeyond = std::chrono::milliseconds(25);
    /// Called before each rendering, on the thread that renders; may be empty.
    std::function<void(const ViewRendering&)> onRendering;
};

} // namespace LumetraHost
