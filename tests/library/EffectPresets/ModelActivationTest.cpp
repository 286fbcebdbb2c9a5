// SPDX-License-Identifier: MIT
#include "ModelFixture.h"

#include "EffectPresets/IObjectsConnectorID.h"

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;
using Zorvik::Quindle::ConstEffectList;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectRegistry;
using Zorvik::Quindle::EffectsSettings;

namespace {

class ModelActivationTest : public ModelFixture
{
protected:
    ModelActivationTest() { FillAndAttach(); }

    /// Tone with that gain and bias, at that blend amount.
    EffectsSettings Edit(double gain, double bias, int blendAmount)
    {
        const CallLog::Pause pause(log);
        const EffectPtr tone = EffectRegistry::Find("tone")->create();
        tone->SetParameter("gain", gain);
        tone->SetParameter("bias", bias);
        EffectsSettings edit(1);
        edit.Effects().push_back(tone);
        edit.SetBlendAmount(blendAmount);
        return edit;
    }

    std::string AppliedText() const
    {
        std::string applied;
        for (const std::string& line : ModelText(model, {258, 256}))
            if (line.compare(0, 7, "  true ") == 0)
                applied += line.substr(8);
        return applied;
    }
};

} // namespace

TEST_F(ModelActivationTest, channelsHaveTheirNames)
{
    using Zorvik::Lumetra::LumetraPresets::IObjectsConnectorID;
    EXPECT_EQ(IObjectsConnectorID::ACTIVATE_PRESET, QStringLiteral("EFFECTPRESET_ACTIVATE_PRESET"));
    EXPECT_EQ(IObjectsConnectorID::PRESET_CHANGED,
              QStringLiteral("EFFECTPRESET_WIDGET_PRESET_CHANGED"));
    EXPECT_EQ(IObjectsConnectorID::SETTINGS_ENABLE,
              QStringLiteral("EFFECTPRESET_WIDGET_SETTINGS_ENABLE"));
}

TEST_F(ModelActivationTest, activatingLoadsThePresetAndSwitchesTheOthersOff)
{
    Set(At(1, 0), Model::AppliedRole, true);
    log.Clear();
    model.ActivatePreset("Warm", Edit(2, 0.75, 129));
    EXPECT_THAT(TakeCalls(),
                ElementsAre("preset(Warm).Load([tone{gain: 2, bias: 0.75}])",
                            "preset(Warm).SetIntensityFromEffectSettings([tone{gain: 2, bias: "
                            "0.75}] in / #none blend 129)",
                            "preset(Bare).SetApplied(false, false)",
                            "model.dataChanged(-, -, [258])"))
        << "nothing is drawn";
    EXPECT_EQ(AppliedText(), " \"Warm\"");
    EXPECT_EQ(model.data(At(0, 0), 261), 50);
    EXPECT_EQ(Sliders(0, 0).at(0).Value(), 75);
}

TEST_F(ModelActivationTest, anIdHeldTwiceLoadsBothAndKeepsTheLater)
{
    ParseGroup("Twins", {Preset("Warm", {Tone(1)}), Preset("Other", {Tone(1)})});
    log.Clear();
    model.ActivatePreset("Warm", Edit(2, 0, 1));
    const auto calls = TakeCalls();
    ASSERT_EQ(calls.size(), 6U);
    EXPECT_EQ(calls[0], "preset(Warm).Load([tone{gain: 2, bias: 0}])");
    EXPECT_EQ(calls[2], "preset(Warm).Load([tone{gain: 2, bias: 0}])");
    EXPECT_EQ(calls[4], "preset(Warm).SetApplied(false, false)");
    EXPECT_EQ(calls[5], "model.dataChanged(-, -, [258])");
    EXPECT_FALSE(IsApplied(0, 0));
    EXPECT_TRUE(IsApplied(3, 0));
    EXPECT_EQ(model.data(At(0, 0), 261), 100) << "loaded all the same";
}

TEST_F(ModelActivationTest, anUnknownIdSwitchesEveryPresetOff)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    for (const char* id : {"Unknown", "", "warm"}) {
        model.ActivatePreset(id, Edit(1, 0, 1));
        EXPECT_EQ(AppliedText(), "");
    }
    EXPECT_THAT(TakeCalls(),
                ElementsAre("preset(Warm).SetApplied(false, false)",
                            "model.dataChanged(-, -, [258])", "model.dataChanged(-, -, [258])",
                            "model.dataChanged(-, -, [258])"));
}

