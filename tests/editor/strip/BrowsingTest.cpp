// SPDX-License-Identifier: GPL-2.0-or-later
// Folders and several photos in the window, with the strip below the photo.
#include "editor/EditorFixture.h"
#include "strip/PhotoBrowser.h"
#include "strip/PhotoStrip.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QSplitter>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraEditor::PhotoStrip;
using LumetraEditor::PhotoStripModel;
using testing::HasSubstr;

namespace {

class BrowsingTest : public EditorTest
{
protected:
    PhotoStrip& Strip() const { return GetPart<PhotoStrip>(); }
    PhotoStripModel& Photos() const { return GetPart<PhotoStripModel>(); }
    LumetraEditor::PhotoBrowser& Browser() const { return window->GetBrowser(); }
    QString PlaceText() const { return Find<QLabel>("placeText")->text(); }

    /// A folder with photos 1.png to COUNT.png.
    QString WriteFolder(const char* name, int count)
    {
        EXPECT_TRUE(QDir().mkpath(Path(name)));
        for (int i = 1; i <= count; ++i)
            WritePhoto(qPrintable(QStringLiteral("%1/%2.png").arg(QLatin1String(name)).arg(i)),
                       30 + i, 20);
        return Path(name);
    }

    void WaitUntilOpen(const QString& path)
    {
        WaitUntil([&] { return !editor->IsOpening() && editor->GetPhotoPath() == path; });
    }
    /// Opens a folder that write `WriteFolder()` has made, and waits for its first photo.
    QString OpenFolder(const char* name, int count)
    {
        const QString folder = WriteFolder(name, count);
        window->OpenPhotos({folder});
        WaitUntilOpen(folder + QStringLiteral("/1.png"));
        return folder;
    }

    QStringList Names(const QStringList& paths) const
    {
        QStringList names;
        for (const QString& path : paths)
            names.append(QFileInfo(path).completeBaseName());
        return names;
    }
    QString Selected() const { return Names(Browser().GetSelectedPhotos()).join(QLatin1Char(' ')); }
    QString Current() const { return QFileInfo(Photos().GetCurrent()).completeBaseName(); }

    void Click(int row, Qt::KeyboardModifiers modifiers = {})
    {
        const QModelIndex index = Photos().index(row);
        Strip().scrollTo(index);
        QTest::mouseClick(Strip().viewport(), Qt::LeftButton, modifiers,
                          Strip().visualRect(index).center());
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&Strip(), key, modifiers);
    }
    void WaitForThumbnail(int row)
    {
        WaitUntil([&] {
            const QModelIndex index = Photos().index(row);
            return !index.data(Qt::DecorationRole).isNull() ||
                   !index.data(PhotoStripModel::ProblemRole).toString().isEmpty();
        });
    }
};

} // namespace

TEST_F(BrowsingTest, opensTheFirstPhotoOfAFolderAndShowsTheOthersBelow)
{
    const QString folder = WriteFolder("day", 12);
    WriteFile("day/notes.txt", "Dear diary");

    DropFiles({folder});
    WaitUntilOpen(folder + QStringLiteral("/1.png"));

    EXPECT_EQ(Photos().rowCount(), 12);
    EXPECT_EQ(Photos().GetPath(1), folder + QStringLiteral("/2.png"));
    EXPECT_EQ(Photos().GetPath(9), folder + QStringLiteral("/10.png"));
    EXPECT_TRUE(Strip().isVisible());
    EXPECT_EQ(PlaceText(), QStringLiteral("1 of 12"));
    EXPECT_TRUE(FindAction("nextPhoto")->isEnabled());
}

TEST_F(BrowsingTest, showsSeveralPhotosInTheStrip)
{
    const QString first = WritePhoto("b.png", 40, 30);
    window->OpenPhotos({first, WritePhoto("a.png", 40, 30)});
    WaitUntilOpen(first);

    EXPECT_TRUE(Strip().isVisible());
    EXPECT_EQ(PlaceText(), QStringLiteral("2 of 2"));
    WaitForThumbnail(0);
    WaitForThumbnail(1);
}

TEST_F(BrowsingTest, leavesAPhotoThatIsOpenedAloneWithoutAStrip)
{
    WritePhoto("other.png", 40, 30);
    Open(WritePhoto("lake.png", 40, 30));

    EXPECT_FALSE(Strip().isVisible());
    EXPECT_EQ(PlaceText(), QString());
    EXPECT_FALSE(FindAction("nextPhoto")->isEnabled());
    EXPECT_EQ(Selected(), QStringLiteral("lake"));
}

