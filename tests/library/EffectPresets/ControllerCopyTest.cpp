// SPDX-License-Identifier: MIT
#include "ControllerFixture.h"

#include <QUuid>

using namespace LumetraTest;
using testing::ElementsAre;

namespace {

class ControllerCopyTest : public ControllerFixture
{
protected:
    /// A preset of which nothing is at its default.
    OpenController::Ptr BuildUsed()
    {
        const auto preset =
            BuildAttached({{"name", "Warm"},
                           {"id", "film.warm"},
                           {"popular", true},
                           {"image", "warm.png"},
                           {"previewCropPolicy", 0},
                           {"previewFitPolicy", 1},
                           {"settings", StoredNode{{"effects", StoredList{Bench::Tone(1, 0.25)}}}},
                           {"intensity", Bench::Blending(80)}},
                          BiasAndAmount());
        auto sliders = preset->GetSettings();
        sliders[0].SetValue(90);
        preset->SetSettingsValues(sliders);
        preset->SetFavourite(true);
        preset->SetApplied(true, true);
        preset->SaveChanges();
        preset->SetWaitApply(true);
        preset->m_colorFlag = true;
        preset->SetIntensity(70, true);
        log.Clear();
        return preset;
    }

    static OpenController::Ptr Copy(const OpenController::Ptr& preset)
    {
        return new OpenController(*preset);
    }
};

} // namespace

TEST_F(ControllerCopyTest, hasAFreshIdInBraceForm)
{
    const auto preset = BuildUsed();
    const auto copy = Copy(preset);
    const QString id = QString::fromStdString(copy->GetID());
    EXPECT_EQ(id.size(), 38);
    EXPECT_EQ(QUuid(id).toString(), id);
    EXPECT_FALSE(QUuid(id).isNull());
    EXPECT_NE(Copy(preset)->GetID(), copy->GetID());
    EXPECT_EQ(preset->GetID(), "film.warm");
}

TEST_F(ControllerCopyTest, startsWithoutStateGroupAndWorkspace)
{
    const auto copy = Copy(BuildUsed());
    EXPECT_FALSE(copy->IsApplied());
    EXPECT_FALSE(copy->m_committed);
    EXPECT_FALSE(copy->IsFavourite());
    EXPECT_FALSE(copy->IsPopular());
    EXPECT_FALSE(copy->m_groupEditable);
    EXPECT_FALSE(copy->m_painting);
    EXPECT_EQ(copy->GetName(), "Warm");
    EXPECT_EQ(copy->m_image, "");
    EXPECT_EQ(copy->m_group, "");
    EXPECT_EQ(copy->m_previewCropPolicy, 1);
    EXPECT_EQ(copy->m_previewFitPolicy, 0);
    EXPECT_EQ(copy->m_color.red, 0);
    EXPECT_EQ(copy->m_color.alpha, 255);
    EXPECT_FALSE(copy->m_colorFlag);
    EXPECT_EQ(copy->m_resetIndex, 0xFFFFFFFF);
    EXPECT_EQ(copy->GetWorkspaceController(false), nullptr);
    EXPECT_EQ(copy->GetRefCount(), 1U);
    EXPECT_EQ(copy->parent(), nullptr);
}

TEST_F(ControllerCopyTest, keepsPackageNameAndWaitApply)
{
    const auto copy = Copy(BuildUsed());
    EXPECT_TRUE(copy->m_waitApply);
    EXPECT_EQ(copy->m_packageName, "Looks");
}

TEST_F(ControllerCopyTest, startsFromTheTunedSliderValues)
{
    const auto preset = BuildUsed();
    const auto copy = Copy(preset);
    EXPECT_THAT(Values(copy->GetSettings()), ElementsAre(90));
    EXPECT_THAT(Values(copy->GetSettingsDefault()), ElementsAre(90));
    EXPECT_THAT(Values(preset->GetSettingsDefault()), ElementsAre(25));
    EXPECT_FALSE(copy->ResetSettingsValues());
}

TEST_F(ControllerCopyTest, clonesItsIntensityAndEffects)
{
    const auto preset = BuildUsed();
    const auto copy = Copy(preset);
    EXPECT_EQ(copy->GetIntensity(), 70);
    copy->SetIntensity(10, false);
    EXPECT_EQ(preset->GetIntensity(), 70);

    copy->m_effectSettings.Effects()[0]->SetParameter("gain", 5);
    EXPECT_EQ(preset->m_effectSettings.Effects()[0]->GetParameter("gain"), 1.0);
    EXPECT_EQ(copy->m_effectSettings.GetBlendAmount(), preset->m_effectSettings.GetBlendAmount());
    EXPECT_NE(copy->m_previewEffectSettings.Effects()[0],
              preset->m_previewEffectSettings.Effects()[0]);
}

TEST_F(ControllerCopyTest, ofAPresetWithoutIntensityHasNoneEither)
{
    const auto preset = OpenController::Create();
    EXPECT_EQ(Copy(preset)->m_intensitySetting, nullptr);
    EXPECT_EQ(Copy(preset)->GetIntensity(), 0);
}

TEST_F(ControllerCopyTest, madeWhileTheDrawerIsLockedStartsUnlockedAndThenListens)
{
    const auto preset = BuildUsed();
    LockDrawer(true);
    EXPECT_TRUE(preset->m_drawerLocked);
    const auto copy = Copy(preset);
    EXPECT_FALSE(copy->m_drawerLocked);
    EXPECT_FALSE(OpenController::Create()->m_drawerLocked) << "nor does a new one hear the last";
    LockDrawer(true);
    EXPECT_TRUE(copy->m_drawerLocked);
    LockDrawer(false);
    EXPECT_FALSE(copy->m_drawerLocked);
    EXPECT_FALSE(preset->m_drawerLocked);
}
