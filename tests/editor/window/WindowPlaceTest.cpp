// SPDX-License-Identifier: GPL-2.0-or-later
// The window on screens that are smaller than it wants to be.
#include "editor/EditorFixture.h"

#include "settings/EditorSettings.h"

#include <QScreen>

using namespace LumetraTest;

namespace {

class WindowPlaceTest : public EditorTest
{
protected:
    /// Starts the program again after a run in which nobody changed the window.
    void StartUntouched()
    {
        window.reset();
        editor = std::make_unique<LumetraEditor::Editor>();
        window = std::make_unique<LumetraEditor::EditorWindow>(*editor);
    }

    QRect GetScreen() const { return window->screen()->availableGeometry(); }

    /// True when the title bar and the borders fit too.
    bool HasRoomForAFrame() const
    {
        const QSize room = GetScreen().size() - window->size();
        return room.width() >= 8 && room.height() >= 40;
    }
};

} // namespace

TEST_F(WindowPlaceTest, theFirstWindowFitsTheScreen)
{
    LumetraEditor::EditorSettings().Set(QStringLiteral("window/geometry"), QByteArray());

    StartUntouched();

    EXPECT_TRUE(HasRoomForAFrame()) << window->width() << " x " << window->height();
    EXPECT_GT(window->width(), 600) << "as large as it may be";
}

TEST_F(WindowPlaceTest, aStoredSizeFitsTheScreen)
{
    window->resize(GetScreen().size() + QSize(300, 300));
    ASSERT_TRUE(window->close());

    StartUntouched();

    EXPECT_TRUE(HasRoomForAFrame()) << window->width() << " x " << window->height();
    EXPECT_TRUE(GetScreen().contains(window->geometry()));
}

TEST_F(WindowPlaceTest, aStoredPlaceBesideTheScreenIsBroughtBack)
{
    window->setGeometry(GetScreen().right() - 100, GetScreen().bottom() - 100, 700, 500);
    ASSERT_TRUE(window->close());

    StartUntouched();

    EXPECT_TRUE(GetScreen().contains(window->geometry()));
    EXPECT_EQ(window->size(), QSize(700, 500));
}
