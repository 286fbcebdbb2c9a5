// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <algorithm>
#include <exception>
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace LumetraHost {

/// Sentences about one photo that tell what was left out or changed, in the order in which it was
/// noticed. They do not name the photo: whoever prints them does.
using Warnings = std::vector<std::string>;

/// Adds a warning unless an equal one was given before: reading and writing may notice one fact.
inline void Warn(Warnings& warnings, std::string text)
{
    if (std::find(warnings.begin(), warnings.end(), text) == warnings.end())
        warnings.push_back(std::move(text));
}

/// Runs `work`. When it throws, the reason becomes a warning that begins with `failure`, and the
/// result is false; lack of memory alone is thrown on.
template <class Work>
bool TryOrWarn(Warnings& warnings, const std::string& failure, const Work& work)
{
    try {
        work();
        return true;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        Warn(warnings, failure + ": " + error.what());
    }
    return false;
}

} // namespace LumetraHost
