// SPDX-License-Identifier: GPL-2.0-or-later
#include "editor/EditorFixture.h"

#include <QAction>
#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::HasSubstr;

namespace {

class SteppingTest : public EditorTest
{
protected:
    void Wait()
    {
        WaitUntil([this] { return !editor->IsOpening(); });
    }
    void OpenAll(const QStringList& paths)
    {
        window->OpenPhotos(paths);
        Wait();
    }
    void Next()
    {
        FindAction("nextPhoto")->trigger();
        Wait();
    }
    void Previous()
    {
        FindAction("previousPhoto")->trigger();
        Wait();
    }
    bool HasNext() const { return FindAction("nextPhoto")->isEnabled(); }
    bool HasPrevious() const { return FindAction("previousPhoto")->isEnabled(); }

    QString first = WritePhoto("first.png", 50, 40);
    QString second = WritePhoto("second.png", 60, 40);
    QString third = WritePhoto("third.png", 70, 40);
    QString text = WriteFile("notes.jpg", "Dear diary");
};

} // namespace

TEST_F(SteppingTest, goesOnBeyondAFileThatCannotBeRead)
{
    OpenAll({first, text, third});

    Next();
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("notes.jpg"));
    EXPECT_EQ(editor->GetPhotoPath(), first);
    Next();
    EXPECT_EQ(editor->GetPhotoPath(), third);
    EXPECT_FALSE(HasNext());
    Previous();
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("notes.jpg"));
    Previous();

    EXPECT_EQ(editor->GetPhotoPath(), first);
    EXPECT_FALSE(HasPrevious());
}

TEST_F(SteppingTest, goesOnWhenTheFirstFileCannotBeRead)
{
    OpenAll({text, second});
    EXPECT_FALSE(editor->HasPhoto());
    ASSERT_TRUE(HasNext());

    Next();

    EXPECT_EQ(editor->GetPhotoPath(), second);
}

TEST_F(SteppingTest, goesOnWhileAPhotoIsBeingRead)
{
    OpenAll({first, second, third});

    FindAction("nextPhoto")->trigger();
    EXPECT_TRUE(editor->IsOpening());
    EXPECT_TRUE(HasPrevious());
    FindAction("nextPhoto")->trigger();
    EXPECT_FALSE(HasNext());
    Wait();

    EXPECT_EQ(editor->GetPhotoPath(), third);
}

TEST_F(SteppingTest, goesBackWhileAPhotoIsBeingRead)
{
    OpenAll({first, second});

    FindAction("nextPhoto")->trigger();
    FindAction("previousPhoto")->trigger();
    Wait();

    EXPECT_EQ(editor->GetPhotoPath(), first);
    EXPECT_TRUE(HasNext());
}

TEST_F(SteppingTest, showsAPathThatIsGivenTwiceOnce)
{
    ASSERT_TRUE(QDir(Path(".")).mkdir(QStringLiteral("sub")));
    OpenAll({first, first, Path(".") + QStringLiteral("/sub/../first.png"), second});

    Next();
    EXPECT_EQ(editor->GetPhotoPath(), second);
    EXPECT_FALSE(HasNext());
    Previous();

    EXPECT_EQ(editor->GetPhotoPath(), first);
    EXPECT_FALSE(HasPrevious());
}

TEST_F(SteppingTest, showsTheNamesOfOneFileOneAfterTheOther)
{
    ASSERT_TRUE(QFile::link(first, Path("link.png")));
    OpenAll({first, Path("link.png"), second});

    Next();
    EXPECT_EQ(editor->GetPhotoPath(), Path("link.png"));
    Next();

    EXPECT_EQ(editor->GetPhotoPath(), second);
}

TEST_F(SteppingTest, goesOnBeyondAPhotoThatIsGone)
{
    OpenAll({first, second, third});
    ASSERT_TRUE(QFile::remove(second));

    Next();
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("second.png"));
    Next();

    EXPECT_EQ(editor->GetPhotoPath(), third);
}

TEST_F(SteppingTest, hasNowhereToGoFromASinglePhoto)
{
    OpenAll({first});

    EXPECT_FALSE(HasNext());
    EXPECT_FALSE(HasPrevious());
}

TEST_F(SteppingTest, keepsThePlaceWhenThePhotoIsClosed)
{
    OpenAll({first, second});

    FindAction("closePhoto")->trigger();
    Next();

    EXPECT_EQ(editor->GetPhotoPath(), second);
}
