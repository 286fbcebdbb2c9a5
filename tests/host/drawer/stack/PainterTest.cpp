// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IQuindleDrawerPainter;
using Zorvik::Quindle::SettingsPainterEffectsPackage;
using Zorvik::Quindle::SettingsPainterEffectsPackageBlendSource;
using Zorvik::Quindle::SettingsPainterEffectsPackageOneInput;

constexpr int Whole = IQuindleDrawerPainter::MAX_POS;

class PainterScenario : public DrawerFixture
{
protected:
    void Start(const boost::intrusive_ptr<SettingsPainterEffectsPackage>& package,
               const std::string& name)
    {
        package->SetPackageName(name);
        package->SetIsNeedRestoreAlpha(true);
        m_painter.StartPainting(package);
        m_painter.SetPositions(Whole, Whole);
    }

    void StartBlend(const std::string& name)
    {
        Start(SettingsPainterEffectsPackageBlendSource::Create(), name);
    }

    void StartEffects(const std::string& name)
    {
        Start(SettingsPainterEffectsPackageOneInput::Create(), name);
    }

    void UpdateBlend(int amount)
    {
        EffectsSettings update(1);
        update.SetBlendAmount(amount);
        m_painter.UpdatePainting(update, 0);
    }

    void UpdateEffects(const Zorvik::Quindle::EffectList& effects)
    {
        m_painter.UpdatePainting(MakeSettings(effects), 0);
    }

    void Finish(bool cancel = false) { m_painter.FinishPainting(Whole, Whole, cancel); }

    static EffectsSettings MakePanel(double stops, int blendAmount)
    {
        return MakePackage(
            "panel", 1,
            {MakeEffect("exposure", {{"stops", stops}}), MakeEffect("contrast", {{"amount", 30}})},
            blendAmount);
    }

    IQuindleDrawerPainter& m_painter = m_drawer.GetPainter();
    const EffectsSettings m_bottom = MakePackage("bottom", 0, 0.3);
    const EffectsSettings m_panel = MakePanel(1, 1);
    const EffectsSettings m_top = MakePackage("top", 2, -0.2);
};

TEST_F(PainterScenario, aBlendTickIsTheIntegerBlendOfTheFinishedFrames)
{
    Apply(m_bottom);
    Apply(m_panel);
    const Image below = Draw({m_bottom});
    const Image effect = Draw({m_bottom, m_panel});
    StartBlend("panel");
    for (const int amount : {1, 52, 130, 254, 255}) {
        UpdateBlend(amount);
        EXPECT_TRUE(HaveSamePixels(Result(), Renderer().Interpolate(below, effect, amount)))
            << amount;
    }
}

TEST_F(PainterScenario, aFinishedBlendIsWhatApplyingGives)
{
    Apply(m_bottom);
    Apply(m_panel);
    StartBlend("panel");
    UpdateBlend(77);
    UpdateBlend(130);
    Result();
    Finish();

    EXPECT_TRUE(HaveSamePixels(Result(), Draw({m_bottom, MakePanel(1, 130)})));
    EXPECT_EQ(m_drawer.GetOpenPackages()[1].GetBlendAmount(), 130);
    EXPECT_EQ(m_drawer.GetPackageIndex("panel"), 1u);
}

TEST_F(PainterScenario, paintsBelowOtherPackages)
{
    Apply(m_bottom);
    Apply(m_panel);
    Apply(m_top);
    StartBlend("panel");
    UpdateBlend(90);
    const Image tick = Renderer().Interpolate(Draw({m_bottom}), Draw({m_bottom, m_panel}), 90);
    EXPECT_TRUE(HaveSamePixels(Result(), Renderer().Render(tick, m_top)));
    Finish();
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({m_bottom, MakePanel(1, 90), m_top})));
}

TEST_F(PainterScenario, aBlendStartsFromTheFullEffectWhateverThePackagesAmount)
{
    Apply(MakePanel(1, 200));
    StartBlend("panel");
    UpdateBlend(1);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({m_panel})));
}

