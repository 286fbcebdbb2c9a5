// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/ResetSettings.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <gtest/gtest.h>

#include <string>

namespace LumetraTest {

/// Requirements on every IQuindleDrawer, together with its painter and the receiver of reset
/// requests. A Subject offers
/// - `IQuindleDrawer& GetDrawer()`, with a photo of 60 x 40 pixels open and nothing applied,
/// - `IResetReceiver& GetResetReceiver()`,
/// - `void ClosePhoto()`,
/// - `EffectPtr MakeEffect(double amount)`: always of the same id, seen at an amount other than 0,
///   and differently for different amounts in 0..1,
/// - `EffectPtr MakeOtherEffect()`: seen, and of another id,
/// - `GetShown()`: a value that is equal for two moments exactly when the drawer shows the same
///   picture, but for rounding; it waits for the rendering.
template <class Subject>
class DrawerContract : public testing::Test
{
protected:
    using Settings = Zorvik::Quindle::EffectsSettings;
    static constexpr unsigned NoIndex = Zorvik::Quindle::EffectsSettingsPackage::NoIndex;
    static constexpr int MaxPos = Zorvik::Quindle::IQuindleDrawerPainter::MAX_POS;

    Settings MakeSettings(double amount, const std::string& package, const std::string& preset,
                          unsigned index = NoIndex)
    {
        Settings settings(1);
        settings.Effects().push_back(subject.MakeEffect(amount));
        settings.Package().SetPackageName(package);
        settings.Package().SetPresetName(preset);
        settings.Package().SetIndex(index);
        settings.SetWaitApply(true);
        return settings;
    }

    void Apply(const Settings& settings)
    {
        drawer.ApplyEffect(settings, std::map<std::string, int>());
    }

    void Commit()
    {
        const Zorvik::Quindle::ConstEffectPtr empty =
            Zorvik::Quindle::EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty());
        drawer.ApplyEffect(empty, std::map<std::string, int>());
    }

    void Reset(unsigned index)
    {
        subject.GetResetReceiver().ResetPackage(Zorvik::Quindle::ResetSettings(index));
    }

    void StartBlend(const std::string& package)
    {
        Start(Zorvik::Quindle::SettingsPainterEffectsPackageBlendSource::Create(), package);
    }

    void StartOneInput(const std::string& package)
    {
        Start(Zorvik::Quindle::SettingsPainterEffectsPackageOneInput::Create(), package);
    }

    void UpdateBlend(int amount)
    {
        Settings update(1);
        update.SetBlendAmount(amount);
        drawer.GetPainter().UpdatePainting(update, 0);
    }

    void UpdateEffect(double amount)
    {
        Settings update(1);
        update.Effects().push_back(subject.MakeEffect(amount));
        drawer.GetPainter().UpdatePainting(update, 0);
    }

    void Finish(bool cancel) { drawer.GetPainter().FinishPainting(MaxPos, MaxPos, cancel); }

    std::string Top() { return drawer.GetPackage(NoIndex).GetPresetName(); }

    Subject subject;
    Zorvik::Quindle::IQuindleDrawer& drawer = subject.GetDrawer();

private:
    void Start(const boost::intrusive_ptr<Zorvik::Quindle::SettingsPainterEffectsPackage>& how,
               const std::string& package)
    {
        how->SetPackageName(package);
        how->SetPresetName("painted");
        how->SetIsNeedRestoreAlpha(true);
        drawer.GetPainter().StartPainting(how);
        drawer.GetPainter().SetPositions(MaxPos, MaxPos);
    }
};

TYPED_TEST_SUITE_P(DrawerContract);

TYPED_TEST_P(DrawerContract, startsWithoutPackages)
{
    const auto package = this->drawer.GetPackage(TestFixture::NoIndex);
    EXPECT_EQ(package.GetPackageName(), "");
    EXPECT_EQ(package.GetPresetName(), "");
    EXPECT_EQ(package.GetIndex(), TestFixture::NoIndex);
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), TestFixture::NoIndex);
    EXPECT_NE(this->drawer.GetDefaultPackageIndex(), TestFixture::NoIndex);
}

