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

/// Finds out which contents beside a file of the user nobody names any more, and removes them. The
/// caller holds the file's lock.
class ContentCollector
{
public:
    /// Throws when the file at a path is no good, for whatever reason.
    using Read = std::function<void(const QString& path)>;

    /// The names of contents in a text, which need not be good JSON.
    static std::set<std::string> FindNames(const QByteArray& text);
    /// The same in values.
    static std::set<std::string> FindNames(const JsonObject& values);

    /// Removes what neither `kept` nor any file beside `path` whose name begins like its own names:
    /// backups, damaged files that were set aside, copies made by hand. As long as one of these
    /// cannot be read, or one of `backups` is no good, it may have named anything: nothing is
    /// removed then.
    static void Collect(const ContentFolder& contents, const std::set<std::string>& kept,
                        const QString& path, const QStringList& backups, const Read& read);
};

} // namespace LumetraHost
