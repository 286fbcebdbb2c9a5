// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportFixture.h"
#include "editor/ScriptedAlerts.h"

#include "edits/KeptEdits.h"
#include "edits/PhotoIdentity.h"
#include "export/ExportGuard.h"
#include "userdata/EditPlaces.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

#include <gmock/gmock.h>

#include <cstdio>

#include <unistd.h>

using namespace LumetraTest;
using LumetraEditor::ExportDialog;
using LumetraEditor::ExportGuard;
using LumetraEditor::ExportJob;
using testing::AllOf;
using testing::HasSubstr;

namespace {

class ExportGuardTest : public ExportTest
{
protected:
    ExportGuardTest() : m_before(ReadFile("lake.png")) {}
    ~ExportGuardTest() override { EXPECT_EQ(ReadFile("lake.png"), m_before); }

    /// Expects the dialog to stay open and to say that it does not write there, and why.
    void ExpectRefused(const QString& output, const char* reason)
    {
        const ScriptedAlerts alerts({QMessageBox::Ok});
        ExportByHand([&output](ExportDialog& dialog) {
            Part<QComboBox>(dialog, "exportFormat")->setCurrentIndex(1);
            Part<QLineEdit>(dialog, "exportPath")->setText(output);
            Part<QPushButton>(dialog, "exportButton")->click();
            EXPECT_TRUE(dialog.isVisible());
            dialog.reject();
        });
        EXPECT_THAT(alerts.GetTexts().join(QString()).toStdString(),
                    AllOf(HasSubstr(reason), HasSubstr(QFileInfo(output).fileName().toStdString())))
            << output.toStdString();
    }

    void Link(const char* target, const char* name) const
    {
        ASSERT_TRUE(QFile::link(QLatin1String(target), Path(name)));
    }

    void LinkHard(const char* target, const char* name) const
    {
        ASSERT_EQ(::link(qPrintable(Path(target)), qPrintable(Path(name))), 0);
    }

    /// Exports with a guard that knows "lake.png"; `meanwhile` happens while it is encoded.
    std::string ErrorOfExport(const std::function<void(ExportGuard&)>& meanwhile)
    {
        const auto guard = std::make_shared<ExportGuard>();
        guard->SetOpenPhoto(Path("lake.png"));
        ExportJob job(editor->GetPhoto(), editor->GetPackages(), {}, options, guard);
        try {
            job.Run([&](int percent) {
                if (percent == 50)
                    meanwhile(*guard);
            });
        } catch (const std::exception& error) {
            return error.what();
        }
        return "written";
    }

private:
    QByteArray m_before;
};

} // namespace

TEST_F(ExportGuardTest, refusesTheOpenPhotoInAllFormsOfItsPath)
{
    ASSERT_TRUE(QDir(Path(".")).mkdir(QStringLiteral("sub")));
    const char* const reason = "is the photo that is open";

    ExpectRefused(Path("lake.png"), reason);
    ExpectRefused(Path(".") + QStringLiteral("/sub/../lake.png"), reason);
    ExpectRefused(QDir::current().relativeFilePath(Path("lake.png")), reason);
}

TEST_F(ExportGuardTest, refusesTheOpenPhotoThroughLinks)
{
    Link("lake.png", "soft.png");
    LinkHard("lake.png", "hard.png");
    Link(".", "folder-link");

    ExpectRefused(Path("soft.png"), "is the photo that is open");
    ExpectRefused(Path("hard.png"), "is the photo that is open");
    ExpectRefused(Path("folder-link/lake.png"), "is the photo that is open");
}

TEST_F(ExportGuardTest, addsTheEndingBeforeItLooks)
{
    ExpectRefused(Path("lake"), "lake.png");
}

TEST_F(ExportGuardTest, refusesThePhotosThatCanBeSteppedTo)
{
    const QString next = WritePhoto("next.png", 30, 20);
    window->OpenPhotos({Path("lake.png"), next});
    WaitUntil([this] { return !editor->IsOpening(); });
    const QByteArray before = ReadFile("next.png");

    ExpectRefused(next, "is one of the photos that were opened");
    EXPECT_EQ(ReadFile("next.png"), before);
}

TEST_F(ExportGuardTest, refusesAPhotoThatWasOpenedBefore)
{
    Open(WritePhoto("other.png", 30, 20));

    ExpectRefused(Path("lake.png"), "is one of the photos that were opened");
}

TEST_F(ExportGuardTest, refusesAPhotoWithAnEditBesideIt)
{
    WriteFile("edited.png", "a photo");
    WriteFile("edited.png.lumetra.json", "an edit");
    Link("edited.png", "soft.png");
    LinkHard("edited.png", "hard.png");

    ExpectRefused(Path("edited.png"), "is a photo with an edit of its own");
    ExpectRefused(Path("soft.png"), "is a photo with an edit of its own");
    ExpectRefused(Path("hard.png"), "is a photo with an edit of its own");
    EXPECT_EQ(ReadFile("edited.png"), "a photo");
}

