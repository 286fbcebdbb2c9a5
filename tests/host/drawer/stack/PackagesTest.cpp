// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawerFixture.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Proc/SettingsEffectEmpty.h"
#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

namespace LumetraHost {
namespace {

constexpr unsigned None = 0xFFFFFFFF;

class Packages : public DrawerFixture
{
};

TEST_F(Packages, countUpwardsFromZero)
{
    EXPECT_EQ(m_drawer.GetDefaultPackageIndex(), 0u);
    Apply(MakePackage("a", None, 1));
    EXPECT_EQ(m_drawer.GetPackageIndex("a"), 0u);
    EXPECT_EQ(m_drawer.GetDefaultPackageIndex(), 1u);
    Apply(MakePackage("b", 5, 1));
    EXPECT_EQ(m_drawer.GetPackageIndex("b"), 5u);
    EXPECT_EQ(m_drawer.GetDefaultPackageIndex(), 6u);
}

TEST_F(Packages, areNoneInAFreshDrawer)
{
    EXPECT_EQ(m_drawer.GetPackageIndex("a"), None);
    EXPECT_EQ(m_drawer.GetPackage(None).GetIndex(), None);
    EXPECT_EQ(m_drawer.GetPackage(None).GetPackageName(), "");
    EXPECT_EQ(m_drawer.GetPackage(0).GetIndex(), None);
}

TEST_F(Packages, areFoundByTheirIndexAndAsTheOneAppliedLast)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("b", 1, 1));

    EXPECT_EQ(m_drawer.GetPackage(0).GetPackageName(), "a");
    EXPECT_EQ(m_drawer.GetPackage(0).GetPresetName(), "preset of a");
    EXPECT_EQ(m_drawer.GetPackage(None).GetPackageName(), "b");
}

TEST_F(Packages, replacedInTheirPlaceAreTheOnesAppliedLast)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("b", 1, 1));
    Apply(MakePackage("a", 0, 2));

    EXPECT_EQ(m_drawer.GetPackage(None).GetPackageName(), "a");
    m_drawer.ResetPackage(0);
    EXPECT_EQ(m_drawer.GetPackage(None).GetPackageName(), "b");
}

TEST_F(Packages, areReplacedByTheirIndexWhateverTheName)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("b", 0, 2));

    ASSERT_EQ(m_drawer.GetOpenPackages().size(), 1u);
    EXPECT_EQ(m_drawer.GetPackage(0).GetPackageName(), "b");
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({MakePackage("b", 0, 2)})));
}

TEST_F(Packages, ofTheSameNameTakeTheNewIndex)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("a", 3, 2));

    ASSERT_EQ(m_drawer.GetOpenPackages().size(), 1u);
    EXPECT_EQ(m_drawer.GetPackageIndex("a"), 3u);
    EXPECT_EQ(m_drawer.GetPackage(0).GetIndex(), None);
    EXPECT_EQ(m_drawer.GetDefaultPackageIndex(), 4u);
}

TEST_F(Packages, ofTheSameNameKeepTheirIndexWhenNoneIsGiven)
{
    Apply(MakePackage("a", 2, 1));
    Apply(MakePackage("a", None, 2));

    ASSERT_EQ(m_drawer.GetOpenPackages().size(), 1u);
    EXPECT_EQ(m_drawer.GetPackageIndex("a"), 2u);
}

TEST_F(Packages, replaceTheTopmostOfTheirName)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("b", 1, 1));
    Apply(MakePackage("a", 1, 2)); // the index counts first: two of one name
    Apply(MakePackage("a", 7, 3));

    EXPECT_EQ(m_drawer.GetPackage(0).GetPackageName(), "a");
    EXPECT_EQ(m_drawer.GetPackageIndex("a"), 7u);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({MakePackage("a", 0, 1), MakePackage("a", 7, 3)})));
}

