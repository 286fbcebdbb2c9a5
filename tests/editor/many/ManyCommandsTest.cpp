// SPDX-License-Identifier: GPL-2.0-or-later
// One edit on several photos, in the window.
#include "editor/EditorFixture.h"
#include "editor/ScriptedAlerts.h"
#include "host/drawer/DrawnPicture.h"

#include "edits/EditFile.h"
#include "many/FollowSwitch.h"
#include "strip/PhotoBrowser.h"
#include "strip/PhotoStrip.h"
#include "strip/PhotoStripModel.h"
#include "userdata/EditPlaces.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QSemaphore>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraEditor::PhotoStrip;
using LumetraHost::DrawWhole;
using LumetraHost::EditFile;
using LumetraHost::EditState;
using LumetraHost::HaveSamePixels;
using LumetraHost::Image;
using LumetraHost::EditPlaces::GetBeside;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const QString Look = QStringLiteral("Candlelight");
const QString OtherLook = QStringLiteral("Fresh");

class ManyCommandsTest : public EditorTest
{
protected:
    ManyCommandsTest()
    {
        LoadExamplePanel();
        LoadPresetsPanel();
        window->OpenPhotos(photos);
        Wait();
    }

    void Wait()
    {
        WaitUntil([this] { return !editor->IsOpening(); });
    }
    LumetraEditor::ManyEdits& Edits() const { return editor->GetManySteps().GetEdits(); }
    PhotoStrip& Strip() const { return GetPart<PhotoStrip>(); }
    void Select(const QStringList& selection) const
    {
        const auto& row = GetPart<LumetraEditor::PhotoStripModel>();
        QItemSelection rows;
        for (const QString& photo : selection)
            rows.select(row.index(row.FindRow(photo)), row.index(row.FindRow(photo)));
        Strip().selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
        ASSERT_EQ(window->GetBrowser().GetSelectedPhotos().size(), selection.size());
    }
    /// All changes are on the disk and have been told.
    void Finish() const
    {
        Edits().WaitForAll();
        editor->SaveEdit();
    }
    void Trigger(const char* action) const
    {
        ASSERT_TRUE(FindAction(action)->isEnabled()) << action;
        FindAction(action)->trigger();
        Finish();
    }
    void Show(const QString& photo)
    {
        emit Strip().chosen(photo);
        Wait();
    }
    QSlider* Exposure() const { return Find<QSlider>("exposureSlider"); }
    QSlider* Intensity() const { return Find<QSlider>("intensitySlider"); }
    /// Types an intensity of 40 percent.
    void LowerIntensity() const
    {
        auto* const number = Intensity()->parentWidget()->findChild<QSpinBox*>();
        ASSERT_NE(number, nullptr);
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, QStringLiteral("40"));
        QTest::keyClick(number, Qt::Key_Return);
    }
    void ApplyForGood() const { Find<QPushButton>("applyButton")->click(); }
    Image Draw() const { return DrawWhole(editor->GetHost().GetDrawer()); }
    QString GetManyText() const { return Find<QLabel>("manyText")->text(); }

    /// The layers in the photo's file by their names, with an asterisk behind open ones.
    static std::vector<std::string> LooksOf(const QString& photo)
    {
        std::vector<std::string> names;
        if (QFile::exists(GetBeside(photo)))
            for (const auto& layer : EditFile::Read(GetBeside(photo)).state.layers)
                names.push_back(layer.record.preset + (layer.isOpen ? "*" : ""));
        return names;
    }

    QStringList photos{WritePhoto("a.png", 80, 60), WritePhoto("b.png", 70, 50),
                       WritePhoto("c.png", 60, 40)};
};

} // namespace

TEST_F(ManyCommandsTest, aPastedEditIsTheSameAsOneMadeByHand)
{
    ClickLook(Look);
    LowerIntensity();
    Exposure()->setValue(7);
    const int intensity = Intensity()->value();
    Trigger("copyEdit");
    Show(photos[1]);
    const Image original = Draw();

    Trigger("pasteEdit");
    const Image pasted = Draw();
    EXPECT_EQ(GetAppliedName(), Look);
    EXPECT_EQ(Intensity()->value(), intensity);
    EXPECT_EQ(Exposure()->value(), 7);
    Trigger("undo");
    EXPECT_TRUE(HaveSamePixels(Draw(), original));
    ClickLook(Look);
    LowerIntensity();
    Exposure()->setValue(7);

    EXPECT_TRUE(HaveSamePixels(Draw(), pasted));
}

