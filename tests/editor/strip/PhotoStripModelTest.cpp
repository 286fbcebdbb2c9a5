// SPDX-License-Identifier: GPL-2.0-or-later
// The row of photos and its thumbnails, which a test makes by hand.
#include "strip/PhotoStripModel.h"
#include "editor/EditorFixture.h"
#include "support/CallLog.h"
#include "support/ModelSpy.h"
#include "support/ModelText.h"

#include <QDateTime>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <algorithm>
#include <mutex>

using namespace LumetraTest;
using LumetraEditor::FoundPhoto;
using LumetraEditor::PhotoOrder;
using LumetraEditor::PhotoStripModel;
using LumetraEditor::Thumbnail;
using LumetraEditor::ThumbnailRequest;
using testing::ElementsAre;

namespace {

class PhotoStripModelTest : public EditorFolder
{
protected:
    static FoundPhoto Photo(const char* name, int day = 1)
    {
        const QDateTime time(QDate(2026, 5, day), QTime(12, 0));
        return {QStringLiteral("/photos/") + QLatin1String(name), time, {}, {}};
    }

    std::vector<std::string> Names() const { return ModelText(model, {Qt::DisplayRole}); }

    /// Waits until no row in sight lacks its picture.
    void WaitForPictures(int first, int last)
    {
        WaitUntil([=] {
            for (int row = first; row <= last; ++row)
                if (model.index(row).data(Qt::DecorationRole).isNull())
                    return false;
            return true;
        });
    }

    int CountMade(const char* name)
    {
        const std::lock_guard lock(mutex);
        return static_cast<int>(std::count(made.begin(), made.end(), name));
    }

    /// Makes a picture of 4 x 4 pixels, which takes 64 bytes.
    Thumbnail Make(const ThumbnailRequest& request)
    {
        {
            const std::lock_guard lock(mutex);
            made.push_back(QFileInfo(request.path).fileName().toStdString());
        }
        Thumbnail thumbnail{request.path, request.version, {}, {}, false, {}};
        thumbnail.picture = QImage(4, 4, QImage::Format_RGB32);
        thumbnail.picture.fill(Qt::gray);
        return thumbnail;
    }

    static constexpr int Capacity = 640; ///< ten pictures

    std::mutex mutex;
    std::vector<std::string> made; ///< names, in order
    PhotoStripModel model{[this](const ThumbnailRequest& request, const LumetraHost::CancelToken&) {
                              return Make(request);
                          },
                          nullptr, Capacity};
};

} // namespace

TEST_F(PhotoStripModelTest, countsAsPeopleDo)
{
    model.Add({Photo("img10.jpg"), Photo("img2.jpg"), Photo("IMG1.jpg"), Photo("a.jpg")});

    EXPECT_THAT(Names(), ElementsAre("\"a.jpg\"", "\"IMG1.jpg\"", "\"img2.jpg\"", "\"img10.jpg\""));
}

TEST_F(PhotoStripModelTest, putsLaterPortionsIntoTheirPlaces)
{
    CallLog log;
    const ModelSpy spy(log, model);
    model.Add({Photo("b.jpg"), Photo("d.jpg")});
    model.Add({Photo("e.jpg"), Photo("a.jpg"), Photo("c.jpg"), Photo("f.jpg")});

    EXPECT_THAT(Names(), ElementsAre("\"a.jpg\"", "\"b.jpg\"", "\"c.jpg\"", "\"d.jpg\"",
                                     "\"e.jpg\"", "\"f.jpg\""));
}

TEST_F(PhotoStripModelTest, keepsThePhotosOfIndexesWhenTheOrderChanges)
{
    CallLog log;
    const ModelSpy spy(log, model);
    model.Add({Photo("a.jpg", 3), Photo("b.jpg", 1), Photo("c.jpg", 2)});
    const QPersistentModelIndex first = model.index(0);

    model.SetOrder(PhotoOrder::Time);

    EXPECT_THAT(Names(), ElementsAre("\"b.jpg\"", "\"c.jpg\"", "\"a.jpg\""));
    EXPECT_EQ(first.data().toString(), QStringLiteral("a.jpg"));
    EXPECT_EQ(model.FindRow(QStringLiteral("/photos/a.jpg")), 2);
}

TEST_F(PhotoStripModelTest, prefersTheTimeOfTheShotToThatOfTheFile)
{
    model.SetOrder(PhotoOrder::Time);
    FoundPhoto late = Photo("a.jpg", 1);
    late.captured = QDateTime(QDate(2026, 5, 20), QTime(8, 0));

    model.Add({late, Photo("b.jpg", 5), Photo("c.jpg", 5)});

    EXPECT_THAT(Names(), ElementsAre("\"b.jpg\"", "\"c.jpg\"", "\"a.jpg\""));
}

