// SPDX-License-Identifier: GPL-2.0-or-later
// A model that throws becomes a message to the user, never the end of the program.
#include "panel/commands/PanelGuard.h"

#include "PanelFixture.h"
#include "panel/grid/PresetGrid.h"
#include "panel/widgets/SliderRow.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

#include <functional>
#include <stdexcept>

using LumetraPlugin::PanelGuard;
using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;

namespace {

class PanelGuardTest : public PanelFixture
{
protected:
    /// Takes the workspace from the model, which then throws whenever it would draw.
    void LoseWorkspace()
    {
        const auto gone = std::make_shared<LumetraHost::WorkspaceController>();
        Model().Zorvik::Lumetra::IWorkspaceUser::SetWorkspaceController(gone);
        for (int g = 0; g < Model().rowCount(); ++g)
            for (int i = 0; i < Model().rowCount(Model().index(g, 0)); ++i)
                Model()
                    .GetPreset(Preset(g, i))
                    ->Zorvik::Lumetra::IWorkspaceUser::SetWorkspaceController(gone);
    }
    void FindWorkspace() { editor.OpenPhoto(photo); }

    QSpinBox& Number(const char* slider)
    {
        return *Find<QSlider>(slider).parentWidget()->findChild<QSpinBox*>();
    }
    void Press(QWidget& widget, int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &press);
    }
};

} // namespace

TEST_F(PanelGuardTest, everyCommandThatFailsIsTold)
{
    const std::pair<const char*, std::function<void()>> commands[] = {
        {"a click", [this] { Click("Grey"); }},
        {"Enter", [this] { Press(Grid(0), Qt::Key_Return); }},
        {"a typed intensity", [this] { Number("intensitySlider").setValue(20); }},
        {"an extra slider", [this] { Drag("extraSlider0", {-80}); }},
        {"a typed extra slider", [this] { Number("extraSlider0").setValue(-70); }},
        {"reset", [this] { Find<QAbstractButton>("resetButton").click(); }},
        {"apply", [this] { Find<QAbstractButton>("applyButton").click(); }},
        {"discard", [this] { Find<QAbstractButton>("discardButton").click(); }}};
    for (const auto& [name, run] : commands) {
        SCOPED_TRACE(name);
        FindWorkspace();
        Click("Bright");
        Grid(0).SetCurrentPreset(Named("Grey"));
        editor.messages.clear();
        LoseWorkspace();

        EXPECT_NO_THROW(run());

        ASSERT_FALSE(editor.messages.isEmpty());
        EXPECT_FALSE(editor.messages.front().contains(QLatin1Char('\n')));
        EXPECT_TRUE(editor.messages.front().contains(QStringLiteral("workspace")))
            << qPrintable(editor.messages.front());
        FindWorkspace();
        Click("Hard");
        EXPECT_TRUE(IsApplied("Hard")) << "the panel is still in use";
        EXPECT_EQ(Find<QLabel>("appliedName").text(), QStringLiteral("Hard"));
    }
}

TEST_F(PanelGuardTest, theViewsShowWhatIsTrueAfterAFailure)
{
    Click("Bright");
    const auto picture = editor.GetResult();
    LoseWorkspace();

    Click("Grey");

    EXPECT_FALSE(IsApplied("Grey")) << "nothing of it was drawn";
    EXPECT_TRUE(IsApplied("Bright"));
    EXPECT_EQ(Find<QLabel>("appliedName").text(), QStringLiteral("Bright"));
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
}

TEST_F(PanelGuardTest, aSliderGoesBackToItsRow)
{
    Click("Bright");
    const int value = Find<QSlider>("extraSlider0").value();
    LoseWorkspace();

    Drag("extraSlider0", {-80});

    EXPECT_EQ(Find<QSlider>("extraSlider0").value(), value);
    EXPECT_EQ(Number("extraSlider0").value(), value);
}

TEST_F(PanelGuardTest, passesNothingOfAnyType)
{
    PanelGuard guard(editor);

    EXPECT_TRUE(guard.Run([] {}));
    EXPECT_FALSE(guard.Run([] { throw std::runtime_error("first line\nsecond line"); }));
    EXPECT_FALSE(guard.Run([] { throw 42; }));

    ASSERT_EQ(editor.messages.size(), 2);
    EXPECT_EQ(editor.messages.front(), QStringLiteral("first line"));
    EXPECT_FALSE(editor.messages.back().isEmpty());
}

TEST_F(PanelGuardTest, theInnermostCatches)
{
    PanelGuard guard(editor);
    bool hasGoneOn = false;

    EXPECT_TRUE(guard.Run([&] {
        guard.Run([] { throw 42; });
        hasGoneOn = true;
    }));

    EXPECT_TRUE(hasGoneOn);
    EXPECT_EQ(editor.messages.size(), 1);
}
