// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/drawer/DrawnPicture.h"
#include "host/engine/TestPictures.h"

#include "workspace/WorkspaceController.h"

#include "Zorvik/Quindle/ResetSettings.h"

#include <gtest/gtest.h>

#include <memory>

namespace LumetraHost {
namespace {

TEST(WorkspaceController, hasItsPartsBehindThePlatformsInterface)
{
    const auto workspace = std::make_shared<WorkspaceController>();
    Zorvik::Lumetra::IWorkspaceController& platform = *workspace;

    EXPECT_EQ(&platform.GetCoreDrawer(), &workspace->GetDrawer());
    EXPECT_EQ(&platform.GetStatisticsEventHandler(), &workspace->GetStatisticsLog());
    EXPECT_EQ(&platform.GetPresetRegistry(), &workspace->GetPresets());
}

TEST(WorkspaceController, takesPackagesOffOnRequest)
{
    WorkspaceController workspace;
    const Image photo = MakeRandomPicture(20, 20, Image::Depth::Bits8, 1);
    workspace.GetDrawer().SetPhoto(photo);
    auto settings = MakeSettings({MakeEffect("exposure", {{"stops", 1}})});
    settings.Package().SetPackageName("panel");
    settings.Package().SetIndex(4);
    workspace.GetCoreDrawer().ApplyEffect(settings, {});

    workspace.GetResetReceiver().ResetPackage(Zorvik::Quindle::ResetSettings(3));
    EXPECT_EQ(workspace.GetCoreDrawer().GetPackageIndex("panel"), 4u);
    workspace.GetResetReceiver().ResetPackage(Zorvik::Quindle::ResetSettings(4));

    EXPECT_EQ(workspace.GetCoreDrawer().GetPackageIndex("panel"), 0xFFFFFFFFu);
    EXPECT_TRUE(HaveSamePixels(DrawWhole(workspace.GetDrawer()), photo));
}

TEST(PresetRegistry, replacesItsListAndFindsStoreIds)
{
    PresetRegistry registry;
    registry.RegisterPresets({{"one", ""}, {"two", "store.two"}});
    ASSERT_NE(registry.FindStoreId("two"), nullptr);
    EXPECT_EQ(*registry.FindStoreId("two"), "store.two");
    EXPECT_EQ(*registry.FindStoreId("one"), "");
    EXPECT_EQ(registry.FindStoreId("three"), nullptr);

    registry.RegisterPresets({});
    EXPECT_TRUE(registry.GetPresets().empty());
}

} // namespace
} // namespace LumetraHost