TEST_F(PainterScenario, aCancelledPaintingLeavesThePackage)
{
    Apply(m_panel);
    const Image before = Result();
    StartBlend("panel");
    UpdateBlend(180);
    Result();
    Finish(true);

    EXPECT_TRUE(HaveSamePixels(Result(), before));
    EXPECT_EQ(m_drawer.GetOpenPackages()[0].GetBlendAmount(), 1);
}

TEST_F(PainterScenario, effectsTakeThePlaceOfThoseOfTheSameId)
{
    Apply(MakePanel(1, 40));
    StartEffects("panel");
    UpdateEffects({MakeEffect("exposure", {{"stops", 3}})});
    Result();
    UpdateEffects(
        {MakeEffect("exposure", {{"stops", -2}}), MakeEffect("vignette", {{"amount", -2}})});

    EXPECT_TRUE(HaveSamePixels(Result(), Draw({MakePanel(-2, 40)})));
    EXPECT_EQ(m_drawer.GetOpenPackages()[0].Effects()[0]->GetParameter("stops"), 1);
    Finish();
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({MakePanel(-2, 40)})));
    const EffectsSettings package = m_drawer.GetOpenPackages()[0];
    EXPECT_EQ(package.Effects()[0]->GetParameter("stops"), -2);
    EXPECT_EQ(package.Effects().size(), 2u);
    EXPECT_EQ(package.GetBlendAmount(), 40);
}

TEST_F(PainterScenario, cancelledEffectsLeaveThePackage)
{
    Apply(m_panel);
    StartEffects("panel");
    UpdateEffects({MakeEffect("exposure", {{"stops", 3}})});
    Result();
    Finish(true);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({m_panel})));
}

TEST_F(PainterScenario, theSecondEffectOfAnIdStaysWhenOneIsGiven)
{
    Apply(MakePackage(
        "panel", 0,
        {MakeEffect("exposure", {{"stops", 1}}), MakeEffect("exposure", {{"stops", 2}})}));
    StartEffects("panel");
    UpdateEffects({MakeEffect("exposure", {{"stops", -1}})});
    Finish();

    const EffectsSettings package = m_drawer.GetOpenPackages()[0];
    EXPECT_EQ(package.Effects()[0]->GetParameter("stops"), -1);
    EXPECT_EQ(package.Effects()[1]->GetParameter("stops"), 2);
}

TEST_F(PainterScenario, updatesAreCopied)
{
    Apply(m_panel);
    StartEffects("panel");
    const auto effect = MakeEffect("exposure", {{"stops", -1}});
    UpdateEffects({effect});
    effect->SetParameter("stops", 4);
    Finish();
    EXPECT_EQ(m_drawer.GetOpenPackages()[0].Effects()[0]->GetParameter("stops"), -1);
}

TEST_F(PainterScenario, anUpdateWithoutAPaintingDoesNothing)
{
    Apply(m_panel);
    const Image before = Result();
    m_observer.frames = 0;
    UpdateBlend(200);
    Finish();

    EXPECT_TRUE(Result().SharesPixelsWith(before));
    EXPECT_EQ(m_observer.frames, 0);
}

TEST_F(PainterScenario, anUpdateOfAPackageThatIsNotOpenDoesNothing)
{
    Apply(m_panel);
    const Image before = Result();
    m_observer.frames = 0;
    StartBlend("other");
    UpdateBlend(200);
    Finish();

    EXPECT_TRUE(Result().SharesPixelsWith(before));
    EXPECT_EQ(m_drawer.GetOpenPackages().size(), 1u);
    EXPECT_EQ(m_observer.frames, 0);
}

TEST_F(PainterScenario, aStartFinishesThePaintingThatIsOpen)
{
    Apply(m_bottom);
    Apply(m_panel);
    StartBlend("panel");
    UpdateBlend(120);
    StartEffects("bottom");

    EXPECT_EQ(m_drawer.GetOpenPackages()[1].GetBlendAmount(), 120);
    UpdateEffects({MakeEffect("exposure", {{"stops", -0.5}})});
    Finish();
    EXPECT_TRUE(
        HaveSamePixels(Result(), Draw({MakePackage("bottom", 0, -0.5), MakePanel(1, 120)})));
}