TEST_F(ManyCommandsTest, aSavedEditCanBeCopiedAndTakenOffAsSoonAsItsPhotoIsOpen)
{
    ClickLook(Look);
    Finish();
    Show(photos[1]);
    EXPECT_FALSE(FindAction("copyEdit")->isEnabled());

    Show(photos[0]);

    EXPECT_TRUE(FindAction("copyEdit")->isEnabled());
    EXPECT_TRUE(FindAction("revert")->isEnabled());
}

TEST_F(ManyCommandsTest, pastingOnTheSelectedIsOneStep)
{
    ClickLook(Look);
    Trigger("copyEdit");
    Show(photos[1]);
    ClickLook(OtherLook);
    Show(photos[0]);
    Select(photos);

    Trigger("pasteEdit");
    EXPECT_EQ(GetManyText(), QStringLiteral("2 photos changed")) << "one has the edit already";
    for (const QString& photo : photos)
        EXPECT_THAT(LooksOf(photo), ElementsAre("Candlelight*"));
    EXPECT_THAT(FindAction("undo")->text().toStdString(), HasSubstr("3 photos"));
    Trigger("undo");

    EXPECT_THAT(LooksOf(photos[0]), ElementsAre("Candlelight*"));
    EXPECT_THAT(LooksOf(photos[1]), ElementsAre("Fresh*"));
    EXPECT_FALSE(QFile::exists(GetBeside(photos[2])));
    Trigger("redo");
    for (const QString& photo : photos)
        EXPECT_THAT(LooksOf(photo), ElementsAre("Candlelight*"));
}

TEST_F(ManyCommandsTest, aPhotoOpensWithThePastedLookAtItsIntensity)
{
    ClickLook(Look);
    LowerIntensity();
    const int intensity = Intensity()->value();
    Trigger("copyEdit");
    Select(photos);
    Trigger("pasteEdit");

    Show(photos[2]);
    const Image opened = Draw();
    EXPECT_EQ(GetAppliedName(), Look);
    EXPECT_EQ(Intensity()->value(), intensity);
    EXPECT_EQ(GetMessage(), QString());
    Select({photos[2]});
    Trigger("revert");
    ClickLook(Look);
    LowerIntensity();

    EXPECT_TRUE(HaveSamePixels(Draw(), opened));
}

TEST_F(ManyCommandsTest, aStepIsUndoneAndRedoneWhenOtherPhotosAreShown)
{
    Show(photos[1]);
    const Image original = Draw();
    Show(photos[0]);
    Select(photos);
    ClickLook(Look);
    Finish();
    Show(photos[1]);
    EXPECT_EQ(GetAppliedName(), Look);

    Trigger("undo");
    EXPECT_TRUE(HaveSamePixels(Draw(), original));
    EXPECT_THAT(LooksOf(photos[0]), IsEmpty());
    EXPECT_THAT(LooksOf(photos[2]), IsEmpty());
    Show(photos[2]);
    Trigger("redo");

    EXPECT_EQ(GetAppliedName(), Look);
    for (const QString& photo : photos)
        EXPECT_THAT(LooksOf(photo), ElementsAre("Candlelight*"));
}

TEST_F(ManyCommandsTest, aPhotoWithALaterStepIsLeftByUndo)
{
    Select(photos);
    ClickLook(Look);
    Finish();
    Select({photos[0]});
    ClickLook(OtherLook);
    Show(photos[1]);
    EXPECT_EQ(editor->GetUndoStack().count(), 1) << "the step on one photo is forgotten";

    Trigger("undo");

    EXPECT_THAT(LooksOf(photos[0]), ElementsAre("Fresh*"));
    EXPECT_THAT(LooksOf(photos[1]), IsEmpty());
    EXPECT_THAT(LooksOf(photos[2]), IsEmpty());
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("2 photos changed, 1 left as it was:"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("a.png: "));
}

