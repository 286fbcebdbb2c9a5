// SPDX-License-Identifier: MIT
#include "Zorvik/Lumetra/IWorkspaceUser.h"

#include "Zorvik/Exception.h"
#include "support/CallLog.h"
#include "support/RecordingWorkspace.h"

#include <gtest/gtest.h>

using namespace LumetraTest;
using Zorvik::Lumetra::IWorkspaceUser;

namespace {

class User : public virtual IWorkspaceUser
{
};

class WorkspaceUserTest : public testing::Test
{
protected:
    CallLog log;
    std::shared_ptr<RecordingWorkspace> workspace = std::make_shared<RecordingWorkspace>(log);
    User user;
};

} // namespace

TEST_F(WorkspaceUserTest, startsWithoutAWorkspace)
{
    EXPECT_EQ(user.GetWorkspaceController(false), nullptr);
    EXPECT_TRUE(user.GetWorkspaceReference().expired());
    try {
        user.GetWorkspaceController(true);
        FAIL();
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(), "expected an open workspace, found none");
    }
}

TEST_F(WorkspaceUserTest, givesTheWorkspaceWithoutKeepingItAlive)
{
    user.SetWorkspaceController(workspace);
    EXPECT_EQ(user.GetWorkspaceController(true), workspace);
    EXPECT_EQ(workspace.use_count(), 1);
    workspace.reset();
    EXPECT_EQ(user.GetWorkspaceController(false), nullptr);
    EXPECT_THROW(user.GetWorkspaceController(true), Zorvik::Exception);
}

TEST_F(WorkspaceUserTest, replacesTheWorkspaceAndLeavesIt)
{
    const auto other = std::make_shared<RecordingWorkspace>(log);
    user.SetWorkspaceController(workspace);
    user.SetWorkspaceController(other);
    EXPECT_EQ(user.GetWorkspaceController(true), other);
    user.SetWorkspaceController({});
    EXPECT_EQ(user.GetWorkspaceController(false), nullptr);
}

TEST_F(WorkspaceUserTest, aCopyStartsWithoutAWorkspace)
{
    user.SetWorkspaceController(workspace);
    const User copy(user);
    EXPECT_EQ(copy.GetWorkspaceController(false), nullptr);
    EXPECT_EQ(user.GetWorkspaceController(false), workspace);
}

TEST_F(WorkspaceUserTest, assigningKeepsTheOwnWorkspace)
{
    const auto other = std::make_shared<RecordingWorkspace>(log);
    User second;
    second.SetWorkspaceController(other);
    user.SetWorkspaceController(workspace);
    second = user;
    EXPECT_EQ(second.GetWorkspaceController(true), other);
}