TYPED_TEST_P(DrawerContract, opensAPackageUnderTheNextFreeIndex)
{
    const unsigned next = this->drawer.GetDefaultPackageIndex();
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), next);
    const auto package = this->drawer.GetPackage(next);
    EXPECT_EQ(package.GetPackageName(), "Looks");
    EXPECT_EQ(package.GetPresetName(), "a");
    EXPECT_EQ(package.GetIndex(), next);
    EXPECT_GT(this->drawer.GetDefaultPackageIndex(), next) << "indexes count upwards";
}

TYPED_TEST_P(DrawerContract, opensAPackageUnderAGivenFreeIndex)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a", 7));
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), 7U);
    EXPECT_NE(this->drawer.GetDefaultPackageIndex(), 7U);
}

TYPED_TEST_P(DrawerContract, answersAnUnknownIndexWithADefaultMadePackage)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    EXPECT_EQ(this->drawer.GetPackage(1000).GetIndex(), TestFixture::NoIndex);
    EXPECT_EQ(this->drawer.GetPackage(1000).GetPackageName(), "");
    EXPECT_EQ(this->drawer.GetPackageIndex("Other"), TestFixture::NoIndex);
}

TYPED_TEST_P(DrawerContract, answersNoIndexWithThePackageAppliedLast)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    this->Apply(this->MakeSettings(0.25, "Frames", "b"));
    EXPECT_EQ(this->Top(), "b");
}

TYPED_TEST_P(DrawerContract, replacesThePackageOfTheSameIndex)
{
    const unsigned index = this->drawer.GetDefaultPackageIndex();
    this->Apply(this->MakeSettings(0.5, "Looks", "a", index));
    this->Apply(this->MakeSettings(0.25, "Looks", "b", index));
    EXPECT_EQ(this->drawer.GetPackage(index).GetPresetName(), "b");
    this->Reset(index);
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), TestFixture::NoIndex);
}

TYPED_TEST_P(DrawerContract, replacesTheSamePackageNameWhenTheIndexIsNotOpen)
{
    const auto before = this->subject.GetShown();
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const unsigned other = this->drawer.GetDefaultPackageIndex() + 5;
    this->Apply(this->MakeSettings(0.25, "Looks", "b", other));
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), other) << "it takes the new index";
    this->Reset(other);
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), TestFixture::NoIndex);
    EXPECT_EQ(this->subject.GetShown(), before) << "there was one package only";
}

TYPED_TEST_P(DrawerContract, withoutAnIndexThePackageThatIsReplacedByNameKeepsItsOwn)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a", 7));
    this->Apply(this->MakeSettings(0.25, "Looks", "b"));
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), 7U);
    EXPECT_EQ(this->drawer.GetPackage(7).GetPresetName(), "b");
}

// Apply A, switch A off silently, apply B, apply A again: A still knows its index.
TYPED_TEST_P(DrawerContract, presetsOfOnePanelNeverPileUp)
{
    const auto before = this->subject.GetShown();
    const unsigned first = this->drawer.GetDefaultPackageIndex();
    this->Apply(this->MakeSettings(0.5, "Looks", "a", first));
    this->Apply(this->MakeSettings(0.25, "Looks", "b", first));
    this->Apply(this->MakeSettings(0.5, "Looks", "a", first));
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), first);
    this->Reset(first);
    EXPECT_EQ(this->subject.GetShown(), before);
}

TYPED_TEST_P(DrawerContract, packagesOfOtherNamesStackUp)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const auto one = this->subject.GetShown();
    this->Apply(this->MakeSettings(0.25, "Frames", "b"));
    EXPECT_NE(this->subject.GetShown(), one);
    EXPECT_NE(this->drawer.GetPackageIndex("Looks"), this->drawer.GetPackageIndex("Frames"));
    this->Reset(this->drawer.GetPackageIndex("Frames"));
    EXPECT_EQ(this->subject.GetShown(), one);
    EXPECT_EQ(this->Top(), "a");
}

TYPED_TEST_P(DrawerContract, copiesWhatItIsGiven)
{
    auto settings = this->MakeSettings(0.5, "Looks", "a");
    this->Apply(settings);
    const auto shown = this->subject.GetShown();
    settings.Effects().front() = this->subject.MakeEffect(0.9);
    settings.Package().SetPresetName("changed");
    EXPECT_EQ(this->subject.GetShown(), shown);
    EXPECT_EQ(this->Top(), "a");
}

