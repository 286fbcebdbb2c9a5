// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace LumetraPlugin {

/// What presets of the user may be called: names of limited length, each of which one preset has.
class PresetNames
{
public:
    /// In characters as QString counts them.
    static constexpr int LONGEST = 50;

    /// `name` without spaces around it, shortened, and numbered until it is none of `taken`.
    static QString MakeFree(const QString& name, const QStringList& taken);
};

} // namespace LumetraPlugin