TEST_F(ManyCommandsTest, clicksAndSlidersGoToAllSelectedPhotos)
{
    Select(photos);
    EXPECT_EQ(Find<QCheckBox>("followSwitch")->text(),
              QStringLiteral("Changes go to all 3 photos"));
    ClickLook(Look);
    Exposure()->setValue(5);
    LowerIntensity();
    Finish();
    EXPECT_EQ(editor->GetUndoStack().count(), 3);
    EXPECT_THAT(FindAction("undo")->text().toStdString(), HasSubstr("(3 photos)"));

    Show(photos[2]);
    EXPECT_EQ(Exposure()->value(), 5);
    const Image other = Draw();
    Select({photos[2]});
    Trigger("revert");
    ClickLook(Look);
    Exposure()->setValue(5);
    LowerIntensity();

    EXPECT_TRUE(HaveSamePixels(Draw(), other));
}

TEST_F(ManyCommandsTest, applyingForGoodGoesToAllSelectedPhotos)
{
    Select(photos);
    ClickLook(Look);
    ApplyForGood();
    Finish();

    for (const QString& photo : photos)
        EXPECT_THAT(LooksOf(photo), ElementsAre("Candlelight"));
    Trigger("undo");
    for (const QString& photo : photos)
        EXPECT_THAT(LooksOf(photo), ElementsAre("Candlelight*"));
}

TEST_F(ManyCommandsTest, switchedOffOnlyTheShownPhotoChanges)
{
    Select(photos);
    Find<QCheckBox>("followSwitch")->click();

    ClickLook(Look);
    Finish();

    EXPECT_THAT(LooksOf(photos[0]), ElementsAre("Candlelight*"));
    EXPECT_THAT(LooksOf(photos[1]), IsEmpty());
    Restart();
    EXPECT_FALSE(GetPart<LumetraEditor::FollowSwitch>().isChecked()) << "it is remembered";
}

TEST_F(ManyCommandsTest, aLookUnderThePointerIsNoEdit)
{
    Select(photos);
    PointAtLook(Look);
    Finish();

    EXPECT_EQ(editor->GetUndoStack().count(), 0);
    EXPECT_THAT(LooksOf(photos[1]), IsEmpty());
}

TEST_F(ManyCommandsTest, theLookGoesToTheOthersWithoutTheAdjustments)
{
    Show(photos[1]);
    ClickLook(OtherLook);
    Exposure()->setValue(-3);
    Show(photos[0]);
    EXPECT_FALSE(FindAction("putLook")->isEnabled()) << "there is no other photo";
    ClickLook(Look);
    Exposure()->setValue(7);
    Select(photos);

    Trigger("putLook");
    EXPECT_EQ(Exposure()->value(), 7);
    Show(photos[1]);

    EXPECT_EQ(GetAppliedName(), Look);
    EXPECT_EQ(Exposure()->value(), -3);
}

TEST_F(ManyCommandsTest, takingOffIsForAllSelectedPhotos)
{
    Select(photos);
    ClickLook(Look);
    ApplyForGood();
    Exposure()->setValue(7);
    Finish();

    Trigger("revert");

    EXPECT_TRUE(editor->GetLayers().empty());
    EXPECT_EQ(Exposure()->value(), 0);
    for (const QString& photo : photos)
        EXPECT_THAT(LooksOf(photo), IsEmpty());
}

TEST_F(ManyCommandsTest, aPhotoThatIsOpenedMeanwhileHasItsChange)
{
    ClickLook(Look);
    QSemaphore begun, mayGoOn;
    editor->GetManySteps().Change(QStringLiteral("Test"), {photos[1], photos[2]},
                                  [&, golden = editor->GetEdit()](const EditState&) {
                                      begun.release();
                                      mayGoOn.acquire();
                                      return golden;
                                  });
    begun.acquire(); // the second photo is being changed, the third one waits
    mayGoOn.release(2);

    Show(photos[2]);

    EXPECT_EQ(GetAppliedName(), Look);
    Finish();
    EXPECT_THAT(LooksOf(photos[1]), ElementsAre("Candlelight*"));
}