// Effects are shared by pointer, so the copy must be deep.
TYPED_TEST_P(DrawerContract, doesNotFollowAnEffectThatChangesAfterwards)
{
    auto settings = this->MakeSettings(0.5, "Looks", "a");
    this->Apply(settings);
    const auto shown = this->subject.GetShown();

    const auto& effect = settings.Effects().front();
    const auto other = this->subject.MakeEffect(0.9);
    for (const auto& parameter :
         Zorvik::Quindle::EffectRegistry::Find(effect->GetEffectID())->parameters)
        effect->SetParameter(parameter.name, other->GetParameter(parameter.name));
    // Something that makes the drawer look at its packages again.
    this->Apply(this->MakeSettings(0.25, "Frames", "b"));
    this->Reset(this->drawer.GetPackageIndex("Frames"));
    EXPECT_EQ(this->subject.GetShown(), shown);
}

TYPED_TEST_P(DrawerContract, blendAmountOneIsTheFullEffectAndTheLastTheSource)
{
    const auto source = this->subject.GetShown();
    auto settings = this->MakeSettings(0.5, "Looks", "a", 3);
    this->Apply(settings);
    const auto full = this->subject.GetShown();
    EXPECT_NE(full, source);
    settings.SetBlendAmount(128);
    this->Apply(settings);
    EXPECT_NE(this->subject.GetShown(), full);
    EXPECT_NE(this->subject.GetShown(), source);
}

TYPED_TEST_P(DrawerContract, committingClosesThePackagesAndKeepsThePicture)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const unsigned index = this->drawer.GetPackageIndex("Looks");
    this->Commit();
    const auto committed = this->subject.GetShown();
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), TestFixture::NoIndex);
    EXPECT_EQ(this->drawer.GetPackage(TestFixture::NoIndex).GetIndex(), TestFixture::NoIndex);

    this->Reset(index);
    EXPECT_EQ(this->subject.GetShown(), committed) << "a committed package cannot be taken off";
    this->Apply(this->MakeSettings(0.25, "Looks", "b"));
    EXPECT_NE(this->subject.GetShown(), committed) << "the next package stacks on top";
}

TYPED_TEST_P(DrawerContract, resettingTakesThePackageOff)
{
    const auto before = this->subject.GetShown();
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    EXPECT_NE(this->subject.GetShown(), before);
    this->Reset(this->drawer.GetPackageIndex("Looks"));
    EXPECT_EQ(this->subject.GetShown(), before);
    EXPECT_EQ(this->drawer.GetPackageIndex("Looks"), TestFixture::NoIndex);
}

TYPED_TEST_P(DrawerContract, resettingAnIndexThatIsNotOpenDoesNothing)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const auto shown = this->subject.GetShown();
    this->Reset(1000);
    this->Reset(TestFixture::NoIndex);
    EXPECT_EQ(this->subject.GetShown(), shown);
    EXPECT_EQ(this->Top(), "a");
}

TYPED_TEST_P(DrawerContract, aBlendPaintingShowsItsUpdatesAndKeepsTheLast)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const auto before = this->subject.GetShown();
    this->StartBlend("Looks");
    EXPECT_EQ(this->subject.GetShown(), before) << "starting shows nothing yet";
    this->UpdateBlend(60);
    const auto first = this->subject.GetShown();
    EXPECT_NE(first, before);
    this->UpdateBlend(200);
    const auto last = this->subject.GetShown();
    EXPECT_NE(last, first);
    this->Finish(false);
    EXPECT_EQ(this->subject.GetShown(), last);
}

TYPED_TEST_P(DrawerContract, aOneInputPaintingReplacesTheEffectsOfTheSameId)
{
    auto settings = this->MakeSettings(0.25, "Looks", "a");
    settings.Effects().push_back(this->subject.MakeOtherEffect());
    this->Apply(settings);
    const auto before = this->subject.GetShown();
    this->StartOneInput("Looks");
    this->UpdateEffect(0.75);
    const auto painted = this->subject.GetShown();
    EXPECT_NE(painted, before);
    this->Finish(false);
    EXPECT_EQ(this->subject.GetShown(), painted);

    this->StartOneInput("Looks");
    this->UpdateEffect(0.25);
    EXPECT_EQ(this->subject.GetShown(), before) << "the other effect stayed";
    this->Finish(false);
}

