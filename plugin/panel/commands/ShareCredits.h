// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraPlugin {

/// The author and the licence that the user gave to looks last; kept in an ini file beside the
/// user's presets, from which every dialog proposes them again.
class ShareCredits
{
public:
    /// Reads what is kept at `path`; an empty path, or a missing file, keeps nothing.
    static ShareCredits Load(const QString& path);
    /// Keeps them at `path`, where that is not empty.
    void Save(const QString& path) const;

    QString author;
    QString licence;
};

} // namespace LumetraPlugin
