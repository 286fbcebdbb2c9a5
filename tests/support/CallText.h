// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Zorvik::Proc {
struct Frame;
struct FrameTarget;
} // namespace Zorvik::Proc

namespace Zorvik::Quindle {
class EffectsSettings;
class EffectsSettingsPackage;
class ResetSettings;
class SettingsPainterEffectsPackage;
} // namespace Zorvik::Quindle

namespace LumetraTest {

// Arguments as text, exact: doubles in their shortest form that reads back the same, texts quoted,
// the index 0xFFFFFFFF as "none".

std::string CallText(bool value);
std::string CallText(int value);
std::string CallText(unsigned value);
std::string CallText(double value);
std::string CallText(const char* value);
std::string CallText(const std::string& value);
std::string CallText(const std::map<std::string, int>& value);
std::string CallText(const std::map<std::string, std::string>& value);
std::string CallText(const std::vector<std::pair<std::string, std::string>>& value);
/// The effect as "tone{gain: 0.5, bias: 0}", "no effect" for null. Leaves no trace in a call log.
std::string CallText(const Zorvik::Quindle::IEffectSettings* effect);
std::string CallText(const Zorvik::Quindle::EffectPtr& effect);
std::string CallText(const Zorvik::Quindle::ConstEffectPtr& effect);
std::string CallText(const Zorvik::Quindle::EffectList& effects);
std::string CallText(const Zorvik::Quindle::ConstEffectList& effects);
/// The package as "Looks/preset-id #3".
std::string CallText(const Zorvik::Quindle::EffectsSettingsPackage& package);
/// The effects, package and blend amount, and "wait" when set.
std::string CallText(const Zorvik::Quindle::EffectsSettings& effects);
std::string CallText(const Zorvik::Quindle::SettingsPainterEffectsPackage& package);
std::string CallText(const Zorvik::Quindle::ResetSettings& request);
std::string CallText(const Zorvik::Proc::FrameTarget& target);
std::string CallText(const Zorvik::Proc::Frame& frame);

/// Joins texts with ", ".
std::string JoinTexts(const std::vector<std::string>& texts);

} // namespace LumetraTest
