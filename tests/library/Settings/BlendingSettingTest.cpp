// SPDX-License-Identifier: MIT
#include "Settings/BlendingSetting.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Quindle/EffectsSettings.h"
#include "support/CallLog.h"
#include "support/RecordingSerializer.h"
#include "support/StoredForm.h"

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::ElementsAre;
using Zorvik::Lumetra::LumetraPresets::BlendingSetting;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Quindle::EffectsSettings;

namespace {

/// Makes the setting as a preset makes its intensity.
BlendingSetting MakeSetting()
{
    return BlendingSetting({1, 255}, {1, 100});
}

BlendingSetting Read(const StoredNode& node)
{
    auto setting = MakeSetting();
    setting.Deserialize(node.ToSerializer());
    return setting;
}

} // namespace

TEST(BlendingSetting, startsAtTheCoreRangesEnd)
{
    const auto setting = MakeSetting();
    EXPECT_EQ(setting.GetType(), IntensitySettingType::Blending);
    EXPECT_EQ(static_cast<int>(setting.GetType()), 1);
    EXPECT_EQ(setting.GetClassId(), "blendSetting");
    EXPECT_EQ(setting.Min(), 1);
    EXPECT_EQ(setting.Max(), 100);
    EXPECT_EQ(setting.Value(), 255) << "on purpose no slider position";
    EXPECT_EQ(setting.ValueToCore(), 1) << "it counts as the highest: the full effect";
}

TEST(BlendingSetting, theHighestPositionIsTheCoreRangesFirst)
{
    auto setting = MakeSetting();
    const std::pair<int, int> rows[] = {{1, 255}, {100, 1}, {80, 52}, {50, 129}, {0, 255}};
    for (const auto& [position, core] : rows) {
        setting.SetValue(position);
        EXPECT_EQ(setting.ValueToCore(), core) << position;
    }
}

TEST(BlendingSetting, doesNotClampItsValue)
{
    auto setting = MakeSetting();
    for (const int value : {0, -4, 500}) {
        setting.SetValue(value);
        EXPECT_EQ(setting.Value(), value);
    }
}

TEST(BlendingSetting, takesItsValueFromACoreValue)
{
    auto setting = MakeSetting();
    const std::pair<int, int> rows[] = {{1, 100}, {255, 1}, {52, 80}, {0, 100}, {1000, 1}};
    for (const auto& [core, position] : rows) {
        setting.SetValueFromCore(core);
        EXPECT_EQ(setting.Value(), position) << core;
    }
}

TEST(BlendingSetting, savesIntoThePackagesBlendAmountAndLoadsItBack)
{
    auto setting = MakeSetting();
    EffectsSettings package(1);
    for (int position = 1; position <= 100; ++position) {
        setting.SetValue(position);
        setting.SaveValue(package);
        EXPECT_EQ(package.GetBlendAmount(), setting.ValueToCore());
        setting.SetValue(-1);
        setting.LoadValue(package);
        EXPECT_EQ(setting.Value(), position);
    }
}

TEST(BlendingSetting, aFreshPackageLoadsAsFullStrength)
{
    auto setting = MakeSetting();
    setting.SetValue(30);
    setting.LoadValue(EffectsSettings(1));
    EXPECT_EQ(setting.Value(), 100);
}

TEST(BlendingSetting, readingNothingKeepsTheCurrentValues)
{
    for (const auto& node : {StoredNode{}.ToSerializer(), Zorvik::Brassel::SerializerPtr()}) {
        auto setting = MakeSetting();
        setting.Deserialize(node);
        EXPECT_EQ(setting.Min(), 1);
        EXPECT_EQ(setting.Max(), 100);
        EXPECT_EQ(setting.Value(), 255);
        setting.SetValue(80);
        EXPECT_EQ(setting.ValueToCore(), 52);
    }
}

TEST(BlendingSetting, readingMapsAnewAndLeavesTheSliderRange)
{
    auto setting = Read({{"value", 40}, {"begin", 10}, {"end", 200}});
    EXPECT_EQ(setting.Value(), 40);
    EXPECT_EQ(setting.Min(), 1);
    EXPECT_EQ(setting.Max(), 100);
    setting.SetValue(1);
    EXPECT_EQ(setting.ValueToCore(), 200);
    setting.SetValue(100);
    EXPECT_EQ(setting.ValueToCore(), 10);
    setting.SetValueFromCore(200);
    EXPECT_EQ(setting.Value(), 1);
}

TEST(BlendingSetting, readsItsKeysInOrderWithItsOwnValuesAsDefaults)
{
    CallLog log;
    auto setting = MakeSetting();
    setting.SetValue(60);
    setting.Deserialize(
        RecordingSerializer::Wrap(log, StoredNode{{"begin", 10}, {"end", 200}}.ToSerializer()));
    EXPECT_THAT(log.Take(),
                ElementsAre("read test/value, default 60 -> 60", "read test/begin, default 1 -> 10",
                            "read test/end, default 255 -> 200"));
}

TEST(BlendingSetting, readingSomeKeysKeepsTheOthers)
{
    auto setting = Read({{"end", 101}});
    EXPECT_EQ(setting.Value(), 255);
    setting.SetValue(1);
    EXPECT_EQ(setting.ValueToCore(), 101);
    setting.SetValue(100);
    EXPECT_EQ(setting.ValueToCore(), 1);
}

TEST(BlendingSetting, takesAStoredValueAsItStands)
{
    EXPECT_EQ(Read({{"value", 1000}}).Value(), 1000);
    EXPECT_EQ(Read({{"value", -3}}).Value(), -3);
}

TEST(BlendingSetting, writesItsKeysInOrder)
{
    CallLog log;
    const auto setting = Read({{"value", 40}, {"begin", 10}, {"end", 200}});
    setting.Serialize(RecordingSerializer::Wrap(log, StoredNode{}.ToSerializer()));
    EXPECT_THAT(log.Take(), ElementsAre("write test/value = 40", "write test/begin = 10",
                                        "write test/end = 200"));
    EXPECT_EQ(StoredText(setting), "{value: 40, begin: 10, end: 200}") << "integers";
}

TEST(BlendingSetting, copiesAndClonesCarryTheMapping)
{
    auto setting = Read({{"value", 40}, {"begin", 10}, {"end", 200}});
    auto assigned = MakeSetting();
    assigned = setting;
    const BlendingSetting copy(setting);
    const auto clone = setting.Clone();
    EXPECT_EQ(clone->GetType(), IntensitySettingType::Blending);
    EXPECT_EQ(clone->Min(), 1);
    EXPECT_EQ(clone->Max(), 100);
    EXPECT_EQ(clone->Value(), 40);
    for (const auto* other : {&copy, static_cast<const BlendingSetting*>(&assigned),
                              dynamic_cast<const BlendingSetting*>(clone.get())})
        EXPECT_EQ(other->ValueToCore(), setting.ValueToCore());
    clone->SetValue(99);
    EXPECT_EQ(setting.Value(), 40);
}

TEST(BlendingSetting, aSinglePointCoreRangeMapsEverythingThere)
{
    auto setting = Read({{"begin", 7}, {"end", 7}});
    setting.SetValue(50);
    EXPECT_EQ(setting.ValueToCore(), 7);
    setting.SetValueFromCore(7);
    EXPECT_EQ(setting.Value(), 1) << "the other range's begin";
}
