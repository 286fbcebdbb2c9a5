// SPDX-License-Identifier: MIT
#include "SliderFixture.h"

#include <boost/exception/get_error_info.hpp>

#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

namespace {

struct Caught
{
    std::string text;
    std::string function;
    std::string file;
    int line = 0;
};

class SliderSettingErrorsTest : public SliderFixture
{
protected:
    static Caught Catch(const std::function<void()>& operation)
    {
        try {
            operation();
        } catch (const std::invalid_argument& error) {
            const auto* function = boost::get_error_info<boost::throw_function>(error);
            const auto* file = boost::get_error_info<boost::throw_file>(error);
            const auto* line = boost::get_error_info<boost::throw_line>(error);
            if (!function || !file || !line) {
                ADD_FAILURE() << "the origin is not attached";
                return {};
            }
            return {error.what(), *function, *file, *line};
        }
        ADD_FAILURE() << "no exception";
        return {};
    }

    /// The text is the message, a line break and the call stack.
    static void ExpectError(const Caught& caught, const std::string& message,
                            const std::string& function)
    {
        EXPECT_THAT(caught.text, StartsWith(message + "\n"));
        const std::string stack = caught.text.substr(message.size() + 1);
        EXPECT_THAT(stack, StartsWith(" 0# "));
        EXPECT_THAT(caught.function, HasSubstr("SliderSetting::" + function + "("));
        EXPECT_EQ(caught.file, "Settings/SliderSetting");
        EXPECT_GT(caught.line, 0);
    }
};

} // namespace

TEST_F(SliderSettingErrorsTest, readingRefusesAParameterThatDoesNotExist)
{
    const StoredNode valid = Variable("tone", "gain", 0.0, 1.0);
    for (const bool isStrict : {false, true}) {
        SliderSetting slider(isStrict);
        const auto node =
            Stored(2, 30, {valid, Variable("tone", "radius", 0.0, 1.0), valid}).ToSerializer();
        ExpectError(Catch([&] { slider.Deserialize(node); }),
                    "Slider Setting(effectID: tone, parameter: radius) is not valid!",
                    "Deserialize");
        // Members before the broken variable stay.
        EXPECT_EQ(slider.Title(), "Title");
        EXPECT_EQ(slider.Min(), 2);
        EXPECT_EQ(slider.Max(), 30);
        EXPECT_THAT(slider.GetEffectIDs(), ElementsAre("tone"));
        EffectList list = {Tone(0)};
        slider.SetValue(30);
        EXPECT_TRUE(slider.SaveValue(list));
        EXPECT_THAT(log.Take(), ElementsAre("effect(tone).SetParameter(\"gain\", 1)"));
    }
}

TEST_F(SliderSettingErrorsTest, readingRefusesAnEffectThatIsNotRegistered)
{
    SliderSetting slider(false);
    const auto node = Stored(0, 1, {Variable("missing", "gain", 0.0, 1.0)}).ToSerializer();
    ExpectError(Catch([&] { slider.Deserialize(node); }),
                "Slider Setting(effectID: missing, parameter: gain) is not valid!", "Deserialize");
}

TEST_F(SliderSettingErrorsTest, readingAVariableWithoutAParameterNamesTheEmptyOne)
{
    SliderSetting slider(false);
    const auto node = Stored(0, 1, {StoredNode{{"effectID", "tone"}}}).ToSerializer();
    ExpectError(Catch([&] { slider.Deserialize(node); }),
                "Slider Setting(effectID: tone, parameter: ) is not valid!", "Deserialize");
}

TEST_F(SliderSettingErrorsTest, strictLoadingNamesTheFirstVariable)
{
    auto slider = Read(
        Stored(0, 100, {Variable("tone", "gain", 0.0, 1.0), Variable("grain", "amount", 0.0, 1.0)}),
        true);
    slider.SetValue(40);
    ExpectError(Catch([&] { slider.LoadValue(EffectList{Make("grain")}); }),
                "Slider Setting(effectID: tone, parameter: gain) can't be obtained from effects "
                "list!",
                "LoadValue");
    EXPECT_EQ(slider.Value(), 40) << "nothing has changed";
}

TEST_F(SliderSettingErrorsTest, strictSavingNamesTheMissingVariableAndKeepsTheEarlierOnes)
{
    auto slider =
        Read(Stored(0, 100,
                    {Variable("tone", "gain", 0.0, 1.0), Variable("grain", "amount", 0.0, 1.0),
                     Variable("tone", "bias", 0.0, 1.0)}),
             true);
    slider.SetValue(50);
    EffectList list = {Make("tone")};
    ExpectError(Catch([&] { slider.SaveValue(list); }),
                "Slider Setting(effectID: grain, parameter: amount) can't be set for effects list!",
                "SaveValue");
    EXPECT_THAT(log.Take(), ElementsAre("effect(tone).SetParameter(\"gain\", 0.5)"));
}

TEST_F(SliderSettingErrorsTest, aStrictSliderWithAllEffectsSucceeds)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 0.0, 1.0)}), true);
    EffectList list = {Tone(0.5)};
    EXPECT_TRUE(slider.LoadValue(list));
    EXPECT_TRUE(slider.SaveValue(list));
}
