// SPDX-License-Identifier: GPL-2.0-or-later
// The file of an edit, which other programs write too.
#include "editor/EditorFixture.h"
#include "support/StoredForm.h"

#include "edit/Sidecar.h"
#include "edits/EditFile.h"
#include "edits/KeptEdits.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

using namespace LumetraTest;
using LumetraEditor::Sidecar;
using LumetraHost::EditFile;
using LumetraHost::EditState;
using LumetraHost::PhotoIdentity;
using testing::HasSubstr;

namespace {

/// An edit that can be told from others by its name.
EditState Edit(const char* look)
{
    EditState state;
    state.panels[QStringLiteral("looks")] =
        LumetraHost::PanelEdit(StoredNode{{"name", look}}.ToProperty());
    return state;
}

class SidecarTest : public EditorFolder
{
protected:
    SidecarTest() : photo(WritePhoto("lake.png", 40, 30)) {}

    void Open(Sidecar& sidecar) const { sidecar.Open(photo, PhotoIdentity::Of(photo)); }
    static void Write(Sidecar& sidecar, const char* look)
    {
        sidecar.Write(Edit(look));
        sidecar.Flush();
    }
    QStringList GetCopies(const QString& folder) const
    {
        return QDir(folder).entryList({QStringLiteral("*.earlier-*")}, QDir::Files);
    }
    /// The texts of all edits beside the photo.
    std::string ReadAll() const
    {
        QByteArray text = ReadFile("lake.png.lumetra.json");
        for (const QString& copy : GetCopies(Path(".")))
            text += ReadFile(qPrintable(copy));
        return text.toStdString();
    }
    /// Makes the next write beside the photo fail: permissions would not stop root.
    void Block() const { ASSERT_TRUE(QDir().mkpath(Path("lake.png.lumetra.json"))); }

    QString photo;
};

} // namespace

TEST_F(SidecarTest, noEditOfAnotherEditorIsWrittenOver)
{
    Sidecar first, second;
    Open(first);
    Open(second);

    Write(second, "Soft Light");
    Write(first, "Candlelight");
    Write(first, "Porcelain");
    Write(second, "Fresh");
    Write(first, "Noir");

    EXPECT_THAT(ReadAll(), HasSubstr("Soft Light"));
    EXPECT_THAT(ReadAll(), HasSubstr("Porcelain"));
    EXPECT_THAT(ReadAll(), HasSubstr("Fresh"));
    EXPECT_THAT(ReadFile("lake.png.lumetra.json").toStdString(), HasSubstr("Noir"));
    EXPECT_EQ(GetCopies(Path(".")).size(), 3) << "its own steps are written over";
}

TEST_F(SidecarTest, everyCopyIsTold)
{
    QStringList notices;
    Sidecar sidecar;
    QObject::connect(&sidecar, &Sidecar::notice,
                     [&notices](const QString& text) { notices.append(text); });
    Open(sidecar);
    for (const char* const look : {"Soft Light", "Fresh"}) {
        Write(sidecar, "Candlelight");
        EditFile synced;
        synced.state = Edit(look);
        WriteFile("lake.png.lumetra.json", synced.ToText());
    }
    Write(sidecar, "Porcelain");

    EXPECT_EQ(notices.size(), 2);
    EXPECT_THAT(ReadAll(), HasSubstr("Soft Light"));
    EXPECT_THAT(ReadAll(), HasSubstr("Fresh"));
}

TEST_F(SidecarTest, aFileThatNobodyHasChangedIsNotCopied)
{
    EditFile earlier;
    earlier.state = Edit("Soft Light");
    WriteFile("lake.png.lumetra.json", earlier.ToText());
    Sidecar sidecar;
    Open(sidecar);

    Write(sidecar, "Candlelight");
    Write(sidecar, "Porcelain");

    EXPECT_EQ(GetCopies(Path(".")), QStringList());
}

TEST_F(SidecarTest, aFileThatWasRemovedIsMadeAgain)
{
    Sidecar sidecar;
    Open(sidecar);
    Write(sidecar, "Candlelight");
    ASSERT_TRUE(QFile::remove(Path("lake.png.lumetra.json")));

    Write(sidecar, "Porcelain");

    EXPECT_THAT(ReadAll(), HasSubstr("Porcelain"));
    EXPECT_EQ(GetCopies(Path(".")), QStringList());
}

TEST_F(SidecarTest, theKeptEditOfAnotherEditorStays)
{
    Block();
    Sidecar first, second;
    Open(first);
    Open(second);
    Write(first, "Soft Light");
    Write(second, "Candlelight");
    const QString folder = LumetraHost::EditPlaces::GetKeptFolder();
    EXPECT_EQ(GetCopies(folder).size(), 1);
    ASSERT_TRUE(QDir().rmdir(Path("lake.png.lumetra.json")));

    Write(first, "Porcelain"); // beside the photo again

    const QString kept = LumetraHost::KeptEdits::GetPath(photo, PhotoIdentity::Of(photo));
    ASSERT_TRUE(QFile::exists(kept));
    EXPECT_THAT(EditFile::Read(kept).text.toStdString(), HasSubstr("Candlelight"));
}
