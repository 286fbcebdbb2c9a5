// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/PresetCommands.h"
#include "host/drawer/DrawnPicture.h"

#include "LumetraEditor/NewLook.h"
#include "PanelFixture.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Util/AlertBox.h"
#include "panel/grid/PresetGrid.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QSlider>

using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;
using Zorvik::Util::AlertBox;
using Zorvik::Util::IAlertBackend;

namespace {

/// Answers every alert with the same button and notes its text.
class ScriptedAlerts : public IAlertBackend
{
public:
    explicit ScriptedAlerts(QMessageBox::StandardButton answer) : m_answer(answer) {}

    QStringList texts;
    QStringList titles;

    QMessageBox::StandardButton Exec(AlertBox& box) override
    {
        texts.append(box.text);
        titles.append(box.title);
        return m_answer;
    }

private:
    QMessageBox::StandardButton m_answer;
};

class PresetCommandsTest : public PanelFixture
{
protected:
    ~PresetCommandsTest() override { AlertBox::SetBackend(nullptr); }

    std::shared_ptr<ScriptedAlerts> Answer(QMessageBox::StandardButton answer)
    {
        auto alerts = std::make_shared<ScriptedAlerts>(answer);
        AlertBox::SetBackend(alerts);
        return alerts;
    }
    /// Gives the keyboard's place to the preset.
    void Focus(const char* name)
    {
        auto& grid = Grid(Named(name).parent().row());
        panel->GetWidget()->activateWindow();
        ASSERT_TRUE(grid.isVisible());
        grid.SetCurrentPreset(Named(name));
        grid.setFocus();
    }
    QStringList UserNames() { return Model().GetUserPresetNames(); }
    void SaveBrightAs(const char* name)
    {
        Click("Bright");
        TriggerAndType("savePreset", QString::fromUtf8(name));
    }
};

} // namespace

TEST_F(PresetCommandsTest, controlCharactersDoNotGetIntoANewName)
{
    SaveBrightAs("Evil\x1b[31m\tred");

    EXPECT_EQ(UserNames(), QStringList{QStringLiteral("Evil [31m red")});
}

TEST_F(PresetCommandsTest, saveAsAppendsToTheUsersPageAndTheStore)
{
    Click("Bright");
    Drag("extraSlider0", {-50});

    TriggerAndType("savePreset", QStringLiteral("Dim"));

    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dim")});
    EXPECT_TRUE(StoreText().contains(QStringLiteral("\"Dim\"")));
    Restart();
    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dim")});
    const auto settings = Model().GetPreset(Named("Dim"))->MakeSettings();
    EXPECT_DOUBLE_EQ(settings.EffectsConst().at(0)->GetParameter("stops"), -1);
}

TEST_F(PresetCommandsTest, refusesANameThatIsTaken)
{
    SaveBrightAs("Dim");
    const auto alerts = Answer(QMessageBox::Ok);

    TriggerAndType("savePreset", QStringLiteral("Dim"));

    EXPECT_EQ(alerts->texts.size(), 1);
    EXPECT_EQ(UserNames(), QStringList{QStringLiteral("Dim")});
}

TEST_F(PresetCommandsTest, renamesTheUsersPresetsAlone)
{
    SaveBrightAs("Dim");
    Focus("Dim");
    TriggerAndType("renamePreset", QStringLiteral("Dusk"));

    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dusk")});
    EXPECT_TRUE(StoreText().contains(QStringLiteral("\"Dusk\"")));
    EXPECT_FALSE(StoreText().contains(QStringLiteral("\"Dim\"")));

    Focus("Bright");
    Trigger("renamePreset"); // of the catalogue: no dialog that would wait for ever
    EXPECT_EQ(Shown(0).front(), QStringLiteral("Bright"));
}

