// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "threads/ThreadPool.h"

#include "image/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

namespace LumetraHost {

/// Blend amounts: 1 is the full effect, 255 the source.
constexpr int FullEffect = Zorvik::Quindle::EffectsSettings::FullEffect;
constexpr int SourceOnly = Zorvik::Quindle::EffectsSettings::NoEffect;

/// `blendAmount` limited to 1..255.
int ClampBlendAmount(int blendAmount);

/// Weight of the source in the blend: (b - 1) / 254 with b limited to 1..255.
double GetSourceWeight(int blendAmount);

/// Puts (source * (b - 1) + effect * (255 - b) + 127) / 254, in integers, into `target`: the
/// interpolation between two finished pictures, each channel rounded to the nearest value, halves
/// down. All three have the same size and depth; `target` shares its pixels with neither. Alpha is
/// blended too, so it stays when both have the same.
void Blend(const Image& source, const Image& effect, int blendAmount, Image& target, Isa isa,
           int threads, ThreadPool& pool);

} // namespace LumetraHost
