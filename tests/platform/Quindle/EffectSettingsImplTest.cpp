// SPDX-License-Identifier: MIT
#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "support/CallLog.h"
#include "support/RegisteredEffects.h"
#include "support/StoredForm.h"

#include <gtest/gtest.h>

using namespace LumetraTest;
using namespace Zorvik::Quindle;

namespace {

class EffectSettingsImplTest : public testing::Test
{
protected:
    static EffectPtr Read(const StoredNode& node)
    {
        const auto serializer = node.ToSerializer("f");
        const auto effect = IEffectSettings::CreateEffectSettings(serializer);
        effect->Deserialize(serializer);
        return effect;
    }

    CallLog log;
    RegisteredEffects effects{log};
};

} // namespace

TEST_F(EffectSettingsImplTest, theEmptyEffectHasNoParameters)
{
    const auto effect = EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty());
    EXPECT_EQ(effect->GetEffectID(), "empty");
    EXPECT_EQ(StoredText(*effect), "{id: \"empty\"}");
}

TEST_F(EffectSettingsImplTest, anUnknownIdStartsWithoutParameters)
{
    const auto effect = EffectSettingsImpl::Create("missing");
    EXPECT_EQ(effect->GetEffectID(), "missing");
    EXPECT_FALSE(effect->HasParameter("amount"));
}

TEST_F(EffectSettingsImplTest, namesTheEffectAndTheUnknownParameter)
{
    const auto effect = EffectSettingsImpl::Create("plain");
    try {
        effect->GetParameter("radius");
        FAIL();
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(), "effect \"plain\" has no parameter \"radius\"");
    }
}

TEST_F(EffectSettingsImplTest, unknownKeysOfEveryKindSurviveARoundTrip)
{
    const StoredNode stored{{"id", "plain"},
                            {"amount", 0.75},
                            {"text", "x"},
                            {"flag", true},
                            {"whole", 3},
                            {"number", 0.1},
                            {"node", StoredNode{{"deep", StoredNode{{"list", StoredList{}}}}}},
                            {"list", StoredList{StoredNode("a", {{"x", 1}}), StoredNode{}}}};
    EXPECT_EQ(StoredText(*Read(stored)), StoredText(*stored.ToProperty()));
}

TEST_F(EffectSettingsImplTest, aCloneKeepsUnknownKeysAsItsOwn)
{
    const StoredNode stored{{"id", "plain"}, {"amount", 0.75}, {"table", StoredNode{{"x", 1}}}};
    auto effect = Read(stored);
    const auto clone = effect->Clone();
    effect->Deserialize(StoredNode{{"table", StoredNode{{"x", 2}}}}.ToSerializer());
    effect.reset();
    EXPECT_EQ(StoredText(*clone), StoredText(*stored.ToProperty()));
}

TEST_F(EffectSettingsImplTest, everyNumberOfAnUnregisteredEffectIsAParameter)
{
    const auto effect =
        Read({{"id", "missing"}, {"amount", 0.5}, {"whole", 2}, {"text", "x"}, {"flag", false}});
    EXPECT_EQ(effect->GetEffectID(), "missing");
    EXPECT_EQ(effect->GetParameter("amount"), 0.5);
    EXPECT_EQ(effect->GetParameter("whole"), 2.0);
    EXPECT_FALSE(effect->HasParameter("text"));
    EXPECT_FALSE(effect->HasParameter("flag"));
    EXPECT_FALSE(effect->HasParameter("id"));

    effect->SetParameter("amount", 0.25);
    EXPECT_EQ(StoredText(*effect),
              "{id: \"missing\", amount: 0.25, whole: 2.0, text: \"x\", flag: false}");
}

TEST_F(EffectSettingsImplTest, numbersThatARegisteredEffectDoesNotKnowAreNoParameters)
{
    const auto effect = Read({{"id", "plain"}, {"radius", 4.5}});
    EXPECT_FALSE(effect->HasParameter("radius"));
    EXPECT_EQ(StoredText(*effect), "{id: \"plain\", amount: 0.25, radius: 4.5}");
}

TEST_F(EffectSettingsImplTest, readingAgainReplacesWhatWasKept)
{
    const auto effect =
        Read({{"id", "plain"}, {"note", "old"}, {"list", StoredList{StoredNode{}}}});
    effect->Deserialize(StoredNode{{"note", "new"}, {"list", StoredList{}}}.ToSerializer());
    EXPECT_EQ(StoredText(*effect), "{id: \"plain\", amount: 0.25, note: \"new\", list: []}");
}

TEST_F(EffectSettingsImplTest, namesThePlaceOfABrokenParameter)
{
    try {
        Read({{"id", "plain"}, {"amount", "much"}});
        FAIL();
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(), "f/amount: expected number, found string");
    }
}

TEST_F(EffectSettingsImplTest, readingFromNothingChangesNothing)
{
    const auto effect = EffectSettingsImpl::Create("plain");
    effect->Deserialize(nullptr);
    EXPECT_EQ(StoredText(*effect), "{id: \"plain\", amount: 0.25}");
}

TEST_F(EffectSettingsImplTest, isMadeForUnknownIdsAndMissingNodes)
{
    EXPECT_EQ(IEffectSettings::CreateEffectSettings(nullptr)->GetEffectID(), "");
    EXPECT_EQ(IEffectSettings::CreateEffectSettings(StoredNode{}.ToSerializer())->GetEffectID(),
              "");
    EXPECT_EQ(IEffectSettings::CreateEffectSettings(StoredNode{{"id", "missing"}}.ToSerializer())
                  ->GetEffectID(),
              "missing");
}

TEST_F(EffectSettingsImplTest, isMadeWhenAKindCreatesNothing)
{
    effects.Add({"idle", {{"amount", 0, 1, 0.5, ""}}, [] { return EffectPtr(); }});
    const auto effect =
        IEffectSettings::CreateEffectSettings(StoredNode{{"id", "idle"}}.ToSerializer());
    ASSERT_TRUE(effect);
    EXPECT_EQ(effect->GetParameter("amount"), 0.5);
}

TEST_F(EffectSettingsImplTest, creatingOnlyCreates)
{
    const StoredNode node{{"id", "plain"}, {"amount", 0.75}};
    EXPECT_EQ(IEffectSettings::CreateEffectSettings(node.ToSerializer())->GetParameter("amount"),
              0.25);
}

TEST_F(EffectSettingsImplTest, findsTheFirstEffectOfAnId)
{
    const auto first = EffectSettingsImpl::Create("plain");
    const auto second = EffectSettingsImpl::Create("plain");
    const EffectList list = {nullptr, EffectSettingsImpl::Create("other"), first, second};
    EXPECT_EQ(IEffectSettings::Find(list, "plain"), first);
    EXPECT_EQ(IEffectSettings::Find(list, "Plain"), nullptr);
    const ConstEffectList constList(list.begin(), list.end());
    EXPECT_EQ(IEffectSettings::Find(constList, "plain"), first);
    EXPECT_EQ(IEffectSettings::Find(ConstEffectList(), "plain"), nullptr);
}