TEST_F(PhotoStripModelTest, sortsAgainWhenTimesAreKnownAtTheEndOfAScan)
{
    model.SetOrder(PhotoOrder::Time);
    model.Add({Photo("a.jpg", 1), Photo("b.jpg", 2)});
    FoundPhoto changed = Photo("a.jpg", 3);

    model.Add({changed, Photo("b.jpg", 2)});
    model.EndScan({changed.path, Photo("b.jpg").path});

    EXPECT_THAT(Names(), ElementsAre("\"b.jpg\"", "\"a.jpg\""));
}

TEST_F(PhotoStripModelTest, removesPhotosThatAreGoneButNotTheCurrentOneAndThoseThatWereGiven)
{
    CallLog log;
    const ModelSpy spy(log, model);
    model.Replace({Photo("given.jpg").path});
    model.Add({Photo("a.jpg"), Photo("b.jpg"), Photo("c.jpg"), Photo("d.jpg")});
    model.SetCurrent(Photo("b.jpg").path);

    model.EndScan({Photo("d.jpg").path});

    EXPECT_THAT(Names(), ElementsAre("\"b.jpg\"", "\"d.jpg\"", "\"given.jpg\""));
}

TEST_F(PhotoStripModelTest, makesPicturesOnlyForTheRowsInSightAndTheirNeighbours)
{
    model.SetThumbnailSize({8, 8});
    model.Add({Photo("1.jpg"), Photo("2.jpg"), Photo("3.jpg"), Photo("4.jpg"), Photo("5.jpg"),
               Photo("6.jpg"), Photo("7.jpg"), Photo("8.jpg")});

    model.SetVisibleRows(3, 4);
    WaitForPictures(1, 6);

    const std::lock_guard lock(mutex);
    EXPECT_THAT(
        made, testing::UnorderedElementsAre("4.jpg", "5.jpg", "6.jpg", "7.jpg", "2.jpg", "3.jpg"));
}

TEST_F(PhotoStripModelTest, forgetsThePicturesThatWereInSightLongestAgo)
{
    model.SetThumbnailSize({8, 8});
    std::vector<FoundPhoto> photos;
    for (int i = 10; i < 60; ++i)
        photos.push_back(Photo(qPrintable(QStringLiteral("%1.jpg").arg(i))));
    model.Add(photos);

    for (int first = 0; first < 48; first += 2) {
        model.SetVisibleRows(first, first + 1);
        WaitForPictures(first, first + 1);
        EXPECT_LE(model.GetThumbnailBytes(), Capacity);
    }

    EXPECT_TRUE(model.index(0).data(Qt::DecorationRole).isNull());
    model.SetVisibleRows(0, 1);
    WaitForPictures(0, 1);
    EXPECT_EQ(CountMade("10.jpg"), 2);
}

TEST_F(PhotoStripModelTest, makesAnotherPictureWhenTheFileOrItsEditChanges)
{
    model.SetThumbnailSize({8, 8});
    model.SetVisibleRows(0, 1);
    model.Add({Photo("a.jpg", 1), Photo("b.jpg", 1)});
    WaitForPictures(0, 1);

    FoundPhoto edited = Photo("b.jpg", 1);
    edited.editModified = QDateTime(QDate(2026, 6, 1), QTime(9, 0));
    model.Add({Photo("a.jpg", 2), edited});
    WaitUntil([this] { return CountMade("a.jpg") == 2 && CountMade("b.jpg") == 2; });
    model.Add({Photo("a.jpg", 2), edited});
    model.MarkChanged(edited.path);
    WaitUntil([this] { return CountMade("b.jpg") == 3; });

    EXPECT_EQ(CountMade("a.jpg"), 2);
}

TEST_F(PhotoStripModelTest, makesNoPictureWhileNothingIsInSight)
{
    model.SetThumbnailSize({8, 8});
    model.SetVisibleRows(0, -1);
    model.Add({Photo("a.jpg")});
    model.SetVisibleRows(5, 6); // beyond the end

    const std::lock_guard lock(mutex);
    EXPECT_TRUE(made.empty());
}

TEST_F(PhotoStripModelTest, tellsAScreenReaderWhatARowShows)
{
    model.Add({Photo("a.jpg"), Photo("b.jpg")});
    EXPECT_EQ(model.index(1).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("b.jpg, 2 of 2"));

    model.SetProblem(Photo("b.jpg").path, QStringLiteral("b.jpg: other content"));

    EXPECT_EQ(model.index(1).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("b.jpg, cannot be opened, 2 of 2"));
}
