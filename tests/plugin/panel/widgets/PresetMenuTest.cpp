// SPDX-License-Identifier: GPL-2.0-or-later
// The menu of a look, and the buttons below the pages.
#include "PanelFixture.h"
#include "host/drawer/DrawnPicture.h"

#include "core/PresetCollection.h"
#include "panel/grid/PresetGrid.h"
#include "workspace/WorkspaceController.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include <functional>

using LumetraPlugin::PresetGrid;
using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;

namespace {

class PresetMenuTest : public PanelFixture
{
protected:
    PresetMenuTest()
    {
        Click("Bright");
        TriggerAndType("savePreset", QStringLiteral("Mine"));
        Find<QAbstractButton>("discardButton").click();
    }

    /// Opens the menu of a look, by the mouse or the keyboard, and works on it.
    void InMenu(const char* look, const std::function<void(QMenu&)>& work,
                QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
    {
        PresetGrid& grid = Grid(Named(look).parent().row());
        grid.SetCurrentPreset(Named(look));
        bool isOpen = false;
        QTimer::singleShot(0, &grid, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu);
            isOpen = true;
            work(*menu);
            menu->close();
        });
        const QPoint place = grid.visualRect(grid.GetPresets().FromPreset(Named(look))).center();
        QContextMenuEvent event(reason, place, grid.viewport()->mapToGlobal(place));
        QApplication::sendEvent(grid.viewport(), &event);
        EXPECT_TRUE(isOpen);
    }

    QStringList NamesInMenu(const char* look)
    {
        QStringList names;
        InMenu(look, [&names](QMenu& menu) {
            for (const QAction* const action : menu.actions())
                if (!action->isSeparator())
                    names.append(action->objectName());
        });
        return names;
    }

    void Choose(const char* look, const char* action)
    {
        InMenu(look, [action](QMenu& menu) {
            for (QAction* const offered : menu.actions())
                if (offered->objectName() == QLatin1String(action))
                    return offered->trigger();
            ADD_FAILURE() << "expected the menu to offer " << action;
        });
    }

    void AnswerName(const QString& name)
    {
        QTimer::singleShot(0, qApp, [name] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            dialog->findChild<QLineEdit*>()->setText(name);
            dialog->accept();
        });
    }
};

} // namespace

TEST_F(PresetMenuTest, offersWhatTheLookAllows)
{
    const QStringList always{QStringLiteral("applyPreset"), QStringLiteral("favouritePreset"),
                             QStringLiteral("savePreset"), QStringLiteral("sharePreset"),
                             QStringLiteral("exportPreset")};
    EXPECT_EQ(NamesInMenu("Grey"), always);
    EXPECT_EQ(NamesInMenu("Mine"), always + QStringList({QStringLiteral("renamePreset"),
                                                         QStringLiteral("removePreset")}));
    Click("Grey");
    EXPECT_EQ(NamesInMenu("Grey"),
              always + QStringList({QStringLiteral("resetPreset"), QStringLiteral("discardPreset"),
                                    QStringLiteral("commitPreset")}));
}

TEST_F(PresetMenuTest, opensByTheKeyboardToo)
{
    InMenu(
        "Grey", [](QMenu& menu) { EXPECT_FALSE(menu.actions().isEmpty()); },
        QContextMenuEvent::Keyboard);
}

TEST_F(PresetMenuTest, putsTheLookOnThePhoto)
{
    Choose("Grey", "applyPreset");

    EXPECT_TRUE(IsApplied("Grey"));
}

TEST_F(PresetMenuTest, marksTheLookThatItBelongsTo)
{
    Click("Bright");

    Choose("Grey", "favouritePreset");

    EXPECT_TRUE(Named("Grey").data(PresetModel::FavouriteRole).toBool());
    EXPECT_FALSE(Named("Bright").data(PresetModel::FavouriteRole).toBool());
    InMenu("Grey", [](QMenu& menu) { EXPECT_TRUE(menu.actions().at(1)->isChecked()); });
}

TEST_F(PresetMenuTest, discardsAndApplies)
{
    Click("Grey");
    Choose("Grey", "discardPreset");
    EXPECT_FALSE(IsApplied("Grey"));

    Click("Grey");
    Choose("Grey", "commitPreset");
    EXPECT_FALSE(
        HaveSamePixels(LumetraHost::DrawCommitted(editor.GetHostWorkspace().GetDrawer()), photo));
}

TEST_F(PresetMenuTest, theSaveButtonSavesTheAppliedLook)
{
    Click("Grey");
    AnswerName(QStringLiteral("My Grey"));

    Find<QAbstractButton>("saveAsButton").click();

    EXPECT_TRUE(Shown(UserPage).contains(QStringLiteral("My Grey")));
    EXPECT_TRUE(StoreText().contains(QStringLiteral("My Grey")));
}

TEST_F(PresetMenuTest, theSearchKeyGoesToTheField)
{
    panel->GetWidget()->activateWindow();
    QApplication::setActiveWindow(panel->GetWidget());

    Trigger("searchPresets");

    EXPECT_TRUE(Find<QLineEdit>("searchField").hasFocus());
}