// A remembers index 0; B, after A was switched off silently, brings a new one; A comes back with
// index 0.
TEST_F(Packages, ofOnePanelNeverPileUp)
{
    const auto presetA = MakePackage("panel", 0, 1);
    const auto presetB = MakePackage("panel", 1, 2);

    Apply(presetA);
    Apply(presetB);
    Apply(presetA);

    ASSERT_EQ(m_drawer.GetOpenPackages().size(), 1u);
    EXPECT_EQ(m_drawer.GetPackageIndex("panel"), 0u);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({presetA})));
}

TEST_F(Packages, stackAndAreReplacedInTheirPlace)
{
    const auto first = MakePackage("a", 0, 0.7);
    const auto second = MakePackage("b", 1, {MakeEffect("contrast", {{"amount", 40}})}, 100);
    const auto other = MakePackage("a", 0, {MakeEffect("saturation", {{"amount", -50}})});

    Apply(first);
    Apply(second);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({first, second})));
    Apply(other);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({other, second})));
}

TEST_F(Packages, areCopiedWhenApplied)
{
    const auto effect = MakeEffect("exposure", {{"stops", 1}});
    const auto settings = MakePackage("a", 0, {effect});
    const Image expected = Draw({settings});

    Apply(settings);
    effect->SetParameter("stops", -3);

    EXPECT_TRUE(HaveSamePixels(Result(), expected));
}

TEST_F(Packages, becomePartOfThePhotoWithTheEmptyEffect)
{
    const auto first = MakePackage("a", 0, 0.7);
    const auto second = MakePackage("a", 1, -0.4);
    Apply(first);
    Commit();

    EXPECT_EQ(m_drawer.GetPackageIndex("a"), None);
    EXPECT_EQ(m_drawer.GetPackage(None).GetIndex(), None);
    EXPECT_TRUE(HaveSamePixels(CommittedPhoto(), Draw({first})));
    EXPECT_TRUE(m_drawer.GetPhoto().SharesPixelsWith(m_photo));
    Apply(second);
    EXPECT_EQ(m_drawer.GetOpenPackages().size(), 1u);
    EXPECT_EQ(m_drawer.GetCommittedPackages().size(), 1u);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({first, second})));
}

TEST_F(Packages, areCommittedTogetherWithAnEffect)
{
    const auto first = MakePackage("a", 0, 0.7);
    const auto contrast = MakeEffect("contrast", {{"amount", 20}});
    Apply(first);

    ApplySingle(contrast);

    EXPECT_TRUE(m_drawer.GetOpenPackages().empty());
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({first, MakeSettings({contrast})})));
    EXPECT_TRUE(Result().SharesPixelsWith(CommittedPhoto()));
}

TEST_F(Packages, doNotAcceptANullEffect)
{
    EXPECT_THROW(ApplySingle(nullptr), Zorvik::Exception);
}

TEST_F(Packages, areTakenOffByTheirIndex)
{
    const auto first = MakePackage("a", 0, 0.7);
    const auto second = MakePackage("b", 1, -1);
    Apply(first);
    Apply(second);

    m_drawer.ResetPackage(0);
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({second})));
    m_drawer.ResetPackage(1);
    EXPECT_TRUE(HaveSamePixels(Result(), m_photo));
    m_observer.frames = 0;
    m_drawer.ResetPackage(1);
    EXPECT_EQ(m_observer.frames, 0);
}

TEST_F(Packages, keepTheirNumbersAcrossPhotos)
{
    Apply(MakePackage("a", None, 1));
    m_drawer.SetPhoto(MakeRandomPicture(30, 20, Image::Depth::Bits16, 1));

    EXPECT_TRUE(m_drawer.GetOpenPackages().empty());
    EXPECT_EQ(m_drawer.GetDefaultPackageIndex(), 1u);
    EXPECT_EQ(Result().GetWidth(), 30);
}

