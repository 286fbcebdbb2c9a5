// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/foreign/ForeignLook.h"

#include <QByteArray>

namespace LumetraPlugin {

/// Reads the settings of a raw developer's profile, .pp3: sections of keys and values.
class RawProfileReader
{
public:
    /// `path` is for errors alone. Settings are named "Section/Key". Only sections that are on
    /// count; of those that the mapping table does not know, the name alone is kept, as
    /// "[Section]". Zorvik::Exception with file and line; NoLookError for a file without sections.
    static ForeignLook Read(const QString& path, const QByteArray& content);
};

} // namespace LumetraPlugin