TEST_F(PresetCommandsTest, deletingAsksAndCanBeUndone)
{
    SaveBrightAs("One");
    SaveBrightAs("Two");
    const QString id = Named("One").data(PresetModel::PresetIdRole).toString();
    Answer(QMessageBox::Cancel);
    Focus("One");
    Trigger("removePreset");
    EXPECT_EQ(UserNames().size(), 2);

    const auto alerts = Answer(QMessageBox::Yes);
    Trigger("removePreset");
    EXPECT_EQ(alerts->texts.front(), QStringLiteral("Delete the look “One”?"));
    EXPECT_EQ(alerts->titles.front(), QStringLiteral("Delete")); // the button bears that name too
    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Two")});
    EXPECT_FALSE(StoreText().contains(QStringLiteral("\"One\"")));

    editor.undoStack.undo();
    EXPECT_EQ(Shown(UserPage), (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
    EXPECT_EQ(Named("One").data(PresetModel::PresetIdRole).toString(), id);
    EXPECT_TRUE(StoreText().contains(QStringLiteral("\"One\"")));
    editor.undoStack.redo();
    EXPECT_EQ(UserNames(), QStringList{QStringLiteral("Two")});
}

TEST_F(PresetCommandsTest, deletingTheAppliedPresetTakesItsLookOff)
{
    SaveBrightAs("One");
    Click("One");
    EXPECT_TRUE(IsApplied("One"));
    Answer(QMessageBox::Yes);
    Focus("One");

    Trigger("removePreset");

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    EXPECT_TRUE(editor.GetHostWorkspace().GetDrawer().GetOpenPackages().empty());
}

TEST_F(PresetCommandsTest, neverDeletesPresetsOfTheCatalogue)
{
    const auto alerts = Answer(QMessageBox::Yes);
    Focus("Bright");
    Trigger("removePreset");

    EXPECT_TRUE(alerts->texts.isEmpty());
    EXPECT_EQ(Shown(0).size(), 3);
}

TEST_F(PresetCommandsTest, aRestoredPresetStaysBoundWhileOthersCome)
{
    SaveBrightAs("One");
    Click("One");
    const QPersistentModelIndex bound = Named("One");
    Answer(QMessageBox::Yes);
    SaveBrightAs("Two");
    Focus("Two");
    Trigger("removePreset");
    for (int i = 0; i < 20; ++i) {
        editor.undoStack.undo();
        EXPECT_EQ(bound.data(PresetModel::PresetNameRole), QStringLiteral("One"));
        editor.undoStack.redo();
    }
}

TEST_F(PresetCommandsTest, tellsWhenTheStoreCannotBeWritten)
{
    // A folder in the file's place cannot be replaced, whoever asks.
    QFile::remove(files.store);
    ASSERT_TRUE(QDir().mkpath(files.store + QStringLiteral("/taken")));

    ClickStar("Bright");

    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(files.store));
}

TEST_F(PresetCommandsTest, keysReachEveryCommand)
{
    for (const char* const name : {"favouritePreset", "savePreset", "renamePreset", "removePreset",
                                   "resetPreset", "commitPreset", "discardPreset", "searchPresets"})
        EXPECT_FALSE(Find<QAction>(name).shortcut().isEmpty()) << name;
}

TEST_F(PresetCommandsTest, theFavouritesKeyMarksThePresetUnderTheKeyboard)
{
    Focus("Grey");
    Trigger("favouritePreset");

    EXPECT_TRUE(Named("Grey").data(PresetModel::FavouriteRole).toBool());
    EXPECT_TRUE(StoreText().contains(QStringLiteral("\"grey\"")));
}

TEST_F(PresetCommandsTest, applyAndDiscardByKey)
{
    Click("Bright");
    Trigger("discardPreset");
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));

    Click("Bright");
    Trigger("commitPreset");
    EXPECT_FALSE(
        HaveSamePixels(LumetraHost::DrawCommitted(editor.GetHostWorkspace().GetDrawer()), photo));
}

TEST_F(PresetCommandsTest, resetByKey)
{
    Click("Bright");
    Drag("intensitySlider", {5});
    Trigger("resetPreset");

    EXPECT_EQ(Named("Bright").data(PresetModel::IntensityRole).toInt(), 80);
}

namespace {

/// A store that cannot be written during a test; permissions would not stop root.
class BlockedStore
{
public:
    explicit BlockedStore(const QString& path) : m_path(path)
    {
        EXPECT_TRUE(!QFile::exists(path) || QFile::rename(path, path + QStringLiteral(".kept")));
        EXPECT_TRUE(QDir().mkpath(path + QStringLiteral("/taken")));
    }
    ~BlockedStore()
    {
        EXPECT_TRUE(QDir(m_path).removeRecursively());
        QFile::rename(m_path + QStringLiteral(".kept"), m_path);
    }
    BlockedStore(const BlockedStore&) = delete;
    BlockedStore& operator=(const BlockedStore&) = delete;

private:
    QString m_path;
};

LumetraEditor::NewLook MakeLook(double stops)
{
    LumetraEditor::NewLook look;
    look.name = QStringLiteral("Handed");
    const auto effect = Zorvik::Quindle::EffectSettingsImpl::Create("exposure");
    effect->SetParameter("stops", stops);
    look.settings.Effects().push_back(effect);
    return look;
}

} // namespace

TEST_F(PresetCommandsTest, aHandedLookThatCannotBeSavedIsNotKept)
{
    {
        const BlockedStore blocked(files.store);
        EXPECT_TRUE(panel->KeepLook(MakeLook(1)).contains(QStringLiteral("presets.json")));
        EXPECT_EQ(Shown(UserPage), QStringList());
    }
    const auto alerts = Answer(QMessageBox::Cancel);
    EXPECT_TRUE(panel->MayEnd());
    EXPECT_TRUE(alerts->texts.isEmpty()) << "nothing is left to be saved";

    EXPECT_EQ(panel->KeepLook(MakeLook(1)), QString()) << "the name is still free";

    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Handed")});
}

TEST_F(PresetCommandsTest, aLookWhoseNewEffectsCannotBeSavedIsAsItWas)
{
    Click("Bright");
    Drag("extraSlider0", {-10});
    TriggerAndType("savePreset", QStringLiteral("Mine"));
    Click("Mine");
    Drag("intensitySlider", {45});
    Drag("extraSlider0", {20});
    const QModelIndex mine = Named("Mine");
    const auto picture = editor.GetResult();
    const auto preset = Model().GetPreset(mine);
    const int start = preset->GetStartIntensity();
    {
        const BlockedStore blocked(files.store);
        EXPECT_TRUE(
            panel
                ->UpdateLook(mine.data(PresetModel::PresetIdRole).toString(), MakeLook(-2).settings)
                .contains(QStringLiteral("presets.json")));
    }
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    EXPECT_EQ(preset->GetIntensity(), 45);
    EXPECT_EQ(preset->GetStartIntensity(), start);
    EXPECT_EQ(Find<QSlider>("intensitySlider").value(), 45);
    EXPECT_EQ(Find<QSlider>("extraSlider0").value(), 20);
    EXPECT_EQ(preset->GetSettingsDefault().at(0).Value(), -10);

    Focus("Mine");
    Trigger("favouritePreset"); // saves

    const auto alerts = Answer(QMessageBox::Cancel);
    EXPECT_TRUE(panel->MayEnd());
    EXPECT_TRUE(StoreText().contains(QStringLiteral("Mine")));
    Restart();
    editor.OpenPhoto(photo);
    Click("Mine");
    EXPECT_EQ(Find<QSlider>("extraSlider0").value(), -10);
}