TEST_F(ManyCommandsTest, aStepThatChangesNothingIsNoStep)
{
    Select(photos);

    Trigger("revert");

    EXPECT_EQ(editor->GetUndoStack().count(), 0);
    EXPECT_EQ(GetManyText(), QStringLiteral("No photo changed"));
}

TEST_F(ManyCommandsTest, onlyChosenPartsArePasted)
{
    ClickLook(Look);
    Exposure()->setValue(7);
    Trigger("copyEdit");
    Show(photos[1]);
    Exposure()->setValue(-3);
    const auto answer = [this](bool isOnTop) {
        QTimer::singleShot(0, window.get(), [isOnTop] {
            auto* const dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            const auto find = [dialog](const char* name) {
                return dialog->findChild<QAbstractButton*>(QLatin1String(name));
            };
            EXPECT_THAT(find("pastePart.lumetra-presets")->text().toStdString(),
                        HasSubstr("Candlelight"));
            find("pastePart.exposure-panel")->setChecked(false);
            find(isOnTop ? "pasteOnTop" : "pasteReplace")->click();
            find("pasteButton")->click();
        });
        Trigger("pasteParts");
    };

    answer(false);
    EXPECT_EQ(Exposure()->value(), -3);
    EXPECT_EQ(GetAppliedName(), Look);
    answer(true);

    const auto looks = LooksOf(photos[1]);
    ASSERT_EQ(looks.size(), 3u);
    EXPECT_EQ(looks[1], "Candlelight");
    EXPECT_EQ(looks[2], "Candlelight*");
    EXPECT_EQ(Exposure()->value(), 0) << "it is applied for good, below the look";
}

namespace {

/// Answers a question, and lets changes that wait go on meanwhile.
struct AnswerAndGoOn : Zorvik::Util::IAlertBackend
{
    QMessageBox::StandardButton Exec(Zorvik::Util::AlertBox&) override
    {
        ++asked;
        mayGoOn.release(2);
        return answer;
    }

    QSemaphore mayGoOn;
    QMessageBox::StandardButton answer = QMessageBox::Save;
    int asked = 0;
};

class ManyClosingTest : public ManyCommandsTest
{
protected:
    ManyClosingTest()
    {
        earlier = Zorvik::Util::AlertBox::SetBackend(backend);
        ClickLook(Look);
        const EditState golden = editor->GetEdit();
        Find<QPushButton>("discardButton")->click();
        editor->GetManySteps().Change(QStringLiteral("Test"), {photos[1], photos[2]},
                                      [this, golden](const EditState&) {
                                          begun.release();
                                          backend->mayGoOn.acquire();
                                          return golden;
                                      });
        begun.acquire();
    }
    ~ManyClosingTest() override
    {
        backend->mayGoOn.release(2);
        Finish();
        Zorvik::Util::AlertBox::SetBackend(earlier);
    }

    QSemaphore begun;
    std::shared_ptr<Zorvik::Util::IAlertBackend> earlier;
    std::shared_ptr<AnswerAndGoOn> backend = std::make_shared<AnswerAndGoOn>();
};

} // namespace

TEST_F(ManyClosingTest, finishesWhenTheUserSaves)
{
    EXPECT_TRUE(window->close());

    EXPECT_EQ(backend->asked, 1);
    EXPECT_THAT(LooksOf(photos[1]), ElementsAre("Candlelight*"));
    EXPECT_THAT(LooksOf(photos[2]), ElementsAre("Candlelight*"));
}

TEST_F(ManyClosingTest, leavesTheOtherPhotosWhenTheUserDiscards)
{
    backend->answer = QMessageBox::Discard;

    EXPECT_TRUE(window->close());

    EXPECT_EQ(backend->asked, 1);
    EXPECT_THAT(LooksOf(photos[1]), ElementsAre("Candlelight*")) << "it had begun";
}

TEST_F(ManyClosingTest, goesOnWhenTheUserCancels)
{
    backend->answer = QMessageBox::Cancel;

    EXPECT_FALSE(window->close());
}

TEST_F(ManyClosingTest, staysWhenAPhotoCannotBeChanged)
{
    QFile::remove(photos[2]);

    EXPECT_FALSE(window->close());

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("c.png: "));
}