TEST_F(BrowsingTest, bringsThePhotosOfItsFolderWhenTheStripIsUnfoldedBelowASinglePhoto)
{
    WritePhoto("other.png", 40, 30);
    Open(WritePhoto("lake.png", 40, 30));

    FindAction("strip")->trigger();
    WaitUntil([this] { return Photos().rowCount() == 2; });

    EXPECT_TRUE(Strip().isVisible());
    EXPECT_EQ(PlaceText(), QStringLiteral("1 of 2"));
    EXPECT_EQ(editor->GetPhotoPath(), Path("lake.png"));
    EXPECT_TRUE(FindAction("nextPhoto")->isEnabled());
}

TEST_F(BrowsingTest, remembersTheFoldingForSinglePhotosAndForSeveralApart)
{
    const QString folder = OpenFolder("day", 2);
    FindAction("strip")->trigger();
    EXPECT_FALSE(Strip().isVisible());
    Open(folder + QStringLiteral("/1.png"));
    FindAction("strip")->trigger();
    EXPECT_TRUE(Strip().isVisible());

    Restart();
    window->OpenPhotos({folder});
    WaitUntilOpen(folder + QStringLiteral("/1.png"));
    EXPECT_FALSE(Strip().isVisible());
    EXPECT_FALSE(FindAction("strip")->isChecked());
    Open(folder + QStringLiteral("/2.png"));

    EXPECT_TRUE(Strip().isVisible());
    EXPECT_TRUE(FindAction("strip")->isChecked());
}

TEST_F(BrowsingTest, remembersTheHeightOfTheStrip)
{
    const QString folder = OpenFolder("day", 2);
    window->resize(1000, 900);
    auto* const column = Find<QSplitter>("column");
    column->setSizes({600, 150});
    QApplication::processEvents();
    const int height = Strip().height();
    EXPECT_TRUE(window->close());

    Restart();
    window->resize(1000, 900);
    window->OpenPhotos({folder});
    WaitUntilOpen(folder + QStringLiteral("/1.png"));
    QApplication::processEvents();

    EXPECT_NEAR(Strip().height(), height, 2);
}

TEST_F(BrowsingTest, opensAPhotoByClickAndKey)
{
    const QString folder = OpenFolder("day", 30);
    Click(2);
    WaitUntilOpen(folder + QStringLiteral("/3.png"));
    EXPECT_EQ(PlaceText(), QStringLiteral("3 of 30"));

    Press(Qt::Key_Right);
    EXPECT_EQ(Current(), QStringLiteral("4"));
    Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    EXPECT_EQ(Current(), QStringLiteral("2"));
    Press(Qt::Key_End);
    EXPECT_EQ(Current(), QStringLiteral("30"));
    Press(Qt::Key_Right);
    EXPECT_EQ(Current(), QStringLiteral("30"));
    Press(Qt::Key_PageUp);
    const int paged = Current().toInt();
    EXPECT_LT(paged, 28);
    Press(Qt::Key_Home);
    WaitUntilOpen(folder + QStringLiteral("/1.png"));

    EXPECT_EQ(Selected(), QStringLiteral("1"));
    EXPECT_GT(paged, 1);
}

TEST_F(BrowsingTest, selectsSeveralPhotosAndGoesOnShowingTheCurrentOne)
{
    const QString folder = OpenFolder("day", 9);
    Click(2);
    WaitUntilOpen(folder + QStringLiteral("/3.png"));

    Click(5, Qt::ControlModifier);
    EXPECT_EQ(Selected(), QStringLiteral("3 6"));
    Click(0, Qt::ControlModifier);
    EXPECT_EQ(Selected(), QStringLiteral("3 1 6"));
    EXPECT_EQ(PlaceText(), QStringLiteral("3 of 9, 3 selected"));
    Click(5, Qt::ControlModifier);
    EXPECT_EQ(Selected(), QStringLiteral("3 1"));
    Click(7, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), QStringLiteral("3 4 5 6 7 8"));
    Click(1, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), QStringLiteral("3 2"));

    EXPECT_EQ(editor->GetPhotoPath(), folder + QStringLiteral("/3.png"));
    EXPECT_FALSE(editor->IsOpening());
}

TEST_F(BrowsingTest, keepsTheCurrentPhotoSelected)
{
    OpenFolder("day", 4);

    Click(0, Qt::ControlModifier);
    EXPECT_EQ(Selected(), QStringLiteral("1"));
    Strip().clearSelection();

    EXPECT_EQ(Selected(), QStringLiteral("1"));
}