TEST_F(Packages, followTheRulesWithoutAPhoto)
{
    m_drawer.SetPhoto(Image());
    Apply(MakePackage("a", None, 1));

    EXPECT_EQ(m_drawer.GetPackageIndex("a"), 0u);
    EXPECT_TRUE(Result().IsNull());
    ApplySingle(MakeEffect("exposure", {{"stops", 1}}));
    EXPECT_EQ(m_drawer.GetPackageIndex("a"), None);
    EXPECT_TRUE(Result().IsNull());
}

TEST_F(Packages, startAgainAtTheLowestFreeNumberAfterTheLast)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("z", 0xFFFFFFFE, 1));
    EXPECT_EQ(m_drawer.GetDefaultPackageIndex(), 1u);
    Apply(MakePackage("b", None, 1));
    EXPECT_EQ(m_drawer.GetPackageIndex("b"), 1u);
}

TEST_F(Packages, leaveOutTheEffectsThatAreMissing)
{
    const auto glow = Zorvik::Quindle::EffectSettingsImpl::Create("glow");
    Apply(MakePackage("a", 0, {glow, MakeEffect("exposure", {{"stops", 1}})}));
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({MakePackage("a", 0, 1)})));
    Commit();
    EXPECT_TRUE(HaveSamePixels(Result(), Draw({MakePackage("a", 0, 1)})));
}

TEST_F(Packages, tellWhenThePictureChanges)
{
    Apply(MakePackage("a", 0, 1));
    EXPECT_EQ(m_observer.frames, 1);
    EXPECT_EQ(m_observer.commits, 0);
    Commit();
    EXPECT_EQ(m_observer.frames, 1);
    EXPECT_EQ(m_observer.commits, 1);
    m_drawer.SetPhoto(Image());
    EXPECT_EQ(m_observer.frames, 2);
    EXPECT_EQ(m_observer.commits, 2);
    m_drawer.RemoveObserver(&m_observer);
    Apply(MakePackage("a", 0, 1));
    EXPECT_EQ(m_observer.frames, 2);
}

TEST_F(Packages, areDrawnOnOneOverviewOfThePhotoForAllWhoShowIt)
{
    const auto overview = m_drawer.GetRecipe().overview;
    ASSERT_TRUE(overview);
    Apply(MakePackage("a", 0, 1));
    EXPECT_EQ(m_drawer.GetRecipe().overview, overview);
    EXPECT_EQ(m_drawer.GetCommittedRecipe().overview, overview);
    m_drawer.SetPhoto(m_photo);
    EXPECT_EQ(m_drawer.GetRecipe().overview, overview);
    m_drawer.SetPhoto(m_photo.Clone());
    EXPECT_NE(m_drawer.GetRecipe().overview, overview);
    m_drawer.SetPhoto(Image());
    EXPECT_FALSE(m_drawer.GetRecipe().overview);
}

TEST_F(Packages, areNotRenderedAgainBelowTheOneThatChanges)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("b", 1, Zorvik::Quindle::EffectList()));
    const Image below = Result();
    EXPECT_TRUE(Result().SharesPixelsWith(below));
    Apply(MakePackage("b", 1, 0.5));
    EXPECT_FALSE(Result().SharesPixelsWith(below));
    Apply(MakePackage("b", 1, Zorvik::Quindle::EffectList()));

    EXPECT_TRUE(Result().SharesPixelsWith(below));
}

TEST_F(Packages, thatAreOffKeepTheirPlaceAndAreNotDrawn)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("b", 1, -2));
    const Image both = DrawWhole(m_drawer);

    m_drawer.SetOn(0, false);

    EXPECT_EQ(m_drawer.GetPackageIndex("a"), 0u);
    EXPECT_EQ(m_drawer.GetRecipe().layers.size(), 1u);
    EXPECT_FALSE(HaveSamePixels(DrawWhole(m_drawer), both));
    m_drawer.SetOn(0, true);
    EXPECT_TRUE(HaveSamePixels(DrawWhole(m_drawer), both));
}

