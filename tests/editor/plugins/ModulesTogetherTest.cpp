// SPDX-License-Identifier: GPL-2.0-or-later
// Modules that work with each other's layers and looks.
#include "Places.h"
#include "editor/EditorFixture.h"
#include "host/drawer/DrawnPicture.h"

#include "LumetraEditor/ILookKeeper.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QApplication>
#include <QMetaType>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>

#include <gmock/gmock.h>

Q_DECLARE_METATYPE(LumetraEditor::NewLook)

using namespace LumetraTest;
using LumetraEditor::NewLook;
using LumetraHost::DrawWhole;
using LumetraHost::HaveSamePixels;
using LumetraHost::Image;
using testing::HasSubstr;
using testing::Not;
using Zorvik::Quindle::EffectSettingsImpl;

namespace {

const QString Look = QStringLiteral("Candlelight");

class ModulesTogetherTest : public EditorTest
{
protected:
    ModulesTogetherTest()
    {
        Load();
        Open(WritePhoto("lake.png", 80, 60));
    }
    ~ModulesTogetherTest() override { qApp->setProperty("help", QVariant()); }

    void Load()
    {
        window->LoadPanels({QStringLiteral(LUMETRA_TEST_MODULES "/helping-module"),
                            QStringLiteral(LUMETRA_EXAMPLE_MODULES),
                            QStringLiteral(LUMETRA_MODULES)});
        QApplication::processEvents();
    }
    QVariant Help(const char* what) const
    {
        qApp->setProperty("helped", QVariant());
        qApp->setProperty("help", QString::fromLatin1(what));
        Find<QPushButton>("help")->click();
        return qApp->property("helped");
    }
    QSlider* Slider() const { return Find<QSlider>("exposureSlider"); }
    Image Draw() const { return DrawWhole(editor->GetHost().GetDrawer()); }
    int CountOpen() const
    {
        return static_cast<int>(editor->GetHost().GetDrawer().GetOpenPackages().size());
    }
    void ExpectSameAfterReopening()
    {
        const Image picture = Draw();
        editor->SaveEdit();
        Restart();
        Load();
        Open(Path("lake.png"));
        EXPECT_TRUE(HaveSamePixels(Draw(), picture));
    }

    static NewLook MakeLook(const char* name, int blendAmount = 77)
    {
        NewLook look;
        look.name = QString::fromUtf8(name);
        look.settings.Effects().push_back(EffectSettingsImpl::Create("exposure"));
        look.settings.Effects()[0]->SetParameter("stops", 0.7);
        look.settings.SetBlendAmount(blendAmount);
        return look;
    }
    std::string Store(const NewLook& look) const
    {
        qApp->setProperty("look", QVariant::fromValue(look));
        return Help("store").toString().toStdString();
    }
};

} // namespace

TEST_F(ModulesTogetherTest, aPanelForgetsWhatAnotherOneHasCommitted)
{
    Slider()->setValue(10);
    ClickLook(Look);

    Find<QPushButton>("applyButton")->click();

    EXPECT_EQ(Slider()->value(), 0);
    EXPECT_EQ(CountOpen(), 0);
    ExpectSameAfterReopening();
    EXPECT_EQ(Slider()->value(), 0);
}

TEST_F(ModulesTogetherTest, aLookThatAnotherPanelHasCommittedIsKeptAsByItsOwn)
{
    ClickLook(Look);
    Find<QPushButton>("applyButton")->click();
    const QString shownAfterItsOwn = GetAppliedName();
    const bool wasEnabled = Find<QPushButton>("applyButton")->isEnabled();
    FindAction("undo")->trigger();
    ASSERT_EQ(GetAppliedName(), Look);

    Help("commit");

    EXPECT_EQ(GetAppliedName(), shownAfterItsOwn);
    EXPECT_EQ(Find<QPushButton>("applyButton")->isEnabled(), wasEnabled);
    EXPECT_EQ(editor->GetRecords().at(0).preset, Look.toStdString());
    ExpectSameAfterReopening();
}

TEST_F(ModulesTogetherTest, aCommitOfSeveralPanelsIsOneStep)
{
    Slider()->setValue(10);
    ClickLook(Look);
    const Image before = Draw();

    Help("commit");
    EXPECT_EQ(editor->GetUndoStack().count(), 3);
    FindAction("undo")->trigger();

    EXPECT_EQ(Slider()->value(), 10);
    EXPECT_EQ(GetAppliedName(), Look);
    EXPECT_EQ(CountOpen(), 2);
    EXPECT_TRUE(HaveSamePixels(Draw(), before));
    FindAction("redo")->trigger();
    EXPECT_EQ(Slider()->value(), 0);
    EXPECT_EQ(CountOpen(), 0);
    EXPECT_TRUE(HaveSamePixels(Draw(), before));
}