TYPED_TEST_P(DrawerContract, aOneInputUpdateLeavesTheBlendAmountAlone)
{
    auto settings = this->MakeSettings(0.25, "Looks", "a");
    settings.SetBlendAmount(100);
    this->Apply(settings);
    const auto before = this->subject.GetShown();
    this->StartOneInput("Looks");
    this->UpdateEffect(0.25);
    EXPECT_EQ(this->subject.GetShown(), before);
    this->Finish(false);
    EXPECT_EQ(this->subject.GetShown(), before);
}

TYPED_TEST_P(DrawerContract, aCancelledPaintingLeavesNothing)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const auto before = this->subject.GetShown();
    this->StartBlend("Looks");
    this->UpdateBlend(60);
    this->Finish(true);
    EXPECT_EQ(this->subject.GetShown(), before);
}

TYPED_TEST_P(DrawerContract, anUpdateWithoutAPaintingShowsNothing)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const auto before = this->subject.GetShown();
    this->UpdateBlend(60);
    this->Finish(false);
    EXPECT_EQ(this->subject.GetShown(), before);
    this->StartBlend("Looks");
    this->Finish(false);
    this->UpdateBlend(60);
    EXPECT_EQ(this->subject.GetShown(), before);
}

TYPED_TEST_P(DrawerContract, paintingOnAPackageThatIsNotOpenShowsNothing)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const auto before = this->subject.GetShown();
    this->StartBlend("Frames");
    this->UpdateBlend(60);
    EXPECT_EQ(this->subject.GetShown(), before);
    this->Finish(false);
    EXPECT_EQ(this->subject.GetShown(), before);
}

TYPED_TEST_P(DrawerContract, startingAPaintingFinishesTheOpenOne)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    this->StartBlend("Looks");
    this->UpdateBlend(60);
    const auto painted = this->subject.GetShown();
    this->StartBlend("Looks");
    this->Finish(true);
    EXPECT_EQ(this->subject.GetShown(), painted) << "only the second one was cancelled";
}

TYPED_TEST_P(DrawerContract, applyingFinishesTheOpenPainting)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    this->StartBlend("Looks");
    this->UpdateBlend(60);
    const auto painted = this->subject.GetShown();
    this->Apply(this->MakeSettings(0.25, "Frames", "b"));
    this->UpdateBlend(200);
    this->Reset(this->drawer.GetPackageIndex("Frames"));
    EXPECT_EQ(this->subject.GetShown(), painted);
}

TYPED_TEST_P(DrawerContract, committingFinishesTheOpenPainting)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    this->StartBlend("Looks");
    this->UpdateBlend(60);
    this->Commit();
    const auto committed = this->subject.GetShown();
    this->UpdateBlend(200);
    this->Finish(true);
    EXPECT_EQ(this->subject.GetShown(), committed);
}

TYPED_TEST_P(DrawerContract, resettingTakesThePaintingAlong)
{
    const auto before = this->subject.GetShown();
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    this->StartBlend("Looks");
    this->UpdateBlend(60);
    this->Reset(this->drawer.GetPackageIndex("Looks"));
    EXPECT_EQ(this->subject.GetShown(), before);
    this->UpdateBlend(200);
    this->Finish(false);
    EXPECT_EQ(this->subject.GetShown(), before);
}

TYPED_TEST_P(DrawerContract, rendersAPreviewOfTheWantedSize)
{
    Zorvik::Proc::FrameTarget target;
    target.width = 12;
    target.height = 12;
    const auto settings = this->MakeSettings(0.5, "Looks", "a");
    const auto crop = this->drawer.RenderPreview(target, settings, 1, 0, 0);
    EXPECT_EQ(crop.width, 12);
    EXPECT_EQ(crop.height, 12);
    const auto whole = this->drawer.RenderPreview(target, settings, 0, 0, 0);
    EXPECT_EQ(whole.width, 12);
    EXPECT_EQ(whole.height, 8);
    const auto draft = this->drawer.RenderPreview(target, settings, 1, 0, 1);
    EXPECT_EQ(draft.width, 12);
}

