// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/AppliedEdit.h"

#include "PanelFixture.h"
#include "storage/JsonDocument.h"
#include "storage/JsonProperty.h"
#include "support/StoredForm.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSlider>

using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;
using LumetraTest::StoredList;
using LumetraTest::StoredNode;
using LumetraTest::StoredText;
using Zorvik::Core::Property;

namespace {

class AppliedEditTest : public PanelFixture
{
protected:
    /// Restores as the editor does: no open packages, then the panel's part.
    void Restore(const Property::Ptr& edit)
    {
        auto& drawer = editor.GetHostWorkspace().GetDrawer();
        for (const auto& package : drawer.GetOpenPackages())
            drawer.ResetPackage(package.Package().GetIndex());
        panel->RestoreEdit(edit);
    }
};

} // namespace

TEST_F(AppliedEditTest, isEmptyWithoutALook)
{
    EXPECT_EQ(StoredText(*panel->SaveEdit()), "{}");
}

TEST_F(AppliedEditTest, bringsThePictureAndTheControlsBack)
{
    Click("Hard");
    Drag("intensitySlider", {40});
    Drag("extraSlider1", {-30});
    const auto picture = editor.GetResult();
    const auto edit = panel->SaveEdit();
    Find<QAbstractButton>("discardButton").click();

    Restore(edit);

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    EXPECT_TRUE(IsApplied("Hard"));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 40);
    EXPECT_EQ(Find<QSlider>("extraSlider1").value(), -30);
    EXPECT_EQ(StoredText(*panel->SaveEdit()), StoredText(*edit));
    EXPECT_TRUE(editor.messages.isEmpty());
}

TEST_F(AppliedEditTest, bringsAnIntensityOfEffectsBackAfterARestart)
{
    Click("Warm");
    Drag("intensitySlider", {90});
    const auto picture = editor.GetResult();
    const auto edit = panel->SaveEdit();
    Restart();
    editor.OpenPhoto(photo);

    Restore(edit);

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 90);
    EXPECT_EQ(StoredText(*panel->SaveEdit()), StoredText(*edit));
}

TEST_F(AppliedEditTest, everyStepCanBeGoneBackTo)
{
    Click("Bright");
    Drag("intensitySlider", {30});
    Click("Warm");
    Find<QAbstractButton>("discardButton").click();
    ASSERT_EQ(editor.edits.size(), 4U);

    Restore(editor.edits[2]);
    EXPECT_TRUE(IsApplied("Warm"));
    Restore(editor.edits[1]);
    EXPECT_TRUE(IsApplied("Bright"));
    EXPECT_FALSE(IsApplied("Warm"));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 30);
    Restore(StoredNode().ToProperty());
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
}

TEST_F(AppliedEditTest, aTunedLookGoesOnWhereItWas)
{
    Click("Bright");
    Drag("intensitySlider", {30});
    const auto edit = panel->SaveEdit();
    Restore(edit);

    Drag("intensitySlider", {1});

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_EQ(editor.GetHostWorkspace().GetDrawer().GetOpenPackages().size(), 1U);
}

TEST_F(AppliedEditTest, keepsALookThatIsNoLongerInTheCatalogue)
{
    Click("Bright");
    const auto picture = editor.GetResult();
    const auto edit = panel->SaveEdit();
    edit->Set("preset", std::string("gone"));
    edit->Set("name", std::string("Old Look"));
    Find<QAbstractButton>("discardButton").click();

    Restore(edit);

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(QStringLiteral("Old Look")));
    EXPECT_EQ(Find<QLabel>("appliedName").text(), QStringLiteral("Old Look"));
    EXPECT_EQ(StoredText(*panel->SaveEdit()), StoredText(*edit));

    Find<QAbstractButton>("discardButton").click();
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_EQ(StoredText(*panel->SaveEdit()), "{}");
}

TEST_F(AppliedEditTest, anotherPresetTakesThePlaceOfSuchALook)
{
    Click("Bright");
    const auto edit = panel->SaveEdit();
    edit->Set("preset", std::string("gone"));
    Restore(edit);

    Click("Grey");

    EXPECT_EQ(editor.GetHostWorkspace().GetDrawer().GetOpenPackages().size(), 1U);
    EXPECT_EQ(std::get<std::string>(*panel->SaveEdit()->Find("preset")), "grey");
}

TEST_F(AppliedEditTest, leavesOutAndReportsWhatIsWrong)
{
    Click("Bright");
    const auto good = panel->SaveEdit();
    const auto broken = panel->SaveEdit();
    broken->Set(
        "effects",
        StoredList{StoredNode{{"effect", StoredNode{{"id", "exposure"}, {"stops", "bright"}}}},
                   StoredNode{{"value", 17}}}
            .ToProperties());
    broken->Set("blend", std::string("much"));
    broken->Set("intensity", Property::List());

    Restore(broken);
    ASSERT_EQ(editor.messages.size(), 2);
    EXPECT_EQ(editor.messages[0].toStdString(),
              "edit/effects[0]/effect/stops: expected number, found string");
    EXPECT_EQ(editor.messages[1].toStdString(), "edit/blend: expected number, found string");
    EXPECT_TRUE(IsApplied("Bright"));

    Restore(StoredNode{{"effects", "none"}}.ToProperty());
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));

    Restore(good);
    EXPECT_EQ(StoredText(*panel->SaveEdit()), StoredText(*good));
}

TEST_F(AppliedEditTest, readsAnEditOfAnEarlierVersion)
{
    constexpr char Earlier[] = R"({"blend": 181, "effects": [
        {"effect": {"id": "exposure", "stops": 1}}], "intensity": 30, "name": "Bright",
        "preset": "bright", "sliders": [50]})";
    Click("Bright");
    Drag("intensitySlider", {30});
    const auto picture = editor.GetResult();
    const std::string edit = StoredText(*panel->SaveEdit());
    Find<QAbstractButton>("discardButton").click();

    Restore(LumetraHost::JsonProperty::Read(
        *LumetraHost::JsonDocument::Parse(Earlier, "test").GetObject(), "edit"));

    EXPECT_EQ(editor.messages, QStringList());
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 30);
    EXPECT_EQ(StoredText(*panel->SaveEdit()), edit);
}

TEST_F(AppliedEditTest, survivesAnIntensityWhoseEffectIsMissing)
{
    Click("Warm");
    const auto edit = panel->SaveEdit();
    edit->Set("effects", Property::List());

    Restore(edit);

    EXPECT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
}
