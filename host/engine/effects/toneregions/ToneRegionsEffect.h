// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Tone regions: linear light is multiplied by a gain that depends on the colour's luminance, so
/// that hue and saturation stay: c = c * 2^(f(s) - s), s = log2(luminance of Rec. 709) in stops
/// below white. f is the monotone curve (see MonotoneCurve, end slopes 1) through five regions:
/// blacks at -8 stops, shadows at -5, mid-tones at middle grey (18 %), highlights at -1, whites at
/// 0. At 100 per cent they rise by 2, 1.5, 1, 0.75 and 0.75 stops, at -100 they sink by as much;
/// tones beyond the ends move as the ends. The tones never change their order: a region that
/// another one would overtake is carried along, from the mid-tones outwards.
/// Source of the regions: A. Adams, The Negative (zones of one stop around middle grey).
struct ToneRegionsParameters
{
    static constexpr char EffectId[] = "toneRegions";

    double blacks = 0; ///< in all regions negative numbers darken
    double shadows = 0;
    double midtones = 0;
    double highlights = 0;
    double whites = 0;

    static constexpr ParameterRow<ToneRegionsParameters> Table[] = {
        {"blacks", &ToneRegionsParameters::blacks, -100, 100, "%"},
        {"shadows", &ToneRegionsParameters::shadows, -100, 100, "%"},
        {"midtones", &ToneRegionsParameters::midtones, -100, 100, "%"},
        {"highlights", &ToneRegionsParameters::highlights, -100, 100, "%"},
        {"whites", &ToneRegionsParameters::whites, -100, 100, "%"}};

    bool IsIdentity() const;
};

EffectKind MakeToneRegionsKind();

} // namespace LumetraHost
