// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/EffectKinds.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <gtest/gtest.h>

namespace LumetraHost {
namespace {

TEST(EffectKinds, areRegisteredWithTheirParameters)
{
    RegisterEffects();
    RegisterEffects();

    for (const EffectKind& kind : EffectKinds::GetAll()) {
        const auto descriptor = Zorvik::Quindle::EffectRegistry::Find(kind.descriptor.effectID);
        ASSERT_TRUE(descriptor) << kind.descriptor.effectID;
        EXPECT_FALSE(descriptor->parameters.empty());
    }
    const auto exposure = Zorvik::Quindle::EffectRegistry::Find("exposure");
    EXPECT_EQ(exposure->parameters.front().name, "stops");
    EXPECT_EQ(exposure->parameters.front().unit, "stops");
    EXPECT_EQ(exposure->parameters.front().minimum, -5);
    EXPECT_EQ(exposure->parameters.front().maximum, 5);
}

TEST(EffectKinds, changeNothingAtTheirDefaults)
{
    RegisterEffects();
    for (const EffectKind& kind : EffectKinds::GetAll()) {
        const auto effect = Zorvik::Quindle::EffectSettingsImpl::Create(kind.descriptor.effectID);
        EXPECT_EQ(kind.createStage(*effect, {}), nullptr) << kind.descriptor.effectID;
    }
}

TEST(EffectKinds, haveNoneForAnUnknownId)
{
    EXPECT_EQ(EffectKinds::Find("solarise"), nullptr);
    EXPECT_EQ(EffectKinds::Find(""), nullptr);
}

} // namespace
} // namespace LumetraHost
