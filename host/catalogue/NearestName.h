// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

namespace LumetraHost {

/// The name that was probably meant: the one of `names` that is fewest edits (letters added, left
/// out, exchanged; upper and lower case of ASCII alike) away from `text`, if that is at most a
/// third of its length. Empty when none is near.
std::string NearestName(const std::string& text, const std::vector<std::string>& names);

/// ", did you mean \"x\"?", or empty when none is near.
std::string DidYouMean(const std::string& text, const std::vector<std::string>& names);

} // namespace LumetraHost
