// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <initializer_list>
#include <ostream>
#include <string>
#include <utility>

namespace LumetraHost {

/// A picture of random colours and alphas, the same for the same seed. The first pixels are black,
/// white, the primaries and middle grey.
Image MakeRandomPicture(int width, int height, Image::Depth depth, unsigned seed);

/// A registered effect with these parameters.
Zorvik::Quindle::EffectPtr
MakeEffect(const std::string& effectID,
           std::initializer_list<std::pair<const char*, double>> parameters);

/// Settings with these effects and this blend amount.
Zorvik::Quindle::EffectsSettings MakeSettings(const Zorvik::Quindle::EffectList& effects,
                                              int blendAmount = 1);

/// Channel 0 to 3 of a pixel, whatever the depth.
unsigned GetChannel(const Image& image, int x, int y, int channel);
/// The value of white.
unsigned GetWhite(const Image& image);

/// For readable failures.
void PrintTo(Image::Depth depth, std::ostream* stream);

} // namespace LumetraHost