TEST_F(PainterScenario, applyingFinishesThePaintingThatIsOpen)
{
    Apply(m_panel);
    StartBlend("panel");
    UpdateBlend(120);
    Apply(m_top);

    EXPECT_EQ(m_drawer.GetOpenPackages()[0].GetBlendAmount(), 120);
    UpdateBlend(200);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({MakePanel(1, 120), m_top})));
}

TEST_F(PainterScenario, committingFinishesThePaintingThatIsOpen)
{
    Apply(m_panel);
    StartBlend("panel");
    UpdateBlend(120);
    Result();
    Commit();

    EXPECT_TRUE(HaveSamePixels(CommittedPhoto(), Draw({MakePanel(1, 120)})));
}

TEST_F(PainterScenario, aResetTakesThePackageOffWithItsPainting)
{
    Apply(m_bottom);
    Apply(m_panel);
    StartBlend("panel");
    UpdateBlend(120);
    m_drawer.ResetPackage(1);
    Apply(m_panel);
    UpdateBlend(30);
    Finish();

    EXPECT_TRUE(HaveSamePixels(Result(), Draw({m_bottom, m_panel})));
}

TEST_F(PainterScenario, aResetOfAnotherPackageLeavesThePainting)
{
    Apply(m_bottom);
    Apply(m_panel);
    Apply(m_top);
    StartBlend("panel");
    UpdateBlend(120);
    Result();
    m_drawer.ResetPackage(0);
    const Image tick = Renderer().Interpolate(m_photo, Draw({m_panel}), 120);
    EXPECT_TRUE(HaveSamePixels(Result(), Renderer().Render(tick, m_top)));
    m_drawer.ResetPackage(2);
    EXPECT_TRUE(HaveSamePixels(Result(), tick));
    Finish();
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({MakePanel(1, 120)})));
}

TEST_F(PainterScenario, aNewPhotoDropsThePainting)
{
    Apply(m_panel);
    StartBlend("panel");
    UpdateBlend(120);
    m_drawer.SetPhoto(m_photo);
    Apply(m_panel);
    UpdateBlend(30);
    Finish();
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({m_panel})));
}

TEST_F(PainterScenario, tellsOfEveryTickAndOfTheEnd)
{
    Apply(m_panel);
    m_observer.frames = 0;
    StartBlend("panel");
    EXPECT_EQ(m_observer.frames, 0);
    UpdateBlend(120);
    UpdateBlend(121);
    EXPECT_EQ(m_observer.frames, 2);
    Finish();
    EXPECT_EQ(m_observer.frames, 3);
    Finish();
    EXPECT_EQ(m_observer.frames, 3);
}

TEST_F(PainterScenario, isPartOfTheShownStackAndNotOfTheAppliedOne)
{
    Apply(m_panel);
    m_drawer.SetOn(0, false);
    StartBlend("panel");
    EXPECT_FALSE(m_drawer.GetShownStack().at(0).isOn) << "nothing is painted yet";
    UpdateBlend(100);

    EXPECT_EQ(m_drawer.GetShownStack().at(0).settings->GetBlendAmount(), 100);
    EXPECT_TRUE(m_drawer.GetShownStack().at(0).isOn);
    EXPECT_EQ(m_drawer.GetStack().at(0).settings->GetBlendAmount(), m_panel.GetBlendAmount());
    Finish();
    EXPECT_EQ(m_drawer.GetStack().at(0).settings->GetBlendAmount(), 100);
}

TEST_F(PainterScenario, refusesANullPackage)
{
    EXPECT_THROW(m_painter.StartPainting(nullptr), Zorvik::Exception);
}

TEST_F(PainterScenario, keepsAPictureThatSomebodyStillHolds)
{
    Apply(m_panel);
    StartBlend("panel");
    UpdateBlend(100);
    const Image held = Result();
    const Image copy = held.Clone();
    const Image photoCopy = m_photo.Clone();
    for (const int amount : {10, 20, 200, 255, 1, 90}) {
        UpdateBlend(amount);
        Result();
    }
    EXPECT_TRUE(HaveSamePixels(held, copy));
    EXPECT_TRUE(HaveSamePixels(m_drawer.GetPhoto().ToImage(), photoCopy));
}

} // namespace
} // namespace LumetraHost