TEST_F(BrowsingTest, selectsByKeys)
{
    OpenFolder("day", 5);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), QStringLiteral("1 2 3"));
    Press(Qt::Key_Escape);
    EXPECT_EQ(Selected(), QStringLiteral("1"));

    FindAction("selectAll")->trigger();
    EXPECT_EQ(Selected(), QStringLiteral("1 2 3 4 5"));
    FindAction("selectOne")->trigger();

    EXPECT_EQ(Selected(), QStringLiteral("1"));
}

TEST_F(BrowsingTest, keepsTheSelectionWhileTheUserStepsInside)
{
    const QString folder = OpenFolder("day", 5);
    Click(2, Qt::ShiftModifier);

    FindAction("nextPhoto")->trigger();
    EXPECT_EQ(Selected(), QStringLiteral("2 1 3"));
    FindAction("nextPhoto")->trigger();
    FindAction("nextPhoto")->trigger();
    WaitUntilOpen(folder + QStringLiteral("/4.png"));

    EXPECT_EQ(Selected(), QStringLiteral("4"));
}

TEST_F(BrowsingTest, announcesEveryChangeOfTheSelection)
{
    OpenFolder("day", 5);
    int changes = 0;
    QObject::connect(&Browser(), &LumetraEditor::PhotoBrowser::selectionChanged,
                     [&] { ++changes; });

    Click(3, Qt::ControlModifier);
    EXPECT_GE(changes, 1);
    changes = 0;
    FindAction("nextPhoto")->trigger();

    EXPECT_GE(changes, 1);
}

TEST_F(BrowsingTest, marksAPhotoThatCannotBeRead)
{
    WriteFolder("day", 2);
    WriteFile("day/0.jpg", "Dear diary");
    window->OpenPhotos({Path("day")});
    WaitUntil([this] { return Current() == QStringLiteral("0") && !editor->IsOpening(); });
    WaitForThumbnail(0);

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("0.jpg"));
    EXPECT_THAT(Photos().index(0).data(PhotoStripModel::ProblemRole).toString().toStdString(),
                HasSubstr("0.jpg"));
    EXPECT_EQ(PlaceText(), QStringLiteral("1 of 3"));
    Press(Qt::Key_Right);
    WaitUntilOpen(Path("day/1.png"));
}

TEST_F(BrowsingTest, marksAPhotoAsEditedAndShowsTheEditOnItsThumbnail)
{
    LoadExamplePanel();
    OpenFolder("day", 2);
    WaitForThumbnail(0);
    const QImage plain = Photos().index(0).data(Qt::DecorationRole).value<QImage>();
    EXPECT_FALSE(Photos().index(0).data(PhotoStripModel::EditedRole).toBool());

    Find<QSlider>("exposureSlider")->setValue(15);
    WaitUntil([this] { return Photos().index(0).data(PhotoStripModel::EditedRole).toBool(); });
    const QImage edited = Photos().index(0).data(Qt::DecorationRole).value<QImage>();
    EXPECT_GT(qGray(edited.pixel(10, 10)), qGray(plain.pixel(10, 10)));
    FindAction("undo")->trigger();
    WaitUntil([this] { return !Photos().index(0).data(PhotoStripModel::EditedRole).toBool(); });

    EXPECT_EQ(Photos().index(0).data(Qt::DecorationRole).value<QImage>(), plain);
}

TEST_F(BrowsingTest, followsPhotosThatComeAndGo)
{
    const QString folder = OpenFolder("day", 3);
    WritePhoto("day/4.png", 30, 20);
    ASSERT_TRUE(QFile::remove(folder + QStringLiteral("/1.png"))); // the current one
    ASSERT_TRUE(QFile::remove(folder + QStringLiteral("/2.png")));

    FindAction("refresh")->trigger();
    WaitUntil([this] {
        return Photos().FindRow(Path("day/4.png")) >= 0 && Photos().FindRow(Path("day/2.png")) < 0;
    });

    EXPECT_EQ(PlaceText(), QStringLiteral("1 of 3"));
    EXPECT_EQ(Photos().GetPath(0), folder + QStringLiteral("/1.png"));
    EXPECT_EQ(Photos().GetPath(2), folder + QStringLiteral("/4.png"));
}

