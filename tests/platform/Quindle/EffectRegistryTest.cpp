// SPDX-License-Identifier: MIT
#include "Zorvik/Quindle/EffectRegistry.h"

#include "Zorvik/Exception.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using namespace Zorvik::Quindle;
using testing::Contains;
using testing::Not;

namespace {

constexpr char Id[] = "registry-test";

class EffectRegistryTest : public testing::Test
{
protected:
    ~EffectRegistryTest() override { EffectRegistry::Unregister(Id); }

    static std::string ErrorOf(const EffectDescriptor& descriptor)
    {
        try {
            EffectRegistry::Register(descriptor);
        } catch (const Zorvik::Exception& error) {
            return error.GetDescription();
        }
        return "no exception";
    }

    static std::string ErrorOf(const EffectParameter& parameter)
    {
        return ErrorOf(EffectDescriptor{Id, {parameter}, {}});
    }
};

} // namespace

TEST_F(EffectRegistryTest, findsWhatWasRegistered)
{
    EXPECT_EQ(EffectRegistry::Find(Id), nullptr);
    EffectRegistry::Register({Id, {{"stops", -5, 5, 0, "stops"}}, {}});
    const auto descriptor = EffectRegistry::Find(Id);
    ASSERT_NE(descriptor, nullptr);
    EXPECT_EQ(descriptor->effectID, Id);
    EXPECT_EQ(descriptor->parameters.at(0).unit, "stops");
    EXPECT_THAT(EffectRegistry::GetEffectIDs(), Contains(Id));
}

TEST_F(EffectRegistryTest, registeringAgainReplacesButLeavesFoundOnesAlone)
{
    EffectRegistry::Register({Id, {{"one", 0, 1, 0, ""}}, {}});
    const auto earlier = EffectRegistry::Find(Id);
    EffectRegistry::Register({Id, {{"two", 0, 1, 0, ""}}, {}});
    EXPECT_EQ(EffectRegistry::Find(Id)->parameters.at(0).name, "two");
    EXPECT_EQ(earlier->parameters.at(0).name, "one");
}

TEST_F(EffectRegistryTest, unregisteringRemovesAndForgivesUnknownIds)
{
    EffectRegistry::Register({Id, {}, {}});
    EffectRegistry::Unregister(Id);
    EffectRegistry::Unregister(Id);
    EXPECT_EQ(EffectRegistry::Find(Id), nullptr);
    EXPECT_THAT(EffectRegistry::GetEffectIDs(), Not(Contains(Id)));
}

TEST_F(EffectRegistryTest, listsIdsInAscendingOrder)
{
    for (const char* id : {"registry-c", "registry-a", "registry-b"})
        EffectRegistry::Register({id, {}, {}});
    const auto ids = EffectRegistry::GetEffectIDs();
    EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
    for (const char* id : {"registry-c", "registry-a", "registry-b"})
        EffectRegistry::Unregister(id);
}

TEST_F(EffectRegistryTest, refusesAnEmptyId)
{
    EXPECT_EQ(ErrorOf(EffectDescriptor{"", {}, {}}), "effect \"\": expected an id");
}

TEST_F(EffectRegistryTest, refusesAParameterThatOccursTwice)
{
    EXPECT_EQ(ErrorOf(EffectDescriptor{Id, {{"a", 0, 1, 0, ""}, {"a", 0, 1, 0, ""}}, {}}),
              "effect \"registry-test\": parameter \"a\": expected once");
}

TEST_F(EffectRegistryTest, refusesParameterNamesThatTheStoredFormNeeds)
{
    const std::string rest = ": expected a name other than \"\" and \"id\"";
    EXPECT_EQ(ErrorOf(EffectParameter{"id", 0, 1, 0, ""}),
              "effect \"registry-test\": parameter \"id\"" + rest);
    EXPECT_EQ(ErrorOf(EffectParameter{"", 0, 1, 0, ""}),
              "effect \"registry-test\": parameter \"\"" + rest);
}

TEST_F(EffectRegistryTest, refusesNumbersThatAreNotFinite)
{
    const double bad = std::numeric_limits<double>::infinity();
    const std::string error = "effect \"registry-test\": parameter \"a\": expected finite numbers";
    EXPECT_EQ(ErrorOf(EffectParameter{"a", -bad, 1, 0, ""}), error);
    EXPECT_EQ(ErrorOf(EffectParameter{"a", 0, bad, 0, ""}), error);
    EXPECT_EQ(ErrorOf(EffectParameter{"a", 0, 1, std::nan(""), ""}), error);
}

TEST_F(EffectRegistryTest, refusesADefaultOutsideItsRange)
{
    const std::string error =
        "effect \"registry-test\": parameter \"a\": expected a default inside its range";
    EXPECT_EQ(ErrorOf(EffectParameter{"a", 0, 1, 1.5, ""}), error);
    EXPECT_EQ(ErrorOf(EffectParameter{"a", 0, 1, -0.5, ""}), error);
    EXPECT_EQ(ErrorOf(EffectParameter{"a", 1, 0, 0.5, ""}), error) << "an empty range";
    EXPECT_EQ(ErrorOf(EffectParameter{"a", 1, 1, 1, ""}), "no exception");
}

TEST_F(EffectRegistryTest, aRefusedKindLeavesTheEarlierOne)
{
    EffectRegistry::Register({Id, {{"one", 0, 1, 0, ""}}, {}});
    EXPECT_NE(ErrorOf(EffectParameter{"id", 0, 1, 0, ""}), "no exception");
    EXPECT_EQ(EffectRegistry::Find(Id)->parameters.at(0).name, "one");
}
