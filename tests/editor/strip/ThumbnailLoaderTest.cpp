// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/ThumbnailLoader.h"
#include "editor/EditorFixture.h"

#include <gmock/gmock.h>

#include <condition_variable>
#include <mutex>

using namespace LumetraTest;
using LumetraEditor::Thumbnail;
using LumetraEditor::ThumbnailLoader;
using LumetraEditor::ThumbnailRequest;
using LumetraHost::CancelToken;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

/// A loader whose thumbnails wait at a gate. The machine decides how many wait there at once.
class ThumbnailLoaderTest : public testing::Test
{
protected:
    ThumbnailLoaderTest()
    {
        QObject::connect(&loader, &ThumbnailLoader::made, [this](const Thumbnail& thumbnail) {
            delivered.push_back(thumbnail.path.toStdString());
        });
    }
    ~ThumbnailLoaderTest() override { Open(); }

    static ThumbnailRequest Request(const std::string& path, int version = 0)
    {
        return {QString::fromStdString(path), version, {8, 8}, nullptr};
    }

    Thumbnail Make(const ThumbnailRequest& request, const CancelToken& cancel)
    {
        std::unique_lock lock(mutex);
        begun.push_back(request.path.toStdString());
        changed.notify_all();
        changed.wait(lock, [this] { return isOpen; });
        if (cancel.IsCancelled())
            cancelled.push_back(request.path.toStdString());
        changed.notify_all();
        return {request.path, request.version, {}, {}, false, {}};
    }

    void WaitForBegun(std::size_t count)
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this, count] { return begun.size() >= count; });
    }

    void Open()
    {
        const std::lock_guard lock(mutex);
        isOpen = true;
        changed.notify_all();
    }

    std::mutex mutex;
    std::condition_variable changed;
    bool isOpen = false;
    std::vector<std::string> begun;
    std::vector<std::string> cancelled;
    std::vector<std::string> delivered;
    ThumbnailLoader loader{[this](const ThumbnailRequest& request, const CancelToken& cancel) {
        return Make(request, cancel);
    }};
};

} // namespace

TEST_F(ThumbnailLoaderTest, deliversWhatIsWanted)
{
    Open();
    loader.Want({Request("a"), Request("b"), Request("c")});
    WaitUntil([this] { return delivered.size() == 3; });

    EXPECT_THAT(delivered, UnorderedElementsAre("a", "b", "c"));
}

TEST_F(ThumbnailLoaderTest, dropsWhatNobodyWantsAnyMore)
{
    std::vector<ThumbnailRequest> first;
    for (int i = 0; i < 100; ++i)
        first.push_back(Request("old" + std::to_string(i)));
    loader.Want(first);
    WaitForBegun(1);

    loader.Want({Request("new")});
    Open();
    WaitUntil([this] { return !delivered.empty(); });

    EXPECT_THAT(delivered, ElementsAre("new"));
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return !cancelled.empty(); });
    EXPECT_LE(begun.size(), 5u); // those that were being made, and the new one
}

TEST_F(ThumbnailLoaderTest, doesNotMakeTwiceWhatIsBeingMade)
{
    loader.Want({Request("a")});
    WaitForBegun(1);

    loader.Want({Request("a"), Request("b")});
    Open();
    WaitUntil([this] { return delivered.size() == 2; });
    loader.Want({});

    EXPECT_THAT(begun, UnorderedElementsAre("a", "b"));
}

TEST_F(ThumbnailLoaderTest, makesANewerVersionOfWhatIsBeingMade)
{
    loader.Want({Request("a", 1)});
    WaitForBegun(1);

    loader.Want({Request("a", 2)});
    Open();
    WaitUntil([this] { return !delivered.empty(); });

    EXPECT_THAT(delivered, ElementsAre("a"));
    EXPECT_EQ(begun.size(), 2u);
}
