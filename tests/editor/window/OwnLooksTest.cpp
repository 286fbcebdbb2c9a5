// SPDX-License-Identifier: GPL-2.0-or-later
// Looks of the user's own in the window, with the dialogs that a user sees.
#include "editor/EditorFixture.h"
#include "strip/PhotoStripModel.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QListView>
#include <QTimer>

#include <gmock/gmock.h>

#include <functional>

using namespace LumetraTest;
using testing::HasSubstr;

namespace {

class OwnLooksTest : public EditorTest
{
protected:
    using Step = std::function<void(QDialog& dialog)>;

    OwnLooksTest()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 120, 80));
        window->resize(1366, 768);
        QApplication::processEvents();
    }
    ~OwnLooksTest() override { window->UseLanguage(QStringLiteral("en")); }

    /// Runs `action` and answers the dialogs that open one after another.
    static void Answer(const std::function<void()>& action, const std::vector<Step>& steps)
    {
        std::size_t next = 0;
        QObject context;
        // A dialog may open another one, so each answer has a timer of its own.
        std::function<void()> answer = [&] {
            QTimer::singleShot(0, &context, answer);
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            if (next < steps.size())
                return steps[next++](*dialog);
            ADD_FAILURE() << "unexpected dialog";
            dialog->reject();
        };
        QTimer::singleShot(0, &context, answer);
        action();
        EXPECT_EQ(next, steps.size());
    }
    /// True when the look is the current one of its list, and seen as a whole.
    bool IsSelected(const QString& name) const
    {
        for (int round = 0; round < 4; ++round)
            QApplication::processEvents();
        const auto [list, index] = FindLook(name);
        if (!list || list->currentIndex() != index)
            return false;
        const QRect cell = list->visualRect(index);
        return list->visibleRegion().contains(cell) &&
               list->visibleRegion().boundingRect().contains(cell);
    }
    QString WriteCube(const char* name, const QByteArray& title) const
    {
        return WriteFile(name, "TITLE \"" + title + "\"\nLUT_1D_SIZE 2\n1 1 1\n0 0 0\n");
    }
};

} // namespace

TEST_F(OwnLooksTest, aDroppedTableIsSelectedUnderItsTitle)
{
    DropFiles({WriteCube("table.cube", "Golden Hour")});
    WaitUntil([this] { return HasLook(QStringLiteral("Golden Hour")); });

    EXPECT_TRUE(IsSelected(QStringLiteral("Golden Hour")));
}

TEST_F(OwnLooksTest, recentLooksStandInTheOrderOfTheirUseAlsoAfterARestart)
{
    for (const char* const name : {"Fresh", "Candlelight", "Fresh", "Candlelight"})
        ClickLook(QString::fromLatin1(name));
    Restart();
    LoadPresetsPanel();
    Open(Path("lake.png"));
    Find<QAbstractButton>("filterButton2")->click();

    const auto [list, index] = FindLook(QStringLiteral("Candlelight"));
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(index.row(), 0);
    EXPECT_EQ(list->model()->index(1, 0).data().toString(), QStringLiteral("Fresh"));
    EXPECT_EQ(list->model()->rowCount(), 2);
}

TEST_F(OwnLooksTest, pastingAndTheStripNameLooksInTheUsersLanguage)
{
    ClickLook(QStringLiteral("Candlelight"));
    window->UseLanguage(QStringLiteral("de"));
    QApplication::processEvents();
    FindAction("copyEdit")->trigger();
    std::string offered;
    Answer([this] { FindAction("pasteParts")->trigger(); }, {[&offered](QDialog& dialog) {
               offered =
                   dialog.findChild<QAbstractButton*>(QStringLiteral("pastePart.lumetra-presets"))
                       ->text()
                       .toStdString();
               dialog.reject();
           }});
    EXPECT_THAT(offered, HasSubstr("Kerzenlicht"));

    editor->SaveEdit();
    auto& photos = GetPart<LumetraEditor::PhotoStripModel>();
    photos.SetThumbnailSize({40, 40});
    photos.SetVisibleRows(0, 0);
    const auto looks = [&] {
        return photos.index(0).data(LumetraEditor::PhotoStripModel::LooksRole).toStringList();
    };
    WaitUntil([&] { return !looks().isEmpty(); });
    EXPECT_EQ(looks(), QStringList{QStringLiteral("Kerzenlicht")});
    for (const int role : {Qt::ToolTipRole, Qt::AccessibleTextRole})
        EXPECT_THAT(photos.index(0).data(role).toString().toStdString(), HasSubstr("Kerzenlicht"));
}
