// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace LumetraBench {

constexpr int Width = 6000;
constexpr int Height = 4000;

/// 24 megapixels of noise, the same every time.
const LumetraHost::Image& GetPhoto(LumetraHost::Image::Depth depth);

Zorvik::Quindle::EffectPtr MakeEffect(const char* id,
                                      std::vector<std::pair<const char*, double>> parameters);
/// Exposure, white balance, contrast, saturation, lift-gamma-gain: what the peers can do too.
Zorvik::Quindle::EffectList MakeGradingChain();

/// Runs on one thread count processor time, on more real time.
void Register(const std::string& name, int threads, std::function<void(benchmark::State&)> run);

/// OpenColorIO and OpenCV on the same picture, one thread.
void RegisterPeers();

} // namespace LumetraBench
