// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/PhotoBatch.h"

#include "exporting/batch/OutputPlan.h"
#include "host/exporting/ExportSamples.h"
#include "host/photo/PhotoSamples.h"
#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include "Zorvik/Exception.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace LumetraHost;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

struct PhotoBatchTest : testing::Test
{
    QString PathOf(const char* name) const { return folder.filePath(QLatin1String(name)); }

    PhotoInput WritePhoto(const char* name) const
    {
        PhotoWriter::Write(PathOf(name), Photo{{}, LumetraTest::MakeGradient(40, 30)});
        return {PathOf(name)};
    }

    OutputSet MakeSet(const char* names) const { return OutputSet{OutputTemplate(PathOf(names))}; }

    QTemporaryDir folder;
    PhotoBatch::Limits limits{2, 1u << 30, nullptr};
};

std::vector<std::string> DescribeStates(const std::vector<PhotoJob>& jobs)
{
    std::vector<std::string> texts;
    for (const PhotoJob& job : jobs)
        texts.push_back(std::to_string(static_cast<int>(job.state)) + " " +
                        job.message.toStdString());
    return texts;
}

void RunBatch(const PhotoBatch::Limits& limits, std::vector<PhotoJob>& jobs)
{
    PhotoBatch(limits).Run(jobs, [](const PhotoJob&, const Warnings&) {});
}

/// A look that one photo alone does not have.
struct FailingSource : LookSource
{
    PhotoLook Get(const QString& photo) const override
    {
        if (photo.endsWith(QLatin1String("bad.png")))
            throw Zorvik::Exception("bad.png: no look", "", "", 0);
        return {};
    }
};

} // namespace

TEST_F(PhotoBatchTest, givesEachJobItsOwnLookAndRecipe)
{
    OutputSet large = MakeSet("large/{name}.png");
    OutputSet small = MakeSet("small/{name}.png");
    large.look = std::make_shared<SharedLook>(LookLayers{LumetraTest::MakeColours(), {}});
    ExportRecipe recipe;
    recipe.longestSide = 20;
    small.recipe = std::make_shared<ExportRecipe>(recipe);
    auto jobs = OutputPlan::Make({WritePhoto("a.png"), WritePhoto("b.png")}, {large, small}, {});
    ASSERT_EQ(jobs.size(), 4u);

    RunBatch(limits, jobs);

    const Image photo = PhotoReader::Read(PathOf("a.png")).image;
    for (const char* name : {"a.png", "b.png"}) {
        const Image drawn = PhotoReader::Read(PathOf("large/") + QLatin1String(name)).image;
        EXPECT_GT(LumetraTest::LargestDifference(drawn, photo), 5);
        EXPECT_EQ(PhotoReader::Read(PathOf("small/") + QLatin1String(name)).image.GetWidth(), 20);
    }
}

TEST_F(PhotoBatchTest, aLookThatCannotBeReadCostsItsPhotoAlone)
{
    OutputSet set = MakeSet("out/{name}.png");
    set.look = std::make_shared<FailingSource>();
    auto jobs = OutputPlan::Make({WritePhoto("bad.png"), WritePhoto("good.png")}, {set}, {});

    RunBatch(limits, jobs);

    EXPECT_EQ(jobs[0].state, PhotoJob::State::Failed);
    EXPECT_EQ(jobs[0].message, QStringLiteral("bad.png: no look"));
    EXPECT_EQ(jobs[1].state, PhotoJob::State::Written);
}

TEST_F(PhotoBatchTest, leavesJobsPlannedWhenItIsCancelled)
{
    CancelToken cancel;
    cancel.Cancel();
    limits.cancel = &cancel;
    auto jobs = OutputPlan::Make({WritePhoto("a.png"), WritePhoto("b.png")},
                                 {MakeSet("out/{name}.png")}, {});
    int ended = 0;

    PhotoBatch(limits).Run(jobs, [&ended](const PhotoJob& job, const Warnings&) {
        EXPECT_EQ(job.state, PhotoJob::State::Planned);
        ++ended;
    });

    EXPECT_EQ(ended, 2);
    EXPECT_FALSE(QDir(PathOf("out")).exists());
}

TEST_F(PhotoBatchTest, stopsAfterTheRunningPhotosWhenItIsCancelled)
{
    CancelToken cancel;
    limits.cancel = &cancel;
    limits.parallel = 1;
    std::vector<PhotoInput> photos;
    for (const char* name : {"a.png", "b.png", "c.png", "d.png"})
        photos.push_back(WritePhoto(name));
    /// Cancels while the look of the second photo is asked for.
    struct Cancelling : LookSource
    {
        explicit Cancelling(CancelToken& token) : cancel(token) {}
        PhotoLook Get(const QString& photo) const override
        {
            if (photo.endsWith(QLatin1String("b.png")))
                cancel.Cancel();
            return {};
        }
        CancelToken& cancel;
    };
    OutputSet set = MakeSet("out/{name}.png");
    set.look = std::make_shared<Cancelling>(cancel);
    auto jobs = OutputPlan::Make(photos, {set}, {});

    RunBatch(limits, jobs);

    EXPECT_THAT(DescribeStates(jobs), ElementsAre("1 ", "0 ", "0 ", "0 "));
    EXPECT_EQ(QDir(PathOf("out")).entryList(QDir::Files), QStringList{QStringLiteral("a.png")});
}

TEST_F(PhotoBatchTest, tellsWhenTwoLooksOfAPhotoShareAnOutput)
{
    const auto jobs =
        OutputPlan::Make({WritePhoto("a.png")}, {MakeSet("x.png"), MakeSet("x.png")}, {});

    for (const PhotoJob& job : jobs) {
        EXPECT_EQ(job.state, PhotoJob::State::Failed);
        EXPECT_THAT(job.message.toStdString(),
                    HasSubstr("which is that of another look on it too"));
    }
}

TEST_F(PhotoBatchTest, takesResultsUnlessToldToLeaveThemOut)
{
    const std::vector<PhotoInput> photos = {WritePhoto("a.png"), WritePhoto("a_x.png")};
    const std::vector<OutputSet> sets = {MakeSet("{name}_x.png")};
    OutputRules rules;
    rules.existing = ExistingOutput::KeepDone;

    EXPECT_EQ(OutputPlan::Make(photos, sets, rules)[1].state, PhotoJob::State::Planned);
    rules.leavesOutResults = true;
    const auto jobs = OutputPlan::Make(photos, sets, rules);
    EXPECT_EQ(jobs[0].state, PhotoJob::State::Planned);
    EXPECT_EQ(jobs[0].existing, JobExport::Existing::KeepDone);
    EXPECT_EQ(jobs[1].state, PhotoJob::State::LeftOut);
}

TEST_F(PhotoBatchTest, leavesNoneOutOfACircleOfOutputs)
{
    OutputRules rules;
    rules.leavesOutResults = true;
    rules.existing = ExistingOutput::Overwrite;

    const auto jobs =
        OutputPlan::Make({WritePhoto("2.png"), WritePhoto("1.png")}, {MakeSet("{n}.png")}, rules);

    for (const PhotoJob& job : jobs) {
        EXPECT_EQ(job.state, PhotoJob::State::Failed);
        EXPECT_THAT(job.message.toStdString(), HasSubstr("is one of the photos"));
    }
}
