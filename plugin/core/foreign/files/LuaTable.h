// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace LumetraPlugin {

/// A value of a table written in Lua: a text (numbers and true and false are kept as they are
/// written) or another table. Tables keep the order of their entries; entries of a list have no
/// key.
struct LuaValue
{
    using Entry = std::pair<QString, LuaValue>;

    QString text;
    std::vector<Entry> entries;
    bool isTable = false;

    /// The entry of that key; null when there is none, or this is no table.
    const LuaValue* Find(const char* key) const;
    /// The text under `key`; empty when there is none.
    QString GetText(const char* key) const;
};

/// Reads a file that assigns one table to one name, `s = { … }`, as data. Nothing is ever run:
/// values are texts, numbers, true, false, nil and tables, and texts behind ZSTR or LOC; anything
/// else is an error.
class LuaTable
{
public:
    static constexpr int DeepestNesting = 32;
    static constexpr int MostEntries = 100000;

    /// The table. Zorvik::Exception with file (`path` is for that alone) and line.
    static LuaValue Read(const QString& path, const QByteArray& content);
};

} // namespace LumetraPlugin
