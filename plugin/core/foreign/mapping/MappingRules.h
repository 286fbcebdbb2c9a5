// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/foreign/mapping/MappingTable.h"

namespace LumetraPlugin {

/// The rules of the mapping table. A rule that cannot read its value leaves the setting out and
/// says what it expected.
namespace MappingRules {

using RuleFunction = void(const MappingRow& row, const ForeignValue& value, LookBuilder& look);

// Numbers.
RuleFunction SetDifference; ///< scale times the distance from neutral
RuleFunction AddDifference; ///< the same, added to what other settings say
RuleFunction SetValue;      ///< scale times the value
RuleFunction SetHue;        ///< degrees, brought into 0 to 360
RuleFunction TellOnly;      ///< the rule of another setting reads it

// Light.
RuleFunction SetContrast;
RuleFunction SetTemperature;
RuleFunction SetTemperatureStep;
RuleFunction SetCurve;      ///< a list of points from 0 to 255
RuleFunction SetTypedCurve; ///< text: kind of curve, then its numbers

// Colour.
RuleFunction SetBlending;        ///< half of the value, and 50
RuleFunction SetGradeSaturation; ///< blending too, where the look does not say
RuleFunction SetSplitHue;        ///< of the effect that the look's other settings need
RuleFunction SetSplitNumber;
RuleFunction SetGrey;
RuleFunction SetNestedLook;
RuleFunction SetProfile;
RuleFunction SetGreyMethod;
RuleFunction SetTable;
RuleFunction CheckWhiteBalance;

// The finished picture.
RuleFunction SetSharpness;
RuleFunction SetVignette;
RuleFunction SetGrain;

} // namespace MappingRules

} // namespace LumetraPlugin
