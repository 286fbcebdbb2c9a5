// SPDX-License-Identifier: MIT
#include "Zorvik/Quindle/EffectsSettings.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/ResetSettings.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"
#include "support/CallLog.h"
#include "support/RegisteredEffects.h"

#include <gtest/gtest.h>

using namespace LumetraTest;
using namespace Zorvik::Quindle;

namespace {

class EffectsSettingsTest : public testing::Test
{
protected:
    EffectsSettingsTest() { settings.Effects().push_back(EffectSettingsImpl::Create("plain")); }

    CallLog log;
    RegisteredEffects effects{log};
    EffectsSettings settings{1};
};

} // namespace

TEST_F(EffectsSettingsTest, startsEmptyWithTheFullEffect)
{
    const EffectsSettings fresh(1);
    EXPECT_TRUE(fresh.Effects().empty());
    EXPECT_TRUE(fresh.EffectsConst().empty());
    EXPECT_EQ(fresh.GetBlendAmount(), 1);
    EXPECT_FALSE(fresh.GetWaitApply());
    EXPECT_EQ(fresh.GetInputCount(), 1U);
    EXPECT_EQ(fresh.Package().GetIndex(), 0xFFFFFFFF);
    EXPECT_EQ(fresh.Package().GetPackageName(), "");
    EXPECT_EQ(fresh.Package().GetPresetName(), "");
}

TEST_F(EffectsSettingsTest, storesBlendAmountsUnclamped)
{
    for (const int amount : {-5, 0, 1, 255, 4000}) {
        settings.SetBlendAmount(amount);
        EXPECT_EQ(settings.GetBlendAmount(), amount);
    }
}

TEST_F(EffectsSettingsTest, copyingClonesTheEffectsAndKeepsTheRest)
{
    settings.Package().SetPackageName("Looks");
    settings.Package().SetPresetName("a");
    settings.Package().SetIndex(4);
    settings.SetBlendAmount(80);
    settings.SetWaitApply(true);

    const EffectsSettings copy(settings);
    ASSERT_EQ(copy.Effects().size(), 1U);
    EXPECT_NE(copy.Effects().front(), settings.Effects().front());
    settings.Effects().front()->SetParameter("amount", 0.9);
    EXPECT_EQ(copy.Effects().front()->GetParameter("amount"), 0.25);
    EXPECT_EQ(CallText(copy), "[plain{id: \"plain\", amount: 0.25}] in Looks/a #4 blend 80 wait");
}

TEST_F(EffectsSettingsTest, assigningClonesToo)
{
    EffectsSettings copy(1);
    copy = settings;
    EXPECT_NE(copy.Effects().front(), settings.Effects().front());
    const auto& alias = copy;
    copy = alias;
    EXPECT_EQ(copy.Effects().size(), 1U) << "assigned to itself";
}

TEST_F(EffectsSettingsTest, movingTakesTheEffects)
{
    const auto effect = settings.Effects().front();
    EffectsSettings moved(std::move(settings));
    EXPECT_EQ(moved.Effects().front(), effect);
    EffectsSettings assigned(1);
    assigned = std::move(moved);
    EXPECT_EQ(assigned.Effects().front(), effect);
}

TEST_F(EffectsSettingsTest, aNullEffectSurvivesACopy)
{
    settings.Effects().push_back(nullptr);
    const EffectsSettings copy(settings);
    ASSERT_EQ(copy.Effects().size(), 2U);
    EXPECT_EQ(copy.Effects()[1], nullptr);
}

TEST_F(EffectsSettingsTest, settingConstEffectsSharesThemAndDropsNulls)
{
    const auto effect = settings.Effects().front();
    EffectsSettings other(1);
    other.Effects().push_back(EffectSettingsImpl::Create("old"));
    other.SetEffectsConst({nullptr, effect, nullptr});
    ASSERT_EQ(other.Effects().size(), 1U);
    EXPECT_EQ(other.Effects().front(), effect);
    EXPECT_EQ(other.EffectsConst().front(), effect);
}

TEST_F(EffectsSettingsTest, mayBeSetFromItsOwnEffects)
{
    const auto effect = settings.Effects().front();
    settings.SetEffectsConst(settings.EffectsConst());
    EXPECT_EQ(settings.Effects(), EffectList{effect});
}

TEST(SettingsPainterEffectsPackage, knowsItsKindAndStartsWithoutRestoringAlpha)
{
    using Package = SettingsPainterEffectsPackage;
    const auto blend = SettingsPainterEffectsPackageBlendSource::Create();
    const auto input = SettingsPainterEffectsPackageOneInput::Create();
    EXPECT_EQ(blend->GetKind(), Package::Kind::BlendSource);
    EXPECT_EQ(input->GetKind(), Package::Kind::OneInput);
    for (const auto& package : {blend, input}) {
        EXPECT_EQ(package->GetPackageName(), "");
        EXPECT_EQ(package->GetPresetName(), "");
        EXPECT_FALSE(package->IsNeedRestoreAlpha());
    }
}

TEST(SettingsPainterEffectsPackage, keepsWhatItIsGiven)
{
    const auto package = SettingsPainterEffectsPackageBlendSource::Create();
    package->SetPackageName("Looks");
    package->SetPresetName("a");
    package->SetIsNeedRestoreAlpha(true);
    EXPECT_EQ(CallText(*package), "BlendSource Looks/a restoring alpha");
    EXPECT_EQ(package->GetRefCount(), 1U);
}

TEST(ResetSettings, carriesItsIndex)
{
    EXPECT_EQ(ResetSettings(7).GetIndex(), 7U);
    EXPECT_EQ(ResetSettings(0xFFFFFFFF).GetIndex(), 0xFFFFFFFF);
}

/// Presets and edits are stored with these numbers, and hosts are built with them.
TEST(DrawerContractNumbers, stayAsTheyAre)
{
    EXPECT_EQ(EffectsSettingsPackage::NoIndex, 4294967295U);
    EXPECT_EQ(EffectsSettings::PhotoAlone, 1U);
    EXPECT_EQ(EffectsSettings::FullEffect, 1);
    EXPECT_EQ(EffectsSettings::NoEffect, 255);
    EXPECT_EQ(IQuindleDrawer::CropNothing, 0);
    EXPECT_EQ(IQuindleDrawer::CropToCentre, 1);
    EXPECT_EQ(IQuindleDrawer::FitByScaling, 0);
    EXPECT_EQ(IQuindleDrawer::FitWithoutEnlarging, 1);
    EXPECT_EQ(IQuindleDrawer::FlagDraft, 1U);
}
