// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"
#include "userdata/UserDataFile.h"

namespace LumetraPlugin {

/// Takes look-up tables out of the text of presets: in place of its numbers a table gets the name
/// of a file, whose content is kept here until it is written. Tables that are not well-formed stay
/// as they are.
class StoreTables
{
public:
    /// Takes out the tables of all effects in `data`, at whatever depth.
    void TakeOut(const LumetraHost::JsonObject& data);

    const LumetraHost::UserDataFile::Contents& GetContents() const { return m_contents; }

private:
    void Visit(const LumetraHost::JsonValue& value);
    void TakeOutOf(LumetraHost::JsonObject& effect);

    LumetraHost::UserDataFile::Contents m_contents;
};

} // namespace LumetraPlugin
