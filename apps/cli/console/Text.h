// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>

namespace LumetraCli {

/// Text::tr("…") is a text of the program in the user's language, once Language::Use() was called.
/// Keys of JSON, states in reports and everything else that programs read stay as they are.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(LumetraCli::Text)
};

} // namespace LumetraCli
