// SPDX-License-Identifier: GPL-2.0-or-later
#include "contract/EffectContract.h"

#include "engine/effects/EffectKinds.h"

namespace LumetraTest {
namespace {

class ExposureSubject
{
public:
    ExposureSubject() { LumetraHost::RegisterEffects(); }

    std::string GetEffectID() const { return "exposure"; }
};

class Lut3dSubject
{
public:
    Lut3dSubject() { LumetraHost::RegisterEffects(); }

    std::string GetEffectID() const { return "lut3d"; }
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Exposure, EffectContract, ExposureSubject);
INSTANTIATE_TYPED_TEST_SUITE_P(Lut3d, EffectContract, Lut3dSubject);

} // namespace LumetraTest