TEST_F(ModulesTogetherTest, onlyAPanelWithAnOpenPackageIsTold)
{
    ClickLook(Look);
    qApp->setProperty("helped", QVariant());
    Find<QPushButton>("applyButton")->click();
    EXPECT_EQ(qApp->property("helped").toString(), QString());
    Help("draw");

    ClickLook(Look);
    Find<QPushButton>("applyButton")->click();

    EXPECT_EQ(qApp->property("helped").toString(), QStringLiteral("committed"));
    Help("draw");
    EXPECT_EQ(Help("commit").toString(), QString()) << "its own commit";
}

TEST_F(ModulesTogetherTest, aPanelThatFailsAtACommitCostsOnlyItself)
{
    Help("draw");
    Slider()->setValue(10);
    ClickLook(Look);
    const Image before = Draw();
    qApp->setProperty("help", QStringLiteral("fail"));

    Find<QPushButton>("applyButton")->click();

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("the helper fails"));
    EXPECT_EQ(Find<QTabWidget>("panels")->count(), 3);
    EXPECT_EQ(Slider()->value(), 0);
    EXPECT_EQ(CountOpen(), 0);
    EXPECT_TRUE(HaveSamePixels(Draw(), before));
}

TEST_F(ModulesTogetherTest, whatAModuleCommitsWhileItRestoresIsOneMoreLayer)
{
    WriteFile("lake.png.lumetra.json", R"({"format": "lumetra-sidecar", "version": 2})");
    qApp->setProperty("help", QStringLiteral("restore"));

    Open(Path("lake.png"));

    const auto layers = editor->CaptureLayers();
    ASSERT_EQ(layers.size(), 1U);
    EXPECT_EQ(layers[0].module, QStringLiteral("helping-module"));
    EXPECT_FALSE(layers[0].isOpen);
}

TEST_F(ModulesTogetherTest, aModuleSeesTheLayersOfAll)
{
    ClickLook(Look);
    Find<QPushButton>("applyButton")->click();
    Slider()->setValue(10);
    editor->SetLayerOn(1, false);

    const QStringList layers = Help("layers").toStringList();

    ASSERT_EQ(layers.size(), 2);
    EXPECT_THAT(layers[0].toStdString(), HasSubstr("lumetra-presets Candlelight "));
    EXPECT_THAT(layers[0].toStdString(), HasSubstr(" on committed "));
    EXPECT_EQ(layers[1], QStringLiteral("exposure-panel  100 off open 1"));
}

TEST_F(ModulesTogetherTest, aLookThatAModuleStoresIsOneOfTheUsers)
{
    EXPECT_EQ(Store(MakeLook(" Mine ")), "");

    ASSERT_TRUE(HasLook(QStringLiteral("Mine")));
    EXPECT_THAT(ReadFile("data/lumetra/presets.json").toStdString(), HasSubstr("\"Mine\""));
    ClickLook(QStringLiteral("Mine"));
    const auto packages = editor->GetPackages();
    ASSERT_EQ(packages.size(), 1U);
    EXPECT_NEAR(packages[0].GetBlendAmount(), 77, 2) << "one percent";
    EXPECT_DOUBLE_EQ(packages[0].Effects().at(0)->GetParameter("stops"), 0.7);
    EXPECT_EQ(Find<QSlider>("intensitySlider")->value(), 70);
}

TEST_F(ModulesTogetherTest, aLookMayHaveNoIntensity)
{
    NewLook look = MakeLook("Plain", 1);
    look.intensity = NewLook::Intensity::None;

    EXPECT_EQ(Store(look), "");

    ClickLook(QStringLiteral("Plain"));
    EXPECT_FALSE(Find<QSlider>("intensitySlider")->isVisible());
    EXPECT_EQ(editor->GetPackages().at(0).GetBlendAmount(), 1);
}

TEST_F(ModulesTogetherTest, aLookThatCannotBeOneOfTheUsersIsRefused)
{
    ASSERT_EQ(Store(MakeLook("Mine")), "");

    EXPECT_THAT(Store(MakeLook("Mine")), HasSubstr("There is a look “Mine” already."));
    EXPECT_THAT(Store(MakeLook("  ")), HasSubstr("expected 1 to 50 characters, found 0"));
    EXPECT_THAT(Store(MakeLook("a\x1b[31m")), HasSubstr("control characters"));
    EXPECT_THAT(Store(MakeLook("Odd", 0)), HasSubstr("blend amount 0"));
    EXPECT_THAT(Store(MakeLook("Odd", 256)), HasSubstr("blend amount 256"));
    NewLook look = MakeLook("Odd");
    look.intensity = NewLook::Intensity::None;
    EXPECT_THAT(Store(look), HasSubstr("blend amount 77"));
    look = MakeLook("Odd");
    look.settings.Effects().clear();
    EXPECT_THAT(Store(look), HasSubstr("has no effects"));
    look.settings.Effects().push_back(nullptr);
    EXPECT_THAT(Store(look), HasSubstr("has no effects"));
    EXPECT_FALSE(HasLook(QStringLiteral("Odd")));
}