TEST_F(Packages, thatAreCommittedAndOffAreInNoPreview)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("b", 1, -2));
    m_drawer.SetOn(1, false);
    ApplySingle(Zorvik::Quindle::EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty()));
    Apply(MakePackage("c", 2, 0.5));

    EXPECT_EQ(m_drawer.CountCommitted(), 2u);
    EXPECT_EQ(m_drawer.GetRecipe().committed, 1u);
    EXPECT_EQ(m_drawer.GetRecipe().layers.size(), 2u);
    const int commits = m_observer.commits;
    m_drawer.SetOn(1, true);
    EXPECT_EQ(m_observer.commits, commits + 1);
    EXPECT_EQ(m_drawer.GetCommittedRecipe().layers.size(), 2u);
    m_drawer.SetOn(1, true);
    EXPECT_EQ(m_observer.commits, commits + 1) << "nothing has changed";
}

TEST_F(Packages, areOnAgainWhenAppliedOrPainted)
{
    Apply(MakePackage("a", 0, 1));
    Apply(MakePackage("b", 1, -2));
    m_drawer.SetOn(0, false);
    m_drawer.SetOn(1, false);

    Apply(MakePackage("a", 0, 2));
    EXPECT_EQ(m_drawer.GetRecipe().layers.size(), 1u);
    const auto painting = Zorvik::Quindle::SettingsPainterEffectsPackageBlendSource::Create();
    painting->SetPackageName("b");
    auto& painter = m_drawer.GetPainter();
    painter.StartPainting(painting);
    painter.UpdatePainting(MakePackage("b", 1, {}, 100), 0);
    EXPECT_EQ(m_drawer.GetRecipe().layers.size(), 2u);
    painter.FinishPainting(0, 0, true);
    EXPECT_EQ(m_drawer.GetRecipe().layers.size(), 1u) << "the painting was dropped";
    painter.StartPainting(painting);
    painter.UpdatePainting(MakePackage("b", 1, {}, 100), 0);
    painter.FinishPainting(0, 0, false);

    EXPECT_EQ(m_drawer.GetRecipe().layers.size(), 2u);
}

TEST_F(Packages, areArrangedByTheirNames)
{
    for (const char* const name : {"a", "b", "c", "d"})
        Apply(MakePackage(name, None, 1));
    const int frames = m_observer.frames;

    m_drawer.ArrangeOpen({"c", "gone", "b"});

    std::string order;
    for (const auto& package : m_drawer.GetOpenPackages())
        order += package.Package().GetPackageName();
    EXPECT_EQ(order, "cbad");
    EXPECT_EQ(m_observer.frames, frames + 1);
    m_drawer.ArrangeOpen({"c", "b"});
    EXPECT_EQ(m_observer.frames, frames + 1) << "nothing has changed";
}

/// A stack as the host makes it when a lower layer is opened again.
class PackagesAbove : public Packages
{
protected:
    PackagesAbove()
    {
        Apply(MakePackage("a", None, 1));
        Apply(MakePackage("b", None, -2));
        Apply(MakePackage("c", None, 0.5));
        m_all = DrawWhole(m_drawer);
        const auto stack = m_drawer.GetStack();
        m_drawer.SetCommitted({stack[0]}, {stack[2]});
        Apply(MakePackage("b", None, -2));
    }

    void Commit()
    {
        ApplySingle(
            Zorvik::Quindle::EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty()));
    }
    std::string GetNames() const
    {
        std::string names;
        for (const StackedPackage& package : m_drawer.GetStack())
            names += package.settings->Package().GetPackageName();
        return names;
    }

    Image m_all;
};

