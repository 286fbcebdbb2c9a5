// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/ContentFolder.h"
#include "storage/JsonValue.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <set>
#include <string>

namespace LumetraHost {

/// Removes contents beside a file of the user that no file names any more. The caller holds the
/// file's lock.
class ContentCollector
{
public:
    /// Throws when the file at a path cannot be used, for whatever reason.
    using Read = std::function<void(const QString& path)>;

    /// The names of contents in a text, which need not be good JSON.
    static std::set<std::string> FindNames(const QByteArray& text);
    /// The names of contents in the values.
    static std::set<std::string> FindNames(const JsonObject& values);

    /// Removes contents that are named neither in `kept` nor in a file beside `path` whose name
    /// begins like its own: backups, damaged files that were set aside, copies made by hand.
    /// Removes nothing while one of these cannot be read or one of `backups` cannot be used, as it
    /// may name any content.
    static void Collect(const ContentFolder& contents, const std::set<std::string>& kept,
                        const QString& path, const QStringList& backups, const Read& read);
};

} // namespace LumetraHost
