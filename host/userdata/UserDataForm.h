// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonDocument.h"

#include <QString>

#include <functional>
#include <string>

namespace LumetraHost {

/// Describes to a UserDataFile the data that it keeps. The owner of the data fills it in, once; the
/// file itself knows no key of theirs.
struct UserDataForm
{
    // Keys that every such file has at its root.
    static constexpr char KeyFormat[] = "format";
    static constexpr char KeyVersion[] = "version";

    std::string format;    ///< the text under KeyFormat in every file of this form
    int majorVersion = 1;  ///< is written; newer ones are read only, older ones taken over
    std::string noun;      ///< plural that names the data in messages: "presets"
    QString contentSuffix; ///< ending of the folder beside the file that holds large contents
    /// True for the root of a file without KeyFormat that has this form all the same. May be empty:
    /// no such file has it then.
    std::function<bool(const JsonObject& root)> isOursWithoutFormat;
    /// Size limit, in bytes, for files that name the format: older versions held everything
    /// themselves.
    qint64 largestOldFile = JsonDocument::MaxFileSize;

    /// True for the root of a file of this form.
    bool IsOurs(const JsonObject& root) const;
};

} // namespace LumetraHost