TEST_F(ModulesTogetherTest, aLookMayHaveSlidersOfItsOwn)
{
    NewLook look = MakeLook("Mine", 1);
    look.intensity = NewLook::Intensity::Sliders;
    look.variables = {{"exposure", "stops", 0, 0.7}};
    look.sliders.emplace();

    EXPECT_EQ(Store(look), "");

    ClickLook(QStringLiteral("Mine"));
    auto* const intensity = Find<QSlider>("intensitySlider");
    EXPECT_EQ(intensity->value(), 100);
    intensity->setSliderDown(true);
    intensity->setValue(50);
    intensity->setSliderDown(false);
    EXPECT_NEAR(editor->GetPackages().at(0).Effects().at(0)->GetParameter("stops"), 0.35, 1e-12);
    EXPECT_EQ(window->findChild<QSlider*>(QStringLiteral("extraSlider0")), nullptr);
}

TEST_F(ModulesTogetherTest, aLookWithASliderThatMovesNothingIsRefused)
{
    const auto refuse = [this](const LumetraEditor::LookSlider& slider) {
        NewLook look = MakeLook("Odd", 1);
        look.sliders = {slider};
        EXPECT_THAT(Store(look), HasSubstr("cannot have the slider “Light”"));
    };
    const QString title = QStringLiteral("Light");
    refuse({title, 0, 100, {}});
    refuse({title, 0, 100, {{"contrast", "amount", 0, 1}}});
    refuse({title, 0, 100, {{"exposure", "steps", 0, 1}}});
    refuse({title, 0, 100, {{"exposure", "stops", 1, 1}}});
    refuse({title, 0, 100, {{"exposure", "stops", 0, 99}}});
    refuse({title, 100, 100, {{"exposure", "stops", 0, 1}}});
    NewLook look = MakeLook("Odd", 1);
    look.intensity = NewLook::Intensity::Sliders;
    EXPECT_THAT(Store(look), HasSubstr("cannot have the slider “Intensity”"));
    look.variables = {{"exposure", "stops", 0, 0.7}};
    look.sliders = {{title, 0, 100, {{"exposure", "stops", 0, 1}}}};
    EXPECT_THAT(Store(look), HasSubstr("cannot have the slider “Light”"));
    EXPECT_FALSE(HasLook(QStringLiteral("Odd")));
}

TEST_F(ModulesTogetherTest, onlyLooksOfTheUserCanGetOtherEffects)
{
    ASSERT_EQ(Store(MakeLook("Mine", 1)), "");
    ClickLook(QStringLiteral("Mine"));
    const QString id =
        QString::fromStdString(editor->GetPackages().at(0).Package().GetPresetName());
    EXPECT_EQ(editor->FindLookName(id), QStringLiteral("Mine"));
    EXPECT_EQ(editor->FindLookName(QStringLiteral("candlelight")), QString());
    NewLook other = MakeLook("Other", 1);
    other.settings.Effects()[0]->SetParameter("stops", -1);

    EXPECT_EQ(editor->UpdateLook(id, other.settings), QString());

    EXPECT_EQ(editor->GetPackages().at(0).Effects().at(0)->GetParameter("stops"), -1);
    EXPECT_THAT(editor->UpdateLook(QStringLiteral("none"), other.settings).toStdString(),
                HasSubstr("no such look"));
}

TEST_F(ModulesTogetherTest, theFirstPanelThatKeepsLooksGetsThem)
{
    qApp->setProperty("keptLook", QVariant());
    qApp->setProperty("help", QStringLiteral("keep"));

    EXPECT_EQ(editor->StoreLook(MakeLook("Mine")), QString());

    EXPECT_EQ(qApp->property("keptLook").toString(), QStringLiteral("Mine"));
    EXPECT_FALSE(HasLook(QStringLiteral("Mine")));
}

TEST_F(ModulesTogetherTest, aPanelThatFailsToKeepALookCostsOnlyItself)
{
    qApp->setProperty("help", QStringLiteral("fail"));

    EXPECT_THAT(editor->StoreLook(MakeLook("Mine")).toStdString(), HasSubstr("“Help” has failed"));

    EXPECT_EQ(Find<QTabWidget>("panels")->count(), 3);
    qApp->setProperty("help", QVariant());
    EXPECT_EQ(editor->StoreLook(MakeLook("Mine")), QString());
    EXPECT_TRUE(HasLook(QStringLiteral("Mine")));
}

TEST_F(ModulesTogetherTest, aLookIsRefusedWhereNoPanelKeepsLooks)
{
    Restart();
    LoadExamplePanel();

    EXPECT_THAT(editor->StoreLook(MakeLook("Mine")).toStdString(),
                HasSubstr("no panel that keeps looks"));
}
