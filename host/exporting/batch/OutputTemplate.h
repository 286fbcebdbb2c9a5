// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraHost {

/// A file name with placeholders: {folder}, {name} and {ext} of the photo, {preset}. Characters
/// that file names cannot have are taken out of the preset's name. A photo whose kind of file
/// cannot be written becomes a JPEG.
class OutputTemplate
{
public:
    /// Zorvik::Exception for an unknown placeholder, a brace without partner and an extension that
    /// names no format.
    explicit OutputTemplate(const QString& text);

    /// The clean absolute path for `photo`.
    QString Expand(const QString& photo, const QString& presetName) const;

private:
    QString m_text;
};

} // namespace LumetraHost