TEST_F(PackagesAbove, areDrawnAndFoundByNoOperation)
{
    EXPECT_TRUE(HaveSamePixels(DrawWhole(m_drawer), m_all));
    EXPECT_EQ(GetNames(), "abc");
    EXPECT_EQ(m_drawer.CountCommitted(), 1u);
    EXPECT_EQ(m_drawer.CountOpen(), 1u);
    EXPECT_EQ(m_drawer.GetPackageIndex("c"), None);
    EXPECT_EQ(m_drawer.GetPackage(None).GetPackageName(), "b");
    EXPECT_EQ(m_drawer.GetCommittedRecipe().layers.size(), 1u);
    EXPECT_EQ(m_drawer.GetRecipeWith(MakePackage("b", None, 3)).layers.size(), 3u);
    Apply(MakePackage("c", None, 2));

    EXPECT_EQ(GetNames(), "abcc") << "a package of that name is opened below it";
    EXPECT_EQ(m_drawer.CountOpen(), 2u);
}

TEST_F(PackagesAbove, areSeenWhileTheOpenOneIsPainted)
{
    const auto painting = Zorvik::Quindle::SettingsPainterEffectsPackageBlendSource::Create();
    painting->SetPackageName("b");
    auto& painter = m_drawer.GetPainter();
    painter.StartPainting(painting);
    painter.UpdatePainting(MakePackage("b", None, {}, 100), 0);

    const auto recipe = m_drawer.GetRecipe();
    ASSERT_EQ(recipe.layers.size(), 3u);
    EXPECT_EQ(recipe.layers[1].paintedBlend, 100);
    EXPECT_FALSE(recipe.layers[2].paintedBlend);
    painter.FinishPainting(0, 0, true);
    EXPECT_TRUE(HaveSamePixels(DrawWhole(m_drawer), m_all));
}

TEST_F(PackagesAbove, areCommittedAboveThePackagesThatACommitTakes)
{
    Commit();

    EXPECT_EQ(GetNames(), "abc");
    EXPECT_EQ(m_drawer.CountCommitted(), 3u);
    EXPECT_TRUE(HaveSamePixels(DrawWhole(m_drawer), m_all));
    Apply(MakePackage("d", None, 1));
    EXPECT_EQ(GetNames(), "abcd");
}

TEST_F(PackagesAbove, areCommittedOnRequestOnlyWhereNothingIsOpen)
{
    EXPECT_FALSE(m_drawer.CommitAbove());
    m_drawer.ResetPackage(m_drawer.GetPackageIndex("b"));
    const int commits = m_observer.commits;

    EXPECT_TRUE(m_drawer.CommitAbove());

    EXPECT_EQ(m_observer.commits, commits + 1);
    EXPECT_EQ(m_drawer.CountCommitted(), 2u);
    EXPECT_FALSE(m_drawer.CommitAbove()) << "there are none any more";
    EXPECT_EQ(GetNames(), "ac");
}

TEST_F(PackagesAbove, goOffAndGoWithThePhoto)
{
    m_drawer.SetOn(2, false);
    EXPECT_FALSE(HaveSamePixels(DrawWhole(m_drawer), m_all));
    EXPECT_EQ(m_drawer.GetRecipe().layers.size(), 2u);
    m_drawer.SetOn(2, true);
    EXPECT_TRUE(HaveSamePixels(DrawWhole(m_drawer), m_all));

    m_drawer.SetPhoto(m_drawer.GetPhoto());

    EXPECT_EQ(GetNames(), "");
    EXPECT_TRUE(m_drawer.GetRecipe().layers.empty());
}

TEST_F(Packages, rememberWhoHasAppliedThem)
{
    m_drawer.ApplyAs("one", MakePackage("a", None, 1));
    m_drawer.ApplyAs("two", MakePackage("b", None, 1));
    m_drawer.CommitAs("three", MakeEffect("exposure", {{"stops", 1.0}}));
    m_drawer.ApplyAs("four", MakePackage("a", None, 1));

    std::string origins;
    for (const StackedPackage& package : m_drawer.GetStack())
        origins += package.origin + ' ';
    EXPECT_EQ(origins, "one two three four ");
}

} // namespace
} // namespace LumetraHost
