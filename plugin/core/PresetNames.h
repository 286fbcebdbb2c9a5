// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <functional>

namespace LumetraPlugin {

/// Rules for names of the user's presets: limited length, no control characters, and no two presets
/// with one name.
class PresetNames
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::PresetNames)

public:
    using IsTaken = std::function<bool(const QString& name)>;

    /// The longest name, in characters as QString counts them.
    static constexpr int MaxLength = 50;

    /// The fault of `name` (spaces around it do not count) as "expected …, found …", in the user's
    /// language where the program has translations; empty for a name that a preset may have.
    /// Whether another preset has it already is not checked.
    static QString FindFault(const QString& name);

    /// True for a name of more than MaxLength characters; spaces around it do not count.
    static bool IsTooLong(const QString& name) { return name.trimmed().size() > MaxLength; }

    /// `name` without spaces around it and control characters, shortened, and numbered until it is
    /// not in `taken`.
    static QString MakeFree(const QString& name, const QStringList& taken);
    /// MakeFree() for names that are not in a list.
    static QString MakeFreeOf(const QString& name, const IsTaken& isTaken);

    /// A file name that every file system takes, made of a preset's name and a suffix without dot.
    static QString MakeFileName(const QString& name, const QString& suffix);
};

} // namespace LumetraPlugin
