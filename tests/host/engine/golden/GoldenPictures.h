// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <ostream>
#include <string>
#include <vector>

namespace LumetraHost {

/// One picture of the folder golden: an effect at one strength on the photo of that folder. The
/// name is the file's, without its ending.
struct GoldenPicture
{
    std::string name;
    Zorvik::Quindle::EffectPtr effect;
};

/// Two for each effect that the engine draws: a gentle and a strong one.
std::vector<GoldenPicture> MakeGoldenPictures();

/// For readable names of tests.
void PrintTo(const GoldenPicture& picture, std::ostream* stream);

} // namespace LumetraHost
