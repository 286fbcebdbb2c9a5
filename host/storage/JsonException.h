// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Exception.h"

#include <cstdint>
#include <string>

namespace LumetraHost {

/// A place in a stored text.
struct JsonPlace
{
    std::string file;
    std::uint32_t line = 0;   ///< from 1; 0 when unknown
    std::uint32_t column = 0; ///< from 1, in characters; 0 when unknown

    /// "file:line:column", or the file alone when the line is unknown.
    std::string ToText() const;
};

/// An error in a stored text, and its place. The description reads by itself: a syntax error begins
/// with "file:line:column: ", a value of the wrong kind with its path "file/key/list[index]/key: ".
class JsonException : public Zorvik::Exception
{
public:
    /// `function` and `line` name the place of the call: leave them out.
    JsonException(const std::string& description, const JsonPlace& place,
                  const std::string& message, const std::string& function = __builtin_FUNCTION(),
                  int line = __builtin_LINE());
    ~JsonException() override;

    const JsonPlace& GetPlace() const { return m_place; }
    /// The description without its place.
    const std::string& GetMessage() const { return m_message; }

private:
    JsonPlace m_place;
    std::string m_message;
};

} // namespace LumetraHost