TYPED_TEST_P(DrawerContract, aPreviewNeverEnlargesWhenToldSo)
{
    Zorvik::Proc::FrameTarget target;
    target.width = 600;
    target.height = 400;
    const auto settings = this->MakeSettings(0.5, "Looks", "a");
    const auto kept = this->drawer.RenderPreview(target, settings, 0, 1, 0);
    EXPECT_EQ(kept.width, 60);
    EXPECT_EQ(kept.height, 40);
    const auto scaled = this->drawer.RenderPreview(target, settings, 0, 0, 0);
    EXPECT_EQ(scaled.width, 600);
}

TYPED_TEST_P(DrawerContract, countsUnknownPreviewPoliciesAsTheDefaults)
{
    Zorvik::Proc::FrameTarget target;
    target.width = 12;
    target.height = 12;
    const auto settings = this->MakeSettings(0.5, "Looks", "a");
    const auto frame = this->drawer.RenderPreview(target, settings, -4, 99, 0);
    EXPECT_EQ(frame.width, 12);
    EXPECT_EQ(frame.height, 12);
}

TYPED_TEST_P(DrawerContract, aPreviewChangesNothing)
{
    this->Apply(this->MakeSettings(0.5, "Looks", "a"));
    const auto before = this->subject.GetShown();
    Zorvik::Proc::FrameTarget target;
    target.width = 12;
    target.height = 12;
    this->drawer.RenderPreview(target, this->MakeSettings(0.9, "Frames", "b"), 1, 0, 0);
    EXPECT_EQ(this->subject.GetShown(), before);
    EXPECT_EQ(this->Top(), "a");
    EXPECT_EQ(this->drawer.GetPackageIndex("Frames"), TestFixture::NoIndex);
}

TYPED_TEST_P(DrawerContract, rendersNothingWithoutAPhoto)
{
    this->subject.ClosePhoto();
    Zorvik::Proc::FrameTarget target;
    target.width = 12;
    target.height = 12;
    EXPECT_TRUE(this->drawer.RenderPreview(target, this->MakeSettings(0.5, "Looks", "a"), 1, 0, 0)
                    .IsNull());
}

REGISTER_TYPED_TEST_SUITE_P(
    DrawerContract, startsWithoutPackages, opensAPackageUnderTheNextFreeIndex,
    opensAPackageUnderAGivenFreeIndex, answersAnUnknownIndexWithADefaultMadePackage,
    answersNoIndexWithThePackageAppliedLast, replacesThePackageOfTheSameIndex,
    replacesTheSamePackageNameWhenTheIndexIsNotOpen,
    withoutAnIndexThePackageThatIsReplacedByNameKeepsItsOwn, presetsOfOnePanelNeverPileUp,
    packagesOfOtherNamesStackUp, copiesWhatItIsGiven, doesNotFollowAnEffectThatChangesAfterwards,
    blendAmountOneIsTheFullEffectAndTheLastTheSource, committingClosesThePackagesAndKeepsThePicture,
    resettingTakesThePackageOff, resettingAnIndexThatIsNotOpenDoesNothing,
    aBlendPaintingShowsItsUpdatesAndKeepsTheLast, aOneInputPaintingReplacesTheEffectsOfTheSameId,
    aOneInputUpdateLeavesTheBlendAmountAlone, aCancelledPaintingLeavesNothing,
    anUpdateWithoutAPaintingShowsNothing, paintingOnAPackageThatIsNotOpenShowsNothing,
    startingAPaintingFinishesTheOpenOne, applyingFinishesTheOpenPainting,
    committingFinishesTheOpenPainting, resettingTakesThePaintingAlong,
    rendersAPreviewOfTheWantedSize, aPreviewNeverEnlargesWhenToldSo,
    countsUnknownPreviewPoliciesAsTheDefaults, aPreviewChangesNothing, rendersNothingWithoutAPhoto);

} // namespace LumetraTest
