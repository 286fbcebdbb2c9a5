// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/AppliedEdit.h"

#include "PanelFixture.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QJsonArray>
#include <QLabel>
#include <QSlider>

using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;

namespace {

class AppliedEditTest : public PanelFixture
{
protected:
    /// Restores as the editor does: no open packages, then the panel's part.
    void Restore(const QJsonObject& edit)
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
    EXPECT_TRUE(panel->SaveEdit().isEmpty());
}

TEST_F(AppliedEditTest, bringsThePictureAndTheControlsBack)
{
    Click("Hard");
    Drag("intensitySlider", {40});
    Drag("extraSlider1", {-30});
    const auto picture = editor.GetResult();
    const QJsonObject edit = panel->SaveEdit();
    Find<QAbstractButton>("discardButton").click();

    Restore(edit);

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    EXPECT_TRUE(IsApplied("Hard"));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 40);
    EXPECT_EQ(Find<QSlider>("extraSlider1").value(), -30);
    EXPECT_EQ(panel->SaveEdit(), edit);
    EXPECT_TRUE(editor.messages.isEmpty());
}

TEST_F(AppliedEditTest, bringsAnIntensityOfEffectsBackAfterARestart)
{
    Click("Warm");
    Drag("intensitySlider", {90});
    const auto picture = editor.GetResult();
    const QJsonObject edit = panel->SaveEdit();
    Restart();
    editor.OpenPhoto(photo);

    Restore(edit);

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 90);
    EXPECT_EQ(panel->SaveEdit(), edit);
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
    Restore(QJsonObject());
    EXPECT_FALSE(panel->HasUnsavedChanges());
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
}

TEST_F(AppliedEditTest, aTunedLookGoesOnWhereItWas)
{
    Click("Bright");
    Drag("intensitySlider", {30});
    const QJsonObject edit = panel->SaveEdit();
    Restore(edit);

    Drag("intensitySlider", {1});

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_EQ(editor.GetHostWorkspace().GetDrawer().GetOpenPackages().size(), 1U);
}

TEST_F(AppliedEditTest, keepsALookThatIsNoLongerInTheCatalogue)
{
    Click("Bright");
    const auto picture = editor.GetResult();
    QJsonObject edit = panel->SaveEdit();
    edit[QStringLiteral("preset")] = QStringLiteral("gone");
    edit[QStringLiteral("name")] = QStringLiteral("Old Look");
    Find<QAbstractButton>("discardButton").click();

    Restore(edit);

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(QStringLiteral("Old Look")));
    EXPECT_EQ(Find<QLabel>("appliedName").text(), QStringLiteral("Old Look"));
    EXPECT_EQ(panel->SaveEdit(), edit);
    EXPECT_TRUE(panel->HasUnsavedChanges());

    Find<QAbstractButton>("discardButton").click();
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_TRUE(panel->SaveEdit().isEmpty());
}

TEST_F(AppliedEditTest, anotherPresetTakesThePlaceOfSuchALook)
{
    Click("Bright");
    QJsonObject edit = panel->SaveEdit();
    edit[QStringLiteral("preset")] = QStringLiteral("gone");
    Restore(edit);

    Click("Grey");

    EXPECT_EQ(editor.GetHostWorkspace().GetDrawer().GetOpenPackages().size(), 1U);
    EXPECT_EQ(panel->SaveEdit()[QStringLiteral("preset")], QStringLiteral("grey"));
}

TEST_F(AppliedEditTest, leavesOutAndReportsWhatIsWrong)
{
    Click("Bright");
    const QJsonObject good = panel->SaveEdit();
    QJsonObject broken = good;
    broken[QStringLiteral("effects")] =
        QJsonArray{QJsonObject{{QStringLiteral("effect"),
                                QJsonObject{{QStringLiteral("id"), QStringLiteral("exposure")},
                                            {QStringLiteral("stops"), QStringLiteral("bright")}}}},
                   17};
    broken[QStringLiteral("blend")] = QStringLiteral("much");
    broken[QStringLiteral("intensity")] = QJsonArray();

    Restore(broken);
    EXPECT_FALSE(editor.messages.isEmpty());
    EXPECT_TRUE(IsApplied("Bright"));

    Restore(QJsonObject{{QStringLiteral("effects"), QStringLiteral("none")}});
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));

    Restore(good);
    EXPECT_EQ(panel->SaveEdit(), good);
}

TEST_F(AppliedEditTest, survivesAnIntensityWhoseEffectIsMissing)
{
    Click("Warm");
    QJsonObject edit = panel->SaveEdit();
    edit[QStringLiteral("effects")] = QJsonArray();

    Restore(edit);

    EXPECT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
}
