// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditSearch.h"
#include "edits/EditState.h"
#include "edits/PhotoIdentity.h"
#include "storage/JsonValue.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace LumetraEditor {

/// Writes the edit of one photo into the file beside it, "PHOTO.lumetra.json", or into the user's
/// own folder (KeptEdits) while that file cannot be written; whole or not at all. A file is never
/// lost from which the edit on the photo does not come, because it cannot be read, is older, of
/// another photo, or was written by another program since it was read or written here: it is copied
/// to a dated name before it is written over. Usable from any thread, by one at a time.
class EditWriter
{
public:
    struct Outcome
    {
        QString besideError; ///< why the edit is not beside the photo; empty: it is there
        QString error;       ///< why the edit is at neither place; empty: it is written
        QString setAside;    ///< path of the copy of an earlier file; empty: none was made
    };

    /// `search` is the one for this photo: it tells which file the edit comes from.
    EditWriter(const QString& photo, const LumetraHost::PhotoIdentity& identity,
               const LumetraHost::EditSearch& search);

    const QString& GetPhoto() const { return m_photo; }
    /// The next write sets the edit aside that was found, and carries nothing of it over.
    void StartAnew();
    /// Writes `state` as an edit of the time `saved`, UTC.
    Outcome Write(const LumetraHost::EditState& state, const QDateTime& saved);
    /// Removes the edit's files, where they are still as they were read or written here. The photo
    /// then has no edit.
    void Remove();

private:
    /// A file of an edit. Any program may write it at any time; what was read from it, written to
    /// it or copied here may be written over.
    struct Target
    {
        QString path;
        QByteArray safe;    ///< content that may be written over; null: none
        QString setAsideAs; ///< a word for the name of a copy of anything else

        QString Write(const QByteArray& text);
        void RemoveSafe();
        bool IsSafe() const;
    };

    static Target MakeTarget(const QString& path, const LumetraHost::EditSearch& search);
    void WriteElsewhere(const LumetraHost::EditState& state, const QDateTime& saved,
                        Outcome& outcome);
    QByteArray MakeText(const LumetraHost::EditState& state, const QDateTime& saved,
                        const QString& photoPath) const;

    QString m_photo;
    LumetraHost::PhotoIdentity m_identity;
    Target m_beside;
    Target m_kept;
    LumetraHost::JsonValue::Object m_origin;
};

} // namespace LumetraEditor
