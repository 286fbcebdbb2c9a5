// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace LumetraPlugin {

/// What presets of the user may be called: names of limited length without control characters, each
/// of which one preset has.
class PresetNames
{
public:
    /// In characters as QString counts them.
    static constexpr int MaxLength = 50;

    /// What is wrong with `name`, spaces around it aside, as "expected …, found …"; empty for a
    /// name that a preset may have. Whether another preset has it already is not looked at.
    static QString FindFault(const QString& name);

    /// `name` without spaces around it and control characters, shortened, and numbered until it is
    /// none of `taken`.
    static QString MakeFree(const QString& name, const QStringList& taken);
};

} // namespace LumetraPlugin
