// SPDX-License-Identifier: GPL-2.0-or-later
// Looks on their way from one user to another, each step through the window: made in the Adjust
// panel, shared as a file or in a picture, taken in with another store, and put on a photo.
#include "editor/EditorFixture.h"
#include "host/drawer/DrawnPicture.h"

#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

using namespace LumetraTest;
using LumetraHost::DrawWhole;
using LumetraHost::HaveSamePixels;
using LumetraHost::Image;
using testing::HasSubstr;

namespace {

/// How a user has set the program up, and what it says to them.
struct Setup
{
    const char* name;
    const char* language; ///< the action
    const char* colours;  ///< the action
    const char* adjust;   ///< title of the tab
    const char* written;
    const char* imported;
};

constexpr Setup Setups[] = {
    {"EnglishLight", "english", "light", "Adjust", "Wrote “", "Imported “Dusk”."},
    {"GermanDark", "german", "dark", "Anpassen", "“ geschrieben.", "„Dusk“ importiert."}};

const QString OwnLook = QStringLiteral("Dusk");

class TravelTest : public EditorTest, public testing::WithParamInterface<Setup>
{
protected:
    TravelTest()
    {
        Begin();
        Open(WritePhoto("lake.png", 120, 80));
        MakeLook();
    }
    ~TravelTest() override
    {
        FindAction("english")->trigger();
        FindAction("dark")->trigger();
    }

    void Begin()
    {
        LoadPresetsPanel();
        FindAction(GetParam().language)->trigger();
        FindAction(GetParam().colours)->trigger();
        QApplication::processEvents();
    }
    /// Another user starts the program.
    void BeginAsFriend()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(Path("friend")));
        Restart();
        Begin();
        EXPECT_FALSE(HasLook(OwnLook));
        Open(WritePhoto("theirs.png", 120, 80));
        EXPECT_TRUE(editor->GetPackages().empty());
    }
    void Show(int tab) const
    {
        Find<QTabWidget>("panels")->setCurrentIndex(tab);
        QApplication::processEvents();
    }
    void DragSlider(const char* name, double share) const
    {
        auto& slider = *Find<QSlider>(name);
        const int middle = slider.height() / 2;
        Drag(slider, {slider.width() / 2, middle},
             {static_cast<int>(slider.width() * share), middle});
    }
    Image Draw() const { return DrawWhole(editor->GetHost().GetDrawer()); }

    /// Adjusts the photo, saves that as a look, and leaves the look alone on the photo.
    void MakeLook()
    {
        Show(1);
        EXPECT_EQ(Find<QTabWidget>("panels")->tabText(1).toStdString(), GetParam().adjust);
        DragSlider("exposure.stops", 0.63);
        DragSlider("contrast.amount", 0.9);
        adjusted = Draw();
        InDialog([](QDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("lookName"))->setText(OwnLook);
            dialog.findChild<QPushButton*>(QStringLiteral("lookSave"))->click();
        });
        Find<QPushButton>("saveLook")->click();
        Find<QPushButton>("resetAdjustments")->click();
        Show(0);
        ClickLook(OwnLook);
        EXPECT_TRUE(HaveSamePixels(Draw(), adjusted));
    }

    /// Works in the next dialog.
    void InDialog(const std::function<void(QDialog& dialog)>& work) const
    {
        QTimer::singleShot(0, window.get(), [work] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            work(*dialog);
        });
    }
    /// Names the file in the next dialog.
    void NameFile(const QString& path) const
    {
        InDialog([path](QDialog& dialog) {
            dynamic_cast<QFileDialog&>(dialog).selectFile(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }
    /// Shares the look that is on the photo.
    void Share(const QString& path) const
    {
        InDialog([this, path](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), QStringLiteral("shareLooks"));
            dialog.findChild<QLineEdit*>(QStringLiteral("author"))->setText(QStringLiteral("Ada"));
            NameFile(path);
            dialog.findChild<QPushButton*>(QStringLiteral("shareButton"))->click();
        });
        FindAction("sharePreset")->trigger();
        EXPECT_THAT(GetMessage().toStdString(), HasSubstr(GetParam().written));
    }
    void DropOnPanel(const QString& path) const
    {
        auto* const panel = Find<QWidget>("presetsPanel");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(panel, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(panel, &drop);
    }
    /// Puts the look on the friend's photo, which is the same picture.
    void ExpectSameLook() const
    {
        ASSERT_TRUE(HasLook(OwnLook));
        EXPECT_EQ(GetMessage().toStdString(), GetParam().imported);
        ClickLook(OwnLook);
        EXPECT_EQ(GetAppliedName(), OwnLook);
        EXPECT_TRUE(HaveSamePixels(Draw(), adjusted));
    }

    Image adjusted;
};

} // namespace

TEST_P(TravelTest, aSharedFileDroppedOnTheWindowMakesTheSamePicture)
{
    Share(Path("dusk.lumetra"));
    BeginAsFriend();

    DropFiles({Path("dusk.lumetra")});

    ExpectSameLook();
    EXPECT_THAT(ReadFile("friend/lumetra/presets.json").toStdString(), HasSubstr("\"Ada\""));
}

TEST_P(TravelTest, aSharedFileThatIsChosenInTheDialogMakesTheSamePicture)
{
    Share(Path("dusk.lumetra"));
    BeginAsFriend();

    NameFile(Path("dusk.lumetra"));
    FindAction("importPresets")->trigger();

    ExpectSameLook();
}

TEST_P(TravelTest, anExportedPictureDroppedOnThePanelGivesItsLook)
{
    const QString picture = Path("sent.jpg");
    InDialog([picture](QDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("exportPath"))->setText(picture);
        dialog.findChild<QPushButton*>(QStringLiteral("exportButton"))->click();
    });
    FindAction("exportPhoto")->trigger();
    WaitUntil([this] { return !IsExporting(); });
    BeginAsFriend();

    DropOnPanel(picture);

    ExpectSameLook();
    EXPECT_TRUE(editor->GetPhotoPath().endsWith(QStringLiteral("theirs.png")))
        << "the picture is not opened";
}

TEST_P(TravelTest, aTableOfTheLookIsWrittenAndTakenInAgain)
{
    NameFile(Path("Dusk.clf"));
    FindAction("exportPreset")->trigger();
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr(GetParam().written));
    BeginAsFriend();

    DropOnPanel(Path("Dusk.clf"));

    ASSERT_TRUE(HasLook(OwnLook));
    ClickLook(OwnLook);
    const Image drawn = Draw();
    int largest = 0;
    for (int y = 0; y < drawn.GetHeight(); ++y)
        for (int i = 0; i < drawn.GetWidth() * Image::Channels; ++i)
            largest = std::max(largest, std::abs(drawn.Row(y)[i] - adjusted.Row(y)[i]));
    constexpr int Cell = 256 / 32; // between two points of the table, which goes straight there
    EXPECT_LE(largest, Cell);
}

TEST_P(TravelTest, theSameLookIsTakenInOnce)
{
    Share(Path("dusk.lumetra"));
    BeginAsFriend();
    DropOnPanel(Path("dusk.lumetra"));
    const QByteArray store = ReadFile("friend/lumetra/presets.json");

    DropOnPanel(Path("dusk.lumetra"));

    EXPECT_EQ(ReadFile("friend/lumetra/presets.json"), store);
}

INSTANTIATE_TEST_SUITE_P(InEveryDress, TravelTest, testing::ValuesIn(Setups),
                         [](const auto& test) { return std::string(test.param.name); });
