// SPDX-License-Identifier: MIT
#include "Zorvik/Lumetra/InvokeEffectHelper.h"

#include "Zorvik/Exception.h"
#include "support/CallLog.h"
#include "support/RegisteredEffects.h"

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::ElementsAre;
using Zorvik::Lumetra::InvokeEffectHelper;
using namespace Zorvik::Quindle;

namespace {

class InvokeEffectHelperTest : public testing::Test
{
protected:
    CallLog log;
    RegisteredEffects effects{log};
    EffectPtr tone = EffectRegistry::Find("tone")->create();
};

} // namespace

TEST_F(InvokeEffectHelperTest, forwardsUnrounded)
{
    InvokeEffectHelper::InvokeSet("gain", tone, 0.0030000000000000005);
    EXPECT_EQ(InvokeEffectHelper::InvokeGet("gain", tone), 0.0030000000000000005);
    EXPECT_THAT(log.Take(),
                ElementsAre("effect(tone).SetParameter(\"gain\", 0.0030000000000000005)",
                            "effect(tone).GetParameter(\"gain\")"));
}

TEST_F(InvokeEffectHelperTest, refusesANullEffect)
{
    for (const auto& operation :
         {std::function<void()>([] { InvokeEffectHelper::InvokeGet("gain", nullptr); }),
          std::function<void()>([] { InvokeEffectHelper::InvokeSet("gain", nullptr, 1); })}) {
        try {
            operation();
            FAIL();
        } catch (const Zorvik::Exception& error) {
            EXPECT_EQ(error.GetDescription(), "parameter \"gain\": expected an effect, found none");
        }
    }
}

TEST_F(InvokeEffectHelperTest, passesTheEffectsOwnRefusalOn)
{
    EXPECT_THROW(InvokeEffectHelper::InvokeGet("radius", tone), Zorvik::Exception);
    EXPECT_THROW(InvokeEffectHelper::InvokeSet("radius", tone, 1), Zorvik::Exception);
}

TEST_F(InvokeEffectHelperTest, asksTheRegistryForParameters)
{
    EXPECT_TRUE(InvokeEffectHelper::MethodExists("gain", "tone"));
    EXPECT_FALSE(InvokeEffectHelper::MethodExists("tone", "gain"));
    EXPECT_FALSE(InvokeEffectHelper::MethodExists("radius", "tone"));
    EXPECT_FALSE(InvokeEffectHelper::MethodExists("gain", "missing"));
    EXPECT_FALSE(InvokeEffectHelper::MethodExists("", ""));
}