TEST_F(ModelActivationTest, activatingFromAListOfEffectsSetsABlendingPresetToFullStrength)
{
    model.ActivatePreset("Warm", Edit(2, 0.5, 200).EffectsConst());
    EXPECT_EQ(AppliedText(), " \"Warm\"");
    EXPECT_EQ(model.data(At(0, 0), 261), 100);
    EXPECT_EQ(Sliders(0, 0).at(0).Value(), 50);
    model.ActivatePreset("Warm", ConstEffectList());
    EXPECT_EQ(Sliders(0, 0).at(0).Value(), 50) << "an empty list moves no slider";
}

TEST_F(ModelActivationTest, activatingASliderPresetReadsItsPosition)
{
    model.ActivatePreset("Soft", Edit(1.5, 0, 1));
    EXPECT_EQ(model.data(At(0, 1), 261), 75);
}

TEST_F(ModelActivationTest, activatingAStrictSliderWithoutItsEffectThrowsHalfWay)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    EXPECT_THROW(model.ActivatePreset("Soft", ConstEffectList()), std::invalid_argument);
    EXPECT_EQ(AppliedText(), " \"Warm\" \"Soft\"") << "the others were to follow";
    EXPECT_THAT(log.GetLines("model."), IsEmpty());
}

TEST_F(ModelActivationTest, pendingChangesMeanAnAppliedPreset)
{
    EXPECT_FALSE(model.HasUnsavedChanges());
    Set(At(0, 0), Model::IntensityRole, 5);
    EXPECT_FALSE(model.HasUnsavedChanges()) << "values do not count";
    Set(At(0, 0), Model::AppliedRole, true);
    EXPECT_TRUE(model.HasUnsavedChanges());
    Set(At(0, 0), Model::AppliedRole, false);
    EXPECT_FALSE(model.HasUnsavedChanges());
    model.ActivatePreset("Soft", Edit(1, 0, 1));
    EXPECT_TRUE(model.HasUnsavedChanges());
}

TEST_F(ModelActivationTest, committingLeavesThePresetApplied)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    model.ApplyCurrentChanges(true);
    EXPECT_THAT(TakeCalls(),
                ElementsAre("preset(Warm).SaveChanges()",
                            "drawer.ApplyEffect(empty{id: \"empty\"}, {})",
                            "statistics.SendEvent(\"apply\", {effectGroup: \"Film\", effectName: "
                            "\"Warm\"})"));
    EXPECT_TRUE(IsApplied(0, 0));
    EXPECT_TRUE(model.HasUnsavedChanges());
}

TEST_F(ModelActivationTest, notCommittingSwitchesThePresetOff)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    model.ApplyCurrentChanges(false);
    EXPECT_THAT(TakeCalls(),
                ElementsAre("preset(Warm).SetApplied(false, true)",
                            "drawer.GetPackageIndex(\"Looks\")", "reset.ResetPackage(0)",
                            "statistics.SendEvent(\"reset\", {effectGroup: \"Film\", effectName: "
                            "\"Warm\"})",
                            "model.dataChanged(0/0, 0/0, [258])"));
    EXPECT_FALSE(model.HasUnsavedChanges());
}

TEST_F(ModelActivationTest, notCommittingFindsAPresetBehindOtherGroups)
{
    Set(At(1, 0), Model::AppliedRole, true);
    log.Clear();
    model.ApplyCurrentChanges(false);
    EXPECT_THAT(log.GetLines("model."), ElementsAre("model.dataChanged(1/0, 1/0, [258])"));
    EXPECT_FALSE(IsApplied(1, 0));
}

TEST_F(ModelActivationTest, withoutAnAppliedPresetThereIsNothingToCommit)
{
    model.ApplyCurrentChanges(true);
    model.ApplyCurrentChanges(false);
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ModelActivationTest, notCommittingGoesThroughTheModelsOwnSetData)
{
    class Watching : public Model
    {
    public:
        using Model::Model;

        bool setData(const QModelIndex& index, const QVariant& value, int role) override
        {
            calls.push_back(IndexText(index) + " " + ValueText(value) + " " + std::to_string(role));
            return Model::setData(index, value, role);
        }

        std::vector<std::string> calls;
    };
    Watching watching(factory);
    watching.ParseGroup("Film", StoredList{Preset("A", {Tone(1)})}.ToCollection(), nullptr);
    watching.SetWorkspaceController(workspace);
    watching.ActivatePreset("A", ConstEffectList());
    watching.ApplyCurrentChanges(false);
    EXPECT_THAT(watching.calls, ElementsAre("0/0 false 258"));
}

