// SPDX-License-Identifier: MIT
#include "support/CallLog.h"

#include "Zorvik/Quindle/EffectsSettings.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <gmock/gmock.h>

#include <limits>

using LumetraTest::CallLog;
using LumetraTest::CallText;
using testing::ElementsAre;
using namespace Zorvik::Quindle;

TEST(CallLog, writesArgumentsExactly)
{
    CallLog log;
    log.Call("drawer.Draw", true, -3, 0xFFFFFFFFU, 4U, 0.1 + 0.2, "text", std::string("more"));
    EXPECT_THAT(log.Take(), ElementsAre("drawer.Draw(true, -3, none, 4, 0.30000000000000004, "
                                        "\"text\", \"more\")"));
    EXPECT_TRUE(log.GetLines().empty());
}

TEST(CallLog, recordsNothingWhilePaused)
{
    CallLog log;
    {
        const CallLog::Pause outer(log);
        const CallLog::Pause inner(log);
        log.Add("hidden");
    }
    log.Add("seen");
    EXPECT_THAT(log.GetLines(), ElementsAre("seen"));
}

TEST(CallLog, findsLinesByTheirBeginning)
{
    CallLog log;
    log.Add("drawer.ApplyEffect()");
    log.Add("painter.UpdatePainting()");
    log.Add("drawer.GetPackage()");
    EXPECT_THAT(log.GetLines("drawer."),
                ElementsAre("drawer.ApplyEffect()", "drawer.GetPackage()"));
}

TEST(CallText, tellsNumbersThatDifferInTheLastBit)
{
    EXPECT_EQ(CallText(0.0030000000000000005), "0.0030000000000000005");
    EXPECT_EQ(CallText(0.003), "0.003");
    EXPECT_EQ(CallText(-0.0), "-0");
    EXPECT_EQ(CallText(std::numeric_limits<double>::infinity()), "inf");
}

TEST(CallText, describesEffectSettingsWithPackageAndBlend)
{
    EffectsSettings effects(1);
    effects.Package().SetPackageName("Looks");
    effects.Package().SetPresetName("warm");
    effects.SetBlendAmount(52);
    effects.SetWaitApply(true);
    EXPECT_EQ(CallText(effects), "[] in Looks/warm #none blend 52 wait");
}

TEST(CallText, describesAPainterPackage)
{
    const auto package = SettingsPainterEffectsPackageOneInput::Create();
    package->SetPackageName("Looks");
    package->SetPresetName("warm");
    EXPECT_EQ(CallText(*package), "OneInput Looks/warm");
    package->SetIsNeedRestoreAlpha(true);
    EXPECT_EQ(CallText(*package), "OneInput Looks/warm restoring alpha");
}
