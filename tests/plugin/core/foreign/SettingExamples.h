// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "plugin/core/foreign/ForeignFixture.h"

namespace LumetraTest {

/// A value that changes a picture, and the settings without which this one means nothing.
struct SettingExample
{
    std::string value;
    Settings others;
};

/// The example of a setting of the mapping table.
SettingExample FindExample(const std::string& setting);

} // namespace LumetraTest
