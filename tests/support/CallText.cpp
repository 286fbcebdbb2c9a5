// SPDX-License-Identifier: MIT
#include "support/CallText.h"

#include "support/RecordingEffect.h"
#include "support/StoredForm.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/EffectsSettings.h"
#include "Zorvik/Quindle/ResetSettings.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <array>
#include <charconv>

namespace LumetraTest {

using namespace Zorvik;

namespace {

template <class Key, class Value>
std::string MapText(const std::map<Key, Value>& map)
{
    std::vector<std::string> entries;
    for (const auto& [key, value] : map)
        entries.push_back(key + ": " + CallText(value));
    return "{" + JoinTexts(entries) + "}";
}

template <class List>
std::string ListText(const List& list)
{
    std::vector<std::string> elements;
    for (const auto& element : list)
        elements.push_back(CallText(element));
    return "[" + JoinTexts(elements) + "]";
}

} // namespace

std::string JoinTexts(const std::vector<std::string>& texts)
{
    std::string joined;
    for (const std::string& text : texts)
        joined += (joined.empty() ? "" : ", ") + text;
    return joined;
}

std::string CallText(bool value)
{
    return value ? "true" : "false";
}

std::string CallText(int value)
{
    return std::to_string(value);
}

std::string CallText(unsigned value)
{
    return value == 0xFFFFFFFF ? "none" : std::to_string(value);
}

std::string CallText(double value)
{
    std::array<char, 32> text;
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
    return std::string(text.data(), result.ptr);
}

std::string CallText(const char* value)
{
    return CallText(std::string(value));
}

std::string CallText(const std::string& value)
{
    return "\"" + value + "\"";
}

std::string CallText(const std::map<std::string, int>& value)
{
    return MapText(value);
}

std::string CallText(const std::map<std::string, std::string>& value)
{
    return MapText(value);
}

std::string CallText(const std::vector<std::pair<std::string, std::string>>& value)
{
    std::vector<std::string> pairs;
    for (const auto& [first, second] : value)
        pairs.push_back("(" + CallText(first) + ", " + CallText(second) + ")");
    return "[" + JoinTexts(pairs) + "]";
}

std::string CallText(const Quindle::IEffectSettings* effect)
{
    if (!effect)
        return "no effect";
    if (const auto* recording = dynamic_cast<const RecordingEffect*>(effect))
        return recording->GetText();
    const auto tree = std::make_shared<Core::Property>(std::string());
    effect->Serialize(Brassel::SerializerProperty::Create(tree));
    return effect->GetEffectID() + StoredText(*tree);
}

std::string CallText(const Quindle::EffectPtr& effect)
{
    return CallText(effect.get());
}

std::string CallText(const Quindle::ConstEffectPtr& effect)
{
    return CallText(effect.get());
}

std::string CallText(const Quindle::EffectList& effects)
{
    return ListText(effects);
}

std::string CallText(const Quindle::ConstEffectList& effects)
{
    return ListText(effects);
}

std::string CallText(const Quindle::EffectsSettingsPackage& package)
{
    return package.GetPackageName() + "/" + package.GetPresetName() + " #" +
           CallText(package.GetIndex());
}

std::string CallText(const Quindle::EffectsSettings& effects)
{
    return CallText(effects.Effects()) + " in " + CallText(effects.Package()) + " blend " +
           CallText(effects.GetBlendAmount()) + (effects.GetWaitApply() ? " wait" : "");
}

std::string CallText(const Quindle::SettingsPainterEffectsPackage& package)
{
    using Package = Quindle::SettingsPainterEffectsPackage;
    const bool isBlend = package.GetKind() == Package::Kind::BlendSource;
    return std::string(isBlend ? "BlendSource " : "OneInput ") + package.GetPackageName() + "/" +
           package.GetPresetName() + (package.IsNeedRestoreAlpha() ? " restoring alpha" : "");
}

std::string CallText(const Quindle::ResetSettings& request)
{
    return CallText(request.GetIndex());
}

std::string CallText(const Proc::FrameTarget& target)
{
    return CallText(target.width) + "x" + CallText(target.height) + " aspect " +
           CallText(target.pixelAspect);
}

std::string CallText(const Proc::Frame& frame)
{
    if (frame.IsNull())
        return "no frame";
    return CallText(frame.width) + "x" + CallText(frame.height);
}

} // namespace LumetraTest