TEST_F(ExportGuardTest, refusesAPhotoWhoseEditIsKeptInTheUsersFolder)
{
    WriteFile("edited.png", "a photo");
    const auto identity = LumetraHost::PhotoIdentity::Of(Path("edited.png"));
    ASSERT_TRUE(QDir().mkpath(LumetraHost::EditPlaces::GetKeptFolder()));
    QFile kept(LumetraHost::KeptEdits::GetPath(Path("edited.png"), identity));
    ASSERT_TRUE(kept.open(QIODevice::WriteOnly));

    ExpectRefused(Path("edited.png"), "is a photo with an edit of its own");
}

TEST_F(ExportGuardTest, refusesEditsAndTheUsersOwnFilesBehindLinks)
{
    editor->SaveEdit();
    Link("lake.png.lumetra.json", "edit.png");
    WriteFile("lake.png.lumetra.json.unreadable-20260101-120000", "an old edit");
    Link("lake.png.lumetra.json.unreadable-20260101-120000", "old-edit.png");
    ASSERT_TRUE(QDir().mkpath(Path("data/lumetra")));
    WriteFile("data/lumetra/presets.json.backup-1", "presets");
    Link("data/lumetra/presets.json.backup-1", "backup.png");

    ExpectRefused(Path("edit.png"), "is the edit of a photo");
    ExpectRefused(Path("old-edit.png"), "is the edit of a photo");
    ExpectRefused(Path("backup.png"), "where the program keeps looks and edits");
    EXPECT_EQ(ReadFile("data/lumetra/presets.json.backup-1"), "presets");
}

TEST_F(ExportGuardTest, refusesWhatIsNoOrdinaryFile)
{
    ASSERT_TRUE(QDir(Path(".")).mkdir(QStringLiteral("folder.png")));
    Link("nowhere.png", "dangling.png");
    Link("/dev/null", "device.png");

    ExpectRefused(Path("folder.png"), "is a folder");
    ExpectRefused(Path("dangling.png"), "is a link to a file that is not there");
    ExpectRefused(Path("device.png"), "is not an ordinary file");
    EXPECT_FALSE(QFile::exists(Path("nowhere.png")));
}

TEST_F(ExportGuardTest, refusesAPhotoThatAnotherProgramHasReplaced)
{
    WriteFile("photo.png", "a photo");
    Link(".", "folder-link");
    ExportGuard guard;
    guard.AddPhotos({Path("photo.png")});
    EXPECT_NE(guard.FindObstacle(Path("photo.png")), QString());

    WriteFile("new.png", "another photo");
    ASSERT_EQ(std::rename(qPrintable(Path("new.png")), qPrintable(Path("photo.png"))), 0);

    for (const char* const name : {"photo.png", "folder-link/photo.png"})
        EXPECT_THAT(guard.FindObstacle(Path(name)).toStdString(),
                    HasSubstr("is one of the photos that were opened"));
}

TEST_F(ExportGuardTest, allowsAFileThatWasAPhotoUnderAnotherName)
{
    WriteFile("photo.png", "a photo");
    LinkHard("photo.png", "out.png");
    ExportGuard guard;
    guard.AddPhotos({Path("photo.png")});
    EXPECT_NE(guard.FindObstacle(Path("out.png")), QString());

    WriteFile("new.png", "another photo");
    ASSERT_EQ(std::rename(qPrintable(Path("new.png")), qPrintable(Path("photo.png"))), 0);

    EXPECT_EQ(guard.FindObstacle(Path("out.png")), QString());
}

TEST_F(ExportGuardTest, knowsEachOfManyPhotosAtOnce)
{
    QStringList photos;
    for (int i = 0; i < 500; ++i)
        photos.append(WriteFile(qPrintable(QStringLiteral("many%1.png").arg(i)), "a photo"));
    LinkHard("many499.png", "last.png");
    ExportGuard guard;

    guard.AddPhotos(photos);

    EXPECT_NE(guard.FindObstacle(Path("last.png")), QString());
    EXPECT_EQ(guard.FindObstacle(Path("none.png")), QString());
}

TEST_F(ExportGuardTest, looksAgainBeforeItWrites)
{
    const std::string error =
        ErrorOfExport([this](ExportGuard&) { LinkHard("lake.png", "out.png"); });

    EXPECT_THAT(error, HasSubstr("“out.png” is the photo that is open"));
    EXPECT_EQ(ReadFile("out.png"), ReadFile("lake.png"));
}

TEST_F(ExportGuardTest, leavesAPhotoAloneThatIsOpenedMeanwhile)
{
    WriteFile("out.png", "precious");

    const std::string error =
        ErrorOfExport([this](ExportGuard& guard) { guard.AddPhotos({Path("out.png")}); });

    EXPECT_THAT(error, HasSubstr("is one of the photos that were opened"));
    EXPECT_EQ(ReadFile("out.png"), "precious");
}

TEST_F(ExportGuardTest, leavesAFileAloneThatAppearsMeanwhile)
{
    options.mayReplace = false;

    const std::string error =
        ErrorOfExport([this](ExportGuard&) { WriteFile("out.png", "precious"); });

    EXPECT_THAT(error, HasSubstr("“out.png” has appeared meanwhile"));
    EXPECT_EQ(ReadFile("out.png"), "precious");
}

TEST_F(ExportGuardTest, writesWhereNothingIsInTheWay)
{
    EXPECT_EQ(ErrorOfExport([](ExportGuard&) {}), "written");
}
