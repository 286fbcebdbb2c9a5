// SPDX-License-Identifier: GPL-2.0-or-later
#include "contract/EffectContract.h"

#include "engine/EffectKinds.h"

namespace LumetraTest {
namespace {

class ExposureSubject
{
public:
    ExposureSubject() { LumetraHost::RegisterEffects(); }

    std::string GetEffectID() const { return "exposure"; }
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Exposure, EffectContract, ExposureSubject);

} // namespace LumetraTest
