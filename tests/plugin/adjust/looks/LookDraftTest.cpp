// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/looks/LookDraft.h"

#include "FakeEditor.h"

#include "adjust/curve/CurvePoints.h"
#include "adjust/edit/SectionPlan.h"

#include <gmock/gmock.h>

using namespace LumetraAdjust;
using LumetraEditor::LookVariable;
using LumetraEditor::NewLook;
using LumetraTest::FakeEditor;
using testing::ElementsAre;
using testing::Pair;

namespace {

constexpr int Light = 0, Effects = 6;

class LookDraftTest : public testing::Test
{
protected:
    LookDraftTest()
    {
        adjustments.Set("exposure", {{"stops", 0.33}});
        adjustments.Set("vignette", {{"amount", -2}, {"size", 30}});
    }

    static std::vector<std::string> IdsOf(const NewLook& look)
    {
        std::vector<std::string> ids;
        for (const auto& effect : look.settings.Effects())
            ids.push_back(effect->GetEffectID());
        return ids;
    }

    FakeEditor editor;
    Adjustments adjustments{editor.DescribeEffects()};
    LookDraft draft{adjustments};
};

} // namespace

TEST_F(LookDraftTest, hasTheChosenSectionsOnly)
{
    EXPECT_THAT(draft.FindSections(), ElementsAre(Light, Effects));

    const NewLook look = draft.Make({QStringLiteral("Mine"), {Effects}});

    EXPECT_THAT(IdsOf(look), ElementsAre("vignette"));
    EXPECT_EQ(look.settings.Effects()[0]->GetParameter("size"), 30);
    EXPECT_EQ(look.settings.GetBlendAmount(), 1);
    EXPECT_EQ(look.intensity, NewLook::Intensity::Blend);
    ASSERT_TRUE(look.sliders) << "none, rather than those of the catalogue, which round";
    EXPECT_TRUE(look.sliders->empty());
}

TEST_F(LookDraftTest, leavesNeutralEffectsOut)
{
    adjustments.Set("vignette", {{"amount", 0}});

    EXPECT_THAT(draft.FindSections(), ElementsAre(Light));
}

TEST_F(LookDraftTest, offersSlidersForWhatHasBeenMoved)
{
    EXPECT_THAT(draft.FindSliders({Light, Effects}),
                ElementsAre(Pair("exposure", "stops"), Pair("vignette", "amount"),
                            Pair("vignette", "size")));
    EXPECT_THAT(draft.FindSliders({Light}), ElementsAre(Pair("exposure", "stops")));
}

TEST_F(LookDraftTest, givesASliderAPositionAtTheExactValue)
{
    const NewLook look = draft.Make(
        {QStringLiteral("Mine"), {Light}, NewLook::Intensity::Blend, {{"exposure", "stops"}}});

    ASSERT_EQ(look.sliders->size(), 1U);
    const auto& slider = look.sliders->front();
    EXPECT_EQ(slider.title, QStringLiteral("Exposure"));
    const LookVariable& variable = slider.variables.at(0);
    const double step = (variable.end - variable.begin) / (slider.end - slider.begin);
    EXPECT_NEAR(variable.begin + (33 - slider.begin) * step, 0.33, 1e-12);
}

TEST_F(LookDraftTest, movesWhatActsAloneFromNeutral)
{
    const NewLook look =
        draft.Make({QStringLiteral("Mine"), {Light, Effects}, NewLook::Intensity::Sliders});

    ASSERT_EQ(look.variables.size(), 2U) << "the size of the vignette stays";
    EXPECT_EQ(look.variables[0].effectID, "exposure");
    EXPECT_EQ(look.variables[0].begin, 0);
    EXPECT_EQ(look.variables[0].end, 0.33);
    EXPECT_EQ(look.variables[1].parameter, "amount");
    EXPECT_EQ(look.variables[1].end, -2);
}

TEST_F(LookDraftTest, movesNothingThatHasASliderOfItsOwn)
{
    const NewLook look = draft.Make({QStringLiteral("Mine"),
                                     {Light, Effects},
                                     NewLook::Intensity::Sliders,
                                     {{"exposure", "stops"}}});

    ASSERT_EQ(look.variables.size(), 1U);
    EXPECT_EQ(look.variables[0].effectID, "vignette");
}

TEST_F(LookDraftTest, liftsACurveFromTheDiagonal)
{
    adjustments.Reset();
    CurvePoints curve;
    curve.Add({40, 60});
    adjustments.Set(CurvePoints::EffectID, curve.Write(1));

    const NewLook look = draft.Make({QStringLiteral("Mine"), {2}, NewLook::Intensity::Sliders});

    ASSERT_EQ(look.variables.size(), 1U);
    EXPECT_EQ(look.variables[0].parameter, "redY1");
    EXPECT_EQ(look.variables[0].begin, 40);
    EXPECT_EQ(look.variables[0].end, 60);
}
