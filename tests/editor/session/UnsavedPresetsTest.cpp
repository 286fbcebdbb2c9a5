// SPDX-License-Identifier: GPL-2.0-or-later
// The end of the program while presets of the user are on no disk.
#include "editor/EditorFixture.h"
#include "editor/ScriptedAlerts.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QListView>

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::HasSubstr;

namespace {

class UnsavedPresetsTest : public EditorTest
{
protected:
    UnsavedPresetsTest()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 60, 40));
    }

    /// Makes every write fail: permissions would not stop root.
    void Block() const
    {
        QFile::remove(Path("data/lumetra/presets.json"));
        ASSERT_TRUE(QDir().mkpath(Path("data/lumetra/presets.json/taken")));
    }
    void Unblock() const
    {
        ASSERT_TRUE(QDir(Path("data/lumetra/presets.json")).removeRecursively());
    }

    void SaveMine()
    {
        ClickLook(QStringLiteral("Candlelight"));
        EXPECT_TRUE(NameBy("savePreset", QStringLiteral("Mine")));
        FindAction("discardPreset")->trigger();
    }
    void StartAgain()
    {
        Restart();
        LoadPresetsPanel();
    }
};

} // namespace

TEST_F(UnsavedPresetsTest, theWindowStaysWhileThePresetIsNowhere)
{
    Block();
    SaveMine();
    const ScriptedAlerts alerts({QMessageBox::Cancel});

    EXPECT_FALSE(window->close());

    EXPECT_TRUE(window->isVisible());
    EXPECT_THAT(alerts.GetTexts().first().toStdString(), HasSubstr("presets.json"));
}

TEST_F(UnsavedPresetsTest, thePresetIsSavedAtTheEndWhenThereIsRoomAgain)
{
    Block();
    SaveMine();
    Unblock();
    {
        const ScriptedAlerts alerts({});
        EXPECT_TRUE(window->close());
    }
    StartAgain();

    EXPECT_TRUE(HasLook(QStringLiteral("Mine")));
}

TEST_F(UnsavedPresetsTest, savingAgainAsksUntilItSucceeds)
{
    Block();
    SaveMine();
    const ScriptedAlerts alerts({QMessageBox::Retry, QMessageBox::Retry, QMessageBox::Cancel});

    EXPECT_FALSE(window->close());
}

TEST_F(UnsavedPresetsTest, theUserMayDoWithoutThePreset)
{
    Block();
    SaveMine();
    const ScriptedAlerts alerts({QMessageBox::Discard});

    EXPECT_TRUE(window->close());
}

TEST_F(UnsavedPresetsTest, theStarIsAskedAboutWithoutAPhotoToo)
{
    FindAction("closePhoto")->trigger();
    Block();
    const auto [list, look] = FindLook(QStringLiteral("Candlelight"));
    list->setFocus();
    list->setCurrentIndex(look);
    FindAction("favouritePreset")->trigger();
    const ScriptedAlerts alerts({QMessageBox::Cancel});

    EXPECT_FALSE(window->close());
}

TEST_F(UnsavedPresetsTest, nothingIsAskedWhereThePresetsAreSaved)
{
    SaveMine();
    const ScriptedAlerts alerts({});

    EXPECT_TRUE(window->close());
}
