// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"
#include "edits/PhotoIdentity.h"

#include "storage/JsonValue.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace LumetraHost {

/// An edit as it is on the disk: that of EditStateFormat and, beside its members,
/// "photo": { "size": BYTES, "modified": TIME, "sha256": HASH, "path": PATH }, "saved": TIME.
/// Files of earlier versions have neither; earlier versions pass over both. "path" is only in files
/// that are not beside their photo, for the reader. Times are UTC in ISO 8601.
struct EditFile
{
    EditState state;
    PhotoIdentity photo; ///< unknown where the file does not say it
    QString photoPath;   ///< of a photo elsewhere; empty beside it
    QDateTime saved;     ///< UTC; the file's time where the text does not say it
    /// The file as it was read, or null. Members that this version does not know are written again.
    JsonValue::Object origin;
    QByteArray text; ///< all of the file as it was read

    /// Zorvik::Exception, with file and place, for what is no edit.
    static EditFile Read(const QString& path);
    /// Zorvik::Exception for an edit that is too large to be read again.
    QByteArray ToText() const;
};

} // namespace LumetraHost
