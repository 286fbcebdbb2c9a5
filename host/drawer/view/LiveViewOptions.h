// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>

namespace LumetraHost {

class CancelToken;

/// One rendering of a live view, on its own thread, as it begins.
struct ViewRendering
{
    quint64 serial;
    bool isReduced;
    const CancelToken& cancel; ///< good during the call
};

/// How a live view works.
struct LiveViewOptions
{
    /// A full frame that is expected to take longer is preceded by a preview: all pixels from
    /// tables where that is quick enough, else fewer pixels.
    std::chrono::nanoseconds reducedBeyond = std::chrono::milliseconds(25);
    /// Called before each rendering, on the thread that renders; empty: nobody is.
    std::function<void(const ViewRendering&)> onRendering;
};

} // namespace LumetraHost
