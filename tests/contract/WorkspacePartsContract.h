// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/IStatisticsEventHandler.h"
#include "Zorvik/Util/ImageUtils.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace LumetraTest {

/// Requirements on every workspace and its small parts: converter, statistics, registry of presets.
/// A Subject offers `std::shared_ptr<IWorkspaceController> GetWorkspace()`,
/// `std::vector<std::pair<std::string, std::map<…>>> GetEvents()`: the received statistics, and
/// `std::vector<std::pair<std::string, std::string>> GetPresets()`: the registered presets.
template <class Subject>
class WorkspacePartsContract : public testing::Test
{
protected:
    static Zorvik::Proc::Frame MakeFrame(Zorvik::Proc::PixelFormat format)
    {
        auto frame = Zorvik::Proc::Frame::Allocate(5, 3, format);
        frame.pixelAspect = 1.5;
        return frame;
    }

    const Zorvik::Util::IImageConverter& Converter() { return workspace->GetImageConverter(); }

    Subject subject;
    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace = subject.GetWorkspace();
};

TYPED_TEST_SUITE_P(WorkspacePartsContract);

TYPED_TEST_P(WorkspacePartsContract, keepsItsPartsAsLongAsItLives)
{
    EXPECT_EQ(&this->workspace->GetCoreDrawer(), &this->workspace->GetCoreDrawer());
    EXPECT_EQ(&this->workspace->GetStatisticsEventHandler(),
              &this->workspace->GetStatisticsEventHandler());
    EXPECT_EQ(&this->workspace->GetImageConverter(), &this->workspace->GetImageConverter());
    EXPECT_EQ(&this->workspace->GetResetReceiver(), &this->workspace->GetResetReceiver());
    EXPECT_EQ(&this->workspace->GetPresetRegistry(), &this->workspace->GetPresetRegistry());
}

TYPED_TEST_P(WorkspacePartsContract, convertsFramesToEightBitsOfTheSameSize)
{
    for (const auto format : {Zorvik::Proc::PixelFormat::Rgba8Premultiplied,
                              Zorvik::Proc::PixelFormat::RgbaFloatPremultiplied}) {
        const auto shown = this->Converter().ToDisplay(this->MakeFrame(format));
        ASSERT_FALSE(shown.IsNull());
        EXPECT_EQ(shown.format, Zorvik::Proc::PixelFormat::Rgba8Premultiplied);
        EXPECT_EQ(shown.width, 5);
        EXPECT_EQ(shown.height, 3);
        EXPECT_EQ(shown.stride % 16, 0U);
        EXPECT_EQ(shown.pixelAspect, 1.5);
    }
}

TYPED_TEST_P(WorkspacePartsContract, doesNotWriteIntoTheFrameThatItConverts)
{
    auto frame = this->MakeFrame(Zorvik::Proc::PixelFormat::Rgba8Premultiplied);
    const std::size_t size = frame.stride * 3;
    for (std::size_t i = 0; i < size; ++i)
        frame.pixels[i] = static_cast<std::uint8_t>(i % 4 == 3 ? 255 : i);
    const std::vector<std::uint8_t> before(frame.pixels.get(), frame.pixels.get() + size);
    this->Converter().ToDisplay(frame);
    EXPECT_EQ(std::vector<std::uint8_t>(frame.pixels.get(), frame.pixels.get() + size), before);
}

TYPED_TEST_P(WorkspacePartsContract, aNullFrameStaysNull)
{
    EXPECT_TRUE(this->Converter().ToDisplay(Zorvik::Proc::Frame()).IsNull());
}

TYPED_TEST_P(WorkspacePartsContract, receivesEventsInOrderWithTheirParameters)
{
    auto& statistics = this->workspace->GetStatisticsEventHandler();
    statistics.SendEvent("click", {{"effectName", "Wärme"}, {"effectGroup", "Film"}});
    statistics.SendEvent("reset", {});
    const auto events = this->subject.GetEvents();
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].first, "click");
    EXPECT_EQ(events[0].second.at("effectName"), "Wärme");
    EXPECT_EQ(events[0].second.at("effectGroup"), "Film");
    EXPECT_EQ(events[1].first, "reset");
    EXPECT_TRUE(events[1].second.empty());
}

TYPED_TEST_P(WorkspacePartsContract, aNewListOfPresetsReplacesTheOld)
{
    using List = std::vector<std::pair<std::string, std::string>>;
    auto& registry = this->workspace->GetPresetRegistry();
    registry.RegisterPresets({{"a", ""}, {"b", "store"}, {"a", ""}});
    EXPECT_EQ(this->subject.GetPresets(), (List{{"a", ""}, {"b", "store"}, {"a", ""}}))
        << "in order, duplicates kept";
    registry.RegisterPresets({{"c", ""}});
    EXPECT_EQ(this->subject.GetPresets(), (List{{"c", ""}}));
    registry.RegisterPresets({});
    EXPECT_TRUE(this->subject.GetPresets().empty());
}

REGISTER_TYPED_TEST_SUITE_P(WorkspacePartsContract, keepsItsPartsAsLongAsItLives,
                            convertsFramesToEightBitsOfTheSameSize,
                            doesNotWriteIntoTheFrameThatItConverts, aNullFrameStaysNull,
                            receivesEventsInOrderWithTheirParameters,
                            aNewListOfPresetsReplacesTheOld);

} // namespace LumetraTest