// Two presets can both be applied behind the model's back: the last in its order counts.
TEST_F(ModelActivationTest, theLastOfSeveralAppliedPresetsIsTheActiveOne)
{
    class Keeping : public TestFactory
    {
    public:
        using TestFactory::TestFactory;

        ControllerPtr CreateController(const std::string& kind) override
        {
            made.push_back(TestFactory::CreateController(kind));
            return made.back();
        }

        std::vector<ControllerPtr> made;
    };
    const auto keeping = std::make_shared<Keeping>(log);
    Model own(keeping);
    own.ParseGroup("Film",
                   StoredList{Preset("A", {}), Preset("B", {}), Preset("C", {})}.ToCollection(),
                   nullptr);
    own.SetWorkspaceController(workspace);
    keeping->made[0]->SetApplied(true, false);
    keeping->made[1]->SetApplied(true, false);
    log.Clear();
    own.ApplyCurrentChanges(true);
    EXPECT_THAT(log.GetLines("preset("), ElementsAre("preset(B).SaveChanges()"));
}

TEST_F(ModelActivationTest, discardingResetsAllValuesFirstAndThenAllIndexes)
{
    Set(At(0, 0), Model::AppliedRole, true);
    Set(At(0, 0), Model::IntensityRole, 10);
    log.Clear();
    model.DiscardUserChanges();
    EXPECT_THAT(TakeCalls(),
                ElementsAre("preset(Warm).ResetSettingsValues()",
                            "preset(Warm).SetSettingsValues([tone=25])",
                            "preset(Soft).ResetSettingsValues()",
                            "preset(Soft).SetSettingsValues([tone=0, grain=50])",
                            "preset(Bare).ResetSettingsValues()",
                            "preset(Bare).SetSettingsValues([tone=0])",
                            "preset(Warm).SetResetIndex(none)", "preset(Soft).SetResetIndex(none)",
                            "preset(Bare).SetResetIndex(none)"))
        << "and the views are told nothing";
    EXPECT_TRUE(IsApplied(0, 0));
    EXPECT_EQ(model.data(At(0, 0), 261), 80);
}

TEST_F(ModelActivationTest, anEmptyModelCanBeDiscardedAndSearched)
{
    Model empty(factory);
    empty.DiscardUserChanges();
    empty.SetResetIndex(3);
    empty.ApplyCurrentChanges(true);
    empty.ActivatePreset("x", ConstEffectList());
    EXPECT_FALSE(empty.HasUnsavedChanges());
}

TEST_F(ModelActivationTest, attachingReachesEveryPresetAndRegistersThem)
{
    ParseGroup("Shop", {Preset("Warm", {}).Set("id", "shop.1")},
               {{"appStoreId", StoredNode{{"id", "store.9"}}}});
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    Attach();
    EXPECT_THAT(log.Take(),
                ElementsAre("preset(Warm).SetWorkspaceController(workspace)",
                            "preset(Soft).SetWorkspaceController(workspace)",
                            "preset(Bare).SetWorkspaceController(workspace)",
                            "preset(Warm).SetWorkspaceController(workspace)",
                            "model.dataChanged(-, -, [])",
                            "registry.RegisterPresets([(\"Warm\", \"\"), (\"Soft\", \"\"), "
                            "(\"Bare\", \"\"), (\"shop.1\", \"store.9\")])"));
    EXPECT_FALSE(model.HasUnsavedChanges()) << "attaching starts every preset unapplied";
    EXPECT_EQ(workspace.use_count(), 1) << "the workspace is not kept alive";
}

TEST_F(ModelActivationTest, duplicatesAreRegisteredAsOftenAsTheyAre)
{
    ParseGroup("Twins", {Preset("Warm", {})});
    Attach();
    EXPECT_EQ(workspace->GetRegistry().GetPresets().size(), 4U);
}

TEST_F(ModelActivationTest, detachingClearsEveryPresetAndRegistersNothing)
{
    for (const bool hasExpired : {false, true}) {
        std::weak_ptr<RecordingWorkspace> reference;
        if (hasExpired)
            reference = std::make_shared<RecordingWorkspace>(log);
        log.Clear();
        model.SetWorkspaceController(reference);
        EXPECT_THAT(log.Take(), ElementsAre("preset(Warm).SetWorkspaceController(none)",
                                            "preset(Soft).SetWorkspaceController(none)",
                                            "preset(Bare).SetWorkspaceController(none)",
                                            "model.dataChanged(-, -, [])"));
    }
}

TEST_F(ModelActivationTest, anEmptyListIsRegisteredToo)
{
    Model empty(factory);
    workspace->GetPresetRegistry().RegisterPresets({{"old", ""}});
    log.Clear();
    empty.SetWorkspaceController(workspace);
    EXPECT_THAT(log.Take(), ElementsAre("registry.RegisterPresets([])"));
}
