// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/JobExport.h"

#include "host/exporting/ExportSamples.h"
#include "host/photo/PhotoSamples.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::HasSubstr;
using Existing = JobExport::Existing;
using Outcome = JobExport::Outcome;

namespace {

class JobExportTest : public testing::Test
{
protected:
    JobExportTest() { WriteFile(Path("photo.jpg"), MakeJpeg(60, 40)); }

    QString Path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    bool HasJournal() const { return QDir(Path(JobJournal::FolderName)).exists(); }

    JobExport::Job MakeJob(Existing existing, bool keepsMetadata = true) const
    {
        JobExport::Job job{Path("photo.jpg"), Path("out.jpg"), MakeRecipe(MakeColours()), existing};
        job.recipe.metadata = keepsMetadata ? KeptMetadata::All : KeptMetadata::None;
        job.refusal = QStringLiteral("is another one");
        return job;
    }

    /// A program that is started anew does the job.
    static Outcome Run(const JobExport::Job& job)
    {
        Warnings unheard;
        return JobExport().Run(job, {}, unheard);
    }

    QTemporaryDir folder;
};

TEST_F(JobExportTest, keepsWhatIsDone)
{
    for (const bool keepsMetadata : {true, false}) {
        QFile::remove(Path("out.jpg"));
        for (const auto existing : {Existing::KeepDone, Existing::KeepDoneOrReplace}) {
            const auto job = MakeJob(existing, keepsMetadata);
            const bool isFirst = existing == Existing::KeepDone;
            EXPECT_EQ(JobExport().Check(job), isFirst ? Outcome::Written : Outcome::Kept);
            EXPECT_EQ(Run(job), isFirst ? Outcome::Written : Outcome::Kept) << keepsMetadata;
        }
    }
}

TEST_F(JobExportTest, writesAJournalOnlyWhereTheFileCannotCarryItsJob)
{
    Run(MakeJob(Existing::KeepDone));
    EXPECT_FALSE(HasJournal());
    Run(MakeJob(Existing::Replace, false));
    EXPECT_FALSE(HasJournal());
    Run(MakeJob(Existing::KeepDoneOrReplace, false));
    EXPECT_TRUE(HasJournal());
}

TEST_F(JobExportTest, writesTheSameFileEveryTimeInEveryWay)
{
    Run(MakeJob(Existing::Replace));
    const Bytes first = ReadFile(Path("out.jpg"));
    Run(MakeJob(Existing::Replace));
    EXPECT_EQ(ReadFile(Path("out.jpg")), first);
    QFile::remove(Path("out.jpg"));
    Run(MakeJob(Existing::KeepDone));
    EXPECT_EQ(ReadFile(Path("out.jpg")), first);
}

TEST_F(JobExportTest, refusesOrReplacesAnyOtherFile)
{
    const Bytes whole = [this] {
        Run(MakeJob(Existing::Replace));
        return ReadFile(Path("out.jpg"));
    }();
    Bytes cut = whole;
    cut.resize(whole.size() / 2);
    auto other = MakeJob(Existing::Replace);
    other.recipe.encoding.quality = 50;
    Run(other);
    for (const Bytes& found :
         {ReadFile(Path("out.jpg")), MakeJpeg(30, 30), Bytes{1, 2, 3}, Bytes{}, cut}) {
        WriteFile(Path("out.jpg"), found);
        EXPECT_THAT(ErrorOf([this] { Run(MakeJob(Existing::KeepDone)); }),
                    HasSubstr("out.jpg: is another one"));
        EXPECT_THAT(ErrorOf([this] { JobExport().Check(MakeJob(Existing::KeepDone)); }),
                    HasSubstr("out.jpg: is another one"));
        EXPECT_EQ(ReadFile(Path("out.jpg")), found);
        EXPECT_EQ(JobExport().Check(MakeJob(Existing::KeepDoneOrReplace)), Outcome::Written);
        EXPECT_EQ(Run(MakeJob(Existing::KeepDoneOrReplace)), Outcome::Written);
        EXPECT_EQ(ReadFile(Path("out.jpg")), whole);
    }
}

TEST_F(JobExportTest, doesAJobAgainWhosePhotoHasChanged)
{
    Run(MakeJob(Existing::KeepDone));
    WriteFile(Path("photo.jpg"), MakeJpeg(61, 40));

    EXPECT_EQ(Run(MakeJob(Existing::KeepDoneOrReplace)), Outcome::Written);
    EXPECT_EQ(Run(MakeJob(Existing::KeepDoneOrReplace)), Outcome::Kept);
}

TEST_F(JobExportTest, doesNotMistakeTheResultOfAResultForTheFirstOne)
{
    Run(MakeJob(Existing::KeepDone));
    auto second = MakeJob(Existing::KeepDone);
    second.photo = Path("out.jpg");
    second.output = Path("second.jpg");

    EXPECT_EQ(Run(second), Outcome::Written);
    EXPECT_EQ(Run(second), Outcome::Kept);
    EXPECT_NE(ReadFile(Path("second.jpg")), ReadFile(Path("out.jpg")));
}

TEST_F(JobExportTest, makesFoldersAndWritesNothingWhenItIsCancelled)
{
    CancelToken cancel;
    cancel.Cancel();
    ExportControl control;
    control.cancel = &cancel;
    auto job = MakeJob(Existing::KeepDone, false);
    job.output = Path("deep/er/out.jpg");
    Warnings unheard;

    EXPECT_EQ(JobExport().Run(job, control, unheard), Outcome::Cancelled);
    EXPECT_FALSE(QDir(Path("deep")).exists());
    EXPECT_EQ(Run(job), Outcome::Written);
    EXPECT_EQ(Run(job), Outcome::Kept);
}

} // namespace
