// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraHost {

/// The values of the placeholders of one output.
struct OutputValues
{
    QString photo;     ///< the path that {folder}, {name}, {original_ext} and {date} are taken from
    int number = 1;    ///< {n}
    QString preset;    ///< {preset}
    QString group;     ///< {group}
    QString intensity; ///< {intensity}
    /// {ext}. Empty: the photo's own, or jpg for a photo whose kind of file cannot be written.
    QString extension;
};

/// A file name with placeholders: {folder}, {name}, {ext} and {original_ext} of the photo,
/// {preset}, {group}, {intensity}, {n} or {n:04} for the number of the photo in its batch, {date}
/// or {date:FORMAT} for the time at which it was taken, else that of its file, in a format of
/// QDateTime, in English. Characters that file names cannot have are replaced in all values; a
/// slash in the format of a date makes folders.
class OutputTemplate
{
public:
    /// Zorvik::Exception for an unknown placeholder, a brace without partner and an extension that
    /// names no format.
    explicit OutputTemplate(const QString& text);

    /// True when there is a placeholder of that name, such as "preset".
    bool Uses(const QString& name) const;

    /// The clean absolute path. Reads the photo's metadata where the template asks for its date.
    QString Expand(const OutputValues& values) const;

private:
    QString m_text;
};

} // namespace LumetraHost
