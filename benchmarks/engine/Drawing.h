// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "image/Image.h"

#include <functional>
#include <string>

namespace LumetraBench {

/// The effects that are drawn on the benchmark's photo.
struct Task
{
    std::string effects; ///< see GetBenchmarkEffects(), or one of the two names below
    LumetraHost::Image::Depth depth = LumetraHost::Image::Depth::Bits8;
    int threads = 1;

    /// "exposure/8bit", without the threads.
    std::string GetName() const;
};

/// The chain, mixed with the photo.
inline constexpr char BlendedChain[] = "chain5_blended";
/// Two finished pictures, mixed.
inline constexpr char Blend[] = "blend_tick";
/// The blend amount of both, and what the photo weighs then.
inline constexpr int BlendAmount = 100;
inline constexpr double PhotoWeight = 99.0 / 254;

/// Draws the same picture again and again.
struct Drawing
{
    std::function<void()> draw;
    /// The picture of the last draw().
    std::function<LumetraHost::Image()> get;
};

/// A drawing into a picture that stays, as large as the photo.
Drawing MakeDrawing(LumetraHost::Image::Depth depth,
                    std::function<void(LumetraHost::Image& target)> draw);

/// Draws with our engine.
Drawing MakeOurs(const Task& task, LumetraHost::Isa isa);
/// The picture that is blended with the photo.
const LumetraHost::Image& GetBlendedPicture(LumetraHost::Image::Depth depth);

} // namespace LumetraBench
