// SPDX-License-Identifier: MIT
#pragma once

namespace Zorvik::Proc {

/// Names the effect that changes nothing. Applying it commits what the drawer shows.
struct SettingsEffectEmpty
{
    static constexpr char EFFECT_ID[] = "empty";
};

} // namespace Zorvik::Proc
