// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/edit/Adjustments.h"

#include "FakeEditor.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "adjust/edit/SectionPlan.h"

#include <gmock/gmock.h>

using namespace LumetraAdjust;
using LumetraTest::FakeEditor;
using testing::HasSubstr;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Core::Property;

namespace {

class AdjustmentsTest : public testing::Test
{
protected:
    /// The part of an edit with effects that have a number each.
    static Property::Ptr Part(const std::vector<std::tuple<std::string, std::string, double>>& all)
    {
        const auto part = std::make_shared<Property>(std::string());
        const auto list = SerializerProperty::Create(part)->CreateCollection("effects");
        for (const auto& [effectID, parameter, value] : all) {
            const auto effect = list->AddElement()->CreateNode("effect");
            effect->Set("id", effectID);
            effect->Set(parameter, value);
        }
        return part;
    }

    FakeEditor editor;
    Adjustments adjustments{editor.DescribeEffects()};
};

} // namespace

TEST_F(AdjustmentsTest, areNeutralAtFirst)
{
    EXPECT_TRUE(adjustments.IsNeutral());
    EXPECT_TRUE(adjustments.Save()->GetEntries().empty());
}

TEST_F(AdjustmentsTest, areNeutralWhereAParameterOnlyShapes)
{
    adjustments.Set("vignette", {{"size", 30}});

    EXPECT_TRUE(adjustments.IsNeutral("vignette"));
    EXPECT_FALSE(adjustments.IsDefault("vignette"));
    adjustments.Set("vignette", {{"amount", -1}});
    EXPECT_FALSE(adjustments.IsNeutral("vignette"));
}

TEST_F(AdjustmentsTest, comeBackAsTheyWereSaved)
{
    adjustments.Set("exposure", {{"stops", 0.35}});
    adjustments.Set("vignette", {{"size", 30}});
    const auto saved = adjustments.Save();

    Adjustments others{editor.DescribeEffects()};
    EXPECT_EQ(others.Load(saved), QStringList());

    EXPECT_EQ(others.Get("exposure", "stops"), 0.35);
    EXPECT_EQ(others.Get("vignette", "size"), 30);
    EXPECT_EQ(others.Get("vignette", "amount"), 0);
}

TEST_F(AdjustmentsTest, leaveOutWhatIsWrongAndSaySo)
{
    const auto part =
        Part({{"glow", "amount", 1}, {"exposure", "stops", 2}, {"exposure", "stops", 1}});
    const auto list = SerializerProperty::Create(part)->GetCollection("effects");

    const QStringList reports = adjustments.Load(part);

    ASSERT_EQ(reports.size(), 2);
    EXPECT_THAT(reports[0].toStdString(), HasSubstr("“glow” is no effect"));
    EXPECT_THAT(reports[1].toStdString(), HasSubstr("“Exposure” is there twice"));
    EXPECT_EQ(adjustments.Get("exposure", "stops"), 2);
}

TEST_F(AdjustmentsTest, comeBackWithinTheirRanges)
{
    EXPECT_EQ(adjustments.Load(Part({{"exposure", "stops", 1e9}})), QStringList());

    EXPECT_EQ(adjustments.Get("exposure", "stops"), 5);
}

TEST_F(AdjustmentsTest, keepAnEffectAsItIsWhereItsNewValuesCannotBeRead)
{
    const auto part = std::make_shared<Property>(std::string());
    const auto list = SerializerProperty::Create(part)->CreateCollection("effects");
    const auto effect = list->AddElement()->CreateNode("effect");
    effect->Set("id", "vignette");
    effect->Set("amount", 2.0);
    effect->Set("size", "large");

    const QStringList reports = adjustments.Load(part);

    ASSERT_EQ(reports.size(), 1);
    EXPECT_THAT(reports[0].toStdString(), HasSubstr("size: expected number, found string"));
    EXPECT_TRUE(adjustments.IsDefault("vignette"));
    EXPECT_EQ(adjustments.Load(std::make_shared<Property>(std::string())), QStringList());
}

TEST_F(AdjustmentsTest, refuseWhatNobodyHasDescribed)
{
    EXPECT_THROW(adjustments.Set("glow", {{"amount", 1}}), Zorvik::Exception);
    EXPECT_THROW(adjustments.Set("exposure", {{"amount", 1}}), Zorvik::Exception);
}

TEST_F(AdjustmentsTest, areDrawnInTheOrderOfThePanel)
{
    auto effects = editor.DescribeEffects();
    effects.push_back({"ofALaterRelease", {}, {}, true});
    SectionPlan::Sort(effects);
    std::vector<std::string> ids;
    for (const auto& effect : effects)
        ids.push_back(effect.effectID);

    EXPECT_THAT(ids, testing::ElementsAre("exposure", "toneCurve", "colourGrading", "vignette",
                                          "ofALaterRelease"));
    EXPECT_EQ(SectionPlan::Find("ofALaterRelease"), SectionPlan::Sections - 1);
}