TEST_F(BrowsingTest, aFolderWithoutPhotosChangesNothing)
{
    const QString folder = OpenFolder("day", 2);
    ASSERT_TRUE(QDir().mkpath(Path("empty")));

    DropFiles({Path("empty")});
    WaitUntil([this] { return !GetMessage().isEmpty(); });

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("empty"));
    EXPECT_EQ(editor->GetPhotoPath(), folder + QStringLiteral("/1.png"));
    EXPECT_EQ(Photos().rowCount(), 2);
    FindAction("nextPhoto")->trigger();
    WaitUntilOpen(folder + QStringLiteral("/2.png"));
}

TEST_F(BrowsingTest, takesFilesAndFoldersTogether)
{
    WriteFolder("day", 2);
    const QString lake = WritePhoto("lake.png", 40, 30);

    window->TakeFiles({Path("day"), lake});
    WaitUntil([this] { return Photos().rowCount() == 3; });
    WaitUntilOpen(lake);

    EXPECT_EQ(PlaceText(), QStringLiteral("3 of 3"));
}

TEST_F(BrowsingTest, ordersByTimeAndRemembersIt)
{
    const QString folder = OpenFolder("day", 3);
    QFile last(folder + QStringLiteral("/1.png"));
    ASSERT_TRUE(last.open(QIODevice::ReadWrite));
    ASSERT_TRUE(last.setFileTime(QDateTime(QDate(2040, 1, 1), QTime(0, 0)),
                                 QFileDevice::FileModificationTime));
    last.close();

    FindAction("orderByTime")->trigger();
    WaitUntil([this] { return PlaceText() == QLatin1String("3 of 3"); });
    Restart();

    EXPECT_TRUE(FindAction("orderByTime")->isChecked());
    FindAction("orderByName")->trigger();
    window->OpenPhotos({folder});
    WaitUntilOpen(folder + QStringLiteral("/1.png"));
    EXPECT_EQ(PlaceText(), QStringLiteral("1 of 3"));
}

TEST_F(BrowsingTest, protectsThePhotosOfAFolderFromExports)
{
    OpenFolder("day", 2);
    bool isProtected = false;
    QObject::connect(&Browser(), &LumetraEditor::PhotoBrowser::photosFound,
                     [&](const QStringList& paths) {
                         isProtected = isProtected || paths.contains(Path("day/2.png"));
                     });

    FindAction("refresh")->trigger();
    WaitUntil([&] { return isProtected; });
}

TEST_F(BrowsingTest, speaksItsPhotos)
{
    LoadExamplePanel();
    OpenFolder("day", 3);
    Find<QSlider>("exposureSlider")->setValue(15);
    WaitUntil([this] { return Photos().index(0).data(PhotoStripModel::EditedRole).toBool(); });

    QAccessibleInterface* const strip = QAccessible::queryAccessibleInterface(&Strip());
    ASSERT_NE(strip, nullptr);
    EXPECT_EQ(strip->text(QAccessible::Name), QStringLiteral("Photos"));
    EXPECT_THAT(strip->child(0)->text(QAccessible::Name).toStdString(),
                testing::MatchesRegex("1.png, edited, .*1 of 3"));
    window->UseLanguage(QStringLiteral("de"));
    QApplication::processEvents();
    EXPECT_EQ(strip->text(QAccessible::Name), QStringLiteral("Fotos"));
    EXPECT_EQ(PlaceText(), QStringLiteral("1 von 3"));
    window->UseLanguage(QStringLiteral("en"));
}

TEST_F(BrowsingTest, offersTheMenuOfPhotosInTheStrip)
{
    OpenFolder("day", 3);
    const QPoint place = Strip().visualRect(Photos().index(0)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, Strip().mapToGlobal(place));
    QApplication::sendEvent(Strip().viewport(), &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions().contains(FindAction("selectAll")));
    menu->close();
}

TEST_F(BrowsingTest, leavesTheCanvasItsRoomInASmallWindow)
{
    OpenFolder("day", 3);
    window->resize(600, 480);
    QApplication::processEvents();

    EXPECT_GE(Find<QWidget>("column")->height() - Strip().height(), 200);
    EXPECT_LE(Strip().height(), 120);
}

TEST_F(BrowsingTest, makesNoThumbnailsWhileTheStripIsFolded)
{
    OpenFolder("day", 3);
    FindAction("strip")->trigger();
    ASSERT_FALSE(Strip().isVisible());
    WritePhoto("day/4.png", 30, 20);
    FindAction("refresh")->trigger();
    WaitUntil([this] { return Photos().rowCount() == 4; });

    EXPECT_TRUE(Photos().index(3).data(Qt::DecorationRole).isNull());
    FindAction("strip")->trigger();
    WaitForThumbnail(3);
}
